// A loaded inflection table that any number of threads may ask.
#ifndef KZ_LEXICON_INFLECTOR_TABLE_H
#define KZ_LEXICON_INFLECTOR_TABLE_H

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "kz/inflection.h"
#include "kzlexicon/inflector.h"
#include "lexicon/search/headword_forms.h"

namespace kz::lexicon {

struct Inflector::Table {
  // Windows-1251 in lower case.
  std::vector<HeadwordCandidate> candidates(const std::string& word) const {
    const std::lock_guard lock(mutex);
    return headword_forms(word, *table);
  }

  std::unique_ptr<CGrSrcWordFlex> table;
  mutable std::mutex mutex;  // the table may load itself and remembers places
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_INFLECTOR_TABLE_H

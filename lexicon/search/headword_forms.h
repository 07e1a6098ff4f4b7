// From a form of a Russian word to the headwords that it may belong to.
#ifndef KZ_LEXICON_HEADWORD_FORMS_H
#define KZ_LEXICON_HEADWORD_FORMS_H

#include <string>
#include <vector>

#include "kz/inflection.h"
#include "lexicon/search/headword_endings.h"

namespace kz::lexicon {

struct HeadwordCandidate {
  std::string headword;  // Windows-1251
  WordGroup group;
  std::string ending;      // as the table writes it; empty for a form without ending
  std::string word_class;  // "NF 1"
};

// The headwords to look for, the most likely first: by the longest known ending, the order of its
// records, with the stem as it is before one with a change, last as a form without ending. `word`
// is Windows-1251 in lower case. Most of the headwords do not exist; none is there twice.
std::vector<HeadwordCandidate> headword_forms(const std::string& word, CGrSrcWordFlex& table);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_HEADWORD_FORMS_H

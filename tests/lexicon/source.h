// Dictionaries in memory, made of source text.
#ifndef KZ_TESTS_LEXICON_SOURCE_H
#define KZ_TESTS_LEXICON_SOURCE_H

#include <string>
#include <vector>

#include "kzlexicon/builder.h"
#include "kzlexicon/code_page.h"
#include "kzlexicon/dictionary.h"

namespace kz::test {

// The bytes of the dictionary file; the directives of the source count.
inline std::string built(const std::string& source, lexicon::BuildOptions options = {}) {
  const lexicon::SourceText text = lexicon::SourceReader().add(source, "source").take();
  return lexicon::Builder(with_properties(std::move(options), text.properties))
      .add_source(text)
      .to_memory();
}

inline std::vector<std::string> found(lexicon::Dictionary& dictionary, const std::string& word) {
  std::vector<std::string> texts;
  for (const lexicon::Entry& entry : dictionary.find(word).entries) texts.push_back(entry.text());
  return texts;
}

}  // namespace kz::test

#endif  // KZ_TESTS_LEXICON_SOURCE_H

// What the attribute blocks of an entry say, in words.
#ifndef KZ_TOOLS_ENTRY_GRAMMAR_H
#define KZ_TOOLS_ENTRY_GRAMMAR_H

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "tools/entry_view.h"
#include "tools/grammar_decode.h"

namespace kzdic {

// The grammar of the head word, of its translation or of one synonym.
struct WordGrammar {
  enum class Side { kSource, kTarget, kSynonym };
  Side side = Side::kSource;
  std::string synonym;
  Decoded grammar;
};

// Of the entry as a whole, and of one of its meanings. Tags that set nothing are left out.
std::vector<WordGrammar> entry_grammar(const EntryView& entry);
std::vector<WordGrammar> meaning_grammar(const EntryView& entry, const MeaningView& meaning);

// "English: no-plural; Russian: feminine", or the synonym in place of the language.
std::string describe(const std::vector<WordGrammar>& words, const std::string& language);

// {"source": ..., "target": ..., "synonyms": [...]}, those that there are.
nlohmann::ordered_json grammar_json(const std::vector<WordGrammar>& words);

}  // namespace kzdic

#endif  // KZ_TOOLS_ENTRY_GRAMMAR_H

// What the attribute blocks of an entry say, in words.
#ifndef KZ_LEXICON_ENTRY_GRAMMAR_H
#define KZ_LEXICON_ENTRY_GRAMMAR_H

#include <string>
#include <vector>

#include "lexicon/entry/entry_view.h"
#include "lexicon/grammar/grammar_decode.h"

namespace kz::lexicon {

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

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_GRAMMAR_H

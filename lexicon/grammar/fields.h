// The vocabulary of grammar: names of what the records hold, in both directions. All texts are
// UTF-8.
#ifndef KZ_LEXICON_GRAMMAR_FIELDS_H
#define KZ_LEXICON_GRAMMAR_FIELDS_H

#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/grammar.h"
#include "lexicon/grammar/tags.h"

namespace kz::lexicon {

// The byte of a part-of-speech code. Throws Error for a text that is not one character of
// Windows-1251.
char code_byte(std::string_view code);

// What the records hold, for a part of speech in Windows-1251.
std::vector<Field> fields_of(char code, const Grammar& grammar);

// Adds "name=value", "name=value,value", or a value alone that is a word ("masculine"). False when
// there is no such name or value.
bool add_field(char code, std::string_view text, Grammar& grammar);

// An example of everything that `add_field` takes: each word, flag and semantic letter, one number,
// one letter. Numbers and letters have the kind of value in `placeholder`.
struct Example {
  Field field;
  std::string placeholder;
};
std::vector<Example> known_fields(char code);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_GRAMMAR_FIELDS_H

// The vocabulary of grammar: names of what the records hold, in both directions.
//
// A field has a name and a value, "gender=masculine", "paradigm=12". Bits to which the library
// gives no meaning are flags, named by their tag ("flag=x"), or by word and bit where the part of
// speech has no tag for them ("flag=4/0").
#ifndef KZ_LEXICON_GRAMMAR_FIELDS_H
#define KZ_LEXICON_GRAMMAR_FIELDS_H

#include <string>
#include <string_view>
#include <vector>

#include "lexicon/grammar/grammar_tags.h"

namespace kz::lexicon {

// All texts are UTF-8.
struct Field {
  enum class Kind { kWord, kNumber, kText, kFlag };

  std::string name;
  std::string value;
  Kind kind = Kind::kText;
  int word = -1;  // of a flag: where it stands
  int bit = -1;
};

bool operator==(const Field& a, const Field& b);

// "gender=masculine"
std::string to_string(const Field& field);

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

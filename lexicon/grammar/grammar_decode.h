// A tag string with everything that it says, and the way back from fields to a tag string.
#ifndef KZ_LEXICON_GRAMMAR_DECODE_H
#define KZ_LEXICON_GRAMMAR_DECODE_H

#include <string>
#include <string_view>
#include <vector>

#include "lexicon/grammar/grammar_fields.h"

namespace kz::lexicon {

// Texts are UTF-8.
struct Decoded {
  std::string code;
  std::string tags;
  std::string canonical;
  std::vector<Field> fields;
  std::vector<Field> left_out;  // fields that reading the canonical string does not give back
  std::string ignored;          // characters of the tag string that set nothing
  std::string unread;           // what stands behind its end
  Grammar grammar;
};

// The byte of a part-of-speech code. Throws Error for a text that is not one character of
// Windows-1251.
char code_byte(std::string_view code);

// Throws Error for characters that Windows-1251 lacks, and for a tag string of absurd length.
Decoded decode_tags(std::string_view code, std::string_view tags);

// A tag string that reads as all the fields ("masculine", "case=genitive,dative"): the canonical
// one, with the tags that it leaves out in front of paradigm and semantics. Throws Error for
// unknown fields and for those that no tag string of the part of speech carries.
std::string encode_fields(std::string_view code, const std::vector<std::string>& fields);

// "masculine, animate, person 1, flag x"
std::string summary(const std::vector<Field>& fields);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_GRAMMAR_DECODE_H

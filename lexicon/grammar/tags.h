// Tag strings, read and written with the library, and the single tag that says one thing.
#ifndef KZ_LEXICON_GRAMMAR_TAGS_H
#define KZ_LEXICON_GRAMMAR_TAGS_H

#include <array>
#include <string>
#include <string_view>

#include "kz/gram_record.h"

namespace kz::lexicon {

// Everything that a tag string can say.
struct Grammar {
  GRAMINFO gram{};
  SEMANTICS semantics{};
  std::array<char, 2> latin{};  // "&" with a Latin letter: the letter, and a digit or 0
};

bool operator==(const Grammar& a, const Grammar& b);

// Cleared records with the paradigm number that stands for no paradigm.
Grammar no_grammar();

// Texts and part-of-speech codes are Windows-1251 in all that follows.

// Reads a tag string into `no_grammar`. `unread`, if given, receives what follows its end.
Grammar read_tags(char code, std::string_view text, std::string* unread = nullptr);

// The tag string that the library writes. Not all of it need read back.
std::string canonical_tags(char code, const Grammar& grammar);

// A tag that reads as exactly this grammar; empty if the part of speech has none.
std::string tag_for(char code, const Grammar& grammar);

// The characters of a tag string without which it would say the same: unknown to the part of
// speech, or replaced within their tag by what follows.
std::string ignored_characters(char code, std::string_view text);

// Whose tags the code uses: "noun", "adjective", "verb", "I" or "pronoun"; empty when it has only
// those that all codes have.
std::string_view tag_group(char code);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_GRAMMAR_TAGS_H

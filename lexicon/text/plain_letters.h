// Characters written with those that a code page has.
#ifndef KZ_LEXICON_PLAIN_LETTERS_H
#define KZ_LEXICON_PLAIN_LETTERS_H

#include <optional>
#include <string>
#include <string_view>

#include "kzlexicon/error.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {

// Latin letters without their accents, ligatures as two letters, Greek letters by their names, and
// nothing for an accent that is a character of its own. No value for any other character.
std::optional<std::u32string> plain_letters(char32_t c);

// The text with plain letters for the characters that the page lacks; no value when one of them has
// none. Not for the mixed page.
std::optional<std::u32string> in_plain_letters(std::u32string_view text, CodePage page);

// The text with the apostrophe, hyphen, blank and points of the keyboard for those of print.
std::u32string plain_punctuation(std::u32string_view text);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_PLAIN_LETTERS_H

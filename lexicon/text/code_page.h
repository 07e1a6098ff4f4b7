// Conversion between code points and single-byte code pages, as kzlexicon/code_page.h has it for
// UTF-8.
#ifndef KZ_LEXICON_CODE_PAGE_H
#define KZ_LEXICON_CODE_PAGE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "kzlexicon/code_page.h"

namespace kz::lexicon {

// Throws Unmappable, also for a zero. In the mixed page it also refuses a word that would read
// differently after decoding, such as a German word without any plain Latin letter.
std::string encode(std::u32string_view text, CodePage page);
// Bytes without a character become U+FFFD.
std::u32string decode(std::string_view bytes, CodePage page);
// The same as UTF-8, from Windows-1251.
std::string russian_to_utf8(std::string_view bytes);

// Appends the bytes of the characters up to the first that the page lacks. Returns their number.
// Not for the mixed page.
std::size_t append_encoded(std::u32string_view text, CodePage page, std::string& bytes);

bool can_encode(char32_t character, CodePage page);

// The number of characters of UTF-8. Throws BadUtf8.
std::size_t count_characters(std::string_view text);

// Bytes of UTF-8 that no word and no entry of a dictionary has, however its characters are written.
constexpr std::size_t kTooLong = std::size_t{1} << 16;

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_CODE_PAGE_H

// Conversion between UTF-8 and the single-byte code pages of dictionaries.
//
// Strict in both directions: malformed UTF-8 and characters that a code page lacks are reported,
// never replaced. The C locale of the process has no influence.
#ifndef KZ_TOOLS_CODE_PAGE_H
#define KZ_TOOLS_CODE_PAGE_H

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kzdic {

enum class CodePage {
  kRussian,  // Windows-1251
  kWestern,  // Windows-1252
  // German beside Russian: a word that holds a Latin letter is Windows-1252, everything else
  // Windows-1251.
  kMixed,
};

const char* name_of(CodePage page);

// Malformed UTF-8, at a byte offset.
struct BadUtf8 : std::runtime_error {
  explicit BadUtf8(std::size_t at) : std::runtime_error("not UTF-8"), offset(at) {}
  std::size_t offset;
};

// A character that the code page lacks.
struct Unmappable : std::runtime_error {
  Unmappable(char32_t c, CodePage code_page);
  char32_t character;
  CodePage page;
};

std::u32string from_utf8(std::string_view text);  // throws BadUtf8
std::string to_utf8(std::u32string_view text);

// Throws Unmappable. In the mixed page it also refuses a word that would read differently after
// decoding, such as a German word without any plain Latin letter.
std::string encode(std::u32string_view text, CodePage page);
// Bytes without a character become U+FFFD.
std::u32string decode(std::string_view bytes, CodePage page);

bool can_encode(char32_t character, CodePage page);

}  // namespace kzdic

#endif  // KZ_TOOLS_CODE_PAGE_H

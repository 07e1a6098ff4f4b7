// Conversion between UTF-8 and single-byte code pages, those of dictionaries among them.
//
// Strict in both directions: malformed UTF-8 and characters that a code page lacks are reported,
// never replaced. The C locale of the process has no influence.
#ifndef KZ_LEXICON_CODE_PAGE_H
#define KZ_LEXICON_CODE_PAGE_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "kzlexicon/error.h"

namespace kz::lexicon {

enum class CodePage {
  kRussian,  // Windows-1251
  kWestern,  // Windows-1252
  kCp866,
  kCp850,
  kKoi8R,
  kIso8859_5,
  kMacCyrillic,
  // German beside Russian: a word that holds a Latin letter is Windows-1252, everything else
  // Windows-1251.
  kMixed,
};

const char* name_of(CodePage page);

// "U+0416"
std::string code_point(char32_t c);

// A byte, at an offset, that is not part of a character. The message goes on after "byte N".
struct BadText : Error {
  BadText(std::size_t at, const std::string& message)
      : Error(ErrorCode::kData, message), offset(at) {}
  std::size_t offset;
};

struct BadUtf8 : BadText {
  explicit BadUtf8(std::size_t at) : BadText(at, "is not UTF-8") {}
};

// A character that the code page lacks.
struct Unmappable : Error {
  Unmappable(char32_t c, CodePage code_page);
  char32_t character;
  CodePage page;
};

std::u32string from_utf8(std::string_view text);  // throws BadUtf8
std::string to_utf8(std::u32string_view text);

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

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_CODE_PAGE_H

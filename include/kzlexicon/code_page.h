// Text between UTF-8 and the single-byte code pages of dictionaries and of other programs.
//
// Conversions are strict in both directions: malformed UTF-8 and characters that a code page lacks
// are errors, and nothing is replaced. The locale of the process has no influence.
//
//     using namespace kz::lexicon;
//     const std::string bytes = encode_utf8("мир", CodePage::kRussian);  // Windows-1251
//     std::cout << bytes.size() << ' ' << decode_utf8(bytes, CodePage::kRussian) << '\n';
//     // Output: 3 мир
#ifndef KZLEXICON_CODE_PAGE_H
#define KZLEXICON_CODE_PAGE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "kzlexicon/error.h"
#include "kzlexicon/export.h"

namespace kz::lexicon {

// The pages of dictionaries are kRussian, kWestern and kMixed; text of other programs may have any.
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

// "Windows-1251"; static text.
KZL_API const char* name_of(CodePage page);

// A byte of a text that is not part of a character. An error of the code kData.
struct KZL_API BadText : Error {
  // The message goes on after "byte N".
  BadText(std::size_t at, const std::string& message);
  std::size_t offset;  // of the byte in the text, from 0
};

// Text that is not UTF-8: also overlong forms, surrogates and code points above U+10FFFF.
struct KZL_API BadUtf8 : BadText {
  explicit BadUtf8(std::size_t at);
};

// A character that the code page lacks. An error of the code kCodePage.
struct KZL_API Unmappable : Error {
  Unmappable(char32_t c, CodePage code_page);
  char32_t character;
  CodePage page;
};

// "U+0416"
KZL_API std::string code_point(char32_t c);

// The code points of UTF-8. Throws BadUtf8.
KZL_API std::u32string from_utf8(std::string_view text);
// UTF-8 of code points, which the caller has checked.
KZL_API std::string to_utf8(std::u32string_view text);

// Length in bytes of the byte-order mark at the beginning of a text in UTF-8; 0 without one.
KZL_API std::size_t byte_order_mark(std::string_view text);

// The bytes of a text in a code page. Throws BadUtf8 and Unmappable, the latter also for a zero. In
// the mixed page it also refuses a word that would read differently after decoding, such as a
// German word without any plain Latin letter.
KZL_API std::string encode_utf8(std::string_view text, CodePage page);
// UTF-8 of bytes; those without a character become U+FFFD.
KZL_API std::string decode_utf8(std::string_view bytes, CodePage page);

}  // namespace kz::lexicon

#endif  // KZLEXICON_CODE_PAGE_H

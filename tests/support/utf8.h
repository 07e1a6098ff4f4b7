// UTF-8 text of tests and pages, as code points and in the library's code page.
#ifndef KZ_TESTS_UTF8_H
#define KZ_TESTS_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

#include "text/literal.h"

namespace kz::test {

// The characters of a valid UTF-8 text, each of three bytes at most.
inline std::u32string decoded(std::string_view utf8) {
  std::u32string result;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    char32_t c = static_cast<unsigned char>(utf8[i]);
    if (c >= 0xE0) {
      c = (c & 15) << 12 | (utf8[i + 1] & 63u) << 6 | (utf8[i + 2] & 63u);
      i += 2;
    } else if (c >= 0xC0) {
      c = (c & 31) << 6 | (utf8[++i] & 63u);
    }
    result += c;
  }
  return result;
}

// A UTF-8 text in Windows-1251.
inline std::string encoded_1251(std::string_view utf8) {
  std::string result;
  for (const char32_t c : decoded(utf8)) result += static_cast<char>(kz::to_1251(c));
  return result;
}

}  // namespace kz::test

#endif  // KZ_TESTS_UTF8_H

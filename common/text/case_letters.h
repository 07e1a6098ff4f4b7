// The letters of the Russian cases.
#ifndef KZ_TEXT_CASE_LETTERS_H
#define KZ_TEXT_CASE_LETTERS_H

#include <cstddef>
#include <string_view>

#include "text/literal.h"

namespace kz {

// From the lowest bit of a case set on.
inline constexpr std::string_view kCaseLetters = U"ИРДВТП"_1251;

// The case set of one letter, 0 for other characters.
constexpr unsigned case_of(char letter) {
  // Under a sanitizer, GCC does not take string_view::find for a constant expression.
  for (std::size_t bit = 0; bit < kCaseLetters.size(); ++bit) {
    if (kCaseLetters[bit] == letter) return 1u << bit;
  }
  return 0;
}

}  // namespace kz

#endif  // KZ_TEXT_CASE_LETTERS_H

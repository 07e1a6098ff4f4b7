// Character classes of all families, as bits of one table.
#ifndef KZ_TEXT_CHAR_CLASSES_H
#define KZ_TEXT_CHAR_CLASSES_H

#include <array>
#include <cstdint>

#include "text/letters.h"

namespace kz {

// A set of classes; a character is in the set when it is in one of them.
using CharClass = std::uint32_t;

namespace char_class {

inline constexpr CharClass kAsciiUpper = 1u << 0;
inline constexpr CharClass kAsciiLower = 1u << 1;
inline constexpr CharClass kDigit = 1u << 2;
inline constexpr CharClass kHexLetter = 1u << 3;
inline constexpr CharClass kSpace = 1u << 4;
inline constexpr CharClass kControl = 1u << 5;
inline constexpr CharClass kRuAnsiUpper = 1u << 6;
inline constexpr CharClass kRuAnsiLower = 1u << 7;
inline constexpr CharClass kRuOemUpper = 1u << 8;
inline constexpr CharClass kRuOemLower = 1u << 9;
inline constexpr CharClass kAnsiUpper = 1u << 10;
inline constexpr CharClass kAnsiLower = 1u << 11;
inline constexpr CharClass kOemUpper = 1u << 12;
inline constexpr CharClass kOemLower = 1u << 13;
inline constexpr CharClass kComma = 1u << 14;
inline constexpr CharClass kDash = 1u << 15;
inline constexpr CharClass kApostrophe = 1u << 16;
inline constexpr CharClass kQuote = 1u << 17;
// What counts as the above in the ansi code pages alone.
inline constexpr CharClass kAnsiComma = 1u << 18;
inline constexpr CharClass kAnsiDash = 1u << 19;
inline constexpr CharClass kAnsiApostrophe = 1u << 20;
inline constexpr CharClass kAnsiQuote = 1u << 21;

inline constexpr CharClass kAsciiAlpha = kAsciiUpper | kAsciiLower;
inline constexpr CharClass kRuAnsiAlpha = kRuAnsiUpper | kRuAnsiLower;
inline constexpr CharClass kRuOemAlpha = kRuOemUpper | kRuOemLower;
inline constexpr CharClass kAnsiAlpha = kAnsiUpper | kAnsiLower;
inline constexpr CharClass kOemAlpha = kOemUpper | kOemLower;

// The class of a punctuation character of ASCII, 0 if it has none.
constexpr CharClass of_punctuation(char ascii) {
  switch (ascii) {
    case ',': return kComma;
    case '-': return kDash;
    case '\'':
    case '`': return kApostrophe;
    case '"': return kQuote;
    default: return 0;
  }
}

consteval std::array<CharClass, 256> make_table() {
  std::array<CharClass, 256> table{};
  for (std::size_t c = 0; c < 128; ++c) table[c] = of_punctuation(static_cast<char>(c));
  for (std::size_t c = 'A'; c <= 'Z'; ++c) table[c] |= kAsciiUpper | kAnsiUpper | kOemUpper;
  for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] |= kAsciiLower | kAnsiLower | kOemLower;
  for (std::size_t c = '0'; c <= '9'; ++c) table[c] |= kDigit;
  for (std::size_t c = 'A'; c <= 'F'; ++c) {
    table[c] |= kHexLetter;
    table[c - 'A' + 'a'] |= kHexLetter;
  }
  for (std::size_t c = '\t'; c <= '\r'; ++c) table[c] |= kSpace;
  table[' '] |= kSpace;
  for (std::size_t c = 0; c < ' '; ++c) table[c] |= kControl;
  table[127] |= kControl;

  for (const auto& [lower, upper] : kRussianLetters) {
    table[lower.ansi] |= kRuAnsiLower;
    table[upper.ansi] |= kRuAnsiUpper;
    table[lower.oem] |= kRuOemLower;
    table[upper.oem] |= kRuOemUpper;
  }
  for (const auto& [lower, upper] : kWesternLetters) {
    table[lower.ansi] |= kAnsiLower;
    table[upper.ansi] |= kAnsiUpper;
    table[lower.oem] |= kOemLower;
    table[upper.oem] |= kOemUpper;
  }
  constexpr CharClass kAsciiToAnsi = kAnsiComma / kComma;
  static_assert(kAnsiQuote == kQuote * kAsciiToAnsi);
  for (const Punctuation& p : kTypographicPunctuation) {
    table[p.ansi] |= of_punctuation(p.ascii) * kAsciiToAnsi;
  }
  table[30] |= kAnsiDash;  // the non-breaking hyphen of word processors
  return table;
}

inline constexpr std::array<CharClass, 256> kTable = make_table();

}  // namespace char_class

inline bool is_in(int character, CharClass classes) {
  return (char_class::kTable[static_cast<unsigned char>(character)] & classes) != 0;
}

}  // namespace kz

#endif  // KZ_TEXT_CHAR_CLASSES_H

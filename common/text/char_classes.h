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

inline constexpr CharClass ascii_upper = 1u << 0;
inline constexpr CharClass ascii_lower = 1u << 1;
inline constexpr CharClass digit = 1u << 2;
inline constexpr CharClass hex_letter = 1u << 3;
inline constexpr CharClass space = 1u << 4;
inline constexpr CharClass control = 1u << 5;
inline constexpr CharClass ru_ansi_upper = 1u << 6;
inline constexpr CharClass ru_ansi_lower = 1u << 7;
inline constexpr CharClass ru_oem_upper = 1u << 8;
inline constexpr CharClass ru_oem_lower = 1u << 9;
inline constexpr CharClass ansi_upper = 1u << 10;
inline constexpr CharClass ansi_lower = 1u << 11;
inline constexpr CharClass oem_upper = 1u << 12;
inline constexpr CharClass oem_lower = 1u << 13;
inline constexpr CharClass comma = 1u << 14;
inline constexpr CharClass dash = 1u << 15;
inline constexpr CharClass apostrophe = 1u << 16;
inline constexpr CharClass quote = 1u << 17;
// What counts as the above in the ansi code pages alone.
inline constexpr CharClass ansi_comma = 1u << 18;
inline constexpr CharClass ansi_dash = 1u << 19;
inline constexpr CharClass ansi_apostrophe = 1u << 20;
inline constexpr CharClass ansi_quote = 1u << 21;

inline constexpr CharClass ascii_alpha = ascii_upper | ascii_lower;
inline constexpr CharClass ru_ansi_alpha = ru_ansi_upper | ru_ansi_lower;
inline constexpr CharClass ru_oem_alpha = ru_oem_upper | ru_oem_lower;
inline constexpr CharClass ansi_alpha = ansi_upper | ansi_lower;
inline constexpr CharClass oem_alpha = oem_upper | oem_lower;

// The class of a punctuation character of ASCII, 0 if it has none.
constexpr CharClass of_punctuation(char ascii) {
  switch (ascii) {
    case ',': return comma;
    case '-': return dash;
    case '\'':
    case '`': return apostrophe;
    case '"': return quote;
    default: return 0;
  }
}

consteval std::array<CharClass, 256> make_table() {
  std::array<CharClass, 256> table{};
  for (std::size_t c = 0; c < 128; ++c) table[c] = of_punctuation(static_cast<char>(c));
  for (std::size_t c = 'A'; c <= 'Z'; ++c) table[c] |= ascii_upper | ansi_upper | oem_upper;
  for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] |= ascii_lower | ansi_lower | oem_lower;
  for (std::size_t c = '0'; c <= '9'; ++c) table[c] |= digit;
  for (std::size_t c = 'A'; c <= 'F'; ++c) {
    table[c] |= hex_letter;
    table[c - 'A' + 'a'] |= hex_letter;
  }
  for (std::size_t c = '\t'; c <= '\r'; ++c) table[c] |= space;
  table[' '] |= space;
  for (std::size_t c = 0; c < ' '; ++c) table[c] |= control;
  table[127] |= control;

  for (const auto& [lower, upper] : russian_letters) {
    table[lower.ansi] |= ru_ansi_lower;
    table[upper.ansi] |= ru_ansi_upper;
    table[lower.oem] |= ru_oem_lower;
    table[upper.oem] |= ru_oem_upper;
  }
  for (const auto& [lower, upper] : western_letters) {
    table[lower.ansi] |= ansi_lower;
    table[upper.ansi] |= ansi_upper;
    table[lower.oem] |= oem_lower;
    table[upper.oem] |= oem_upper;
  }
  constexpr CharClass ascii_to_ansi = ansi_comma / comma;
  static_assert(ansi_quote == quote * ascii_to_ansi);
  for (const Punctuation& p : typographic_punctuation) {
    table[p.ansi] |= of_punctuation(p.ascii) * ascii_to_ansi;
  }
  table[30] |= ansi_dash;  // the non-breaking hyphen of word processors
  return table;
}

inline constexpr std::array<CharClass, 256> table = make_table();

}  // namespace char_class

inline bool is_in(int character, CharClass classes) {
  return (char_class::table[static_cast<unsigned char>(character)] & classes) != 0;
}

}  // namespace kz

#endif  // KZ_TEXT_CHAR_CLASSES_H

// Conversions between code pages, as translations.
#ifndef KZ_TEXT_CONVERSIONS_H
#define KZ_TEXT_CONVERSIONS_H

#include <array>
#include <cstddef>

#include "text/byte_map.h"
#include "text/letters.h"

namespace kz {

namespace conversions {

template <typename Codes, std::size_t N>
consteval ByteMap between(const std::array<LetterPair<Codes>, N>& pairs, unsigned char Codes::*from,
                          unsigned char Codes::*to, ByteMap map) {
  for_each_letter(pairs, [&](const Codes& letter) { map[letter.*from] = letter.*to; });
  return map;
}

consteval ByteMap punctuation_to_ascii() {
  ByteMap map = identity_map();
  for (const Punctuation& p : kTypographicPunctuation) {
    map[p.ansi] = static_cast<unsigned char>(p.ascii);
  }
  return map;
}

consteval ByteMap box_drawing_to_ascii() {
  ByteMap map = identity_map();
  for (unsigned char& code : map) code = without_box_drawing(code);
  return map;
}

using Ru = RussianCodes;

consteval Translation from_ansi(unsigned char Ru::*to) {
  return Translation(between(kRussianLetters, &Ru::ansi, to, punctuation_to_ascii()));
}
consteval Translation to_ansi(unsigned char Ru::*from) {
  return Translation(between(kRussianLetters, from, &Ru::ansi, box_drawing_to_ascii()));
}
consteval Translation russian(unsigned char Ru::*from, unsigned char Ru::*to) {
  return Translation(between(kRussianLetters, from, to, identity_map()));
}

}  // namespace conversions

inline constexpr Translation kRuAnsiToOem = conversions::from_ansi(&RussianCodes::oem);
inline constexpr Translation kRuOemToAnsi = conversions::to_ansi(&RussianCodes::oem);
inline constexpr Translation kAnsiToKoi8 = conversions::from_ansi(&RussianCodes::koi8);
inline constexpr Translation kKoi8ToAnsi = conversions::to_ansi(&RussianCodes::koi8);
inline constexpr Translation kAnsiToIso = conversions::from_ansi(&RussianCodes::iso);
inline constexpr Translation kIsoToAnsi = conversions::to_ansi(&RussianCodes::iso);

inline constexpr Translation kOemToKoi8 =
    conversions::russian(&RussianCodes::oem, &RussianCodes::koi8);
inline constexpr Translation kKoi8ToOem =
    conversions::russian(&RussianCodes::koi8, &RussianCodes::oem);
inline constexpr Translation kOemToIso =
    conversions::russian(&RussianCodes::oem, &RussianCodes::iso);
inline constexpr Translation kIsoToOem =
    conversions::russian(&RussianCodes::iso, &RussianCodes::oem);
inline constexpr Translation kOemToMac =
    conversions::russian(&RussianCodes::oem, &RussianCodes::mac);
inline constexpr Translation kMacToOem =
    conversions::russian(&RussianCodes::mac, &RussianCodes::oem);

inline constexpr Translation kAnsiToOem{conversions::between(
    kWesternLetters, &WesternCodes::ansi, &WesternCodes::oem, conversions::punctuation_to_ascii())};
inline constexpr Translation kOemToAnsi{conversions::between(
    kWesternLetters, &WesternCodes::oem, &WesternCodes::ansi, conversions::box_drawing_to_ascii())};

}  // namespace kz

#endif  // KZ_TEXT_CONVERSIONS_H

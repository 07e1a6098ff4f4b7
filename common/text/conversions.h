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
  for (const Punctuation& p : typographic_punctuation) {
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
  return Translation(between(russian_letters, &Ru::ansi, to, punctuation_to_ascii()));
}
consteval Translation to_ansi(unsigned char Ru::*from) {
  return Translation(between(russian_letters, from, &Ru::ansi, box_drawing_to_ascii()));
}
consteval Translation russian(unsigned char Ru::*from, unsigned char Ru::*to) {
  return Translation(between(russian_letters, from, to, identity_map()));
}

}  // namespace conversions

inline constexpr Translation ru_ansi_to_oem = conversions::from_ansi(&RussianCodes::oem);
inline constexpr Translation ru_oem_to_ansi = conversions::to_ansi(&RussianCodes::oem);
inline constexpr Translation ansi_to_koi8 = conversions::from_ansi(&RussianCodes::koi8);
inline constexpr Translation koi8_to_ansi = conversions::to_ansi(&RussianCodes::koi8);
inline constexpr Translation ansi_to_iso = conversions::from_ansi(&RussianCodes::iso);
inline constexpr Translation iso_to_ansi = conversions::to_ansi(&RussianCodes::iso);

inline constexpr Translation oem_to_koi8 =
    conversions::russian(&RussianCodes::oem, &RussianCodes::koi8);
inline constexpr Translation koi8_to_oem =
    conversions::russian(&RussianCodes::koi8, &RussianCodes::oem);
inline constexpr Translation oem_to_iso =
    conversions::russian(&RussianCodes::oem, &RussianCodes::iso);
inline constexpr Translation iso_to_oem =
    conversions::russian(&RussianCodes::iso, &RussianCodes::oem);
inline constexpr Translation oem_to_mac =
    conversions::russian(&RussianCodes::oem, &RussianCodes::mac);
inline constexpr Translation mac_to_oem =
    conversions::russian(&RussianCodes::mac, &RussianCodes::oem);

inline constexpr Translation ansi_to_oem{conversions::between(
    western_letters, &WesternCodes::ansi, &WesternCodes::oem, conversions::punctuation_to_ascii())};
inline constexpr Translation oem_to_ansi{conversions::between(
    western_letters, &WesternCodes::oem, &WesternCodes::ansi, conversions::box_drawing_to_ascii())};

}  // namespace kz

#endif  // KZ_TEXT_CONVERSIONS_H

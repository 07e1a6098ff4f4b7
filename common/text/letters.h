// The letters, punctuation and box-drawing characters that the code pages share.
//
// Everything the library knows of single characters is described here once; the conversions,
// classes and case maps are computed from it at compile time.
#ifndef KZ_TEXT_LETTERS_H
#define KZ_TEXT_LETTERS_H

#include <array>
#include <cstddef>
#include <string_view>

#include "text/byte_map.h"
#include "text/literal.h"

namespace kz {

template <typename Codes>
struct LetterPair {
  Codes lower;
  Codes upper;
};

// The codes of one Russian letter: Windows-1251, IBM CP866, KOI8-R (RFC 1489), ISO 8859-5, Mac
// Cyrillic.
struct RussianCodes {
  unsigned char ansi, oem, koi8, iso, mac;
};

// The codes of one German or French letter: Windows-1252, IBM CP850.
struct WesternCodes {
  unsigned char ansi, oem;
};

// A punctuation character of the upper half of Windows-1251 and Windows-1252 and the ASCII
// character that stands for it elsewhere.
struct Punctuation {
  unsigned char ansi;
  char ascii;
};

namespace letters {

consteval RussianCodes russian_codes(char32_t letter) {
  if (letter == U'Ё') return {U'Ё'_1251, 240, 179, 161, 221};
  if (letter == U'ё') return {U'ё'_1251, 241, 163, 241, 222};
  const auto code = [](char32_t c) { return static_cast<unsigned char>(c); };
  const bool is_lower = letter >= U'а';
  const std::u32string_view koi8_order = U"юабцдефгхийклмнопярстужвьызшэщчъ";
  const std::size_t in_koi8 = koi8_order.find(is_lower ? letter : letter - U'А' + U'а');
  return {
      .ansi = to_1251(letter),
      .oem = code(letter < U'р' ? letter - U'А' + 128 : letter - U'р' + 224),
      .koi8 = static_cast<unsigned char>(in_koi8 + (is_lower ? 192 : 224)),
      .iso = code(letter - U'А' + 176),
      .mac = code(letter == U'я' ? 223
                  : is_lower     ? letter - U'а' + 224
                                 : letter - U'А' + 128),
  };
}

consteval std::array<LetterPair<RussianCodes>, 33> make_russian_letters() {
  std::array<LetterPair<RussianCodes>, 33> pairs{};
  for (char32_t i = 0; i < 32; ++i) {
    pairs[i] = {russian_codes(U'а' + i), russian_codes(U'А' + i)};
  }
  pairs[32] = {russian_codes(U'ё'), russian_codes(U'Ё')};
  return pairs;
}

}  // namespace letters

inline constexpr auto kRussianLetters = letters::make_russian_letters();

// CP850 has no oe ligature: that pair has its Windows-1252 codes there, one of which, 140, is also
// the small i with circumflex. Where a code is found twice the earlier pair counts, and in a pair
// the small letter.
inline constexpr std::array<LetterPair<WesternCodes>, 17> kWesternLetters{{
    {{U'ä'_1252, 132}, {U'Ä'_1252, 142}},
    {{U'ö'_1252, 148}, {U'Ö'_1252, 153}},
    {{U'ü'_1252, 129}, {U'Ü'_1252, 154}},
    {{U'à'_1252, 133}, {U'À'_1252, 183}},
    {{U'â'_1252, 131}, {U'Â'_1252, 182}},
    {{U'ç'_1252, 135}, {U'Ç'_1252, 128}},
    {{U'è'_1252, 138}, {U'È'_1252, 212}},
    {{U'é'_1252, 130}, {U'É'_1252, 144}},
    {{U'ê'_1252, 136}, {U'Ê'_1252, 210}},
    {{U'ë'_1252, 137}, {U'Ë'_1252, 211}},
    {{U'î'_1252, 140}, {U'Î'_1252, 215}},
    {{U'ï'_1252, 139}, {U'Ï'_1252, 216}},
    {{U'ô'_1252, 147}, {U'Ô'_1252, 226}},
    {{U'ù'_1252, 151}, {U'Ù'_1252, 235}},
    {{U'û'_1252, 150}, {U'Û'_1252, 234}},
    {{U'ß'_1252, 225}, {U'ß'_1252, 225}},
    {{U'œ'_1252, 156}, {U'Œ'_1252, 140}},
}};

// Both Windows code pages have these at the same codes, but for 180: a Ukrainian letter in one, the
// acute accent in the other, and typed for an apostrophe in both.
inline constexpr std::array<Punctuation, 12> kTypographicPunctuation{{
    {U'„'_1251, '"'},
    {U'“'_1251, '"'},
    {U'”'_1251, '"'},
    {U'«'_1251, '"'},
    {U'»'_1251, '"'},
    {U'‚'_1251, ','},
    {U'‘'_1251, '`'},
    {U'’'_1251, '\''},
    {U'´'_1252, '\''},
    {U'–'_1251, '-'},
    {U'—'_1251, '-'},
    {U'\u00AD'_1251, '-'},
}};

// The ASCII picture of a code by the box-drawing block that CP866 and CP850 share (176 to 223);
// other codes are their own.
constexpr unsigned char without_box_drawing(unsigned char code) {
  if (code < 176 || code > 223) return code;
  switch (code) {
    case 179:
    case 186: return ':';  // upright lines
    case 196: return '-';
    case 205: return '=';
    default: return '+';
  }
}

// Visits both letters of every pair, the ones that count last, so that a map that is filled on the
// way ends with what counts for a code found twice.
template <typename Codes, std::size_t N, typename Visit>
constexpr void for_each_letter(const std::array<LetterPair<Codes>, N>& pairs, Visit visit) {
  for (std::size_t i = N; i-- > 0;) {
    visit(pairs[i].upper);
    visit(pairs[i].lower);
  }
}

}  // namespace kz

#endif  // KZ_TEXT_LETTERS_H

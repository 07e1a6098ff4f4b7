// Upper and lower case in the five character families.
#ifndef KZ_TEXT_CASE_MAPS_H
#define KZ_TEXT_CASE_MAPS_H

#include "text/byte_map.h"
#include "text/letters.h"

namespace kz {

struct CaseMaps {
  Translation upper;
  Translation lower;
};

namespace case_maps {

struct Draft {
  ByteMap upper = identity_map();
  ByteMap lower = identity_map();

  constexpr void pair(std::size_t small, std::size_t capital) {
    upper[small] = static_cast<unsigned char>(capital);
    lower[capital] = static_cast<unsigned char>(small);
  }
  consteval CaseMaps maps() const { return {Translation(upper), Translation(lower)}; }
};

consteval Draft with_latin() {
  Draft draft;
  for (std::size_t c = 'a'; c <= 'z'; ++c) draft.pair(c, c - 'a' + 'A');
  return draft;
}

template <typename Codes, std::size_t N>
consteval CaseMaps with_pairs(const std::array<LetterPair<Codes>, N>& pairs,
                              unsigned char Codes::*code, Draft draft) {
  for (std::size_t i = N; i-- > 0;) draft.pair(pairs[i].lower.*code, pairs[i].upper.*code);
  return draft.maps();
}

// Windows-1252 pairs its whole upper half by arithmetic; z with caron is left out.
consteval CaseMaps windows_1252() {
  Draft draft = with_latin();
  for (std::size_t c = U'à'_1252; c <= U'þ'_1252; ++c) {
    if (c != U'÷'_1252) draft.pair(c, c - 32);
  }
  draft.pair(U'ÿ'_1252, U'Ÿ'_1252);
  draft.pair(U'š'_1252, U'Š'_1252);
  draft.pair(U'œ'_1252, U'Œ'_1252);
  return draft.maps();
}

}  // namespace case_maps

inline constexpr CaseMaps kAsciiCase = case_maps::with_latin().maps();
inline constexpr CaseMaps kRuAnsiCase =
    case_maps::with_pairs(kRussianLetters, &RussianCodes::ansi, case_maps::with_latin());
inline constexpr CaseMaps kRuOemCase =
    case_maps::with_pairs(kRussianLetters, &RussianCodes::oem, case_maps::Draft{});
inline constexpr CaseMaps kAnsiCase = case_maps::windows_1252();
inline constexpr CaseMaps kOemCase =
    case_maps::with_pairs(kWesternLetters, &WesternCodes::oem, case_maps::with_latin());

}  // namespace kz

#endif  // KZ_TEXT_CASE_MAPS_H

// Special letters of the languages and the base letters that stand behind them.
#ifndef KZ_TEXT_BASE_LETTERS_H
#define KZ_TEXT_BASE_LETTERS_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "text/byte_map.h"
#include "text/language.h"
#include "text/literal.h"

namespace kz {

namespace base_letters {

// The base letter, and all letters that compare equal to it when accents are ignored. Those of them
// beyond ASCII are the special letters of the language.
struct Family {
  unsigned char base;
  std::string_view members;
};

inline constexpr Family kRussian[] = {{U'е'_1251, U"её"_1251}};
inline constexpr Family kGerman[] = {
    {'s', U"sSß"_1252},
    {'a', U"aAäÄ"_1252},
    {'o', U"oOöÖ"_1252},
    {'u', U"uUüÜ"_1252},
};
inline constexpr Family kFrench[] = {
    {'a', U"aAàÀâÂ"_1252}, {'c', U"cCçÇ"_1252}, {'e', U"eEèÈéÉêÊëË"_1252},
    {'i', U"iIîÎïÏ"_1252}, {'o', U"oOôÔ"_1252}, {'u', U"uUùÙûÛ"_1252},
};

consteval ByteMap make_map(std::span<const Family> families) {
  ByteMap map = identity_map();
  for (const Family& family : families) {
    for (const char c : family.members) map[static_cast<unsigned char>(c)] = family.base;
  }
  return map;
}

// By Language.
inline constexpr std::array<ByteMap, 4> kMaps{identity_map(), make_map(kRussian), make_map(kGerman),
                                              make_map(kFrench)};

}  // namespace base_letters

// The base letter of every character in a language: Windows-1251 for Russian, Windows-1252 for the
// others.
constexpr const ByteMap& base_letters_of(Language language) {
  return base_letters::kMaps[static_cast<std::size_t>(language)];
}

}  // namespace kz

#endif  // KZ_TEXT_BASE_LETTERS_H

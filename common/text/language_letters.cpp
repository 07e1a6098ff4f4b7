// Vowels and consonants of each language, voiced and voiceless pairs.
#include <array>
#include <cstddef>
#include <string_view>

#include "kz/language.h"
#include "text/literal.h"

namespace kz {
namespace {

using CharMap = std::array<unsigned char, 256>;

constexpr std::string_view kRuVowels = U"йьаеиоуэюяы"_1251;
constexpr std::string_view kRuConsonants = U"бвгджзклмнпрстфхцчшщъ"_1251;
constexpr std::string_view kEnVowels = "aeiouy";
constexpr std::string_view kFrVowels = U"aeiouyhàâéêëîïôùû"_1252;
constexpr std::string_view kDeVowels = U"aeiouyäüö"_1252;
constexpr std::string_view kLatinConsonants = "bcdfghjklmnpqrstvwxz";

// Letters at the same position are each other's partners.
constexpr std::string_view kRuVoiceless = U"спткфш"_1251;
constexpr std::string_view kRuVoiced = U"збдгвщ"_1251;

// Maps the letters of a class to themselves and all other characters to 0.
consteval CharMap members(std::string_view letters) {
  CharMap map{};
  for (const char c : letters) map[static_cast<unsigned char>(c)] = static_cast<unsigned char>(c);
  return map;
}

consteval CharMap partners(std::string_view from, std::string_view to) {
  CharMap map{};
  for (std::size_t c = 0; c < map.size(); ++c) map[c] = static_cast<unsigned char>(c);
  for (std::size_t i = 0; i < from.size(); ++i) {
    map[static_cast<unsigned char>(from[i])] = static_cast<unsigned char>(to[i]);
  }
  return map;
}

constexpr CharMap kIsRuVowel = members(kRuVowels);
constexpr CharMap kIsRuConsonant = members(kRuConsonants);
constexpr CharMap kIsRuVoiced = members(kRuVoiced);
constexpr CharMap kIsRuVoiceless = members(kRuVoiceless);
constexpr CharMap kIsEnVowel = members(kEnVowels);
constexpr CharMap kIsFrVowel = members(kFrVowels);
constexpr CharMap kIsDeVowel = members(kDeVowels);
constexpr CharMap kIsLatinConsonant = members(kLatinConsonants);
constexpr CharMap kToVoiceless = partners(kRuVoiced, kRuVoiceless);
constexpr CharMap kToVoiced = partners(kRuVoiceless, kRuVoiced);

unsigned char look_up(const CharMap& map, int character) {
  return map[static_cast<unsigned char>(character)];
}

}  // namespace
}  // namespace kz

using kz::look_up;

const char* GetRuVowel() { return kz::kRuVowels.data(); }
const char* GetRuConsonant() { return kz::kRuConsonants.data(); }
const char* GetEnVowel() { return kz::kEnVowels.data(); }
const char* GetEnConsonant() { return kz::kLatinConsonants.data(); }
const char* GetFrVowel() { return kz::kFrVowels.data(); }
const char* GetFrConsonant() { return kz::kLatinConsonants.data(); }
const char* GetDeVowel() { return kz::kDeVowels.data(); }
const char* GetDeConsonant() { return kz::kLatinConsonants.data(); }

int16_t IsRuVowel(int character) { return look_up(kz::kIsRuVowel, character); }
int16_t IsRuConsonant(int character) { return look_up(kz::kIsRuConsonant, character); }
int16_t IsRuVoicedConsonant(int character) { return look_up(kz::kIsRuVoiced, character); }
int16_t IsRuVoiceLessConsonant(int character) { return look_up(kz::kIsRuVoiceless, character); }
int16_t IsEnVowel(int character) { return look_up(kz::kIsEnVowel, character); }
int16_t IsEnConsonant(int character) { return look_up(kz::kIsLatinConsonant, character); }
int16_t IsFrVowel(int character) { return look_up(kz::kIsFrVowel, character); }
int16_t IsFrConsonant(int character) { return look_up(kz::kIsLatinConsonant, character); }
int16_t IsDeVowel(int character) { return look_up(kz::kIsDeVowel, character); }
int16_t IsDeConsonant(int character) { return look_up(kz::kIsLatinConsonant, character); }

uint8_t ToRuVoiceLessConsonant(int character) { return look_up(kz::kToVoiceless, character); }
uint8_t ToRuVoicedConsonant(int character) { return look_up(kz::kToVoiced, character); }

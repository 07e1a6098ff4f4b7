// Vowels and consonants of each language, voiced and voiceless pairs.
#include <array>
#include <cstddef>
#include <string_view>

#include "kz/language.h"
#include "text/literal.h"

namespace kz {
namespace {

using CharMap = std::array<unsigned char, 256>;

constexpr std::string_view ru_vowels = U"йьаеиоуэюяы"_1251;
constexpr std::string_view ru_consonants = U"бвгджзклмнпрстфхцчшщъ"_1251;
constexpr std::string_view en_vowels = "aeiouy";
constexpr std::string_view fr_vowels = U"aeiouyhàâéêëîïôùû"_1252;
constexpr std::string_view de_vowels = U"aeiouyäüö"_1252;
constexpr std::string_view latin_consonants = "bcdfghjklmnpqrstvwxz";

// Letters at the same position are each other's partners.
constexpr std::string_view ru_voiceless = U"спткфш"_1251;
constexpr std::string_view ru_voiced = U"збдгвщ"_1251;

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

constexpr CharMap is_ru_vowel = members(ru_vowels);
constexpr CharMap is_ru_consonant = members(ru_consonants);
constexpr CharMap is_ru_voiced = members(ru_voiced);
constexpr CharMap is_ru_voiceless = members(ru_voiceless);
constexpr CharMap is_en_vowel = members(en_vowels);
constexpr CharMap is_fr_vowel = members(fr_vowels);
constexpr CharMap is_de_vowel = members(de_vowels);
constexpr CharMap is_latin_consonant = members(latin_consonants);
constexpr CharMap to_voiceless = partners(ru_voiced, ru_voiceless);
constexpr CharMap to_voiced = partners(ru_voiceless, ru_voiced);

unsigned char look_up(const CharMap& map, int character) {
  return map[static_cast<unsigned char>(character)];
}

}  // namespace
}  // namespace kz

using kz::look_up;

const char* GetRuVowel() { return kz::ru_vowels.data(); }
const char* GetRuConsonant() { return kz::ru_consonants.data(); }
const char* GetEnVowel() { return kz::en_vowels.data(); }
const char* GetEnConsonant() { return kz::latin_consonants.data(); }
const char* GetFrVowel() { return kz::fr_vowels.data(); }
const char* GetFrConsonant() { return kz::latin_consonants.data(); }
const char* GetDeVowel() { return kz::de_vowels.data(); }
const char* GetDeConsonant() { return kz::latin_consonants.data(); }

int16_t IsRuVowel(int character) { return look_up(kz::is_ru_vowel, character); }
int16_t IsRuConsonant(int character) { return look_up(kz::is_ru_consonant, character); }
int16_t IsRuVoicedConsonant(int character) { return look_up(kz::is_ru_voiced, character); }
int16_t IsRuVoiceLessConsonant(int character) { return look_up(kz::is_ru_voiceless, character); }
int16_t IsEnVowel(int character) { return look_up(kz::is_en_vowel, character); }
int16_t IsEnConsonant(int character) { return look_up(kz::is_latin_consonant, character); }
int16_t IsFrVowel(int character) { return look_up(kz::is_fr_vowel, character); }
int16_t IsFrConsonant(int character) { return look_up(kz::is_latin_consonant, character); }
int16_t IsDeVowel(int character) { return look_up(kz::is_de_vowel, character); }
int16_t IsDeConsonant(int character) { return look_up(kz::is_latin_consonant, character); }

uint8_t ToRuVoiceLessConsonant(int character) { return look_up(kz::to_voiceless, character); }
uint8_t ToRuVoicedConsonant(int character) { return look_up(kz::to_voiced, character); }

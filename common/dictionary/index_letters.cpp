// Slots of letters in the alphabets of the index, and the collation of words by them.
#include <cstdint>

#include "dictionary/index_letters.h"
#include "kz/charclass.h"
#include "kz/dic_index.h"
#include "kz/special.h"
#include "text/literal.h"

namespace kz {
namespace {

consteval Alphabet make_alphabet(std::string_view letters) {
  Alphabet alphabet{static_cast<int>(letters.size()), letters, {}};
  alphabet.slots.fill(static_cast<std::uint8_t>(letters.size()));
  for (std::size_t i = 0; i < letters.size(); ++i) {
    alphabet.slots[static_cast<std::uint8_t>(letters[i])] = static_cast<std::uint8_t>(i);
  }
  return alphabet;
}

// The letter yo is indexed as ye.
consteval Alphabet make_russian() {
  Alphabet alphabet = make_alphabet(U"абвгдежзийклмнопрстуфхцчшщъыьэюя"_1251);
  alphabet.slots[U'ё'_1251] = alphabet.slots[U'е'_1251];
  return alphabet;
}

constexpr Alphabet kLatin = make_alphabet("abcdefghijklmnopqrstuvwxyz");
constexpr Alphabet kRussian = make_russian();
constexpr Alphabet kWestern = make_alphabet(U"aàâäbcçdeèéêëfghiîïjklmnoôöœpqrsßtuùûüvwxyz"_1252);
static_assert(kLatin.size == 26 && kRussian.size == 32 && kWestern.size == 43);

consteval std::array<bool, 256> make_headword_marks() {
  std::array<bool, 256> marks{};
  for (const char c : std::string_view("0123456789 \"#$%&'()+,-./:;<=>@[]~")) {
    marks[static_cast<std::uint8_t>(c)] = true;
  }
  return marks;
}

constexpr auto kHeadwordMarks = make_headword_marks();

bool is_letter_of(char language, const Alphabet& alphabet, char c) {
  switch (language) {
    case 'E': return _islower(c) != 0;
    case 'R': return isruansilower(c) != 0;
    case 'F':
    case 'D': return isansilower(c) != 0;
    default: return alphabet.slot(c) != alphabet.size;
  }
}

bool begins_lowercase(char c) { return isansilower(c) || isruansilower(c); }

int letter_or_zero(const Alphabet& alphabet, int slot) {
  if (slot < 0 || slot >= alphabet.size) return 0;
  return static_cast<std::uint8_t>(alphabet.letter(slot));
}

}  // namespace

const Alphabet* find_alphabet(int size) {
  switch (size) {
    case 26: return &kLatin;
    case 32: return &kRussian;
    case 43: return &kWestern;
    default: return nullptr;
  }
}

bool is_headword_mark(char c) { return kHeadwordMarks[static_cast<std::uint8_t>(c)]; }

std::array<PrefixRole, 256> prefix_roles(char language, const Alphabet& alphabet) {
  std::array<PrefixRole, 256> roles;
  for (std::size_t i = 0; i < roles.size(); ++i) {
    const char c = static_cast<char>(i);
    roles[i] = is_letter_of(language, alphabet, c) ? PrefixRole::kLetter
               : is_digit(c)                       ? PrefixRole::kDigit
               : ends_word(c)                      ? PrefixRole::kEnd
               : is_headword_mark(c)               ? PrefixRole::kMark
                                                   : PrefixRole::kOther;
  }
  return roles;
}

}  // namespace kz

extern "C" {

int lat_abc_index(int character) { return kz::kWestern.slot(static_cast<char>(character)); }

int lat_index_abc(int slot) { return kz::letter_or_zero(kz::kWestern, slot); }

int ru_abc_index(int character) { return kz::kRussian.slot(static_cast<char>(character)); }

int ru_index_abc(int slot) { return kz::letter_or_zero(kz::kRussian, slot); }

int index_abc(int slot, int size) {
  if (size == 32) return ru_index_abc(slot);
  if (size == 43) return lat_index_abc(slot);
  return static_cast<std::uint8_t>('a' + slot);
}

int Index0(int character, const char* /*language*/, int size) {
  if (size == 32) return ru_abc_index(character);
  if (size == 26) return static_cast<std::uint8_t>(character) - 'a';
  return lat_abc_index(character);
}

int Index1(int character, const char* language, int size) {
  const char c = static_cast<char>(character);
  if (kz::ends_word(c) || kz::is_headword_mark(c)) return size;
  return Index0(character, language, size);
}

int kz_dict_is_valid_char(int character) {
  return kz::is_headword_mark(static_cast<char>(character));
}

int kz_dict_is_valid_char1(int character) { return kz::is_digit(static_cast<char>(character)); }

int IsValidLetterForIndex1(int character) {
  const char c = static_cast<char>(character);
  return c != '*' && !kz::is_headword_mark(c);
}

int kz_dict_is_valid_en_word_begin(const char* word) {
  return word != nullptr && (isansialpha(word[0]) || kz::is_digit(word[0]));
}

int kz_dict_is_valid_ru_word_begin(const char* word) {
  return word != nullptr && (isruansialpha(word[0]) || kz::is_digit(word[0]));
}

int IsValidWordBegin(const char* word) {
  if (word == nullptr) return 0;
  if (!kz::begins_lowercase(word[0]) && !kz::is_digit(word[0])) return 0;
  const char second = word[1];
  return kz::begins_lowercase(second) || kz::is_headword_mark(second) || kz::ends_word(second);
}

}  // extern "C"

namespace {

constexpr int kNoSlot = 43;

bool is_russian(const char* language) { return language != nullptr && language[0] == 'R'; }

std::int16_t difference(int a, int b) { return static_cast<std::int16_t>(a - b); }

}  // namespace

extern "C" {

std::int16_t kz_codr_accompare(int a, int b, const char* language) {
  a &= 0xFF;
  b &= 0xFF;
  if (is_russian(language)) return difference(a, b);
  const bool special_a = kz_codr_is_spec_char(a, language) != 0;
  const bool special_b = kz_codr_is_spec_char(b, language) != 0;
  if (special_a && special_b) {
    const int slot_a = lat_abc_index(a);
    const int slot_b = lat_abc_index(b);
    if (slot_a != kNoSlot && slot_b != kNoSlot) return difference(slot_a, slot_b);
  } else if (special_a) {
    return difference(a, 0);
  } else if (special_b) {
    return difference(0, b);
  }
  return difference(a, b);
}

std::int16_t kz_codr_taccompare(int a, int b, const char* language, std::int16_t* tie) {
  a &= 0xFF;
  b &= 0xFF;
  if (is_russian(language)) return difference(a, b);
  if (!kz_codr_is_spec_char(a, language) && !kz_codr_is_spec_char(b, language)) {
    return difference(a, b);
  }
  if (tie != nullptr && *tie == 0) *tie = difference(lat_abc_index(a), lat_abc_index(b));
  return difference(kz_codr_base_member(a, language), kz_codr_base_member(b, language));
}

}  // extern "C"

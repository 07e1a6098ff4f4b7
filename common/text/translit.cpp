// Letter-by-letter transliteration between Russian and Latin.
#include "kz/translit.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "text/base_letters.h"
#include "text/case_maps.h"
#include "text/char_classes.h"
#include "text/language.h"
#include "text/literal.h"

namespace kz {
namespace {

// What each character becomes: up to three characters and a zero.
using Spelling = std::array<char, 4>;
using Spellings = std::array<Spelling, 256>;

struct Pair {
  unsigned char character;
  std::string_view spelling;
};

constexpr Pair kRussianCapitals[] = {
    {U'А'_1251, "A"},  {U'Б'_1251, "B"},   {U'В'_1251, "V"},  {U'Г'_1251, "G"}, {U'Д'_1251, "D"},
    {U'Е'_1251, "E"},  {U'Ё'_1251, "YO"},  {U'Ж'_1251, "ZH"}, {U'З'_1251, "Z"}, {U'И'_1251, "I"},
    {U'Й'_1251, "Y"},  {U'К'_1251, "K"},   {U'Л'_1251, "L"},  {U'М'_1251, "M"}, {U'Н'_1251, "N"},
    {U'О'_1251, "O"},  {U'П'_1251, "P"},   {U'Р'_1251, "R"},  {U'С'_1251, "S"}, {U'Т'_1251, "T"},
    {U'У'_1251, "U"},  {U'Ф'_1251, "F"},   {U'Х'_1251, "H"},  {U'Ц'_1251, "C"}, {U'Ч'_1251, "CH"},
    {U'Ш'_1251, "SH"}, {U'Щ'_1251, "SCH"}, {U'Ъ'_1251, "'"},  {U'Ы'_1251, "Y"}, {U'Ь'_1251, "I"},
    {U'Э'_1251, "E"},  {U'Ю'_1251, "YU"},  {U'Я'_1251, "YA"},
};

constexpr Pair kPunctuation[] = {{';', ","}, {'<', "("}, {'[', "("},
                                 {'>', ")"}, {']', ")"}, {'@', "::"}};

// The Russian letters by place of the Latin one.
constexpr std::string_view kRussianSmallLetters = U"абсдефгхийклмнопкрстуввхиз"_1251;
constexpr std::string_view kRussianCapitalLetters = U"АБЦДЕФГХИЙКЛМНОПКРСТУВВХИЗ"_1251;
static_assert(kRussianSmallLetters.size() == 26 && kRussianCapitalLetters.size() == 26);

consteval Spelling spelling(std::string_view text) {
  Spelling result{};
  for (std::size_t i = 0; i < text.size(); ++i) result[i] = text[i];
  return result;
}

consteval Spellings unchanged() {
  Spellings spellings{};
  for (std::size_t c = 0; c < 256; ++c) spellings[c][0] = static_cast<char>(c);
  return spellings;
}

enum class SmallLetters { stay_small, become_capital };

consteval Spellings make_latin(SmallLetters small_letters) {
  Spellings spellings = unchanged();
  for (const auto& [capital, latin] : kRussianCapitals) {
    Spelling small = spellings[capital] = spelling(latin);
    if (small_letters == SmallLetters::stay_small) {
      for (char& c : small) {
        c = static_cast<char>(kAsciiCase.lower.codes[static_cast<unsigned char>(c)]);
      }
    }
    spellings[kRuAnsiCase.lower.codes[capital]] = small;
  }
  return spellings;
}

// Small Latin letters, but for those of Russian capitals.
consteval Spellings make_latin_lower() {
  Spellings spellings = make_latin(SmallLetters::stay_small);
  for (std::size_t c = 'A'; c <= 'Z'; ++c) spellings[c] = spellings[c - 'A' + 'a'];
  return spellings;
}

consteval Spellings make_latin_capitals() {
  Spellings spellings = make_latin(SmallLetters::become_capital);
  for (const auto& [character, text] : kPunctuation) spellings[character] = spelling(text);
  return spellings;
}

consteval Spellings make_russian(Language language) {
  Spellings spellings = unchanged();
  for (std::size_t c = 0; c < 256; ++c) {
    const unsigned char base = base_letters_of(language)[c];
    if (base < 'a' || base > 'z') continue;
    const bool is_capital = (char_class::kTable[c] & char_class::kAnsiUpper) != 0;
    const auto& letters = is_capital ? kRussianCapitalLetters : kRussianSmallLetters;
    spellings[c][0] = letters[base - std::size_t{'a'}];
  }
  return spellings;
}

constexpr Spellings kLatin = make_latin(SmallLetters::stay_small);
constexpr Spellings kLatinLower = make_latin_lower();
constexpr Spellings kLatinCapitals = make_latin_capitals();
// By Language.
constexpr std::array<Spellings, 4> kRussian{
    make_russian(Language::other), make_russian(Language::russian), make_russian(Language::german),
    make_russian(Language::french)};

bool is_english(const char* language) {
  if (!is_language(language, code::kEn)) return false;
  return language[2] == '\0' || (is_language(language + 2, code::kRu) && language[4] == '\0');
}

const Spellings& spellings_for(const char* language) {
  if (language == nullptr) return kRussian[static_cast<std::size_t>(Language::french)];
  if (*language == 'R') return kLatin;
  if (is_english(language)) return kLatinCapitals;
  return kRussian[static_cast<std::size_t>(language_of(language))];
}

char* append(const Spellings& spellings, char character, char* out) {
  for (const char* from = spellings[static_cast<unsigned char>(character)].data(); *from != '\0';) {
    *out++ = *from++;
  }
  return out;
}

char* write_one(const Spellings& spellings, int character, char* out) {
  *append(spellings, static_cast<char>(character), out) = '\0';
  return out;
}

char* write_text(const Spellings& spellings, const char* source, char* out) {
  for (; *source != '\0'; ++source) out = append(spellings, *source, out);
  *out = '\0';
  return out;
}

}  // namespace
}  // namespace kz

char* translit(int character, char* out, const char* language, int16_t /*flags*/) {
  return kz::write_one(kz::spellings_for(language), character, out);
}
char* translitru(int character, char* out) { return kz::write_one(kz::kLatin, character, out); }
char* translitenru(int character, char* out) {
  return kz::write_one(kz::kLatinCapitals, character, out);
}

char* strtransliterate(const char* source, char* destination, const char* language,
                       int16_t /*flags*/) {
  return kz::write_text(kz::spellings_for(language), source, destination);
}

char* xliteratr(char* destination, const char* source, int16_t lower) {
  if (source == nullptr || *source == '\0' || destination == nullptr) return destination;
  return kz::write_text(lower != 0 ? kz::kLatinLower : kz::kLatin, source, destination);
}

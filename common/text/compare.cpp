// Comparison with case or accents ignored, character search, vowels.
#include "kz/compare.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "text/base_letters.h"
#include "text/byte_map.h"
#include "text/case_maps.h"
#include "text/char_classes.h"
#include "text/conversions.h"
#include "text/language.h"
#include "text/literal.h"

namespace kz {
namespace {

constexpr ByteMap kExact = identity_map();

// What a comparison that ignores accents compares, by Language.
using FoldByLanguage = std::array<ByteMap, 4>;

// Characters go through `to_ansi`, then to their base letters, then through `fold_case`.
consteval FoldByLanguage fold_accents(const ByteMap& to_ansi, const ByteMap& fold_case) {
  FoldByLanguage folds{};
  for (std::size_t language = 0; language < folds.size(); ++language) {
    for (std::size_t c = 0; c < 256; ++c) {
      folds[language][c] = fold_case[base_letters::kMaps[language][to_ansi[c]]];
    }
  }
  return folds;
}

constexpr FoldByLanguage kAnsiAccents = fold_accents(kExact, kExact);
constexpr FoldByLanguage kAnsiAccentsAndCase = fold_accents(kExact, kAnsiCase.upper.codes);
constexpr FoldByLanguage kOemAccents = fold_accents(kOemToAnsi.codes, kExact);
// The base letters are codes of Windows-1252 here, and yet it is the case of CP850 that is taken.
constexpr FoldByLanguage kOemAccentsAndCase = fold_accents(kOemToAnsi.codes, kOemCase.upper.codes);

const ByteMap& for_language(const FoldByLanguage& folds, const char* language) {
  return folds[static_cast<std::size_t>(language_of(language))];
}

bool is_russian_source(const char* language) { return language != nullptr && *language == 'R'; }

// A text to compare, as codes of 0 to 255.
const unsigned char* codes_of(const char* text) {
  return reinterpret_cast<const unsigned char*>(text != nullptr ? text : "");
}

// Folds letters only: at a difference that is not between two letters the bytes themselves decide.
int compare_letters(const char* first, const char* second, CharClass letters, const ByteMap& fold) {
  const unsigned char* a = codes_of(first);
  const unsigned char* b = codes_of(second);
  for (; *a != 0 && *b != 0; ++a, ++b) {
    if (*a == *b) continue;
    if (!is_in(*a, letters) || !is_in(*b, letters)) break;
    if (fold[*a] != fold[*b]) return fold[*a] - fold[*b];
  }
  return *a - *b;
}

int compare_exactly(const char* first, const char* second) {
  return compare_letters(first, second, 0, kExact);
}

// Folds every character of the first n.
int compare_first(const char* first, const char* second, int n, const ByteMap& fold) {
  const unsigned char* a = codes_of(first);
  const unsigned char* b = codes_of(second);
  for (; n > 0; --n, ++a, ++b) {
    if (fold[*a] != fold[*b]) return fold[*a] - fold[*b];
    if (*a == 0) break;
  }
  return 0;
}

consteval ByteMap positions(std::string_view letters) {
  ByteMap map{};
  for (std::size_t i = 0; i < letters.size(); ++i) {
    map[static_cast<unsigned char>(letters[i])] = static_cast<unsigned char>(i + 1);
  }
  return map;
}

// The zero is found where the text of the vowels ends.
constexpr ByteMap kVowelPositions = positions({"aeiouyAEIOUY\0", 13});
constexpr ByteMap kRussianVowelPositions = positions(U"аеиоуыАЕИОУЫ"_1251);

}  // namespace
}  // namespace kz

int stransiicmp(const char* a, const char* b) {
  return kz::compare_letters(a, b, kz::char_class::kAnsiAlpha, kz::kAnsiCase.upper.codes);
}
int strruansiicmp(const char* a, const char* b) {
  return kz::compare_letters(a, b, kz::char_class::kRuAnsiAlpha | kz::char_class::kAsciiAlpha,
                             kz::kRuAnsiCase.upper.codes);
}
int stroemicmp(const char* a, const char* b) {
  return kz::compare_letters(a, b, kz::char_class::kOemAlpha, kz::kOemCase.upper.codes);
}
int strruoemicmp(const char* a, const char* b) {
  return kz::compare_letters(a, b, kz::char_class::kRuOemAlpha, kz::kRuOemCase.upper.codes);
}
int strruansinicmp(const char* a, const char* b, int n) {
  return kz::compare_first(a, b, n, kz::kRuAnsiCase.upper.codes);
}
int stroemnicmp(const char* a, const char* b, int n) {
  return kz::compare_first(a, b, n, kz::kOemCase.upper.codes);
}
int strruoemnicmp(const char* a, const char* b, int n) {
  return kz::compare_first(a, b, n, kz::kRuOemCase.upper.codes);
}

int stransiacmp(const char* a, const char* b, const char* language) {
  if (kz::is_russian_source(language)) return kz::compare_exactly(a, b);
  return kz::compare_letters(a, b, kz::char_class::kAnsiAlpha,
                             kz::for_language(kz::kAnsiAccents, language));
}
int stroemacmp(const char* a, const char* b, const char* language) {
  if (kz::is_russian_source(language)) return kz::compare_exactly(a, b);
  return kz::compare_letters(a, b, kz::char_class::kOemAlpha,
                             kz::for_language(kz::kOemAccents, language));
}
int stransiaicmp(const char* a, const char* b, const char* language) {
  if (kz::is_russian_source(language)) return strruansiicmp(a, b);
  return kz::compare_letters(a, b, kz::char_class::kAnsiAlpha,
                             kz::for_language(kz::kAnsiAccentsAndCase, language));
}
int stroemaicmp(const char* a, const char* b, const char* language) {
  if (kz::is_russian_source(language)) return strruoemicmp(a, b);
  return kz::compare_letters(a, b, kz::char_class::kOemAlpha,
                             kz::for_language(kz::kOemAccentsAndCase, language));
}
int stransiancmp(const char* a, const char* b, int n, const char* language) {
  if (kz::is_russian_source(language)) return kz::compare_first(a, b, n, kz::kExact);
  return kz::compare_first(a, b, n, kz::for_language(kz::kAnsiAccents, language));
}
int stroemancmp(const char* a, const char* b, int n, const char* language) {
  if (kz::is_russian_source(language)) return kz::compare_first(a, b, n, kz::kExact);
  return kz::compare_first(a, b, n, kz::for_language(kz::kOemAccents, language));
}
int stroemanicmp(const char* a, const char* b, int n, const char* language) {
  if (kz::is_russian_source(language)) return strruoemnicmp(a, b, n);
  return kz::compare_first(a, b, n, kz::for_language(kz::kOemAccentsAndCase, language));
}

char* _strchr(const char* text, int character) {
  return text != nullptr ? const_cast<char*>(std::strchr(text, character & 0xFF)) : nullptr;
}
char* _strrchr(const char* text, int character) {
  return text != nullptr ? const_cast<char*>(std::strrchr(text, character & 0xFF)) : nullptr;
}

int16_t isvowel(int character) {
  return kz::kVowelPositions[static_cast<unsigned char>(character)];
}
int16_t isrvowel(int character) {
  return kz::kRussianVowelPositions[static_cast<unsigned char>(character)] != 0;
}

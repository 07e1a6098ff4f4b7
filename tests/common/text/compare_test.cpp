// Comparisons against a slow reference, character search, vowels.
#include "kz/compare.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>
#include <type_traits>

#include "kz/charclass.h"
#include "kz/codepage.h"
#include "kz/special.h"
#include "tests/common/text/text_at_page_end.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

constexpr const char* no_text = nullptr;

// Which characters a comparison folds, and how.
struct Rule {
  bool (*folds)(int);
  int (*fold)(int, const char* language);
};

// The first two characters that differ decide.
int slow_compare(const std::string& a, const std::string& b, int n, const Rule& rule,
                 const char* language) {
  for (const char *x = a.c_str(), *y = b.c_str(); n > 0; --n, ++x, ++y) {
    const int left = static_cast<unsigned char>(*x), right = static_cast<unsigned char>(*y);
    const bool folded = rule.folds(left) && rule.folds(right);
    const int difference =
        folded ? rule.fold(left, language) - rule.fold(right, language) : left - right;
    if (difference != 0 || left == 0) return difference;
  }
  return 0;
}

template <auto compare>
int call(const char* a, const char* b, [[maybe_unused]] int n,
         [[maybe_unused]] const char* language) {
  using Text = const char*;
  if constexpr (std::is_invocable_v<decltype(compare), Text, Text, int, Text>) {
    return compare(a, b, n, language);
  } else if constexpr (std::is_invocable_v<decltype(compare), Text, Text, int>) {
    return compare(a, b, n);
  } else if constexpr (std::is_invocable_v<decltype(compare), Text, Text, Text>) {
    return compare(a, b, language);
  } else {
    return compare(a, b);
  }
}

bool always(int) { return true; }
bool never(int) { return false; }
bool ansi(int c) { return isansialpha(c) != 0; }
bool oem(int c) { return isoemalpha(c) != 0; }
bool ru_ansi(int c) { return isruansialpha(c) != 0 || _isalpha(c) != 0; }
bool ru_oem(int c) { return isruoemalpha(c) != 0; }
int ansi_case(int c, const char*) { return toansiupper(c); }
int oem_case(int c, const char*) { return tooemupper(c); }
int ru_ansi_case(int c, const char*) { return toruansiupper(c); }
int ru_oem_case(int c, const char*) { return toruoemupper(c); }
int base(int c, const char* language) { return kz_codr_base_member(c, language); }
int oem_base(int c, const char* language) { return base(_oemtoansi(c), language); }
int base_case(int c, const char* language) { return toansiupper(base(c, language)); }
int oem_base_case(int c, const char* language) { return tooemupper(oem_base(c, language)); }

const struct {
  int (*compare)(const char*, const char*, int, const char*);
  bool is_limited;
  Rule rule, rule_from_russian;
} comparisons[] = {{call<stransiicmp>, false, {ansi, ansi_case}, {ansi, ansi_case}},
                   {call<strruansiicmp>, false, {ru_ansi, ru_ansi_case}, {ru_ansi, ru_ansi_case}},
                   {call<stroemicmp>, false, {oem, oem_case}, {oem, oem_case}},
                   {call<strruoemicmp>, false, {ru_oem, ru_oem_case}, {ru_oem, ru_oem_case}},
                   {call<strruansinicmp>, true, {always, ru_ansi_case}, {always, ru_ansi_case}},
                   {call<stroemnicmp>, true, {always, oem_case}, {always, oem_case}},
                   {call<strruoemnicmp>, true, {always, ru_oem_case}, {always, ru_oem_case}},
                   {call<stransiacmp>, false, {ansi, base}, {never, base}},
                   {call<stroemacmp>, false, {oem, oem_base}, {never, oem_base}},
                   {call<stransiaicmp>, false, {ansi, base_case}, {ru_ansi, ru_ansi_case}},
                   {call<stroemaicmp>, false, {oem, oem_base_case}, {ru_oem, ru_oem_case}},
                   {call<stransiancmp>, true, {always, base}, {never, base}},
                   {call<stroemancmp>, true, {always, oem_base}, {never, oem_base}},
                   {call<stroemanicmp>, true, {always, oem_base_case}, {always, ru_oem_case}}};

TEST(Compare, AgreesWithTheRulesOnRandomTexts) {
  // Letters and their neighbours in all code pages.
  const std::string characters =
      "aAeEsSuU b-\xE4\xC4\xE9\xC9\xDF\x84\x8E\x82\x90\xE1\xA8\xB8\xF0\xF1\xC0\xE0";
  kz_test::GuardedMemory memory(16), other(16);
  std::mt19937 random(1);
  for (int i = 0; i < 12000; ++i) {
    std::string a(random() % 6, ' '), b(random() % 6, ' ');
    for (char& c : a) c = characters[random() % characters.size()];
    for (char& c : b) c = characters[random() % characters.size()];
    for (std::size_t at = 0; at < random() % 6 && at < a.size() && at < b.size(); ++at)
      b[at] = a[at];
    for (const char* language : {"FR", "DERU", "EN", "", "ru", no_text, "RU", "RUDE", "R"}) {
      const bool from_russian = language != nullptr && *language == 'R';
      for (const auto& c : comparisons) {
        for (const int n : {-1, 0, 1, 3, 100}) {
          ASSERT_EQ(c.compare(memory.text(a), other.text(b), n, language),
                    slow_compare(a, b, c.is_limited ? n : INT_MAX,
                                 from_russian ? c.rule_from_russian : c.rule, language))
              << &c - comparisons << ' ' << a << '|' << b << '|' << n;
        }
      }
    }
  }
}

TEST(Compare, WordsOfTheLanguages) {
  EXPECT_EQ(strruansiicmp(U"АБВ abc"_1251.data(), U"абв ABC"_1251.data()), 0);
  EXPECT_EQ(strruansiicmp(U"Ё"_1251.data(), U"е"_1251.data()), U'Ё'_1251 - U'Е'_1251);
  EXPECT_EQ(strruansiicmp("a-b", "a_b"), '-' - '_');
  EXPECT_EQ(stransiaicmp(U"Édition"_1252.data(), "edition", "FR"), 0);
  EXPECT_NE(stransiacmp("Ecole", U"école"_1252.data(), "DE"), 0);
  EXPECT_EQ(stransiacmp("AB", "Ab", "FR"), 'B' - 'b');
  EXPECT_EQ(stransiicmp(nullptr, "a"), -'a');
  EXPECT_EQ(stransiacmp("a", nullptr, "RU"), 'a');
}

TEST(CharacterSearch, FindsFirstAndLastByteByItsLowEightBits) {
  const std::string text(U"кот и кит"_1251);
  const char* begin = text.c_str();
  const int k = U'к'_1251;
  EXPECT_EQ(_strchr(begin, k), begin);
  EXPECT_EQ(_strchr(begin, k - 256), begin);
  EXPECT_EQ(_strrchr(begin, k + 256), begin + 6);
  EXPECT_EQ(_strchr(begin, 'x'), nullptr);
  EXPECT_EQ(_strchr(begin, 0), begin + text.size());
  EXPECT_EQ(_strrchr(begin, 0), begin + text.size());
  EXPECT_EQ(_strrchr("", 'a'), nullptr);
}

TEST(Vowels, EnglishOnesHaveTheirPositionAndRussianOnesAreTwelve) {
  const std::string english = "aeiouyAEIOUY";
  const std::string_view russian = U"аеиоуыАЕИОУЫ"_1251;
  for (int c = 0; c < 256; ++c) {
    const std::size_t position = english.find(static_cast<char>(c));
    const int wanted = c == 0                          ? 13
                       : position == std::string::npos ? 0
                                                       : static_cast<int>(position) + 1;
    EXPECT_EQ(isvowel(c), wanted) << c;
    EXPECT_EQ(isvowel(c - 256), wanted) << c;
    EXPECT_EQ(isrvowel(c), russian.find(static_cast<char>(c)) != russian.npos) << c;
  }
}

}  // namespace

// Comparisons against a slow reference, character search, vowels.
#include "kz/compare.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <random>
#include <string>

#include "kz/charclass.h"
#include "kz/codepage.h"
#include "kz/special.h"
#include "tests/common/text/text_at_page_end.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

using Fold = std::function<int(int)>;
using IsLetter = std::function<bool(int)>;

int byte(const std::string& text, std::size_t i) {
  return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

int guarded(const std::string& a, const std::string& b, const IsLetter& is_letter,
            const Fold& fold) {
  std::size_t i = 0;
  for (; byte(a, i) != 0 && byte(b, i) != 0; ++i) {
    const int x = byte(a, i);
    const int y = byte(b, i);
    if (x == y) continue;
    if (!is_letter(x) || !is_letter(y)) break;
    if (fold(x) != fold(y)) return fold(x) - fold(y);
  }
  return byte(a, i) - byte(b, i);
}

int limited(const std::string& a, const std::string& b, int n, const Fold& fold) {
  int result = 0;
  for (int i = 0; i < n; ++i) {
    const int x = fold(byte(a, static_cast<std::size_t>(i)));
    const int y = fold(byte(b, static_cast<std::size_t>(i)));
    result = x - y;
    if (x == 0 || x != y) break;
  }
  return result;
}

int exact(const std::string& a, const std::string& b) {
  return guarded(
      a, b, [](int) { return false; }, [](int c) { return c; });
}

// Pairs of texts that agree for a while, over letters of all code pages and their neighbours.
class Texts {
 public:
  std::pair<std::string, std::string> next() {
    std::string a;
    std::string b;
    const std::size_t size = random_() % 12;
    while (a.size() < size) {
      const char c = character();
      a += c;
      b += random_() % 6 == 0 ? character() : variant(c);
    }
    if (random_() % 3 == 0) b.resize(random_() % (b.size() + 1));
    return {a, b};
  }

 private:
  char character() {
    if (random_() % 2 == 0) return static_cast<char>(random_() % 255 + 1);
    static const std::string common = "aAeEsSuU bB-";
    return common[random_() % common.size()];
  }

  // The same character, or one that is likely to compare equal to it somewhere.
  char variant(char c) {
    using Change = int (*)(int);
    static constexpr Change changes[] = {toansiupper,  toansilower,  tooemupper,   toruansiupper,
                                         toruoemupper, toruoemlower, toruansilower};
    if (random_() % 2 == 0) return c;
    if (random_() % 3 == 0) return static_cast<char>(kz_codr_base_member(c, "FR"));
    return static_cast<char>(changes[random_() % std::size(changes)](c));
  }

  std::mt19937 random_{20240501};
};

bool ru_ansi_letter(int c) { return isruansialpha(c) != 0 || _isalpha(c) != 0; }

TEST(CompareIgnoringCase, AgreesWithTheRuleOnRandomTexts) {
  Texts texts;
  for (int i = 0; i < 20000; ++i) {
    const auto [x, y] = texts.next();
    const char* a = x.c_str();
    const char* b = y.c_str();
    ASSERT_EQ(stransiicmp(a, b), guarded(x, y, isansialpha, toansiupper)) << x << '|' << y;
    ASSERT_EQ(strruansiicmp(a, b), guarded(x, y, ru_ansi_letter, toruansiupper)) << x << '|' << y;
    ASSERT_EQ(stroemicmp(a, b), guarded(x, y, isoemalpha, tooemupper)) << x << '|' << y;
    ASSERT_EQ(strruoemicmp(a, b), guarded(x, y, isruoemalpha, toruoemupper)) << x << '|' << y;
    for (const int n : {-1, 0, 1, 3, 8, 100}) {
      ASSERT_EQ(strruansinicmp(a, b, n), limited(x, y, n, toruansiupper)) << x << '|' << y;
      ASSERT_EQ(stroemnicmp(a, b, n), limited(x, y, n, tooemupper)) << x << '|' << y;
      ASSERT_EQ(strruoemnicmp(a, b, n), limited(x, y, n, toruoemupper)) << x << '|' << y;
    }
  }
}

TEST(CompareIgnoringAccents, AgreesWithTheRuleOnRandomTexts) {
  Texts texts;
  for (int i = 0; i < 6000; ++i) {
    const auto [x, y] = texts.next();
    const char* a = x.c_str();
    const char* b = y.c_str();
    for (const char* lang :
         {"FR", "fr", "DERU", "DE", "EN", "", "ru", static_cast<const char*>(nullptr)}) {
      const Fold ansi = [lang](int c) { return kz_codr_base_member(c, lang); };
      const Fold oem = [lang](int c) { return kz_codr_base_member(_oemtoansi(c), lang); };
      const Fold ansi_case = [&](int c) { return toansiupper(ansi(c)); };
      const Fold oem_case = [&](int c) { return tooemupper(oem(c)); };
      ASSERT_EQ(stransiacmp(a, b, lang), guarded(x, y, isansialpha, ansi)) << x << '|' << y;
      ASSERT_EQ(stroemacmp(a, b, lang), guarded(x, y, isoemalpha, oem)) << x << '|' << y;
      ASSERT_EQ(stransiaicmp(a, b, lang), guarded(x, y, isansialpha, ansi_case)) << x << '|' << y;
      ASSERT_EQ(stroemaicmp(a, b, lang), guarded(x, y, isoemalpha, oem_case)) << x << '|' << y;
      for (const int n : {0, 2, 100}) {
        ASSERT_EQ(stransiancmp(a, b, n, lang), limited(x, y, n, ansi)) << x << '|' << y;
        ASSERT_EQ(stroemancmp(a, b, n, lang), limited(x, y, n, oem)) << x << '|' << y;
        ASSERT_EQ(stroemanicmp(a, b, n, lang), limited(x, y, n, oem_case)) << x << '|' << y;
      }
    }
    for (const char* lang : {"RU", "RUDE", "R"}) {  // exact, or by the Russian rules
      ASSERT_EQ(stransiacmp(a, b, lang), exact(x, y));
      ASSERT_EQ(stroemacmp(a, b, lang), exact(x, y));
      ASSERT_EQ(stransiaicmp(a, b, lang), strruansiicmp(a, b));
      ASSERT_EQ(stroemaicmp(a, b, lang), strruoemicmp(a, b));
      ASSERT_EQ(stransiancmp(a, b, 4, lang), exact(x.substr(0, 4), y.substr(0, 4)));
      ASSERT_EQ(stroemancmp(a, b, 4, lang), exact(x.substr(0, 4), y.substr(0, 4)));
      ASSERT_EQ(stroemanicmp(a, b, 4, lang), strruoemnicmp(a, b, 4));
    }
  }
}

TEST(Compare, WordsOfTheLanguages) {
  EXPECT_EQ(strruansiicmp(U"АБВ abc"_1251.data(), U"абв ABC"_1251.data()), 0);
  EXPECT_EQ(strruansiicmp(U"Ё"_1251.data(), U"е"_1251.data()), U'Ё'_1251 - U'Е'_1251);
  EXPECT_EQ(strruansiicmp("a-b", "a_b"), '-' - '_');
  EXPECT_NE(stransiicmp(U"Édition"_1252.data(), "edition"), 0);
  EXPECT_EQ(stransiaicmp(U"Édition"_1252.data(), "edition", "FR"), 0);
  EXPECT_EQ(stransiacmp("Ecole", U"école"_1252.data(), "FR"), 0);
  EXPECT_NE(stransiacmp("Ecole", U"école"_1252.data(), "DE"), 0);
  EXPECT_EQ(stransiacmp("Ab", "ab", "FR"), 0);
  EXPECT_EQ(stransiacmp("AB", "Ab", "FR"), 'B' - 'b');
  EXPECT_EQ(stransiicmp(nullptr, "a"), -'a');
  EXPECT_EQ(stransiacmp("a", nullptr, "RU"), 'a');
}

TEST(Compare, LooksAtNothingBeyondTheEndOfTheShorterText) {
  kz_test::GuardedMemory memory(16);
  kz_test::GuardedMemory other(16);
  const char* a = memory.text("abc");
  for (const char* longer : {"abcd", "ABCD"}) {
    const char* b = other.text(longer);
    EXPECT_LT(stransiicmp(a, b), 0);
    EXPECT_GT(stransiicmp(b, a), 0);
    EXPECT_LT(strruansinicmp(a, b, 100), 0);
    EXPECT_GT(strruansinicmp(b, a, 100), 0);
  }
  EXPECT_EQ(strruansinicmp(a, other.text("ABC"), 100), 0);
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

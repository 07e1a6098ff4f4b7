// Comparison of letters with accents.
#include <gtest/gtest.h>

#include <string_view>

#include "kz/dic_index.h"
#include "text/literal.h"

using kz::operator""_1251;
using kz::operator""_1252;

namespace {

TEST(AccentCompare, RussianIsByteOrderAndSpecialLettersFollowPlainOnesInAlphabetOrder) {
  // Slots in the 43-letter alphabet: à 1, ä 3, ç 6, è 9, é 10, ö 26, ß 32, ü 37.
  const struct {
    int a, b;
    const char* language;
    int result;
  } cases[] = {{U'ё'_1251, U'е'_1251, "RUEN", 184 - 229},
               {U'я'_1251, 'z', "RUFR", 255 - 'z'},
               {U'я'_1251, 0, "RU", 255},
               {U'é'_1252, U'à'_1252, "FR", 9},
               {U'ä'_1252, U'ü'_1252, "DERU", 3 - 37},
               {U'ß'_1252, U'ö'_1252, "DE", 32 - 26},
               {U'é'_1252, 'z', "FR", 233},
               {'z', U'é'_1252, "FR", -233},
               {'b', 'a', "FR", 1},
               // ä is no special letter of French, and capitals have no slot.
               {U'ä'_1252, 'a', "FR", 228 - 'a'},
               {U'É'_1252, U'à'_1252, "FR", 201 - 224},
               // Without a language there is nothing special.
               {U'é'_1252, 'z', nullptr, 233 - 'z'}};
  for (const auto& [a, b, language, result] : cases) {
    EXPECT_EQ(kz_codr_accompare(static_cast<signed char>(a), b, language), result) << result;
    EXPECT_EQ(kz_codr_accompare(a, 0x100 + b, language), result) << "one byte counts";
  }
}

TEST(AccentCompare, BaseLettersDecideAndTheFirstAccentBreaksTies) {
  std::int16_t tie = 0;
  EXPECT_EQ(kz_codr_taccompare(U'ё'_1251, U'е'_1251, "RU", &tie), 184 - 229);
  EXPECT_EQ(kz_codr_taccompare('e', 'e', "FR", &tie), 0);
  EXPECT_EQ(tie, 0);
  EXPECT_EQ(kz_codr_taccompare(U'é'_1252, 'e', "FR", &tie), 0);
  EXPECT_EQ(kz_codr_taccompare('a', U'à'_1252, "FR", &tie), 0);
  EXPECT_EQ(tie, 10 - 8) << "the first one stays";
  EXPECT_EQ(kz_codr_taccompare(U'è'_1252, 'f', "FR", &tie), 'e' - 'f');
  EXPECT_EQ(kz_codr_taccompare('B', 'b', "FR", &tie), 'B' - 'b');
  EXPECT_EQ(kz_codr_taccompare(U'ß'_1252, 's', "DE", nullptr), 0);
}

}  // namespace

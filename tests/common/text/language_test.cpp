// Language codes and letter classes.
#include "kz/language.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "tests/common/text/reference.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

TEST(LanguageCode, IsRecognisedByTheFirstTwoCharactersInAnyCase) {
  const struct {
    const char* text;
    const char* language;  // null for none
  } rows[] = {{"RU", "RU"},   {"ruen", "RU"},  {"EN", "EN"},      {"enru", "EN"},
              {"eNx", "EN"},  {"FR", "FR"},    {"DERU", "DE"},    {"deru", "DE"},
              {"E", nullptr}, {"", nullptr},   {"XX", nullptr},   {"REN", nullptr},
              {"R", nullptr}, {"ED", nullptr}, {nullptr, nullptr}};
  for (const auto& [text, language] : rows) {
    const std::string wanted = language != nullptr ? language : "";
    EXPECT_EQ(kz_locl_is_ru_language(text), wanted == "RU");
    EXPECT_EQ(kz_locl_is_en_language(text), wanted == "EN");
    EXPECT_EQ(kz_locl_is_fr_language(text), wanted == "FR");
    EXPECT_EQ(kz_locl_is_de_language(text), wanted == "DE");
    EXPECT_STREQ(kz_locl_language(text), language);
  }
}

TEST(LanguageCode, OfAnIdentifierIsTheSameConstant) {
  const std::map<int, const char*> known{{1049, "ru"}, {1033, "en"}, {1036, "fr"}, {1031, "de"}};
  for (int id = 0; id < 65536; ++id) {
    const char* const language = known.contains(id) ? kz_locl_language(known.at(id)) : nullptr;
    EXPECT_EQ(LanguageIdToStr(static_cast<uint16_t>(id)), language);
  }
}

TEST(InvertLanguages, SwapsTheHalvesOfWholeDirections) {
  const std::pair<const char*, const char*> rows[] = {
      {"FRRU", "RUFR"}, {"enRU", "RUen"}, {"", ""},          {"E", "E"},
      {"EN", "EN"},     {"ENR", "R"},     {"ENRUDE", "RUEN"}};
  for (const auto& [direction, inverted] : rows) {
    std::string text = direction;
    EXPECT_EQ(InvertLanguages(text.data()), text.data());
    EXPECT_STREQ(text.c_str(), inverted);
  }
  EXPECT_EQ(InvertLanguages(nullptr), nullptr);
}

TEST(LetterClasses, HoldExactlyTheirLetters) {
  const struct {
    const char* name;
    int16_t (*test)(int);
    const char* (*all)();  // null where the interface has no such function
    std::string_view letters;
  } rows[] = {{"ru vowel", IsRuVowel, GetRuVowel, U"йьаеиоуэюяы"_1251},
              {"ru consonant", IsRuConsonant, GetRuConsonant, U"бвгджзклмнпрстфхцчшщъ"_1251},
              {"ru voiced", IsRuVoicedConsonant, nullptr, U"збдгвщ"_1251},
              {"ru voiceless", IsRuVoiceLessConsonant, nullptr, U"спткфш"_1251},
              {"en vowel", IsEnVowel, GetEnVowel, "aeiouy"},
              {"en consonant", IsEnConsonant, GetEnConsonant, "bcdfghjklmnpqrstvwxz"},
              {"fr vowel", IsFrVowel, GetFrVowel, U"aeiouyhàâéêëîïôùû"_1252},
              {"fr consonant", IsFrConsonant, GetFrConsonant, "bcdfghjklmnpqrstvwxz"},
              {"de vowel", IsDeVowel, GetDeVowel, U"aeiouyäüö"_1252},
              {"de consonant", IsDeConsonant, GetDeConsonant, "bcdfghjklmnpqrstvwxz"}};
  for (const auto& row : rows) {
    if (row.all != nullptr) {
      EXPECT_EQ(std::string_view(row.all()), row.letters) << row.name;
    }
    for (int c = 0; c < 256; ++c) {
      const int wanted = row.letters.find(static_cast<char>(c)) != row.letters.npos ? c : 0;
      EXPECT_EQ(row.test(c), wanted) << row.name << ' ' << c;
      EXPECT_EQ(row.test(c - 256), wanted) << row.name << ' ' << c - 256;
    }
  }
}

TEST(VoicedAndVoiceless, ConsonantsArePartnersAndAllElseStays) {
  const std::string_view voiceless = U"спткфш"_1251;
  const std::string_view voiced = U"збдгвщ"_1251;
  for (int c = 0; c < 256; ++c) {
    EXPECT_EQ(ToRuVoiceLessConsonant(c), kz_test::partner(c, voiced, voiceless));
    EXPECT_EQ(ToRuVoicedConsonant(c - 256), kz_test::partner(c, voiceless, voiced));
  }
}

}  // namespace

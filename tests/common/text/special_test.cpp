// Special letters, base letters, ASCII notation, language detection, case letters.
#include "kz/special.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

using kz_test::partner;

constexpr const char* no_text = nullptr;

TEST(LanguageCodes, MatchByWholeTextOrByTheSameKnownLanguage) {
  const struct {
    const char* language;
    const char* code;
    int wanted;
  } rows[] = {{"de", "DE", 'd'},   {"DERU", "DE", 'D'},  {"DE", "deru", 'D'},   {"RUDE", "DE", 0},
              {"RUDE", "RU", 'R'}, {"EN", "FR", 0},      {"ENRU", "ENFR", 'E'}, {"FRRU", "fr", 'F'},
              {"XX", "xx", 'X'},   {"XXA", "XXB", 0},    {"E", "e", 'E'},       {"E", "EN", 0},
              {"", "", 0},         {"EN", "", 0},        {"", "EN", 0},         {no_text, "EN", 0},
              {"EN", no_text, 0},  {"\xC4", "\xC4", 196}};
  for (const auto& [language, code, wanted] : rows) {
    EXPECT_EQ(kz_codr_is_language(language, code), wanted)
        << (language ? language : "null") << ' ' << (code ? code : "null");
  }
}

TEST(SpecialLetters, AreThoseOfTheLanguageAloneAndHaveABaseLetter) {
  const struct {
    const char* language;
    std::string_view special, letters, bases;
  } rows[] = {{"RU", U"ё"_1251, U"ё"_1251, U"е"_1251},
              {"rufr", U"ё"_1251, U"ё"_1251, U"е"_1251},
              {"de", U"äÄöÖüÜß"_1252, U"sSßaAäÄoOöÖuUüÜ"_1252, "sssaaaaoooouuuu"},
              {"DERU", U"äÄöÖüÜß"_1252, U"sSßaAäÄoOöÖuUüÜ"_1252, "sssaaaaoooouuuu"},
              {"FR", U"àÀâÂçÇèÈéÉêÊëËîÎïÏôÔùÙûÛ"_1252, U"aAàÀâÂcCçÇeEèÈéÉêÊëËiIîÎïÏoOôÔuUùÙûÛ"_1252,
               "aaaaaacccceeeeeeeeeeiiiiiioooouuuuuu"},
              {"EN", "", "", ""},
              {"", "", "", ""},
              {no_text, "", "", ""}};
  for (const auto& [language, special, letters, bases] : rows) {
    ASSERT_EQ(letters.size(), bases.size());
    for (int c = 0; c < 256; ++c) {
      const int wanted = special.find(static_cast<char>(c)) != special.npos ? c : 0;
      EXPECT_EQ(kz_codr_is_spec_char(c, language), wanted) << c;
      EXPECT_EQ(kz_codr_is_spec_char(c - 256, language), wanted) << c;
      EXPECT_EQ(kz_codr_base_member(c, language), partner(c, letters, bases)) << c;
    }
  }
}

std::string read_notation(std::string text, const char* language) {
  char* end = kz_codr_create_spec_chars(text.data(), text.c_str(), language);
  return end == nullptr ? "null" : std::string(text.data(), end);
}

TEST(AsciiNotation, EveryDigraphIsReadAndNoOtherPair) {
  const std::tuple<const char*, std::string, std::string_view> rows[] = {
      {"DE", R"(a"A"o"O"u"U"Ss)", U"äÄöÖüÜß"_1252},
      {"FR", R"(a`A`a^A^c~C~e`E`e'E'e^E^e"E"i^I^i"I"o^O^u`U`u^U^)",
       U"àÀâÂçÇèÈéÉêÊëËîÎïÏôÔùÙûÛ"_1252}};
  for (const auto& [language, digraphs, letters] : rows) {
    EXPECT_EQ(read_notation(digraphs, language), letters);
    std::size_t found = 0;
    for (int pair = 0; pair < 65536; ++pair) {
      const char text[] = {static_cast<char>(pair >> 8), static_cast<char>(pair), '\0'};
      found += read_notation(text, language) != text;
    }
    EXPECT_EQ(found, letters.size());
  }
}

TEST(AsciiNotation, WordsAreReadForDirectionsFromAndToTheLanguage) {
  for (const char* language : {"DE", "deru", "RUDE", "rude"}) {
    EXPECT_EQ(read_notation("Mu\"ller, StraSse", language), U"Müller, Straße"_1252);
  }
  for (const char* language : {"FR", "FRRU", "RUFR"}) {
    EXPECT_EQ(read_notation("e'le`ve, fac~ade", language), U"élève, façade"_1252);
  }
  EXPECT_EQ(read_notation("strasse SS a\"", "DE"), U"strasse SS ä"_1252);
  EXPECT_EQ(read_notation("a", "DE"), "a");
  EXPECT_EQ(read_notation("", "FR"), "");
  for (const char* language : {"EN", "RU", "RUEN", "RUDEX", "", no_text}) {
    EXPECT_EQ(read_notation("a\"", language), "null");
  }
  char room[4];
  EXPECT_EQ(kz_codr_create_spec_chars(room, nullptr, "DE"), nullptr);
  EXPECT_EQ(kz_codr_create_spec_chars(nullptr, "a", "DE"), nullptr);
}

TEST(LanguageOfAText, IsDecidedByTheMajorityOfItsLetters) {
  const struct {
    std::string_view text;
    int size;
    const char* language;
    int wanted;
  } rows[] = {{U"мир is"_1251, 100, "ENRU", 3},  {U"мир is"_1251, 2, "ENRU", 2},
              {U"мир is"_1251, 0, "ENRU", -1},   {U"мир is"_1251, -1, "ENRU", -1},
              {U"да is"_1251, 100, no_text, -1}, {U"да its"_1251, 100, no_text, 0},
              {"1234", 4, "ENRU", -1},           {U"Ёж"_1251, 32767, "RU", 2}};
  kz_test::GuardedMemory memory(16);
  for (const auto& [text, size, language, wanted] : rows)
    EXPECT_EQ(IsBufRuLanguage(memory.text(std::string(text)), static_cast<int16_t>(size), language),
              wanted)
        << text << size;
  EXPECT_EQ(IsBufRuLanguage(nullptr, 4, "ENRU"), -1);
  std::memcpy(memory.last(2), U"ёж"_1251.data(), 2);
  EXPECT_EQ(IsBufRuLanguage(memory.last(2), 2, "RU"), 2);

  // The ligature counts as Latin unless the direction is between English and Russian.
  for (const char* language : {"ENRU", "RUEN", no_text, "FRRU", "EN", "enru", "ENRUX", ""}) {
    const bool counts =
        language != nullptr && language != std::string("ENRU") && language != std::string("RUEN");
    EXPECT_EQ(IsBufRuLanguage(U"œŒ"_1252.data(), 2, language), counts ? 0 : -1);
    EXPECT_EQ(IsWordRuLanguage(U"œŒ"_1252.data(), language), counts ? 0 : -1);
  }
}

TEST(LanguageOfAWord, IsNotRussianOnATie) {
  const std::pair<std::string_view, int> rows[] = {
      {U"даok"_1251, 0}, {U"три-d"_1251, 3}, {U"во-первых"_1251, 8},
      {"word", 0},       {"-.&/* '", -1},    {"", -1},
      {{}, -1}};
  for (const auto& [word, wanted] : rows) EXPECT_EQ(IsWordRuLanguage(word.data(), "RUEN"), wanted);
}

TEST(GrammaticalCases, HaveAnIndexAndALetter) {
  for (unsigned mask = 0; mask < 256; ++mask) {
    const unsigned oblique = mask & 0x3E;
    EXPECT_EQ(x_case(mask), oblique == 0 ? 0 : std::countr_zero(oblique)) << mask;
    std::string letters;
    for (int bit = 0; bit < 6; ++bit) {
      if (mask >> bit & 1) letters += U"ИРДВТП"_1251[static_cast<std::size_t>(bit)];
    }
    char out[] = "??????";
    char* end = c_case(static_cast<int>(mask), out);
    EXPECT_EQ(std::string(out, end), letters);
    EXPECT_EQ(std::string_view(end), std::string_view("??????").substr(letters.size()));
  }
}

}  // namespace

// Special letters, base letters, ASCII notation, language detection, case letters.
#include "kz/special.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>

#include "tests/common/text/text_at_page_end.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

constexpr const char* no_text = nullptr;

TEST(LanguageCodes, MatchByWholeTextOrByTheSameKnownLanguage) {
  const struct {
    const char* language;
    const char* code;
    int wanted;
  } rows[] = {
      {"de", "DE", 'd'},   {"DERU", "DE", 'D'},   {"DE", "deru", 'D'},   {"RUDE", "DE", 0},
      {"RUDE", "RU", 'R'}, {"EN", "FR", 0},       {"ENRU", "ENFR", 'E'}, {"FRRU", "fr", 'F'},
      {"XX", "xx", 'X'},   {"XXA", "XXB", 0},     {"E", "e", 'E'},       {"E", "EN", 0},
      {"", "", 0},         {"EN", "", 0},         {"", "EN", 0},         {no_text, "EN", 0},
      {"EN", no_text, 0},  {"\xC4", "\xC4", 196},
  };
  for (const auto& [language, code, wanted] : rows) {
    EXPECT_EQ(kz_codr_is_language(language, code), wanted)
        << (language ? language : "null") << ' ' << (code ? code : "null");
  }
}

TEST(SpecialLetters, AreThoseOfTheLanguageAlone) {
  const struct {
    const char* language;
    std::string_view letters;
  } rows[] = {
      {"RU", U"ё"_1251},
      {"rufr", U"ё"_1251},
      {"DE", U"äÄöÖüÜß"_1252},
      {"DERU", U"äÄöÖüÜß"_1252},
      {"FR", U"àÀâÂçÇèÈéÉêÊëËîÎïÏôÔùÙûÛ"_1252},
      {"EN", ""},
      {"", ""},
      {no_text, ""},
  };
  for (const auto& [language, letters] : rows) {
    for (int c = 0; c < 256; ++c) {
      const int wanted = letters.find(static_cast<char>(c)) != letters.npos ? c : 0;
      EXPECT_EQ(kz_codr_is_spec_char(c, language), wanted) << c;
      EXPECT_EQ(kz_codr_is_spec_char(c - 256, language), wanted) << c;
    }
  }
}

TEST(BaseLetters, StandBehindAccentedAndPlainLettersOfTheirFamily) {
  const struct {
    const char* language;
    std::string_view letters, bases;
  } rows[] = {
      {"RUEN", U"ё"_1251, U"е"_1251},
      {"de", U"sSßaAäÄoOöÖuUüÜ"_1252, "sssaaaaoooouuuu"},
      {"FRRU", U"aAàÀâÂcCçÇeEèÈéÉêÊëËiIîÎïÏoOôÔuUùÙûÛ"_1252,
       "aaaaaacccceeeeeeeeeeiiiiiioooouuuuuu"},
      {"EN", "", ""},
      {no_text, "", ""},
  };
  for (const auto& [language, letters, bases] : rows) {
    ASSERT_EQ(letters.size(), bases.size());
    for (int c = 0; c < 256; ++c) {
      const std::size_t i = letters.find(static_cast<char>(c));
      const int wanted = i != letters.npos ? static_cast<unsigned char>(bases[i]) : c;
      EXPECT_EQ(kz_codr_base_member(c, language), wanted) << c;
    }
  }
}

std::string read_notation(std::string text, const char* language) {
  char* end = kz_codr_create_spec_chars(text.data(), text.c_str(), language);
  return end == nullptr ? "null" : std::string(text.data(), end);
}

TEST(AsciiNotation, EveryDigraphIsReadAndNoOtherPair) {
  const struct {
    const char* language;
    std::string notation;  // digraphs in pairs
    std::string_view letters;
  } rows[] = {
      {"DE", R"(a"A"o"O"u"U"Ss)", U"äÄöÖüÜß"_1252},
      {"FR", R"(a`A`a^A^c~C~e`E`e'E'e^E^e"E"i^I^i"I"o^O^u`U`u^U^)",
       U"àÀâÂçÇèÈéÉêÊëËîÎïÏôÔùÙûÛ"_1252},
  };
  for (const auto& [language, notation, letters] : rows) {
    std::size_t digraphs = 0;
    for (int a = 1; a < 256; ++a) {
      for (int b = 1; b < 256; ++b) {
        const std::string pair{static_cast<char>(a), static_cast<char>(b)};
        const std::string read = read_notation(pair, language);
        digraphs += read != pair;
      }
    }
    EXPECT_EQ(digraphs, letters.size());
    EXPECT_EQ(read_notation(notation, language), letters);
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
  const std::string three_to_two(U"мир is"_1251);
  const char* three_to_two_text = three_to_two.c_str();
  EXPECT_EQ(IsBufRuLanguage(three_to_two_text, 100, "ENRU"), 3);
  EXPECT_EQ(IsBufRuLanguage(three_to_two_text, 2, "ENRU"), 2);
  EXPECT_EQ(IsBufRuLanguage(three_to_two_text, 0, "ENRU"), -1);
  EXPECT_EQ(IsBufRuLanguage(three_to_two_text, -1, "ENRU"), -1);
  EXPECT_EQ(IsBufRuLanguage(U"да is"_1251.data(), 100, nullptr), -1);
  EXPECT_EQ(IsBufRuLanguage(U"да its"_1251.data(), 100, nullptr), 0);
  EXPECT_EQ(IsBufRuLanguage("1234", 4, "ENRU"), -1);
  EXPECT_EQ(IsBufRuLanguage(nullptr, 4, "ENRU"), -1);

  kz_test::GuardedMemory memory(16);
  EXPECT_EQ(IsBufRuLanguage(memory.text(std::string(U"Ёж"_1251)), 32767, "RU"), 2);
  std::memcpy(memory.last(2), U"ёж"_1251.data(), 2);
  EXPECT_EQ(IsBufRuLanguage(memory.last(2), 2, "RU"), 2);
}

TEST(LanguageOfAText, CountsTheOeLigatureAsLatinUnlessTheDirectionIsEnglishRussian) {
  const std::string_view text = U"œŒ"_1252;
  for (const char* language : {"ENRU", "RUEN", no_text}) {
    EXPECT_EQ(IsBufRuLanguage(text.data(), 2, language), -1);
    EXPECT_EQ(IsWordRuLanguage(text.data(), language), -1);
  }
  for (const char* language : {"FRRU", "EN", "enru", "ENRUX", ""}) {
    EXPECT_EQ(IsBufRuLanguage(text.data(), 2, language), 0);
    EXPECT_EQ(IsWordRuLanguage(text.data(), language), 0);
  }
}

TEST(LanguageOfAWord, IsNotRussianOnATie) {
  EXPECT_EQ(IsWordRuLanguage(U"даok"_1251.data(), "RUEN"), 0);
  EXPECT_EQ(IsWordRuLanguage(U"три-d"_1251.data(), "RUEN"), 3);
  EXPECT_EQ(IsWordRuLanguage(U"во-первых"_1251.data(), "RUEN"), 8);
  EXPECT_EQ(IsWordRuLanguage("word", "RUEN"), 0);
  EXPECT_EQ(IsWordRuLanguage("-.&/* '", "RUEN"), -1);
  EXPECT_EQ(IsWordRuLanguage("", "RUEN"), -1);
  EXPECT_EQ(IsWordRuLanguage(nullptr, "RUEN"), -1);
}

TEST(GrammaticalCases, HaveAnIndexAndALetter) {
  for (unsigned mask = 0; mask < 256; ++mask) {
    int wanted = 0;
    for (int bit = 5; bit >= 1; --bit) wanted = mask >> bit & 1 ? bit : wanted;
    EXPECT_EQ(x_case(mask), wanted) << mask;

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

// Conversion of entries and mixed texts between code pages, and the normal form of entries.
#include "kz/entry_convert.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kz/codepage.h"
#include "kz/entry.h"
#include "tests/support/page.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;

constexpr const char* no_text = nullptr;

using Convert = char* (*)(const char*, char*);
using ConvertEntry = char* (*)(const char*, char*, const char*);

std::string converted(Convert convert, const std::string& text) {
  std::string result(text.size() + 1, 'x');
  EXPECT_EQ(convert(text.c_str(), result.data()), result.data() + text.size());
  result.pop_back();
  return result;
}

// Converts into a buffer of just the size needed and in place, with the same result.
std::string converted(ConvertEntry convert, const std::string& text, const char* language,
                      bool gives_end) {
  std::vector<char> result(text.size() + 1, 'x');
  EXPECT_EQ(convert(text.c_str(), result.data(), language),
            result.data() + (gives_end ? text.size() : 0));
  EXPECT_EQ(result.back(), '\0');
  std::string in_place = text;
  convert(in_place.data(), in_place.data(), language);
  EXPECT_EQ(in_place, result.data());
  return in_place;
}

std::string entry_to_oem(const std::string& text, const char* language) {
  return converted(DicEntryAnsiToOem, text, language, language == nullptr);
}
std::string entry_to_ansi(const std::string& text, const char* language) {
  return converted(DicEntryOemToAnsi, text, language, language == nullptr);
}
std::string mixed_to_oem(const std::string& text, const char* language) {
  return converted(strdicansitooem, text, language, true);
}
std::string mixed_to_ansi(const std::string& text, const char* language) {
  return converted(strdicoemtoansi, text, language, true);
}

TEST(MixedText, DecidesEachLetterInDoubtByItsWord) {
  int examples = 0;
  for (const std::string& line : kz::test::examples("conversions.md", "mixed")) {
    const std::vector<std::string> fields = kz::test::fields_of(line);
    const char* const language = fields[0] == "none" ? nullptr : fields[0].c_str();
    std::string ansi, oem;
    for (const char32_t c : kz::test::decoded(fields[1])) {
      const bool russian = c >= U'Ё';
      ansi += static_cast<char>(russian ? kz::to_1251(c) : kz::to_1252(c));
      oem += converted(russian ? strruansitooem : stransitooem, {ansi.back()});
    }
    EXPECT_EQ(mixed_to_oem(ansi, language), oem) << line;
    EXPECT_EQ(mixed_to_ansi(oem, language), ansi) << line;
    ++examples;
  }
  EXPECT_GE(examples, 24);
}

TEST(MixedText, ConvertsWhatIsNoLetterLikeRussianText) {
  std::string text;
  for (int c = 1; c < 256; ++c) text += {static_cast<char>(c), ' '};
  for (const char* language : {"EN", "RU", "ENRU", "RUEN", no_text}) {
    EXPECT_EQ(mixed_to_oem(text, language), converted(strruansitooem, text));
    EXPECT_EQ(mixed_to_ansi(text, language), converted(strruoemtoansi, text));
  }
  EXPECT_EQ(mixed_to_oem(text, "RUDE"), converted(strruansitooem, text)) << "lone letters";
  EXPECT_EQ(mixed_to_ansi(text, "RUFR"), converted(strruoemtoansi, text)) << "lone letters";
}

TEST(EntryConversion, TakesTheTableOfEachSection) {
  const struct {
    const char* language;
    char head, body;  // R: Russian, W: Western, M: mixed
  } rows[] = {{"RUEN", 'R', 'R'}, {"ENRU", 'R', 'R'}, {"RUDE", 'R', 'M'}, {"DERU", 'W', 'R'},
              {"RUFR", 'R', 'W'}, {"FRRU", 'W', 'R'}, {"RU", 'R', 'R'},   {"EN", 'R', 'R'},
              {"DE", 'W', 'W'},   {"FR", 'W', 'W'},   {"R", 'R', 'R'},    {"", 'W', 'W'},
              {"FRDE", 'W', 'M'}, {"ENFR", 'R', 'W'}, {"ruen", 'W', 'W'}, {"DED", 'W', 'M'}};
  std::string high = "k";
  for (int c = 128; c < 256; ++c) high += static_cast<char>(c);
  const std::string one = "\xC4";
  // Sections by their table: H head, B body, R Russian, - none.
  using Sections = std::vector<std::pair<char, std::string>>;
  const Sections entries[] = {
      {{'H', high}},
      {{'H', high}, {'R', "*"}},
      {{'H', high}, {'R', "*" + one}},
      {{'H', high + "*" + high}, {'R', "*" + one}, {'B', high}},
      {{'H', high}, {'R', "*" + one}, {'-', one + one}, {'R', "[" + high + "]"}, {'B', high}},
      {{'H', "w"}, {'R', "*" + one}, {'B', high + "[" + high + "]"}, {'H', "\\" + high}},
      {{'H', "w"}, {'R', "*" + one}, {'B', "[" + high}, {'H', "\\" + high + "\\\\" + high}},
      {{'H', "w"}, {'R', "*\\[" + high + "]"}, {'B', high}}};
  for (const bool to_oem : {true, false}) {
    for (const auto& [language, head, body] : rows) {
      for (const Sections& sections : entries) {
        std::string entry, expected;
        for (const auto& [section, text] : sections) {
          const char table = section == 'H' ? head : section == 'B' ? body : section;
          entry += text;
          expected += table == '-'   ? text
                      : table == 'M' ? (to_oem ? mixed_to_oem : mixed_to_ansi)(text, language)
                      : table == 'R' ? converted(to_oem ? strruansitooem : strruoemtoansi, text)
                                     : converted(to_oem ? stransitooem : stroemtoansi, text);
        }
        EXPECT_EQ((to_oem ? entry_to_oem : entry_to_ansi)(entry, language), expected) << language;
      }
    }
  }
}

TEST(EntryConversion, WithoutALanguageIsThatOfAText) {
  const std::string entry(U"дом*N[М]«слово»\\ёж"_1251);
  EXPECT_EQ(entry_to_oem(entry, nullptr), converted(strruansitooem, entry));
  EXPECT_EQ(entry_to_ansi(entry, nullptr), converted(strruoemtoansi, entry));
}

TEST(EntryCoding, GivesTheNormalFormOfAnEntry) {
  const struct {
    std::string_view full, normal;
  } rows[] = {{U"стол*N[M]table;desk\\ref\\\\Стол"_1251, U"стол*N[M]table;desk\\ref\\\\Стол"_1251},
              {U"стол"_1251, U"стол*"_1251},
              {"", ""},
              {"*N[M]text", ""}};
  for (const auto& [full, normal] : rows) {
    CDicEntry entry("RUEN", 'C');
    char buffer[64] = "x";
    const char* const result = entry.Code(full.data(), buffer);
    EXPECT_EQ(result, entry.GetFullEntry(nullptr));
    EXPECT_EQ(result, normal);
    EXPECT_EQ(buffer, normal);
    EXPECT_EQ(entry.Decode(full.data(), nullptr), normal);
    EXPECT_EQ(entry.Decode(entry.GetFullEntry(nullptr), buffer), normal);
  }
  CDicEntry entry("ENRU", 'c');
  entry.Code(U"table*N1.стол/2.таблица"_1251.data(), nullptr);
  EXPECT_EQ(entry.GetMeaningsSize(), 2) << "the meanings are parsed";
  entry.CodeFullEntry();
  entry.DecodeFullEntry();
  EXPECT_EQ(entry.GetFullEntry(nullptr), U"table*N1.стол/2.таблица"_1251);
}

}  // namespace

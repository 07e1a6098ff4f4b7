// Transliteration and keyboard layouts.
#include "kz/translit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <regex>
#include <string>
#include <string_view>

#include "kz/charclass.h"
#include "kz/compare.h"
#include "kz/special.h"
#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"
#include "tests/support/page.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::test::encoded_1251;
using kz_test::partner;

constexpr const char* no_text = nullptr;
constexpr std::string_view russian_capitals = U"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_1251;

std::string bytes(int character) { return std::string(1, static_cast<char>(character)); }

std::string one(int character, const char* language) {
  char out[4];
  EXPECT_EQ(translit(character, out, language, 0), out);
  return out;
}

// Calls write(source, destination) with texts that end at pages that may not be touched.
std::string written(const std::string& source, std::size_t room,
                    const std::function<char*(const char*, char*)>& write) {
  kz_test::GuardedMemory from(source.size() + 1);
  kz_test::GuardedMemory to(room);
  char* const destination = to.last(room);
  const char* const end = write(from.text(source), destination);
  EXPECT_EQ(*end, '\0');
  return std::string(static_cast<const char*>(destination), end);
}

// The letters a to h stand for the forms of several letters.
std::string latin_of(char russian_capital) {
  const char* const forms[] = {"::", "YA", "YU", "SCH", "CH", "SH", "ZH", "YO"};
  const char form = "ABVGDEhgZIYKLMNOPRSTUFHCefd'YIEcb"[russian_capitals.find(russian_capital)];
  return form >= 'a' ? forms[form - 'a'] : std::string(1, form);
}

TEST(Translit, SpellsRussianLettersAndInCapitalsConvertsPunctuation) {
  const std::string_view from = ";{}<[>]@", to = ",{}(())*";
  for (int c = 0; c < 256; ++c) {
    std::string small(c == 0 ? "" : bytes(c)), capital(c == 0 ? "" : bytes(partner(c, from, to)));
    if (isruansialpha(c)) small = capital = latin_of(static_cast<char>(toruansiupper(c)));
    if (isruansilower(c)) strruansilwr(small.data());
    if (c == '@') capital = "::";
    char out[4];
    EXPECT_EQ(translitru(c, out), out);
    EXPECT_EQ(out, small) << c;
    EXPECT_EQ(translitenru(c, out), out);
    EXPECT_EQ(out, capital) << c;
    for (const char* language : {"R", "RU", "RUEN", "Russian"})
      EXPECT_EQ(one(c - 256, language), small);
    for (const char* language : {"EN", "en", "ENRU", "enRu"}) EXPECT_EQ(one(c, language), capital);
  }
}

TEST(Translit, GivesTheRussianLetterOfTheBaseLetter) {
  const std::string_view small = U"абсдефгхийклмнопкрстуввхиз"_1251;
  const std::string_view capital = U"АБЦДЕФГХИЙКЛМНОПКРСТУВВХИЗ"_1251;
  for (const char* language :
       {"FR", "frru", "DE", "DERU", "ru", "r", "ENR", "ENFR", "ENRUX", "XX", "", no_text}) {
    for (int c = 1; c < 256; ++c) {
      const int base = kz_codr_base_member(c, language == nullptr ? "FRRU" : language);
      const auto at = static_cast<std::size_t>(base - 'a');
      std::string expected = bytes(c);
      if (base >= 'a' && base <= 'z') expected = isansiupper(c) ? capital[at] : small[at];
      EXPECT_EQ(one(c, language), expected) << c << ' ' << (language ? language : "null");
    }
  }
  EXPECT_EQ(one('C', "FR"), U"Ц"_1251);
  EXPECT_EQ(one('C', "DE"), "C");
  EXPECT_EQ(one('w', no_text), U"в"_1251);
}

TEST(TranslitTexts, AreTheCharactersOneAfterAnother) {
  for (const std::size_t size : {0, 1, 2, 3, 50, 1000}) {
    const std::string text = kz_test::random_text(size, 5);
    const auto expect = [&](const std::string& expected, auto write) {
      EXPECT_EQ(written(text, 3 * size + 1, write), expected);
    };
    for (const char* language : {"RU", "EN", "DE"}) {
      std::string expected;
      for (const char c : text) expected += one(c, language);
      expect(expected,
             [&](const char* from, char* to) { return strtransliterate(from, to, language, 0); });
    }
    for (const bool lower : {false, true}) {
      std::string expected;
      for (const char c : text)
        for (const char l : one(c, "RU"))
          expected += lower && !isruansiupper(c) ? static_cast<char>(__tolower(l)) : l;
      expect(expected, [&](const char* from, char* to) {
        *to = '\0';  // an empty text is not written
        return xliteratr(to, from, lower);
      });
    }
  }
  char out[] = "unchanged";
  for (const char* source : {no_text, ""}) {
    EXPECT_EQ(strtransliterateenrusmart(source, out, 1), out);
    EXPECT_EQ(xliteratr(out, source, 1), out);
  }
  EXPECT_EQ(strtransliterateenrusmart("a", nullptr, 1), no_text);
  EXPECT_EQ(xliteratr(nullptr, "a", 1), no_text);
  EXPECT_STREQ(out, "unchanged");
}

std::string smart(const std::string& text, int capitals) {
  return written(text, 2 * text.size() + 1, [capitals](const char* from, char* to) {
    return strtransliterateenrusmart(from, to, static_cast<std::int16_t>(capitals));
  });
}

// The page shows pairs of an English text and a Russian one, three a line, with blanks between
// them.
TEST(SmartTranslit, GivesTheExamplesOfItsPage) {
  const std::regex pair(R"re((\S+(?: \S+)*)  +(?:"([^"]*)"|(\S+(?: \S+)*)))re");
  int examples = 0;
  for (const std::string& line : kz::test::examples("conversions.md", "smart")) {
    for (std::sregex_iterator match(line.begin(), line.end(), pair), end; match != end; ++match) {
      ++examples;
      const std::string english = (*match)[1];
      std::string russian = encoded_1251((*match)[2].str() + (*match)[3].str());
      EXPECT_EQ(smart(english, 1), russian) << english;
      EXPECT_EQ(smart(english, 0), strruansilwr(russian.data())) << english;
    }
  }
  EXPECT_GT(examples, 90);
  EXPECT_EQ(smart("lake\t\xFF", 1), std::string(U"лейк\tя"_1251)) << "a tab ends a word, too";
}

using InPlace = std::function<char*(char*)>;

std::string changed(std::string_view text, const InPlace& change, std::size_t expected_end) {
  kz_test::GuardedMemory memory(text.size() + 1);
  char* const start = memory.text(std::string(text));
  EXPECT_EQ(change(start) - start, static_cast<std::ptrdiff_t>(expected_end)) << text;
  return start;
}

TEST(KeyboardLayout, RepairsTextOfTheOtherLayout) {
  constexpr std::string_view latin =
      "`qwertyuiop[]asdfghjkl;'zxcvbnm,.~QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<> 1/?\x01\x80";
  const std::string russian =
      std::string(U"ёйцукенгшщзхъфывапролджэячсмитьбюЁЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭЯЧСМИТЬБЮ"_1251) +
      " 1/?\x01\x80";
  EXPECT_EQ(changed(latin, strruscase, latin.size()), russian);
  EXPECT_EQ(changed(russian, strlatcase, russian.size()), latin);
  EXPECT_EQ(changed(russian, strruscase, russian.size()), russian);
  EXPECT_EQ(changed(U"руддщ"_1251, strlatcase, 5), "hello");
  EXPECT_EQ(changed("", strlatcase, 0), "");
  EXPECT_EQ(changed("", strruscase, 0), "");
  EXPECT_EQ(strlatcase(nullptr), no_text);
  EXPECT_EQ(strruscase(nullptr), no_text);
}

TEST(LookAlikes, AreTwelveSmallAndElevenCapitalLetters) {
  constexpr std::string_view latin = "ageukmonpcyxABEKMHOPCYX";
  constexpr std::string_view russian = U"адеикмопрсухАВЕКМНОРСУХ"_1251;
  for (int c = 1; c < 256; ++c) {
    char text[] = {static_cast<char>(c), '\0'}, other[] = {static_cast<char>(c), '\0'};
    EXPECT_EQ(static_cast<unsigned char>((strlat(text, 0), *text)), partner(c, russian, latin));
    EXPECT_EQ(static_cast<unsigned char>((strrus(other, 0), *other)), partner(c, latin, russian));
  }
  EXPECT_EQ(strlat(nullptr, 0), no_text);
  EXPECT_EQ(strrus(nullptr, '.'), no_text);
}

TEST(LookAlikes, EndAtTheStopCharacter) {
  const auto latin = [](std::string_view text, int stop, std::size_t end) {
    return changed(
        text, [stop](char* start) { return strlat(start, stop); }, end);
  };
  EXPECT_EQ(latin(U"сор.сор"_1251, '.', 3), U"cop.сор"_1251);
  EXPECT_EQ(latin(U"сор"_1251, '.', 3), "cop");
  for (const int stop : {int{U'о'_1251}, U'о'_1251 - 256})
    EXPECT_EQ(latin(U"сор"_1251, stop, 1), U"cор"_1251);
  EXPECT_EQ(latin(U".сор"_1251, '.', 0), U".сор"_1251);
  EXPECT_EQ(latin("", 'x', 0), "");
  EXPECT_EQ(changed(
                "cop", [](char* text) { return strrus(text, 'p'); }, 2),
            U"соp"_1251);
}

}  // namespace

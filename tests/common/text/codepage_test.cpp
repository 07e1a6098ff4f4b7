// Conversions between code pages, HTML references, expanded letters.
#include "kz/codepage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;
using kz::operator""_1252;
using namespace kz_test;

enum Rest { unchanged, punctuation, box_drawing };

struct Conversion {
  const char* name;
  int (*character)(int);
  char* (*text)(const char*, char*);
  std::string_view from, to;  // the first of equal codes counts
  Rest rest;
};

const std::string western_1252 = std::string(western_lower_1252).append(western_upper_1252);
const std::string western_850 = std::string(western_lower_850).append(western_upper_850);

const Conversion conversions[] = {
    {"ruansitooem", _ruansitooem, strruansitooem, russian_1251, russian_866, punctuation},
    {"ruoemtoansi", _ruoemtoansi, strruoemtoansi, russian_866, russian_1251, box_drawing},
    {"ansitokoi8", _ansitokoi8, stransitokoi8, russian_1251, russian_koi8, punctuation},
    {"koi8toansi", _koi8toansi, strkoi8toansi, russian_koi8, russian_1251, box_drawing},
    {"oemtokoi8", _oemtokoi8, stroemtokoi8, russian_866, russian_koi8, unchanged},
    {"koi8tooem", _koi8tooem, strkoi8tooem, russian_koi8, russian_866, unchanged},
    {"ansitoiso", _ansitoiso, stransitoiso, russian_1251, russian_iso, punctuation},
    {"isotoansi", _isotoansi, strisotoansi, russian_iso, russian_1251, box_drawing},
    {"oemtoiso", _oemtoiso, stroemtoiso, russian_866, russian_iso, unchanged},
    {"isotooem", _isotooem, strisotooem, russian_iso, russian_866, unchanged},
    {"mactooem", _mactooem, strmactooem, russian_mac, russian_866, unchanged},
    {"rumactooem", _mactooem, strrumactooem, russian_mac, russian_866, unchanged},
    {"oemtomac", _oemtomac, stroemtomac, russian_866, russian_mac, unchanged},
    {"ruoemtomac", _oemtomac, strruoemtomac, russian_866, russian_mac, unchanged},
    {"ansitooem", _ansitooem, stransitooem, western_1252, western_850, punctuation},
    {"oemtoansi", _oemtoansi, stroemtoansi, western_850, western_1252, box_drawing},
};

int punctuation_in_ascii(int code) {
  static const std::map<int, char> replacements{{132, '"'},  {147, '"'}, {148, '"'}, {171, '"'},
                                                {187, '"'},  {130, ','}, {145, '`'}, {146, '\''},
                                                {180, '\''}, {150, '-'}, {151, '-'}, {173, '-'}};
  const auto found = replacements.find(code);
  return found != replacements.end() ? found->second : code;
}

int box_in_ascii(int code) {
  if (code < 176 || code > 223) return code;
  if (code == 179 || code == 186) return ':';
  if (code == 196) return '-';
  return code == 205 ? '=' : '+';
}

// Letters come first where a code is one, then the rest.
int expected(const Conversion& conversion, int code) {
  const std::vector<int> from = codes(conversion.from);
  const auto letter = std::ranges::find(from, code);
  if (letter != from.end()) {
    return codes(conversion.to)[static_cast<std::size_t>(letter - from.begin())];
  }
  if (conversion.rest == punctuation) return punctuation_in_ascii(code);
  return conversion.rest == box_drawing ? box_in_ascii(code) : code;
}

TEST(CodePage, EveryCodeIsConvertedAsTheStandardsSay) {
  for (const Conversion& conversion : conversions) {
    for (int code = 0; code < 256; ++code) {
      const int wanted = expected(conversion, code);
      EXPECT_EQ(conversion.character(code), wanted) << conversion.name << ' ' << code;
      EXPECT_EQ(conversion.character(code + 256), wanted) << conversion.name << ' ' << code;
      EXPECT_EQ(conversion.character(code - 256), wanted) << conversion.name << ' ' << code;
    }
  }
}

TEST(CodePage, TextsOfAnyLengthAreConvertedByteByByteAndNotTouchedBeyondTheirZero) {
  GuardedMemory source_memory(32768);
  GuardedMemory destination_memory(32768);
  for (const Conversion& conversion : conversions) {
    for (const std::size_t size : interesting_sizes()) {
      const std::string text = random_text(size, static_cast<unsigned>(size));
      std::string wanted = text;
      for (char& c : wanted) c = static_cast<char>(conversion.character(c));

      const char* source = source_memory.text(text);
      char* destination = destination_memory.last(size + 1);
      ASSERT_EQ(conversion.text(source, destination), destination + size) << conversion.name;
      ASSERT_STREQ(destination, wanted.c_str()) << conversion.name << ' ' << size;
      ASSERT_STREQ(source, text.c_str());

      char* in_place = destination_memory.text(text);
      ASSERT_EQ(conversion.text(in_place, in_place), in_place + size) << conversion.name;
      ASSERT_STREQ(in_place, wanted.c_str()) << conversion.name << " in place " << size;
    }
  }
}

TEST(CodePage, ADestinationThatBeginsBeforeItsSourceIsFilledRight) {
  const std::string text = random_text(9000, 1);
  std::string wanted = text;
  for (char& c : wanted) c = static_cast<char>(_ruansitooem(c));
  for (const std::size_t distance : {1u, 7u, 31u, 32u, 33u, 63u, 64u, 65u, 200u}) {
    std::string buffer = std::string(distance, '-') + text;
    strruansitooem(buffer.data() + distance, buffer.data());
    EXPECT_STREQ(buffer.c_str(), wanted.c_str()) << distance;
  }
}

std::string to_html(std::string_view text) {
  std::string result(text.size() * 6 + 1, '?');
  char* end = stransitohtml(std::string(text).c_str(), result.data());
  EXPECT_EQ(*end, '\0');
  return {result.data(), end};
}

TEST(HtmlReferences, AreWrittenForRussianLettersAndNothingElse) {
  EXPECT_EQ(to_html(U"мир"_1251), "&#236;&#232;&#240;");
  EXPECT_EQ(to_html(U"Ёж-ё №1 x"_1251),
            "&#168;&#230;-&#184; \xB9"
            "1 x");
  EXPECT_EQ(to_html(""), "");
}

TEST(HtmlReferences, OfThreeDigitsAreReadAndAllOtherTextStays) {
  const std::pair<std::string, std::string> cases[] = {
      {"&#236;&#232;&#240;", std::string(U"мир"_1251)},
      {"&#65;", "&#65;"},
      {"&#0065;", "&#0065;"},
      {"&#065;", "A"},
      {"&#999;", "\xE7"},
      {"&#&#196;;", "&#\xC4;"},
      {"&&#196;", "&\xC4"},
      {"&#19x;", "&#19x;"},
      {"&#x19;", "&#x19;"},
      {"&#196", "&#196"},
      {"&#19", "&#19"},
      {"&#", "&#"},
      {"&", "&"},
      {"&amp;", "&amp;"},
      {"", ""},
  };
  GuardedMemory memory(64);
  for (const auto& [html, wanted] : cases) {
    char* text = memory.text(html);
    char* end = strhtmltoansi(text, text);
    EXPECT_EQ(std::string(text, end), wanted) << html;
    EXPECT_EQ(*end, '\0');
  }
}

TEST(HtmlReferences, BringEveryTextBack) {
  const std::string text = random_text(5000, 2);
  std::string html = to_html(text);
  char* end = strhtmltoansi(html.c_str(), html.data());
  EXPECT_EQ(std::string(html.data(), end), text);
}

TEST(ExpandedLetters, SmallYoLosesItsDotsAndTheCapitalKeepsThem) {
  std::string text(U"ёлка, Ёлка, актёр"_1251);
  EXPECT_EQ(kz_codr_ee(text.data()), text.data());
  EXPECT_EQ(text, U"елка, Ёлка, актер"_1251);
  EXPECT_EQ(kz_codr_ee(nullptr), nullptr);
}

TEST(ExpandedLetters, AreWrittenOutAndCounted) {
  char out[64];
  EXPECT_EQ(kz_codr_ansi_ss(U"Straße, Fuß"_1252.data(), out), 2);
  EXPECT_STREQ(out, "Strasse, Fuss");
  EXPECT_EQ(kz_codr_oem_ss("Stra\xE1"
                           "e \xDF",
                           out),
            1);  // CP850: ß, and a box character
  EXPECT_STREQ(out, "Strasse \xDF");
  EXPECT_EQ(kz_codr_ansi_oe(U"œuf, cœur, Œ"_1252.data(), out), 2);
  EXPECT_EQ(std::string_view(out), U"oeuf, coeur, Œ"_1252);
  EXPECT_EQ(kz_codr_ansi_oe("", out), 0);
  EXPECT_STREQ(out, "");
}

}  // namespace

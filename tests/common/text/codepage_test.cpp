// Conversions between code pages, HTML references, expanded letters.
#include "kz/codepage.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

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

// Letters come first where a code is one, then the rest.
int expected(const Conversion& conversion, int code) {
  const std::string from = bytes(conversion.from);
  if (from.find(static_cast<char>(code)) != from.npos)
    return partner(code, from, bytes(conversion.to));
  if (conversion.rest == punctuation)
    return partner(code, bytes("849394abbb829192b49697ad"), "\"\"\"\"\",`\'\'---");
  if (conversion.rest == unchanged || code < 176 || code > 223) return code;
  const char ascii = static_cast<char>(partner(code, "\xB3\xBA\xC4\xCD", "::-="));
  return static_cast<unsigned char>(ascii) == code ? '+' : ascii;
}

TEST(CodePage, EveryCodeIsConvertedAsTheStandardsSay) {
  for (const Conversion& conversion : conversions) {
    for (int code = 0; code < 256; ++code) {
      const int wanted = expected(conversion, code);
      for (const int same : {code, code + 256, code - 256})
        EXPECT_EQ(conversion.character(same), wanted) << conversion.name << ' ' << same;
    }
  }
}

TEST(CodePage, TextsOfAnyLengthAreConvertedByteByByteAndNotTouchedBeyondTheirZero) {
  GuardedMemory source_memory(32768), destination_memory(32768);
  for (const Conversion& conversion : conversions) {
    for (const std::size_t size : interesting_sizes()) {
      const std::string text = random_text(size, static_cast<unsigned>(size));
      std::string wanted = text;
      for (char& c : wanted) c = static_cast<char>(conversion.character(c));
      const char* source = source_memory.text(text);
      for (const bool in_place : {false, true}) {
        char* destination =
            in_place ? destination_memory.text(text) : destination_memory.last(size + 1);
        ASSERT_EQ(conversion.text(in_place ? destination : source, destination),
                  destination + size);
        ASSERT_STREQ(destination, wanted.c_str()) << conversion.name << ' ' << size;
      }
      ASSERT_STREQ(source, text.c_str());
    }
  }
  // A destination may begin before its source.
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

std::string from_html(const std::string& html) {
  GuardedMemory memory(html.size() + 1);
  char* text = memory.text(html);
  const char* end = strhtmltoansi(text, text);
  EXPECT_EQ(*end, '\0');
  return {static_cast<const char*>(text), end};
}

TEST(HtmlReferences, AreWrittenForRussianLettersAndNothingElse) {
  EXPECT_EQ(to_html(U"мир"_1251), "&#236;&#232;&#240;");
  EXPECT_EQ(to_html(U"Ёж-ё №x"_1251), "&#168;&#230;-&#184; \xB9x");
  EXPECT_EQ(to_html(""), "");
  EXPECT_EQ(from_html(to_html(random_text(5000, 2))), random_text(5000, 2));
}

TEST(HtmlReferences, OfThreeDigitsAreReadAndAllOtherTextStays) {
  EXPECT_EQ(from_html("&#236;&#232;&#240;"), U"мир"_1251);
  EXPECT_EQ(from_html("&#065; &#999; &#&#196;; &&#196;"), "A \xE7 &#\xC4; &\xC4");
  for (const char* same :
       {"&#65; &#0065; &#19x; &#x19; &amp;", "&#196", "&#19", "&#1", "&#", "&", ""})
    EXPECT_EQ(from_html(same), same);
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
  EXPECT_EQ(kz_codr_oem_ss("Fu\xE1 \xDF", out), 1);  // CP850: ß, and a box character
  EXPECT_STREQ(out, "Fuss \xDF");
  EXPECT_EQ(kz_codr_ansi_oe(U"œuf, cœur, Œ"_1252.data(), out), 2);
  EXPECT_EQ(std::string_view(out), U"oeuf, coeur, Œ"_1252);
  EXPECT_EQ(kz_codr_ansi_oe("", out), 0);
  EXPECT_STREQ(out, "");
}

}  // namespace

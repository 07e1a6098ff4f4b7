// Split, join, meanings and synonyms of entries, against worked examples.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "kz/entry.h"
#include "text/literal.h"

using kz::operator""_1251;
using Text = std::string;

namespace {

Text or_empty(const char* s) { return s == nullptr ? "" : s; }

// The pieces of a split entry; without a source word the accessor answers with the head word.
struct Pieces {
  Text word, part_text, attr, body, ref, src;
  char part = 0;
  bool operator==(const Pieces&) const = default;
};

Pieces pieces(CDicEntry& entry) {
  char part_text[4096];
  const char part = entry.GetPart(part_text);
  return {entry.GetInWord(nullptr),
          part_text,
          entry.GetAttrView(nullptr),
          entry.GetEntry(nullptr),
          entry.GetSrcRef(nullptr),
          entry.GetSrcWord(nullptr),
          part};
}

// Meanings as one readable text: "tag{definition}synonym;synonym/...".
Text meanings(CDicEntry& entry) {
  Text result;
  for (std::int16_t i = 0; i < entry.GetMeaningsSize(); ++i) {
    result += or_empty(entry.GetMeaningTag(i, nullptr)) + '{' +
              or_empty(entry.GetMeaningDefinition(i, nullptr)) + '}';
    for (std::int16_t j = 0; j < entry.GetSynonymsSize(i); ++j)
      result += or_empty(entry.GetSynonym(i, j, nullptr)) + ';';
    result += '/';
  }
  return result;
}

Text built(const char* language, char kind, char part, std::string_view body) {
  CDicEntry entry(language, kind);
  entry.Build("word", part, Text(body).c_str(), nullptr);
  return meanings(entry);
}

TEST(EntrySplit, TakesPiecesApartAndJoinsThemAgain) {
  struct Case {
    Text full;
    Pieces pieces;
    Text joined;
  };
  const Case cases[] = {
      {R"(table*N1.a/2.b;c\\Table)", {"table", "N", "", "1.a/2.b;c", "", "Table", 'N'}, {}},
      {"no star", {"no star", "", "", "", "", "no star", 0}, "no star*"},
      {"a*b*", {"a*b", "", "", "", "", "a*b", 0}, {}},
      {"*Nx", {"", "N", "", "x", "", "", 'N'}, ""},
      {R"(run*Vabc[NX]x\ref\\Run)", {"run", "Vabc", "[NX]", "x", "ref", "Run", 'V'}, {}},
      {"run*V1234567[NX]x", {"run", "V1234567", "[NX]", "x", "", "run", 'V'}, {}},
      {"run*V12345678[NX]x", {"run", "V", "", "12345678[NX]x", "", "run", 'V'}, {}},
      {"run*Va]b[NX]x", {"run", "V", "", "a]b[NX]x", "", "run", 'V'}, {}},
      {"run*Va {d}[NX]x", {"run", "Va", " {d}[NX]", "x", "", "run", 'V'}, {}},
      {"run*W[NX]x", {"run", "W", "", "[NX]x", "", "run", 'W'}, {}},
      {R"(c*$[a]b\d\\C)", {"c", "$", "", R"([a]b\d)", "", "C", '$'}, {}},
      {R"(word*Nx\\)", {"word", "N", "", "x", "\\", "word", 'N'}, {}},
      {R"(word*Nx\)", {"word", "N", "", "x", "", "word", 'N'}, "word*Nx"},
      {"word*N{d}x]y", {"word", "N", "{d}x]", "y", "", "word", 'N'}, {}},
      {"word*wa[x]", {"word", "w", "", "a[x]", "", "word", 'w'}, {}},
  };
  for (const Case& c : cases) {
    CDicEntry entry;
    entry.SetFullEntry(c.full.c_str());
    entry.Split();
    EXPECT_EQ(pieces(entry), c.pieces) << c.full;
    entry.Merge();
    const Text& joined = c.joined.empty() && c.full[0] != '*' ? c.full : c.joined;
    EXPECT_EQ(entry.GetFullEntry(nullptr), joined);
  }
}

TEST(EntryMeanings, FollowNumbersCodesAndPhrases) {
  struct Case {
    const char* language;
    char kind;
    char part;
    std::string_view body, meanings;
  };
  const Case cases[] = {
      {"ENRU", 'c', 'N', U"1.стол/2.таблица;график"_1251, U"1.{}стол;/2.{}таблица;график;/"_1251},
      {"ENRU", 'c', 'V', U"Aбыстрый/Bскорый"_1251, U"A{}быстрый;/B{}скорый;/"_1251},
      {"ENRU", 'S', 'V', U"Aбыстрый/Bскорый"_1251, U"{}Aбыстрый;/{}Bскорый;/"_1251},
      {"ENRU", 'C', 'V', U"бежатьZ)"_1251, U"{}бежать ;/"_1251},
      {"ENRU", 'c', 'V', U"бежатьZ)"_1251, U"{}бежать Z );/"_1251},
      {"RUEN", 'c', 'N', U"1.Дhouse/Д2home"_1251, U"Д{}house;/{}Д2home;/"_1251},
      {"ENRU", 'c', 'N', U"1. мат.: ряд/2.{список}(а/б)в"_1251,
       U"1. мат.{}ряд;/2.{список}(а/б) в;/"_1251},
      {"ENRU", 'c', 'N', U"A1. а: б"_1251, U"1. {}а: б;/"_1251},
      {"ENRU", 'c', 'N', U"Wа/;Wб/в/г"_1251, U"{}а;б/в;/{}г;/"_1251},
      {"ENRU", 'c', 'N', U"Wа/;ABWб/;ABCWв/г"_1251, U"{}а;A B  б;;/C{}в/г;/"_1251},
      {"ENRU", 'c', 'N', U"а#б/в#{г/[д/"_1251, U"{}а #б;/{}в #{г/[д;/"_1251},
      {"ENRU", 'c', 'N', "A. ", "A{};/"},
      {"ENRU", 'C', 'N', "A. ", ""},
      {"ENRU", 'c', 'N', "1.", "1.{};/"},
      {"ENRU", 'c', 'N', "{a}[b]", ""},
      {"ENRU", 'c', 'N', "//", "{};/{};/"},
      {"ENRU", 'c', 'N', "", ""},
      // Labels: with a text behind the number, cut short by the end, of two digits.
      {"ENRU", 'c', 'N', U"1. мат.{ряд}а/12.б/123.в"_1251,
       U"1. мат.{ряд}а;/12.{}б;/{}1;/23.{}в;/"_1251},
      {"ENRU", 'c', 'N', U"A. а/B а/C:а"_1251, U"A. {}а;/B {}а;/C{}а;/"_1251},
      {"ENRU", 'c', 'N', U"a)а/б"_1251, U"{}a ) а;/{}б;/"_1251},
      {"RUEN", 'c', 'N', U"Дa/ДД1b"_1251, U"Д{}a;/Д{}Д1b;/"_1251},
      // Definitions and blocks at the end of a body.
      {"ENRU", 'c', 'N', U"1.{а}"_1251, ""},
      {"ENRU", 'C', 'N', "{a}A", "{a};/"},
      {"ENRU", 'C', 'N', "[a]A", "{};/"},
      // What ends a text: a backslash, but not a slash in a group or in a run of phrases.
      {"ENRU", 'c', 'N', U"а\\б/в"_1251, U"{}а;/"_1251},
      {"ENRU", 'c', 'N', U"а(б/в)1.г"_1251, U"{}а (б/в);/1.{}г;/"_1251},
      {"ENRU", 'c', 'N', U"Wа\\б/;Wв/г"_1251, U"{}а;/"_1251},
      {"ENRU", 'c', 'N', U"Wа/Wб/в"_1251, U"{}а/ б/в;/"_1251},
      // Reduced: words before a phrase and codes go, blanks stay single.
      {"ENRU", 'C', 'N', U"аW)б;вWг"_1251, U"{}б;в;/{}г;/"_1251},
      {"ENRU", 'C', 'N', U"а#б #в"_1251, U"{}а б в;/"_1251},
      {"ENRU", 'C', 'N', U"а#б;а#б#в;аW) б"_1251, U"{}а б;а б в;б;/"_1251},
      {"ENRU", 'C', 'N', U"а{z}б/)в"_1251, U"{}а{z}б;/{}в;/"_1251},
      {"RUEN", 'C', 'N', "(a ZbY)c", "{}(a b c;/"},
      // Spaced: groups, bars and codes stand apart.
      {"ENRU", 'c', 'N', U"а|б(в)г #д# е"_1251, U"{}а | б (в) г #д# е;/"_1251},
      {"ENRU", 'c', 'N', U"а[z]б{y}в"_1251, U"{}а [z] б {y} в;/"_1251},
  };
  for (const Case& c : cases)
    EXPECT_EQ(built(c.language, c.kind, c.part, c.body), c.meanings)
        << c.language << c.kind << testing::PrintToString(c.body);
}

TEST(EntryMeanings, GroupSynonymsOfAnExtendedPartUnderItsCode) {
  CDicEntry entry("ENRU");
  const Text full(U"run*Eab[x]бежать/бег"_1251);
  entry.Build(full.c_str(), 0, nullptr, nullptr);
  EXPECT_EQ(meanings(entry), U"V{}бежать;/{}бег;/"_1251);
}

TEST(EntryMeanings, HoldSynonymsOfAtMost355FinishedCharacters) {
  const Text letters(355, U'я'_1251);
  for (const char kind : {'C', 'c'}) {
    EXPECT_EQ(built("ENRU", kind, 'N', " " + letters + "/"), "{}" + letters + ";/");
    EXPECT_EQ(built("ENRU", kind, 'N', letters + letters), "{}" + letters + ";/");
  }
  EXPECT_EQ(built("ENRU", 'S', 'N', letters + letters), "{}" + letters + letters + ";/");
  // The slash at the end and the first blank are taken off before the text is cut.
  EXPECT_EQ(built("ENRU", 'c', 'N', Text(354, '.') + "(x"), "{}" + Text(354, '.') + " ;/");
}

TEST(EntryMeanings, KeepEveryAttributeBlockInItsPlace) {
  for (const std::string_view full : {U"run*Vab[NX]1.[AB]а/2.[CD]б"_1251, U"run*V1.[AB]а"_1251}) {
    CDicEntry entry("ENRU");
    entry.Build(full.data(), 0, nullptr, nullptr);
    EXPECT_STREQ(entry.GetAttr(nullptr), "AB");
    EXPECT_STREQ(entry.GetAttrView(nullptr), "[AB]");
    entry.Merge();
    EXPECT_EQ(entry.GetFullEntry(nullptr), full);
  }
  CDicEntry entry("ENRU");
  entry.Build(U"run*V[NX]1.а[AB]"_1251.data(), 0, nullptr, nullptr);
  EXPECT_STREQ(entry.GetAttr(nullptr), "NX") << "a block inside a text opens no meaning";
  entry.Build("walk", 'V', "[[x]1.y", nullptr);
  EXPECT_STREQ(entry.GetAttrView(nullptr), "[x]");
  entry.Build("walk", 'V', "[]1.x", nullptr);
  EXPECT_STREQ(entry.GetAttrView(nullptr), "");
  entry.Merge();
  EXPECT_STREQ(entry.GetFullEntry(nullptr), R"(walk*V[]1.x\\walk)");
}

}  // namespace

// Split, join, meanings and synonyms of entries, against worked examples and the slow models.
#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "kz/entry.h"
#include "tests/common/entry/reference.h"

using kz::operator""_1251;
using reference::MarkerText;
using reference::Text;
using reference::text;

namespace {

Text or_empty(const char* s) { return s == nullptr ? "" : s; }

reference::Pieces pieces(CDicEntry& entry) {
  reference::Pieces p;
  char part_text[4096];
  p.part = entry.GetPart(part_text);
  p.part_text = part_text;
  p.word = entry.GetInWord(nullptr);
  p.attr = entry.GetAttrView(nullptr);
  p.body = entry.GetEntry(nullptr);
  p.ref = entry.GetSrcRef(nullptr);
  // Without a source word the accessor answers with the head word; it is seen in the joined text.
  p.src = entry.GetSrcWord(nullptr);
  return p;
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

Text meanings(const reference::Body& body, const reference::Meanings& parsed) {
  Text result;
  for (const auto& meaning : parsed.list) {
    result += meaning.tag + '{' + meaning.definition + '}';
    for (const Text& synonym : body.synonyms(meaning.text)) {
      const bool reference = body.kind != 'c' && synonym.size() > 1 && synonym[0] == '=';
      const bool see = reference && reference::latin(synonym[1]) == (body.language[2] == 'R');
      result += (see ? "See: " : "") + synonym.substr(reference ? 1 : 0) + ';';
    }
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
    reference::Pieces pieces;
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

TEST(EntrySplit, AgreesWithTheSlowModelOnRandomText) {
  MarkerText random(1);
  CDicEntry entry("ENRU", 'c');
  for (int i = 0; i < 40000; ++i) {
    const Text full = random(30);
    entry.SetFullEntry(full.c_str());
    entry.Split();
    reference::Pieces expected = reference::split(full);
    const Text joined = reference::join(expected);
    if (expected.src.empty()) expected.src = expected.word;
    ASSERT_EQ(pieces(entry), expected) << full;
    Text attr = expected.attr;
    if (attr.starts_with('[')) attr.erase(0, 1);
    if (attr.ends_with(']')) attr.pop_back();
    ASSERT_EQ(entry.GetAttr(nullptr), attr);
    entry.Merge();
    ASSERT_EQ(entry.GetFullEntry(nullptr), joined) << full;
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
  };
  for (const Case& c : cases)
    EXPECT_EQ(built(c.language, c.kind, c.part, c.body), c.meanings)
        << c.language << c.kind << testing::PrintToString(c.body);
}

TEST(EntryMeanings, GroupSynonymsOfAnExtendedPartUnderItsCode) {
  CDicEntry entry("ENRU");
  const Text full = text(U"run*Eab[x]бежать/бег"_1251);
  entry.Build(full.c_str(), 0, nullptr, nullptr);
  EXPECT_EQ(meanings(entry), text(U"V{}бежать;/{}бег;/"_1251));
}

TEST(EntryMeanings, HoldSynonymsOfAtMost355FinishedCharacters) {
  const Text letters(355, U'я'_1251);
  for (const char kind : {'C', 'c'}) {
    EXPECT_EQ(built("ENRU", kind, 'N', " " + letters + "/"), "{}" + letters + ";/");
    EXPECT_EQ(built("ENRU", kind, 'N', letters + letters), "{}" + letters + ";/");
  }
  EXPECT_EQ(built("ENRU", 'S', 'N', letters + letters), "{}" + letters + letters + ";/");
  MarkerText random(9);
  for (std::size_t size = 300; size < 400; ++size) {
    const Text tail = Text(size, U'я'_1251) + random(size / 8) + "#/" + random(size / 8) + "/";
    const reference::Body reduced{"ENRU", 'C', 'N'};
    const reference::Body spaced{"ENRU", 'c', 'N'};
    for (const reference::Body& body : {reduced, spaced}) {
      for (const char* head : {"", " ", ")", "("}) {
        const Text whole = head + tail;
        EXPECT_EQ(built("ENRU", body.kind, 'N', whole), meanings(body, body.parse(whole, "N")));
      }
    }
  }
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
  entry.Build("walk", 'V', "[]1.x", nullptr);
  EXPECT_STREQ(entry.GetAttrView(nullptr), "");
  entry.Merge();
  EXPECT_STREQ(entry.GetFullEntry(nullptr), R"(walk*V[]1.x\\walk)");
}

TEST(EntryMeanings, AgreeWithTheSlowModelOnRandomBodies) {
  MarkerText random(2);
  for (int i = 0; i < 60000; ++i) {
    reference::Body body{reference::kDirections[i % 6], random.pick("CcS"), 0};
    CDicEntry entry(body.language.c_str(), body.kind);
    const Text part{random.pick("NVEWw$=")};
    entry.Build(("w*" + part + (i % 2 == 0 ? "" : "ab") + random(40)).c_str(), 0, nullptr, nullptr);
    char part_text[64];
    body.part = entry.GetPart(part_text);  // a '*' in the text may have brought another
    const Text stored = entry.GetEntry(nullptr);
    const reference::Meanings parsed = body.parse(stored, part_text);
    ASSERT_EQ(meanings(entry), meanings(body, parsed))
        << body.language << body.kind << body.part << testing::PrintToString(stored);
    const Text full = entry.GetFullEntry(nullptr);
    const reference::Pieces head = reference::split(full);
    ASSERT_EQ(entry.GetAttrView(nullptr),
              parsed.attr.empty() ? head.attr : reference::bracketed(parsed.attr));
    entry.Merge();
    ASSERT_EQ(entry.GetFullEntry(nullptr), reference::join(head));
  }
}

}  // namespace

// Split, join, meanings and synonyms of entries, against worked examples.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "kz/entry.h"
#include "tests/support/page.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

using kz::operator""_1251;
using Text = std::string;

namespace {

Text or_empty(const char* s) { return s == nullptr ? "" : s; }

// The pieces of a split entry; without a source word the accessor answers with the head word.
Text pieces(CDicEntry& entry) {
  char part_text[4096];
  EXPECT_EQ(entry.GetPart(part_text), *part_text);
  Text result = entry.GetInWord(nullptr);
  for (const char* piece :
       {static_cast<const char*>(part_text), entry.GetAttrView(nullptr), entry.GetEntry(nullptr),
        entry.GetSrcRef(nullptr), entry.GetSrcWord(nullptr)})
    result += Text("|") + piece;
  return result;
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

TEST(EntryFormatPage, EntriesAreSplitAndJoinedAsShown) {
  for (const Text& line : kz::test::examples("entry-format.md", "split")) {
    const std::vector<Text> fields = kz::test::fields_of(line);
    CDicEntry entry;
    entry.SetFullEntry(fields[0].c_str());
    entry.Split();
    EXPECT_EQ(pieces(entry), fields[1]) << line;
    entry.Merge();
    EXPECT_EQ(entry.GetFullEntry(nullptr), fields.size() > 2 ? fields[2] : fields[0]);
  }
}

TEST(EntryFormatPage, BodiesHaveTheMeaningsShown) {
  int examples = 0;
  for (const Text& utf8 : kz::test::examples("entry-format.md", "meanings")) {
    const Text line = kz::test::encoded_1251(utf8);
    const std::size_t body = sizeof "ENRU c N", end = line.find(" -> ");
    const Text found =
        built(line.substr(0, 4).c_str(), line[5], line[7], line.substr(body, end - body));
    EXPECT_EQ(found.empty() ? "none" : found, line.substr(end + 4)) << line;
    ++examples;
  }
  EXPECT_GE(examples, 35);
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

// Accessors of entries and the handle functions over them.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kz/entry.h"
#include "text/literal.h"

using kz::operator""_1251;
using namespace std::string_view_literals;

namespace {

std::string synonym(const char* language, char kind, std::string_view body) {
  CDicEntry entry(language, kind);
  entry.Build("w", 'N', body.data(), nullptr);
  const char* const result = entry.GetSynonym(0, 0, nullptr);
  return result == nullptr ? "null" : result;
}

TEST(Entry, OpensWithHeadWordAndBodyAndJoinsThem) {
  CDicEntry* const entry =
      DicEntryOpen("table", 'N', U"1.стол/2.таблица;график"_1251.data(), nullptr, "ENRU", 'c');
  char buffer[64] = "x";
  EXPECT_STREQ(DicEntryGetInWord(entry, buffer), "table");
  EXPECT_STREQ(buffer, "table");
  EXPECT_STREQ(DicEntryGetSrcWord(entry, nullptr), "table");
  EXPECT_EQ(DicEntryGetPart(entry, buffer), 'N');
  EXPECT_STREQ(buffer, "N");
  EXPECT_EQ(DicEntryGetMeaningsSize(entry), 2);
  EXPECT_EQ(DicEntryGetSynonymsSize(entry, 1), 2);
  EXPECT_STREQ(DicEntryGetMeaningTag(entry, 0, buffer), "1.");
  EXPECT_STREQ(buffer, "1.");
  EXPECT_EQ(DicEntryGetSynonym(entry, 1, 0, nullptr), U"таблица"_1251);
  EXPECT_EQ(entry->GetFullEntry(nullptr), std::string());
  DicEntryMerge(entry);
  EXPECT_EQ(entry->GetFullEntry(buffer), U"table*N1.стол/2.таблица;график\\\\table"_1251);
  EXPECT_EQ(buffer, U"table*N1.стол/2.таблица;график\\\\table"_1251);
  DicEntryBuild(entry, "x*V1", 0, nullptr, nullptr);
  EXPECT_EQ(DicEntryGetMeaningsSize(entry), 1) << "the meanings of the last build only";
  DicEntryClose(entry);
}

TEST(Entry, AnswersOutOfRangeIndexesWithNothing) {
  CDicEntry entry("ENRU");
  entry.Build("w", 'N', "1.;", nullptr);
  char buffer[16];
  const std::int16_t out_of_range[] = {-1, 1, 32767, -32768};
  for (const std::int16_t i : out_of_range) {
    std::string(" x").copy(buffer, 3);
    EXPECT_EQ(entry.GetMeaningTag(i, buffer), nullptr);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(entry.GetMeaningDefinition(i, nullptr), nullptr);
    EXPECT_EQ(entry.GetSynonymsSize(i), 0);
    EXPECT_EQ(entry.GetSynonym(i, 0, nullptr), nullptr);
  }
  buffer[0] = 'x';
  EXPECT_EQ(entry.GetSynonym(0, 2, buffer), nullptr);
  EXPECT_STREQ(buffer, "");
  buffer[0] = 'x';
  EXPECT_EQ(entry.GetSynonym(0, 1, buffer), nullptr) << "an empty synonym";
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(entry.GetSynonymsSize(0), 2);
}

TEST(Entry, LeadsCrossReferencesToTheSourceLanguage) {
  EXPECT_EQ(synonym("RUEN", 'C', U"=дом"_1251), U"See: дом"_1251);
  EXPECT_EQ(synonym("RUEN", 'c', U"=дом"_1251), U"=дом"_1251);
  EXPECT_EQ(synonym("RUEN", 'C', "=house"), "house");
  EXPECT_EQ(synonym("ENRU", 'S', "=house"), "See: house");
  EXPECT_EQ(synonym("ENRU", 'S', U"=дом"_1251), U"дом"_1251);
  EXPECT_EQ(synonym("RU", 'S', "=house"), "house");
  EXPECT_EQ(synonym("RUEN", 'C', "="), "=");
}

TEST(Entry, TakesDecorationsOffASynonym) {
  struct Case {
    std::string_view shown;
    int flag;
    std::string_view labels, text, references;
  };
  const Case cases[] = {{U"a)слово 1,2"_1251, 0, "a)", U"слово"_1251, " 1,2"},
                        {U"a)б) [x[y]] слово"_1251, 0, U"a)б) [x[y]] "_1251, U"слово"_1251, ""},
                        {U"See: дом 3"_1251, 1, "", U"See: дом"_1251, " 3"},
                        {U"См.: дом"_1251, 1, "", U"См.: дом"_1251, ""},
                        {U"дом [x] y; з"_1251, 0, "", U"дом ; з"_1251, ""},
                        {U"дом;[x]"_1251, 0, "", U"дом;[x]"_1251, ""},
                        {U"дом [x"_1251, 0, "", U"дом"_1251, " "},
                        {"12, 3", 0, "", "", "12, 3"},
                        {"", 0, "", "", ""}};
  CDicEntry entry;
  for (const Case& c : cases) {
    char shown[64], labels[64], references[64];
    *std::copy(c.shown.begin(), c.shown.end(), shown) = 0;
    EXPECT_EQ(DicEntryGetSynonymValues(&entry, shown, labels, references), c.flag) << c.shown;
    EXPECT_EQ(labels, c.labels);
    EXPECT_EQ(shown, c.text);
    EXPECT_EQ(references, c.references);
  }
  const ZCString shared(U"a)слово"_1251.data());
  ZCString text = shared, labels, references;
  entry.GetSynonymValues(text, labels, references);
  EXPECT_STREQ(text, U"слово"_1251.data());
  EXPECT_STREQ(shared, U"a)слово"_1251.data()) << "other holders of the text keep it";
}

TEST(Entry, TellsGrammarCodesFromLetters) {
  // Of the texts below, those that open a group of synonyms; of letters, those inside a synonym.
  const struct {
    const char* language;
    char kind, part;
    std::string_view openings, targets;
  } cases[] = {{"ENRU", 'c', 'N', "AzA1", "Az"}, {"DERU", 'C', 'V', "AzA1", "Az"},
               {"RUDE", 'c', 'N', "AA)A1", "A"}, {"RUEN", 'C', 'N', U"AA)A1ДД)"_1251, "A"},
               {"ENRU", 'S', 'N', "", "Az"},     {"ENRU", 'c', 'W', "", "Az"},
               {"ENRU", 'c', 'w', "", "Az"},     {"RU", 'c', 'N', "", ""},
               {nullptr, 'C', 'N', "", ""}};
  for (const auto& c : cases) {
    CDicEntry entry(c.language, c.kind);
    entry.Build("w", c.part, "", nullptr);
    std::string openings, targets;
    for (const std::string_view at :
         {"A"sv, "z"sv, "A)"sv, "A1"sv, U"Д"_1251, U"Д)"_1251, U"Д1"_1251, "1"sv, ""sv}) {
      const int code = entry.IsSynPartCode(at.data());
      if (code == static_cast<unsigned char>(*at.data())) openings += at;
    }
    const CDicEntryMeaning meaning("1.", "", "", "a;b", c.language, c.kind);
    for (const char letter : std::string_view(U"Az1;Дд"_1251)) {
      if (meaning.IsTargetCode(letter) == static_cast<unsigned char>(letter)) targets += letter;
    }
    EXPECT_EQ(openings, c.openings) << c.kind << c.part;
    EXPECT_EQ(targets, c.targets) << c.kind << c.part;
    EXPECT_EQ(entry.IsSynPartCode(nullptr), 0);
  }
}

TEST(Entry, ASetBodyIsJoinedAndKeepsTheMeanings) {
  CDicEntry entry("ENRU");
  entry.Build("w", 'N', "1.a/2.b", nullptr);
  entry.SetEntry("c");
  EXPECT_STREQ(entry.GetEntry(nullptr), "c");
  EXPECT_EQ(entry.GetMeaningsSize(), 2);
  entry.Merge();
  EXPECT_STREQ(entry.GetFullEntry(nullptr), "w*Nc\\\\w");
  entry.SetEntry(nullptr);
  EXPECT_STREQ(entry.GetEntry(nullptr), "");
}

TEST(Entry, MayBeBuiltFromItsOwnTexts) {
  CDicEntry entry("ENRU");
  entry.Build("table*N1.a/2.b\\ref\\\\Table", 0, nullptr, nullptr);
  entry.Build(entry.GetEntry(nullptr) + 2, 'V', entry.GetInWord(nullptr),
              entry.GetSrcWord(nullptr));
  entry.Merge();
  EXPECT_STREQ(entry.GetFullEntry(nullptr), "a/2.b*Vtable\\Table\\\\a/2.b");
}

TEST(Entry, PacksItsBodyForItsLanguage) {
  CDicEntry* const entry =
      DicEntryOpen("w", 'N', U" слово ; другое ( x )"_1251.data(), nullptr, "ENRUXX", 'c');
  char buffer[64];
  EXPECT_EQ(DicEntryPack(entry, buffer), buffer);
  EXPECT_EQ(buffer, U"слово;другое(x)"_1251);
  DicEntryClose(entry);
}

TEST(Entry, FullIndexOfAVeryLongBodyStaysIn16Bits) {
  CDicEntry entry("ENRU", 'S');
  entry.Build("w", 'N', std::string(70000, ';').c_str(), nullptr);
  EXPECT_EQ(entry.GetSynonymsSize(0), 32767);
  entry.Build("w", 'N', std::string(70000, '/').c_str(), nullptr);
  EXPECT_EQ(entry.GetMeaningsSize(), 32767);
}

TEST(EntryHandle, NullDoesNothing) {
  char text[8] = "x", labels[8] = "y", references[8] = "z";
  DicEntryClose(nullptr);
  DicEntryBuild(nullptr, "a", 0, nullptr, nullptr);
  DicEntrySplit(nullptr);
  DicEntryMerge(nullptr);
  for (auto* get : {DicEntryGetInWord, DicEntryGetSrcWord, DicEntryGetSrcRef, DicEntryGetAttr,
                    DicEntryGetAttrView})
    EXPECT_EQ(get(nullptr, text), nullptr);
  for (auto* get : {DicEntryGetMeaningTag, DicEntryGetMeaningDefinition})
    EXPECT_EQ(get(nullptr, 0, text), nullptr);
  EXPECT_EQ(DicEntryGetSynonym(nullptr, 0, 0, text), nullptr);
  EXPECT_EQ(DicEntryPack(nullptr, text), nullptr);
  EXPECT_EQ(DicEntryGetPart(nullptr, text) + DicEntryGetMeaningsSize(nullptr) +
                DicEntryGetSynonymsSize(nullptr, 0),
            0);
  EXPECT_EQ(DicEntryGetSynonymValues(nullptr, text, labels, references), -1);
  EXPECT_STREQ(text, "x");
  EXPECT_STREQ(labels, "");
  EXPECT_STREQ(references, "");
  EXPECT_EQ(DicEntryGetSynonymValues(std::make_unique<CDicEntry>().get(), nullptr, text, nullptr),
            -1);
  EXPECT_STREQ(text, "");
}

}  // namespace

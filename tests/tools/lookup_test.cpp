// kzdic lookup: steps, homographs, beginnings, neighbours, output forms.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/tools/kzdic_run.h"
#include "tools/lookup_command.h"

namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class LookupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    place.write("s.txt",
                "*: language ENRU\n"
                "Table*N[|M]1.{мебель}стол;столик/2. мат.:таблица[F]/Vсоставлять\\list\n"
                "table*Vотложить\n"
                "table-talk*Nбеседа\n"
                "tea*Nчай\n"
                "ten*Iдесять\n"
                "zero*={см. nought}ноль\n");
    place.write("t.txt", "*: language DERU\nÜbung*Nупражнение\nTee*Nчай\n");
    ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "en.dic"}).status, 0);
    ASSERT_EQ(place.kzdic({"build", "t.txt", "-o", "de.dic", "--packed"}).status, 0);
  }

  Workplace place;
};

TEST_F(LookupTest, ShowsEntriesReadably) {
  const Outcome outcome = place.kzdic({"lookup", "en.dic", "TABLE"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out,
            "TABLE  (en.dic, in lower case)\n"
            "  Table, noun [|M]\n"
            "    1. {мебель} стол; столик\n"
            "    2. мат. таблица\n"
            "    verb: составлять\n"
            "    (list)\n"
            "  table, verb\n"
            "    отложить\n");
}

TEST_F(LookupTest, SearchesAllDictionariesForAllWords) {
  const Outcome outcome = place.kzdic({"lookup", "--raw", "en.dic", "de.dic", "übung", "tea"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "übung*Nупражнение\\\\Übung\ntea*Nчай\n");
  const Outcome missing = place.kzdic({"lookup", "--raw", "en.dic", "de.dic", "ten", "чай"});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "ten*Iдесять\n");
  EXPECT_THAT(missing.err, HasSubstr("чай: not found"));
}

TEST_F(LookupTest, FindsBeginningsAndNeighbours) {
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "--prefix", "en.dic", "te"}).out,
            "tea*Nчай\nten*Iдесять\n");
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "--next", "2", "en.dic", "table"}).out,
            "table*N[|M]1.{мебель}стол;столик/2. мат.:таблица[F]/Vсоставлять\\list\\\\Table\n"
            "table*Vотложить\ntable-talk*Nбеседа\ntea*Nчай\n");
  EXPECT_EQ(place.kzdic({"lookup", "--next", "1", "en.dic", "tab"}).status, 1);
}

TEST_F(LookupTest, AnswersEveryInputLineOnce) {
  const std::string input = "tea\n\nnothing\nTee\r\n*\n\xFF\n";
  const Outcome lines = place.kzdic({"lookup", "--json", "en.dic", "de.dic", "-"}, input);
  EXPECT_EQ(lines.status, 1);
  std::istringstream in(lines.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(in, line);) {
    const json answer = json::parse(line);
    answers.push_back(answer["found"] ? answer["entries"][0]["dictionary"] : json("-"));
  }
  EXPECT_THAT(answers, ElementsAre("en.dic", "-", "-", "de.dic", "-", "-"));
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "en.dic", "-"}, "tea\nnothing\nten\n").out,
            "tea*Nчай\n\n\nten*Iдесять\n\n");
}

TEST_F(LookupTest, JsonTakesTheEntryApart) {
  const json answer = json::parse(place.kzdic({"lookup", "--json", "en.dic", "Table"}).out);
  const json& entry = answer["entries"][0];
  EXPECT_EQ(entry["spelling"], "Table");
  EXPECT_EQ(entry["step"], "in lower case");
  EXPECT_EQ(entry["part_of_speech"], "noun");
  EXPECT_EQ(entry["attribute"], "|M");
  EXPECT_EQ(entry["reference"], "list");
  EXPECT_EQ(entry["meanings"][0]["definition"], "мебель");
  EXPECT_EQ(entry["meanings"][0]["synonyms"], json({"стол", "столик"}));
  EXPECT_EQ(entry["meanings"][2]["part_of_speech"], "verb");
  EXPECT_EQ(answer["entries"].size(), 2u);
}

TEST_F(LookupTest, RefusesFilesThatAreNoDictionaries) {
  EXPECT_EQ(place.kzdic({"lookup", "none.dic", "tea"}).status, 3);
  EXPECT_EQ(place.kzdic({"lookup", "s.txt", "tea"}).status, 4);
  EXPECT_EQ(place.kzdic({"lookup", "en.dic"}).status, 2);
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "--json", "en.dic", "tea"}).status, 2);
  const std::string bytes = place.read("en.dic");
  place.write("cut.dic", bytes.substr(0, bytes.size() - 1));
  EXPECT_EQ(place.kzdic({"lookup", "cut.dic", "tea"}).status, 4);
}

TEST(SplitArguments, TakesLeadingDictionaryNamesForFiles) {
  kzdic::LookupOptions options;
  kzdic::split_arguments({"first", "b.DIC", "c.dig", "word", "d.dic"}, options);
  EXPECT_THAT(options.dictionaries, ElementsAre("first", "b.DIC", "c.dig"));
  EXPECT_THAT(options.words, ElementsAre("word", "d.dic"));
  kzdic::LookupOptions named;
  named.dictionaries = {"a.dic"};
  kzdic::split_arguments({"b.dic"}, named);
  EXPECT_THAT(named.words, ElementsAre("b.dic"));
}

}  // namespace

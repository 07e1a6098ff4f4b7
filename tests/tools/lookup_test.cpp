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
  // A byte-order mark is no part of the first word.
  const std::string input = "\xEF\xBB\xBFtea\n\nnothing\n\xFF\nTee\r\n*\n";
  const Outcome lines = place.kzdic({"lookup", "--json", "en.dic", "de.dic", "-"}, input);
  EXPECT_EQ(lines.status, 4);
  std::istringstream in(lines.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(in, line);) {
    json answer = json::parse(line);
    answers.push_back(answer.contains("error") ? answer["error"]
                      : answer["found"]        ? answer["entries"][0]["dictionary"]
                                               : json("-"));
  }
  EXPECT_THAT(answers, ElementsAre("en.dic", "-", "-", "byte 1 is not UTF-8", "de.dic", "-"));
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

TEST_F(LookupTest, TakesDictionariesAndWordsAsTheyAreGiven) {
  const std::vector<std::vector<std::string>> lines = {{"-d", "en.dic", "-d", "de.dic", "Tee"},
                                                       {"-d", "en.dic", "de.dic", "Tee"},
                                                       {"en.dic", "--", "-5", "Tee"},
                                                       {"--", "en.dic", "de.dic", "--raw"},
                                                       {"de.dic", "Tee", "--", "--", "-d", "++"}};
  std::vector<std::string> answers;
  for (std::vector<std::string> line : lines) {
    line.insert(line.begin(), {"lookup", "--raw"});
    const Outcome outcome = place.kzdic(line);
    answers.push_back(outcome.out + outcome.err);
  }
  EXPECT_THAT(answers,
              ElementsAre("tee*Nчай\\\\Tee\n", "de.dic: not found\nTee: not found\n",
                          "-5: not found\nTee: not found\n", "--raw: not found\n",
                          "tee*Nчай\\\\Tee\n--: not found\n-d: not found\n++: not found\n"));
}

TEST_F(LookupTest, ShowsReferencesAndParenthesesAsTheyStand) {
  place.write(
      "s.txt",
      "*: language ENRU\nbow*V1.кланять(ся), гнуть(ся)/2.(по)клониться (низко); разг.)вниз (о)\n"
      "nil*={см. zero}ноль\nnull*N1.ничто/2.=zero;={nought};ноль(и)Vобнулить\nzero*=nought\n");
  place.write("t.txt",
              "*: language RUEN\nдача*Ncottage(s)/=Дом;(un)do\nжилище*=дом 1,2\nключ*=key\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "a.dic"}).status, 0);
  ASSERT_EQ(place.kzdic({"build", "t.txt", "-o", "b.dic"}).status, 0);
  const auto meanings = [&](const char* dictionary, const char* word) {
    const std::string out = place.kzdic({"lookup", dictionary, word}).out;
    return out.substr(out.find("\n    ") + 1);
  };
  EXPECT_EQ(meanings("a.dic", "bow"),
            "    1. кланять(ся), гнуть(ся)\n    2. (по)клониться (низко); разг.) вниз (о)\n");
  EXPECT_EQ(meanings("a.dic", "nil"), "    {см. zero} ноль\n");
  EXPECT_EQ(meanings("a.dic", "null"),
            "    1. ничто\n    2. see zero; see nought; ноль(и)\n    verb: обнулить\n");
  EXPECT_EQ(meanings("a.dic", "zero"), "    see nought\n");
  EXPECT_EQ(meanings("b.dic", "дача"), "    cottage(s)\n    see Дом; (un)do\n");
  EXPECT_EQ(meanings("b.dic", "жилище"), "    see дом 1,2\n");
  EXPECT_EQ(meanings("b.dic", "ключ"), "    key\n");
}

TEST_F(LookupTest, RefusesADictionaryThatIsCutShort) {
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

// kzdic grammar and kzdic inflect: tag strings, names and endings in words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/support/source_tree.h"
#include "tests/tools/kzdic_run.h"

namespace {

using nlohmann::json;
using ::testing::HasSubstr;

class GrammarTest : public ::testing::Test {
 protected:
  std::string out(const std::string& arguments, const std::string& input = {}) const {
    return place.kzdic(arguments, input).out;
  }
  Workplace place;
};

TEST_F(GrammarTest, DecodesInWords) {
  EXPECT_EQ(out("grammar decode N '-SM1И@x#12a:3%NAе|F'"),
            "part-of-speech   N, noun (noun tags)\n"
            "gender           masculine\n"
            "number           plural, no-singular\n"
            "animacy          animate\n"
            "case             nominative\n"
            "paradigm         12\n"
            "paradigm-letter  a\n"
            "paradigm-base    D3\n"
            "flag             x (word 4 bit 0)\n"
            "semantics        N, A, F\n"
            "canonical        MP-S@x#12a:3%NAF  (without case=nominative)\n"
            "ignored          1е|\n");
  EXPECT_EQ(out("grammar decode V -ET"),
            "part-of-speech   V, verb (verb tags)\n"
            "aspect           imperfective\n"
            "transitivity     transitive\n"
            "canonical        T-E\n");
  EXPECT_EQ(out("grammar decode V -- -ET"), out("grammar decode V -ET"));
  EXPECT_THAT(out("grammar decode д 'T|-E'"), HasSubstr("not read         |-E"));
  for (const std::string& bad :
       {std::string("N"), std::string("N --tags"), "N " + std::string(1001, 'M')}) {
    EXPECT_EQ(place.kzdic("grammar decode " + bad).status, 2);
  }
}

TEST_F(GrammarTest, EncodeTakesWhatDecodePrints) {
  EXPECT_EQ(out("grammar encode N masculine animate case=nominative,genitive paradigm=12 "
                "paradigm-base=D1"),
            "M@ИР#12:1\n");
  const Outcome decoded =
      place.kzdic("grammar decode --json -", "V T1CВ:Д\nЖЖ M\nR -TSР\n\xFF M\n");
  EXPECT_EQ(decoded.status, 2);
  const Outcome encoded = place.kzdic("grammar encode -", decoded.out + "A singulr flag=?\n{}\n");
  EXPECT_EQ(encoded.status, 4);
  std::istringstream lines(encoded.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(lines, line);) answers.push_back(line);
  ASSERT_EQ(answers.size(), 12u);
  EXPECT_EQ(answers[0], "1TCВ:Д");
  EXPECT_THAT(answers[2], HasSubstr("not an object with code and fields"));
  EXPECT_EQ(answers[4], "S-TР");
  EXPECT_THAT(answers[8], HasSubstr("did you mean singular?"));
  const json object = json::parse(decoded.out.substr(0, decoded.out.find('\n')));
  EXPECT_EQ(object["fields"][2], json({{"name", "person"}, {"value", 1}}));
  EXPECT_EQ(object["words"][4], "0x00000400");
}

TEST_F(GrammarTest, LooksNamesUp) {
  EXPECT_EQ(out("grammar name class NMa 15"),
            "class 2 NMa\n"
            "part-of-speech   N, noun (noun tags)\n"
            "gender           masculine\n"
            "animacy          animate\n"
            "class 15 NS\n"
            "part-of-speech   N, noun (noun tags)\n"
            "number           no-plural\n");
  EXPECT_EQ(out("grammar name 2 110"), "change 110 D4bopr\n");
  EXPECT_EQ(json::parse(out("grammar name --json addition MR3S")),
            json::parse(R"({"kind":1,"index":17,"name":"MR3S","code":"R","fields":[
      {"name":"number","value":"singular"},{"name":"person","value":3}]})"));
  EXPECT_EQ(place.kzdic("grammar name 0 nma").status, 1);
  for (const char* index : {"-1", "66", "99999999999", "1-2"}) {
    const Outcome outcome = place.kzdic(std::string("grammar name 0 ") + index);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("are 0 to 65"));
  }
  EXPECT_EQ(place.kzdic("grammar name 3 NM").status, 2);
  EXPECT_EQ(out("grammar name 2 -", "D1\nd1\n"), "change 1 D1\n\nd1: not found\n\n");
}

TEST_F(GrammarTest, InflectShowsEndingsWithTheirClasses) {
  const std::string table = (kz::test::source_tree() / "data/ruflex.txt").string();
  EXPECT_EQ(out("inflect --build " + table + " ru.Dat Столами"),
            "Столами  ами NM 1 | NF 1 | N 1 | NP 1\n"
            "    noun, masculine, paradigm 1\n"
            "    noun, feminine, paradigm 1\n"
            "    noun, paradigm 1\n"
            "    noun, no-singular, paradigm 1\n");
  const json endings = json::parse(out("inflect --all --json ru.Dat хожу"))["endings"];
  ASSERT_EQ(endings.size(), 2u);
  EXPECT_EQ(endings[0]["rest"], "хо");
  EXPECT_EQ(endings[0]["attributes"], "жу v1S 4 D1_C | v1S 5 D1_C | v1S 6 D1_C | v1S 5 D1");
  EXPECT_EQ(endings[0]["records"][0]["grammar"], json({"verb", "singular", "person 1"}));
  EXPECT_EQ(endings[0]["records"][0]["stem_change"], "D1_C");
  EXPECT_EQ(endings[1]["ending"], "у");
  const Outcome lines = place.kzdic("inflect ru.Dat -", "идёшь\n\nстол\r\n\xFF\n");
  EXPECT_EQ(lines.status, 4);
  EXPECT_EQ(lines.out,
            "идёшь  идешь V 21\n    verb, paradigm 21\n\n"
            ": no known ending\n\nстол: no known ending\n\n\xFF: byte 1 is not UTF-8\n\n");
}

TEST_F(GrammarTest, InflectNamesParadigmsAndTheLinesOfBadTables) {
  place.write("t.txt", "ами NM 12a D1 | NMa\nём NM 65535я\n");
  EXPECT_EQ(out("inflect --build t.txt x.Dat столами огнём"),
            "столами  ами NM 12 D1 | NMa\n"
            "    noun, masculine, paradigm 12a, stem change D1\n"
            "    noun, masculine, animate\n"
            "огнём  ём NM 65535\n    noun, masculine, paradigm 65535я\n");
  EXPECT_EQ(place.kzdic("inflect --build t.txt x.dat").status, 2);
  EXPECT_EQ(place.kzdic("inflect x.Dat").status, 2);
  place.write("t.txt", "а NM\nя\n");
  const Outcome bad = place.kzdic("inflect --build t.txt y.Dat");
  EXPECT_EQ(bad.status, 4);
  EXPECT_THAT(bad.err, HasSubstr("t.txt:2: an ending without attributes"));
  for (const char* command : {"inflect y.Dat а", "lookup --inflected y.Dat none.dic а"}) {
    const Outcome missing = place.kzdic(command);
    EXPECT_EQ(missing.status, 3);
    EXPECT_THAT(missing.err, HasSubstr("kzdic inflect --build"));
  }
}

}  // namespace

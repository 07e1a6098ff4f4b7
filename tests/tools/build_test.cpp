// kzdic build, dump, info and import.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/tools/kzdic_run.h"

namespace {

using ::testing::HasSubstr;

class BuildTest : public ::testing::Test {
 protected:
  void build(const std::string& source, const std::string& options = {}) const {
    place.write("s.txt", source);
    const Outcome built = place.kzdic("build -q s.txt -o o.dic " + options);
    ASSERT_EQ(built.status, 0) << built.err;
  }
  // The entries of a dump with these options, without the directives.
  std::string entries(const std::string& options = {}) const {
    const Outcome dumped = place.kzdic("dump o.dic " + options);
    EXPECT_EQ(dumped.status, 0) << dumped.err;
    std::istringstream in(dumped.out);
    std::string text;
    for (std::string line; std::getline(in, line);) {
      if (!line.starts_with("*:")) text += line + "\n";
    }
    return text;
  }

  Workplace place;
};

TEST_F(BuildTest, OptionsWinOverDirectivesAndTheHeaderTellsThem) {
  build("*: language ENRU\n*: title Один\n*: label one\n* note\n\ncat*Nкот\r\n",
        "--title Два --password secret --timestamp 77");
  const std::string info = place.kzdic("info o.dic").out;
  for (const char* line :
       {"title           Два\n", "label           one\n", "password        set\n",
        "time stamp      77\n", "checksum        agrees\n", "language        ENRU\n",
        "type            C\n", "records         1\n", "index depth     2\n"}) {
    EXPECT_THAT(info, HasSubstr(line));
  }
  // Several sources may contradict what an option states, and one another.
  place.write("t.txt", "*: language FR\n*: title \xFF\n*: label 1234567890\n*: type Q\ndog*Nпёс\n");
  build("*: language ENRU\ncat*Nкот\n", "t.txt --language ENRU --title '' --label '' --type T");
  EXPECT_EQ(place.kzdic("dump o.dic").out, "*: language ENRU\n*: type T\ncat*Nкот\ndog*Nпёс\n");
}

TEST_F(BuildTest, NamesTheLinesThatItLeavesOut) {
  place.write("o.dic", "what was here before");
  place.write("s.txt", "Cat*Nкот\ncat*Nкот\nCat*Nкот\nno star\n");
  const std::string arguments = "build s.txt -o o.dic --language ENRU";
  const Outcome built = place.kzdic(arguments);
  EXPECT_EQ(built.status, 4);
  EXPECT_THAT(built.err, HasSubstr("s.txt:3: the same entry is in s.txt:1"));
  EXPECT_THAT(built.err, HasSubstr("s.txt:4: no '*'"));
  EXPECT_EQ(place.read("o.dic"), "what was here before");
  const Outcome skipped = place.kzdic(arguments + " --skip-bad");
  EXPECT_EQ(skipped.status, 0);
  EXPECT_THAT(skipped.err, HasSubstr("1 entries left out"));
  EXPECT_EQ(place.kzdic("lookup --raw o.dic cat").out, "cat*Nкот\\\\Cat\ncat*Nкот\n");
  place.write("s.txt", "cat*Nкот\nno star\ncat*N≤\n");
  EXPECT_EQ(place.kzdic(arguments).status, 4);
  place.write("s.txt", "cat*N≤\nno star\n");
  EXPECT_EQ(place.kzdic(arguments).status, 5);
}

TEST_F(BuildTest, DumpsRangesOfFirstLettersInDictionaryOrder) {
  build("*: language FRRU\n1er*Aа\nne*Dб\nœil*Nв\noui*Jг\nété*Nд\nêtre*Vе\nzéro*Iж\npère*Nз\n");
  EXPECT_EQ(entries("--to Ée"), "1er*Aа\nété*Nд\nêtre*Vе\n");
  EXPECT_EQ(entries("--from e --to e"), "été*Nд\nêtre*Vе\n");
  EXPECT_EQ(entries("--from o --to p"), "oui*Jг\nœil*Nв\npère*Nз\n");
  EXPECT_EQ(entries("--from q"), "zéro*Iж\n");
  EXPECT_EQ(place.kzdic("dump o.dic --from 1").status, 2);
  EXPECT_EQ(place.kzdic("dump o.dic --from ж").status, 5);
  build("*: language RUEN\nдом*Na\nёж*Nb\nест*Vc\nжук*Nd\n", "--depth 5");
  EXPECT_EQ(entries("--from е --to ё"), "ёж*Nb\nест*Vc\n");
  EXPECT_EQ(entries("--from Ё --to Ж"), "ёж*Nb\nест*Vc\nжук*Nd\n");
}

TEST_F(BuildTest, DumpsEntriesByPartCode) {
  build("*: language RUEN\nдом*Nhouse\nможно*Яone can\nо*Pabout\nидти*Vgo\n");
  EXPECT_EQ(entries("--code ЯP"), "можно*Яone can\nо*Pabout\n");
  EXPECT_EQ(entries("--not-code ЯP"), "дом*Nhouse\nидти*Vgo\n");
  EXPECT_EQ(place.kzdic("dump o.dic --code N --not-code V").status, 2);
}

TEST_F(BuildTest, DumpReportsWhatIsNoSourceText) {
  build("*: language ENRU\ncat*Nкот\ndog*Nпёс\n");
  std::string bytes = place.read("o.dic");
  bytes[bytes.find("cat*N") + 4] = '\x98';  // no character of Windows-1251
  place.write("o.dic", bytes);
  const Outcome dumped = place.kzdic("dump o.dic");
  EXPECT_EQ(dumped.status, 4);
  EXPECT_THAT(dumped.err, HasSubstr("1 entry cannot be written as source text"));
  EXPECT_THAT(dumped.out, HasSubstr("dog*Nпёс\n"));
}

TEST_F(BuildTest, ImportsWhatItCanBuild) {
  place.write("db.index", "cat\tA\tW\n!\tW\tO\n");
  place.write("db.dict", "cat /kæt/ <n>\nкот\n!\n   знак\n");
  const Outcome imported = place.kzdic("import --from dictd db.dict -o s.txt");
  EXPECT_EQ(imported.status, 0);
  EXPECT_EQ(imported.err,
            "db: 2 articles, 1 entries in ENRU\n"
            "  1 headwords left out: without a letter, or too long\n");
  EXPECT_EQ(place.kzdic("import -q --from dictd db -o -").out, place.read("s.txt"));
  build(place.read("s.txt"));
  EXPECT_EQ(place.kzdic("lookup --raw o.dic cat").out, "cat*Nкот\n");
}

}  // namespace

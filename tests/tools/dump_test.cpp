// kzdic dump: the inverse of build, ranges and filters, what is no source text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/tools/kzdic_run.h"

namespace {

using ::testing::HasSubstr;

// The lines of a source that are neither comments nor empty; sorted.
std::vector<std::string> sorted_lines(std::istream& in) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && (line[0] != '*' || line.starts_with("*:"))) lines.push_back(line);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

std::vector<std::string> sorted_lines(const std::string& text) {
  std::istringstream in(text);
  return sorted_lines(in);
}

class SampleDictionary : public ::testing::TestWithParam<std::string> {};

// Every form and depth: dumped, the dictionary is its source; built again, the same bytes.
TEST_P(SampleDictionary, IsItsSourceAgain) {
  const std::string source = KZ_DATA_PATH "/" + GetParam() + ".txt";
  std::ifstream in(source);
  const std::vector<std::string> written = sorted_lines(in);
  const bool russian = GetParam().starts_with("baseru");
  const Workplace place;
  for (const std::string form : {"--plain", "--packed"}) {
    for (const std::string share : {"--shared", "--no-shared"}) {
      for (const std::string depth : {"2", "3", russian ? "5" : ""}) {
        std::vector<std::string> options = {"build", "-q", "-o", "out.dic", form, share};
        if (!depth.empty()) options.insert(options.end(), {"--depth", depth});
        if (form == "--packed") options.insert(options.end(), {"--fold-yo", "--skip-bad"});
        std::vector<std::string> first = options;
        first.push_back(source);
        ASSERT_EQ(place.kzdic(first).status, 0);
        const Outcome dumped = place.kzdic({"dump", "out.dic"});
        ASSERT_EQ(dumped.status, 0) << dumped.err;
        if (form == "--plain") {
          EXPECT_EQ(sorted_lines(dumped.out), written) << form << share << depth;
        }
        const std::string bytes = place.read("out.dic");
        place.write("again.txt", dumped.out);
        options.emplace_back("again.txt");
        ASSERT_EQ(place.kzdic(options).status, 0);
        EXPECT_TRUE(place.read("out.dic") == bytes) << form << share << depth;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, SampleDictionary,
                         ::testing::Values("baseenru", "baseruen", "basederu", "baserude",
                                           "basefrru", "baserufr", "baseru", "baseen", "basede",
                                           "basefr"),
                         [](const auto& name) { return name.param; });

class DumpTest : public ::testing::Test {
 protected:
  void build(const std::string& source, const std::vector<std::string>& options = {}) const {
    place.write("s.txt", source);
    std::vector<std::string> arguments = {"build", "-q", "s.txt", "-o", "o.dic"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Outcome built = place.kzdic(arguments);
    ASSERT_EQ(built.status, 0) << built.err;
  }

  // The entries of a dump with these options, without the directives.
  std::string entries(std::vector<std::string> options = {}) const {
    options.insert(options.begin(), {"dump", "o.dic"});
    const Outcome dumped = place.kzdic(options);
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

TEST_F(DumpTest, GivesHeadwordsTheirSpellingBackWhereThatReadsTheSame) {
  const std::string kept =
      "*: language RUEN\n*: type C\n*: title Пробы\n*: label P\n"
      "еж*Nhedgehog\\\\Ёж\nЕлка*Nfir\\list\nМосква*=Moscow\nон*Rhe\\\\она\n";
  build(kept);
  EXPECT_EQ(place.kzdic({"dump", "o.dic"}).out, kept);
  build("*: language ENRU\n'Tis*Vа\na!b*Nб\nab!*Nв\nav*Nг\\\\_ав\n");
  EXPECT_EQ(entries(), "a!b*Nб\nab!*Nв\nav*Nг\\\\_ав\n'Tis*Vа\n");
  build("*: language ENRU\nab!*Nв\n", {"--depth", "3"});
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "o.dic", "ab!"}).out, "ab*Nв\\\\ab!\n");
  EXPECT_EQ(entries(), "ab!*Nв\n");
  build("*: language RUEN\nЁж*Nhedgehog\nёлка*Nfir\n", {"--fold-yo"});
  EXPECT_EQ(entries(), "еж*Nhedgehog\\\\Ёж\nелка*Nfir\\\\ёлка\n");
}

TEST_F(DumpTest, WritesWordListsAsWords) {
  for (const char* form : {"--plain", "--packed"}) {
    build("*: language EN\n*: type S\ncat\ndog\n", {form});
    EXPECT_EQ(place.kzdic({"dump", "o.dic"}).out, "*: language EN\n*: type S\ncat\ndog\n");
  }
}

TEST_F(DumpTest, TakesRangesOfFirstLettersInDictionaryOrder) {
  build("*: language FRRU\n1er*Aа\nne*Dб\nœil*Nв\noui*Jг\nété*Nд\nêtre*Vе\nzéro*Iж\npère*Nз\n");
  EXPECT_EQ(entries({"--to", "Ée"}), "1er*Aа\nété*Nд\nêtre*Vе\n");
  EXPECT_EQ(entries({"--from", "e", "--to", "e"}), "été*Nд\nêtre*Vе\n");
  EXPECT_EQ(entries({"--from", "o", "--to", "p"}), "oui*Jг\nœil*Nв\npère*Nз\n");
  EXPECT_EQ(entries({"--from", "q"}), "zéro*Iж\n");
  EXPECT_EQ(place.kzdic({"dump", "o.dic", "--from", "1"}).status, 2);
  EXPECT_EQ(place.kzdic({"dump", "o.dic", "--from", "ж"}).status, 5);
  build("*: language RUEN\nдом*Na\nёж*Nb\nест*Vc\nжук*Nd\n", {"--depth", "5"});
  EXPECT_EQ(entries({"--from", "е", "--to", "ё"}), entries({"--from", "Ё", "--to", "Е"}));
  EXPECT_EQ(sorted_lines(entries({"--from", "ё", "--to", "ж"})),
            sorted_lines("ёж*Nb\nест*Vc\nжук*Nd\n"));
}

TEST_F(DumpTest, KeepsOrDropsPartCodes) {
  build("*: language RUEN\nдом*Nhouse\nможно*Яone can\nо*Pabout\nидти*Vgo\n");
  EXPECT_EQ(entries({"--code", "ЯP"}), "можно*Яone can\nо*Pabout\n");
  EXPECT_EQ(entries({"--not-code", "ЯP"}), "дом*Nhouse\nидти*Vgo\n");
  EXPECT_EQ(place.kzdic({"dump", "o.dic", "--code", "N", "--not-code", "V"}).status, 2);
}

TEST_F(DumpTest, ReportsWhatIsNoSourceText) {
  build("*: language ENRU\ncat*Nкот\ndog*Nпёс\n");
  std::string bytes = place.read("o.dic");
  bytes[bytes.find("cat*N") + 4] = '\x98';  // no character of Windows-1251
  place.write("o.dic", bytes);
  const Outcome dumped = place.kzdic({"dump", "o.dic"});
  EXPECT_EQ(dumped.status, 4);
  EXPECT_THAT(dumped.err, HasSubstr("1 entry cannot be written as source text"));
  EXPECT_THAT(dumped.out, HasSubstr("dog*Nпёс\n"));
  EXPECT_EQ(place.kzdic({"dump", "s.txt"}).status, 4);
  EXPECT_EQ(place.kzdic({"dump", "none.dic"}).status, 3);
}

}  // namespace

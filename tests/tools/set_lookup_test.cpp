// kzdic lookup --set: the dictionaries of a direction, searched in order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/tools/kzdic_run.h"

namespace {

using nlohmann::json;
using ::testing::HasSubstr;

class SetLookupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    build("baseenru.dic", "ENRU", "cat*Nкот\ntable*Nстол\n");
    build("baseru.dig", "RU", "стол*Nмебель\n");
    build("baseruen.dic", "RUEN", "стол*Ntable\n");
    build("my.dic", "ENRU", "cat*Nкошка\n");
    build("basederu.dic", "DERU", "Äöü*Nзвук\nDorf*Nдеревня\n");
  }

  void build(const std::string& name, const std::string& language, const std::string& source) {
    place.write("s.txt", source);
    ASSERT_EQ(place.kzdic({"build", "-q", "s.txt", "-o", name, "--language", language}).status, 0);
  }

  Outcome look(std::vector<std::string> options) const {
    options.insert(options.begin(), {"lookup", "--set", "."});
    return place.kzdic(options);
  }

  Workplace place;
};

TEST_F(SetLookupTest, SearchesTheBaseDictionariesOfTheDirection) {
  const Outcome found = look({"--direction", "enru", "--json", "Table", "стол", "dog"});
  EXPECT_EQ(found.status, 1);
  std::istringstream in(found.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(in, line);) {
    const json answer = json::parse(line);
    for (const json& entry : answer["entries"]) answers.push_back(entry["dictionary"]);
  }
  EXPECT_THAT(answers, ::testing::ElementsAre("./baseenru.dic", "./baseru.dig"));
}

TEST_F(SetLookupTest, FollowsAParameterStringAndNamesWhatAnswered) {
  const std::string config = "-CENRU my.dic:2;none.dic:0;baseenru.dic:0\n-CRUEN baseruen.dic:0";
  const Outcome all = look({"--config", config, "cat"});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.out,
            "cat  (./my.dic, as typed)\n  cat, noun\n    кошка\n"
            "cat  (./baseenru.dic, as typed)\n  cat, noun\n    кот\n");
  EXPECT_EQ(all.err, "kzdic: ./none.dic: cannot be loaded, left out\n");
  EXPECT_EQ(look({"--direction", "FRRU", "--config", config, "cat"}).status, 3);
  EXPECT_EQ(look({"--config", config, "--raw", "--first", "cat", "table"}).out,
            "cat*Nкошка\ntable*Nстол\n");
  EXPECT_EQ(look({"--config", config, "--direction", "RUEN", "--raw", "стол"}).out,
            "стол*Ntable\n");
  EXPECT_EQ(look({"--config", "my.dic:0", "--direction", "ENRU", "--raw", "cat"}).out,
            "cat*Nкошка\n");
}

TEST_F(SetLookupTest, TellsWhatIsFoundElsewhereThanInItsDirectory) {
  const auto look_in = [this](const std::string& directory) {
    return place.kzdic({"lookup", "--set", directory, "--direction", "ENRU", "--raw", "cat"});
  };
  EXPECT_EQ(look_in(place.path("")).err, "");
  std::filesystem::create_directory(place.path("sub"));
  const Outcome outside = look_in("sub");
  EXPECT_EQ(outside.out, "cat*Nкот\n");
  EXPECT_THAT(outside.err, HasSubstr("sub/baseenru.dic: cannot be loaded, baseenru.dic is taken"));
}

// The bytes of "äöü" are those of a Russian word in another code page.
TEST_F(SetLookupTest, AsksEachDictionaryInItsCodePage) {
  build("baseru.dig", "RU", "дць*Nбайты\nдеревня*Nсело\n");
  EXPECT_EQ(look({"--direction", "DERU", "--raw", "ÄÖÜ", "деревня"}).out,
            "äöü*Nзвук\\\\Äöü\nдеревня*Nсело\n");
}

}  // namespace

// kzdic lookup: dictionaries given by name or as a set, and the forms of its answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/tools/kzdic_run.h"

namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class LookupTest : public ::testing::Test {
 protected:
  LookupTest() {
    build("en.dic", "ENRU",
          "Table*N[|M]1.{мебель}стол;столик/2. мат.:таблица[F]/Vсоставлять\\list\n"
          "table*Vотложить\ntable-talk*Nбеседа\ntea*Nчай\nten*Iдесять\nzero*={см. nought}ноль\n");
    build("de.DIG", "DERU --packed", "Übung*Nупражнение\nTee*Nчай\n");
  }
  void build(const std::string& name, const std::string& options, const std::string& source) {
    place.write("s.txt", source);
    ASSERT_EQ(place.kzdic("build -q s.txt -o " + name + " --language " + options).status, 0);
  }
  std::string look(const std::string& arguments) const {
    return place.kzdic("lookup " + arguments).out;
  }

  Workplace place;
};

TEST_F(LookupTest, ShowsEntriesReadably) {
  EXPECT_EQ(look("en.dic TABLE"),
            "TABLE  (en.dic, in lower case)\n"
            "  Table, noun [|M]\n"
            "    1. {мебель} стол; столик\n"
            "    2. мат. таблица\n"
            "    verb: составлять\n"
            "    (list)\n"
            "  table, verb\n"
            "    отложить\n");
}

TEST_F(LookupTest, TakesDictionariesAndWordsAsTheyAreGiven) {
  const std::pair<const char*, const char*> cases[] = {
      {"en.dic de.DIG übung tea", "übung*Nупражнение\\\\Übung\ntea*Nчай\n"},
      {"en.dic de.DIG ten чай", "ten*Iдесять\nчай: not found\n"},
      {"-d en.dic -d de.DIG Tee", "tee*Nчай\\\\Tee\n"},
      {"-d en.dic de.DIG Tee", "de.DIG: not found\nTee: not found\n"},
      {"en.dic -- -5 Tee", "-5: not found\nTee: not found\n"},
      {"-- en.dic de.DIG --raw", "--raw: not found\n"},
      {"de.DIG Tee -- -- -d d.dic",
       "tee*Nчай\\\\Tee\n--: not found\n-d: not found\nd.dic: not found\n"},
      {"--prefix en.dic te", "tea*Nчай\nten*Iдесять\n"},
      {"--next 1 en.dic tab", "tab: not found\n"},
      {"--next 2 en.dic table",
       "table*N[|M]1.{мебель}стол;столик/2. мат.:таблица[F]/Vсоставлять\\list\\\\Table\n"
       "table*Vотложить\ntable-talk*Nбеседа\ntea*Nчай\n"}};
  for (const auto& [arguments, answers] : cases) {
    const Outcome outcome = place.kzdic("lookup --raw " + std::string(arguments));
    EXPECT_EQ(outcome.out + outcome.err, answers);
    EXPECT_EQ(outcome.status, outcome.err.empty() ? 0 : 1);
  }
}

TEST_F(LookupTest, AnswersEveryInputLineOnce) {
  // A byte-order mark is no part of the first word.
  const std::string input = "\xEF\xBB\xBFtea\n\nnothing\n\xFF\nTee\r\n*\n";
  const Outcome lines = place.kzdic("lookup --json en.dic de.DIG -", input);
  EXPECT_EQ(lines.status, 4);
  std::istringstream in(lines.out);
  std::vector<std::string> answers;
  for (std::string line; std::getline(in, line);) {
    json answer = json::parse(line);
    answers.push_back(answer.contains("error") ? answer["error"]
                      : answer["found"]        ? answer["entries"][0]["dictionary"]
                                               : json("-"));
  }
  EXPECT_THAT(answers, ElementsAre("en.dic", "-", "-", "byte 1 is not UTF-8", "de.DIG", "-"));
  EXPECT_EQ(place.kzdic("lookup --raw en.dic -", "tea\nnothing\nten\n").out,
            "tea*Nчай\n\n\nten*Iдесять\n\n");
}

TEST_F(LookupTest, JsonTakesTheEntryApart) {
  const json answer = json::parse(look("--json en.dic Table"));
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

TEST_F(LookupTest, ShowsReferencesAndParenthesesAsTheyStand) {
  build("a.dic", "ENRU",
        "bow*V1.кланять(ся), гнуть(ся)/2.(по)клониться (низко); разг.)вниз (о)\n"
        "nil*={см. zero}ноль\nnull*N1.ничто/2.=zero;={nought};ноль(и)Vобнулить\nzero*=nought\n");
  build("b.dic", "RUEN", "дача*Ncottage(s)/=Дом;(un)do\nжилище*=дом 1,2\nключ*=key\n");
  const std::pair<const char*, const char*> cases[] = {
      {"a.dic bow",
       "    1. кланять(ся), гнуть(ся)\n    2. (по)клониться (низко); разг.) вниз (о)\n"},
      {"a.dic nil", "    {см. zero} ноль\n"},
      {"a.dic null", "    1. ничто\n    2. see zero; see nought; ноль(и)\n    verb: обнулить\n"},
      {"a.dic zero", "    see nought\n"},
      {"b.dic дача", "    cottage(s)\n    see Дом; (un)do\n"},
      {"b.dic жилище", "    see дом 1,2\n"},
      {"b.dic ключ", "    key\n"}};
  for (const auto& [arguments, meanings] : cases) {
    const std::string out = look(arguments);
    EXPECT_EQ(out.substr(out.find("\n    ") + 1), meanings) << arguments;
  }
}

TEST_F(LookupTest, GrammarTellsWhatBlocksSayOfEachWord) {
  build("g.dic", "ENRU",
        "bed*N[|F]1.кровать/2. мор.:{дно}русло[N];яма/Vспать[-E]\n"
        "water*N[-P|F]1.вода/2.[P]{курорт}воды\n"
        "bank*N[%A|M]1.банк/2.[F%N|M]берег\n"
        "x-ray*N[M)|F]луч\n");
  // Semantics go on after a bar, and nothing after a parenthesis is read.
  EXPECT_EQ(look("--grammar g.dic bed water bank x-ray"),
            "bed  (g.dic, as typed)\n"
            "  bed, noun [|F]\n"
            "    Russian: feminine\n"
            "    1. кровать\n"
            "    2. мор. {дно} русло; яма\n"
            "       русло: neuter\n"
            "    verb: спать\n"
            "       спать: imperfective\n"
            "water  (g.dic, as typed)\n"
            "  water, noun [-P|F]\n"
            "    English: singular, no-plural; Russian: feminine\n"
            "    1. вода\n"
            "    2. {курорт} воды\n"
            "       Russian: plural\n"
            "bank  (g.dic, as typed)\n"
            "  bank, noun [%A|M]\n"
            "    English: semantics A, M\n"
            "    1. банк\n"
            "    2. берег\n"
            "       Russian: feminine, semantics N, M\n"
            "x-ray  (g.dic, as typed)\n"
            "  x-ray, noun [M)|F]\n"
            "    English: masculine\n"
            "    луч\n");
  const json entry = json::parse(look("--grammar --json g.dic bed"))["entries"][0];
  EXPECT_EQ(entry["grammar"]["target"]["canonical"], "F");
  EXPECT_FALSE(entry["grammar"].contains("source"));
  const json& synonym = entry["meanings"][2]["grammar"]["synonyms"][0];
  EXPECT_EQ(synonym["code"], "V");
  EXPECT_EQ(synonym["synonym"], "спать");
}

TEST_F(LookupTest, InflectedTakesApartWhatIsNotFound) {
  place.write("t.txt", "ами NF 1\n");
  ASSERT_EQ(place.kzdic("inflect --build t.txt ru.Dat").status, 0);
  build("ru.dic", "RUEN", "мама*Nmum\nмамами*Nx\nпапа*Ndad\n");
  EXPECT_EQ(look("--inflected ru.Dat ru.dic мамами папами"),
            "мамами  (ru.dic, as typed)\n  мамами, noun\n    x\n"
            "папами  (ru.dic, by its ending -ами (NF 1))\n  папа, noun\n    dad\n");
}

class SetLookupTest : public LookupTest {
 protected:
  SetLookupTest() {
    build("baseenru.dic", "ENRU", "cat*Nкот\ntable*Nстол\n");
    build("baseru.dig", "RU", "стол*Nмебель\n");
    build("baseruen.dic", "RUEN", "стол*Ntable\n");
    build("my.dic", "ENRU", "cat*Nкошка\n");
    build("basederu.dic", "DERU", "Äöü*Nзвук\nDorf*Nдеревня\n");
  }
};

TEST_F(SetLookupTest, SearchesTheBaseDictionariesOfTheDirection) {
  const Outcome found = place.kzdic("lookup --set . --direction enru Table стол dog");
  EXPECT_EQ(found.status, 1);
  EXPECT_EQ(found.out,
            "Table  (./baseenru.dic, in lower case)\n  table, noun\n    стол\n"
            "стол  (./baseru.dig, as typed)\n  стол, noun\n    мебель\n");
}

TEST_F(SetLookupTest, FollowsAParameterStringAndNamesWhatAnswered) {
  const std::string config =
      "--set . --config '-CENRU my.dic:2;none.dic:0;baseenru.dic:0\n-CRUEN baseruen.dic:0' ";
  const Outcome all = place.kzdic("lookup " + config + "cat");
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.out,
            "cat  (./my.dic, as typed)\n  cat, noun\n    кошка\n"
            "cat  (./baseenru.dic, as typed)\n  cat, noun\n    кот\n");
  EXPECT_EQ(all.err, "kzdic: ./none.dic: cannot be loaded, left out\n");
  EXPECT_EQ(place.kzdic("lookup --direction FRRU " + config + "cat").status, 3);
  EXPECT_EQ(look(config + "--raw --first cat table"), "cat*Nкошка\ntable*Nстол\n");
  EXPECT_EQ(look(config + "--direction RUEN --raw стол"), "стол*Ntable\n");
  EXPECT_EQ(look("--set . --config my.dic:0 --direction ENRU --raw cat"), "cat*Nкошка\n");
}

TEST_F(SetLookupTest, TellsWhatIsFoundElsewhereThanInItsDirectory) {
  const std::string options = " --direction ENRU --raw cat";
  EXPECT_EQ(place.kzdic("lookup --set " + place.file("") + options).err, "");
  std::filesystem::create_directory(place.file("sub"));
  const Outcome outside = place.kzdic("lookup --set sub" + options);
  EXPECT_EQ(outside.out, "cat*Nкот\n");
  EXPECT_THAT(outside.err, HasSubstr("sub/baseenru.dic: cannot be loaded, baseenru.dic is taken"));
}

// The bytes of "äöü" are those of a Russian word in another code page.
TEST_F(SetLookupTest, AsksEachDictionaryInItsCodePage) {
  build("baseru.dig", "RU", "дць*Nбайты\nдеревня*Nсело\n");
  EXPECT_EQ(look("--set . --direction DERU --raw ÄÖÜ деревня"),
            "äöü*Nзвук\\\\Äöü\nдеревня*Nсело\n");
}

}  // namespace

// kzdic inflect and kzdic lookup --inflected: endings of words, and headwords of forms.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "lexicon/search/headword_forms.h"
#include "lexicon/search/inflect_table.h"
#include "lexicon/text/code_page.h"
#include "tests/tools/kzdic_run.h"
#include "tools/status.h"

namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct Form {
  std::string headword;
  std::string part;
  std::string form;
  bool known_miss;
};

std::vector<Form> listed_forms() {
  std::vector<Form> forms;
  std::ifstream in(KZ_FORMS_PATH);
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with('*')) continue;
    std::istringstream words(line);
    std::string headword;
    std::string part;
    words >> headword >> part;
    for (std::string form; words >> form;) {
      const bool miss = form.starts_with('(');
      forms.push_back({headword, part, miss ? form.substr(1, form.size() - 2) : form, miss});
    }
  }
  return forms;
}

class InflectedTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    place = new Workplace;
    const std::string data = KZ_DATA_PATH;
    ASSERT_EQ(place->kzdic({"build", data + "/baseruen.txt", "-o", "ruen.dic"}).status, 0);
    ASSERT_EQ(place->kzdic({"inflect", "--build", data + "/ruflex.txt", "ru.Dat"}).status, 0);
  }
  static void TearDownTestSuite() {
    delete place;
    place = nullptr;
  }

  // "headword: step" of the entries that answer a word.
  static std::vector<std::string> answers(const json& answer) {
    std::vector<std::string> found;
    for (const json& entry : answer["entries"]) {
      found.push_back(entry["spelling"].get<std::string>() + ": " +
                      entry["step"].get<std::string>());
    }
    return found;
  }
  static std::vector<std::string> look_up(const std::string& word) {
    return answers(json::parse(
        place->kzdic({"lookup", "--json", "--inflected", "ru.Dat", "ruen.dic", word}).out));
  }

  static Workplace* place;
};

Workplace* InflectedTest::place = nullptr;

TEST_F(InflectedTest, FormsOfCommonWordsLeadToTheirHeadwords) {
  const std::vector<Form> forms = listed_forms();
  std::string input;
  std::set<std::string> words;
  for (const Form& form : forms) {
    input += form.form + '\n';
    words.insert(form.headword);
  }
  EXPECT_EQ(words.size(), 50u);
  std::istringstream lines(
      place->kzdic({"lookup", "--json", "--inflected", "ru.Dat", "ruen.dic", "-"}, input).out);
  std::size_t found = 0;
  for (const Form& form : forms) {
    std::string line;
    ASSERT_TRUE(std::getline(lines, line));
    const json entries = json::parse(line)["entries"];
    const bool hit = std::any_of(entries.begin(), entries.end(), [&](const json& entry) {
      return entry["spelling"] == form.headword && entry["part_code"] == form.part;
    });
    found += hit ? 1 : 0;
    EXPECT_EQ(hit, !form.known_miss) << form.form << " of " << form.headword;
    if (hit) {
      EXPECT_EQ(entries[0]["spelling"], form.headword) << form.form;
    }
  }
  const double share = 100.0 * static_cast<double>(found) / static_cast<double>(forms.size());
  std::cout << found << " of " << forms.size() << " forms lead to their headword: " << share
            << " %\n";
  EXPECT_GE(share, 97);
}

TEST_F(InflectedTest, TheAnswerTellsTheEnding) {
  EXPECT_THAT(look_up("книгами"), ElementsAre("книга: by its ending -ами (NF 1)"));
  EXPECT_THAT(look_up("Куплю"), ElementsAre("купить: by its ending -лю (v1S 4)"));
  EXPECT_THAT(look_up("окон"), ElementsAre("окно: as a form without ending"));
  EXPECT_THAT(look_up("пришел"), ElementsAre("прийти: by its ending -шел (v_past_M 21)"));
  // All words that have the form.
  EXPECT_THAT(look_up("часов"), ElementsAre("час: by its ending -ов (NM 1)",  //
                                            "часы: by its ending -ов (NP 1)"));
  EXPECT_THAT(look_up("рабочих"), ElementsAre("рабочий: by its ending -их (AqyY 2)",
                                              "рабочий: by its ending -их (AqyY 2)"));
  // Only the noun that is declined so: ворота, not a feminine one; пол and поле are two words.
  EXPECT_THAT(look_up("воротами"), ElementsAre("ворота: by its ending -ами (NP 1)"));
  EXPECT_THAT(look_up("полями"), ElementsAre());
  // A word that is found as it stands is not taken apart.
  EXPECT_THAT(look_up("СТОЛ"), ElementsAre("стол: in lower case"));
  EXPECT_THAT(look_up("хорошо"), ElementsAre("хорошо: as typed"));
  for (const char* word : {"", "ъ", "ами", "table", "стол ами", "*", "日本"}) {
    EXPECT_THAT(look_up(word), ElementsAre()) << word;
  }
}

TEST_F(InflectedTest, CandidatesAreFewAndDifferent) {
  const auto table = kzdic::load_table(place->path("ru.Dat"));
  std::size_t most = 0;
  for (const Form& form : listed_forms()) {
    const std::string word = kzdic::encode(kzdic::from_utf8(form.form), kzdic::CodePage::kRussian);
    std::set<std::pair<std::string, kzdic::WordGroup>> seen;
    const auto candidates = kzdic::headword_forms(word, *table);
    for (const kzdic::HeadwordCandidate& candidate : candidates) {
      EXPECT_NE(candidate.headword, word);
      EXPECT_TRUE(seen.emplace(candidate.headword, candidate.group).second) << form.form;
    }
    most = std::max(most, candidates.size());
  }
  std::cout << most << " candidates at most\n";
  EXPECT_LE(most, 50u);
}

// Rules that no word of the sample dictionary needs: the headword must be among the candidates, and
// must not be there for a form in brackets.
TEST_F(InflectedTest, CandidatesOfOtherTypesOfWords) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"семья", "семей семьям"},
      {"статья", "статей"},
      {"жизнь", "жизней"},
      {"церковь", "церквей"},
      {"воробей", "воробьям воробьями воробью"},
      {"третий", "третьего третьи третьих"},
      {"молодой", "моложе"},
      {"лёгкий", "легче"},
      {"тихий", "тише"},
      {"редкий", "реже"},
      {"воевать", "воюя воюющих"},
      {"вернуть", "верни верну"},
      {"вернуться", "вернись вернитесь"},
      {"исчезнуть", "исчезла исчезли"},
      {"строить", "строй стройте строя"},
      {"стоять", "стой стойте стоя"},
      {"прятать", "прячь пряча"},
      {"искать", "ища"},
      {"собрать", "соберу соберите"},
      {"разобрать", "разберут"},
      {"назвать", "назову назовём"},
      {"нести", "нёс несла неся несущий несущего нёсший несённый несена"},
      {"вести", "вёл вела веду ведущими ведший (везу) (вёз) (везла)"},
      {"везти", "везу вёз везла везущий везён (вёл) (вела)"},
      {"расти", "расту растут"},
      {"грести", "гребу гребла"},
      {"упасть", "упав упавший упал"},
      {"печь", "печём пекущий печённый"},
      {"мочь", "можем могущий"},
      {"тереть", "тёртый"},
      {"бороться", "борюсь боролась"},
      {"колоть", "коли колотый"},
      {"пить", "пьющий пьющими"},
      {"петь", "пою поёт пой"},
      {"мыть", "моющего моя"},
      {"дуть", "дует дул дующий"},
      {"дыть", "(дует)"},
      {"вставать", "встаю вставая встающий"},
      {"понять", "понятый понят пойми"},
      {"принять", "прими примут принятого"},
      {"жать", "жми"},
      {"дать", "(жду)"},
      {"стать", "стань"},
      {"жить", "живя живущая (жены)"},
      {"жена", "жены женой"},
      {"съесть", "съем съешь"},
      {"прийти", "приди придите"},
      {"найти", "найдя найденный найдены"},
      {"идти", "идущими идущий"},
      {"смеяться", "смейся смеясь"},
      {"заниматься", "занимающихся занимавшегося"},
  };
  const auto table = kzdic::load_table(place->path("ru.Dat"));
  const auto encoded = [](const std::string& text) {
    return kzdic::encode(kzdic::from_utf8(text), kzdic::CodePage::kRussian);
  };
  for (const auto& [headword, list] : cases) {
    std::istringstream forms(list);
    for (std::string form; forms >> form;) {
      const bool miss = form.starts_with('(');
      if (miss) form = form.substr(1, form.size() - 2);
      const auto candidates = kzdic::headword_forms(encoded(form), *table);
      EXPECT_NE(
          std::any_of(candidates.begin(), candidates.end(),
                      [&, bytes = encoded(headword)](const kzdic::HeadwordCandidate& candidate) {
                        return candidate.headword == bytes;
                      }),
          miss)
          << form << " of " << headword;
    }
  }
}

TEST_F(InflectedTest, InflectShowsEndingsWithTheirClasses) {
  EXPECT_EQ(place->kzdic({"inflect", "ru.Dat", "Столами"}).out,
            "Столами  ами NM 1 | NF 1 | N 1 | NP 1\n"
            "    noun, masculine, paradigm 1\n"
            "    noun, feminine, paradigm 1\n"
            "    noun, paradigm 1\n"
            "    noun, no-singular, paradigm 1\n");
  const json answer =
      json::parse(place->kzdic({"inflect", "--all", "--json", "ru.Dat", "хожу"}).out);
  ASSERT_EQ(answer["endings"].size(), 2u);
  EXPECT_EQ(answer["endings"][0]["rest"], "хо");
  EXPECT_EQ(answer["endings"][0]["attributes"],
            "жу v1S 4 D1_C | v1S 5 D1_C | v1S 6 D1_C | v1S 5 D1");
  EXPECT_EQ(answer["endings"][0]["records"][0]["grammar"], json({"verb", "singular", "person 1"}));
  EXPECT_EQ(answer["endings"][0]["records"][0]["stem_change"], "D1_C");
  EXPECT_EQ(answer["endings"][1]["ending"], "у");
  const Outcome lines = place->kzdic({"inflect", "ru.Dat", "-"}, "идёшь\n\nстол\r\n\xFF\n");
  EXPECT_EQ(lines.status, 4);
  EXPECT_EQ(lines.out,
            "идёшь  идешь V 21\n    verb, paradigm 21\n\n"
            ": no known ending\n\nстол: no known ending\n\n\xFF: byte 1 is not UTF-8\n\n");
}

TEST(InflectTable, RefusesWhatTheLibraryWouldPassOver) {
  struct Case {
    const char* text;
    const char* message;
    int status;
  };
  const std::string long_ending(80, 'a');
  const std::string too_long = long_ending + " NM\n";
  const std::vector<Case> cases = {
      {"а NM\nя\n", "t.txt:2: an ending without attributes", 4},
      {"а NM | NM | NM | NM | NM\n", "more than four records", 4},
      {"а NM 1 Nx\n", "'Nx' is no name of kind 2", 4},
      {"а NM |NF\n", "'|NF' is no attribute", 4},
      {"а NM VT D1 D2\n", "one name too many", 4},
      {"а NM |\n", "a record without attributes", 4},
      {"а NM | | NF\n", "a record without attributes", 4},
      {"а | NF\n", "a record without attributes", 4},
      {"а NM 65536\n", "'65536' is no paradigm", 4},
      {"а NM 12ab\n", "'12ab' is no paradigm", 4},
      {"* a\nа NM\nб NM\nа NF\n", "t.txt:4: the ending stands in line 2 too", 4},
      {" а NM\n", "begins with a letter", 4},
      {"日 NM\n", "is not in Windows-1251", 5},
      {"\xFF NM\n", "not UTF-8", 4},
      {too_long.c_str(), "too long an ending", 4},
  };
  Workplace place;
  for (const Case& bad : cases) {
    place.write("t.txt", bad.text);
    const Outcome outcome = place.kzdic({"inflect", "--build", "t.txt", "x.Dat"});
    EXPECT_EQ(outcome.status, bad.status) << bad.text;
    EXPECT_THAT(outcome.err, HasSubstr(bad.message));
    EXPECT_FALSE(place.exists("x.Dat"));
  }
  place.write("t.txt", "*: a comment\nами NM 12a D1 | NMa\r\nём NM 65535я\n");
  EXPECT_EQ(place.kzdic({"inflect", "--build", "t.txt", "x.dat"}).status, 2);
  // No table is made but by --build: neither a missing nor a damaged one.
  const auto refuses_table = [&place](int status) {
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"inflect", "x.Dat", "столами"},
          {"lookup", "--inflected", "x.Dat", "none.dic", "столами"}}) {
      const Outcome outcome = place.kzdic(command);
      EXPECT_EQ(outcome.status, status);
      EXPECT_THAT(outcome.err, HasSubstr("kzdic inflect --build"));
    }
  };
  place.write("x.txt", "\xE0\xEC\xE8 NM\n");
  refuses_table(3);
  EXPECT_FALSE(place.exists("x.Dat"));
  EXPECT_EQ(place.kzdic({"inflect", "--build", "t.txt", "x.Dat"}).status, 0);
  EXPECT_EQ(place.kzdic({"inflect", "x.Dat"}).status, 2);
  EXPECT_EQ(place.kzdic({"inflect", "x.Dat", "столами", "огнём"}).out,
            "столами  ами NM 12 D1 | NMa\n"
            "    noun, masculine, paradigm 12a, stem change D1\n"
            "    noun, masculine, animate\n"
            "огнём  ём NM 65535\n    noun, masculine, paradigm 65535я\n");
  // The table is made anew, also where an older one is there.
  place.write("t.txt", "ами NF\n");
  EXPECT_EQ(place.kzdic({"inflect", "--build", "t.txt", "x.Dat", "столами"}).out,
            "столами  ами NF\n    noun, feminine\n");
  for (const std::string& damaged : {std::string("\x01"), std::string(2, '\0')}) {
    place.write("x.Dat", damaged);
    refuses_table(4);
    EXPECT_EQ(place.read("x.Dat"), damaged);
  }
}

}  // namespace

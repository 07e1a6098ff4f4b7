// Inflection tables: what makes one, endings of words, and headwords of forms.
#include "kzlexicon/inflector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "tests/lexicon/source.h"
#include "tests/support/source_tree.h"
#include "tests/support/temp_dir.h"

namespace kz::test {
namespace {

using namespace lexicon;
using ::testing::HasSubstr;
using Lines = std::vector<std::string>;

std::string sample(const std::string& name) { return (source_tree() / "data" / name).string(); }

class InflectorTest : public ::testing::Test {
 protected:
  static Inflector load(const std::string& path) {
    Inflector::compile_file(sample("ruflex.txt"), path);
    return Inflector(path);
  }
  static Dictionary dictionary() {
    const SourceText source = SourceReader().add_file(sample("baseruen.txt")).take();
    return Dictionary::from_memory(
        Builder(with_properties({}, source.properties)).add_source(source).to_memory());
  }

  std::vector<Answer> look_up(const std::string& word) {
    Answer answer = dictionary_.find(word);
    if (answer) return {answer};
    return dictionary_.find_inflected(word, inflector_);
  }

  TempDir dir_;
  Inflector inflector_ = load(dir_.file("ru.Dat"));
  Dictionary dictionary_ = dictionary();
};

TEST_F(InflectorTest, FormsLeadToTheirHeadwords) {
  std::ifstream lines(source_tree() / "tests/lexicon/russian_forms.txt");
  int words = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('*')) continue;
    ++words;
    std::istringstream in(line);
    std::string headword, part;
    in >> headword >> part;
    for (std::string form; in >> form;) {
      SCOPED_TRACE(form + " of " + headword);
      const bool miss = form.starts_with('(');
      if (miss) form = form.substr(1, form.size() - 2);
      std::set<std::pair<std::string, WordGroup>> candidates;
      bool hit = false;
      for (const HeadwordForm& candidate : inflector_.headwords(form)) {
        EXPECT_NE(candidate.headword, form);
        EXPECT_TRUE(candidates.emplace(candidate.headword, candidate.group).second);
        hit = hit || candidate.headword == headword;
      }
      EXPECT_LE(candidates.size(), 50u);
      if (part != "-") {
        Lines found;
        for (const Answer& answer : look_up(form)) {
          for (const Entry& entry : answer.entries) {
            found.push_back(entry.view().spelling + ' ' + entry.view().part_code);
          }
        }
        hit = std::find(found.begin(), found.end(), headword + ' ' + part) != found.end();
        // The most likely one comes first.
        EXPECT_TRUE(!hit || found[0].starts_with(headword + ' '));
      }
      EXPECT_EQ(hit, !miss);
    }
  }
  EXPECT_EQ(words, 101);
}

TEST_F(InflectorTest, AnswersTellTheEnding) {
  const std::pair<const char*, Lines> cases[] = {
      {"книгами", {"книга: by its ending -ами (NF 1)"}},
      {"Куплю", {"купить: by its ending -лю (v1S 4)"}},
      {"окон", {"окно: as a form without ending"}},
      {"пришел", {"прийти: by its ending -шел (v_past_M 21)"}},
      // All words that have the form.
      {"часов", {"час: by its ending -ов (NM 1)", "часы: by its ending -ов (NP 1)"}},
      {"рабочих", {"рабочий: by its ending -их (AqyY 2)", "рабочий: by its ending -их (AqyY 2)"}},
      // Only the noun that is declined so: ворота, not a feminine one; пол and поле are two words.
      {"воротами", {"ворота: by its ending -ами (NP 1)"}},
      {"полями", {}},
      {"СТОЛ", {"стол: in lower case"}}};
  for (const auto& [word, expected] : cases) {
    Lines answers;
    for (const Answer& answer : look_up(word)) {
      for (const Entry& entry : answer.entries) {
        answers.push_back(entry.view().spelling + ": " + describe_step(answer));
      }
    }
    EXPECT_EQ(answers, expected) << word;
  }
  for (const char* none : {"", "ъ", "ами", "table", "стол ами", "*", "日本"}) {
    EXPECT_TRUE(look_up(none).empty()) << none;
  }
}

TEST_F(InflectorTest, CompilesOnlyWhatReadersWouldUnderstand) {
  const struct {
    std::string text;
    const char* message;
    ErrorCode code = ErrorCode::kData;
  } cases[] = {{"а NM\nя\n", "t.txt:2: an ending without attributes"},
               {"а NM | NM | NM | NM | NM\n", "more than four records"},
               {"а NM 1 Nx\n", "'Nx' is no name of kind 2"},
               {"а NM |NF\n", "'|NF' is no attribute"},
               {"а NM VT D1 D2\n", "one name too many"},
               {"а NM |\n", "a record without attributes"},
               {"а NM | | NF\n", "a record without attributes"},
               {"а | NF\n", "a record without attributes"},
               {"а NM 65536\n", "'65536' is no paradigm"},
               {"а NM 12ab\n", "'12ab' is no paradigm"},
               {"* a\nа NM\nб NM\nа NF\n", "t.txt:4: the ending is in line 2 too"},
               {" а NM\n", "begins with a letter"},
               {"日 NM\n", "is not in Windows-1251", ErrorCode::kCodePage},
               {"\xFF NM\n", "not UTF-8"},
               {std::string(80, 'a') + " NM\n", "too long an ending"}};
  const std::string path = dir_.file("x.Dat");
  for (const auto& [text, message, code] : cases) {
    try {
      std::istringstream in(text);
      Inflector::compile(in, "t.txt", path);
      ADD_FAILURE() << text;
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), HasSubstr(message));
      EXPECT_EQ(error.code(), code) << text;
    }
    EXPECT_FALSE(std::filesystem::exists(path));
  }
  // A table is made anew, also where an older one is there.
  for (const char* text : {"ами NF\n", "*: a comment\nами NM 12a D1 | NMa\r\nём NM 65535я\n"}) {
    std::istringstream in(text);
    Inflector::compile(in, "t.txt", path);
  }
  const std::vector<Ending> endings = Inflector(path).endings("Столами");
  ASSERT_EQ(endings.size(), 1u);
  EXPECT_EQ(endings[0].rest + '-' + endings[0].attributes, "стол-ами NM 12 D1 | NMa");
  EXPECT_EQ(endings[0].readings[0].letter, "a");
  EXPECT_EQ(endings[0].readings[1].grammar, (Lines{"noun", "masculine", "animate"}));
}

TEST_F(InflectorTest, LoadingMakesNoTable) {
  const std::string path = dir_.file("x.Dat");
  dir_.write("x.txt", "\xE0\xEC\xE8 NM\n");
  const auto code = [&] {
    try {
      Inflector{path};
    } catch (const Error& error) {
      return error.code();
    }
    return ErrorCode{};
  };
  EXPECT_EQ(code(), ErrorCode::kFile);
  EXPECT_FALSE(std::filesystem::exists(path));
  for (const std::string& damaged : {std::string("\x01"), std::string(2, '\0')}) {
    dir_.write("x.Dat", damaged);
    EXPECT_EQ(code(), ErrorCode::kData);
    EXPECT_EQ(dir_.read("x.Dat"), damaged);
  }
}

}  // namespace
}  // namespace kz::test

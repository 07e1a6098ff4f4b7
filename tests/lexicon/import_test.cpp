// Databases of dictd, and the rules by which free text becomes source lines.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include <filesystem>
#include <random>
#include <sstream>

#include "kzlexicon/importers.h"
#include "lexicon/import/article.h"
#include "lexicon/import/dictd.h"
#include "tests/lexicon/source.h"
#include "tests/support/temp_dir.h"

namespace kz::test {
namespace {

using namespace lexicon;
using ::testing::ContainsRegex;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::Not;

std::string base64(std::size_t value) {
  const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  return (value < 64 ? "" : base64(value / 64)) + digits[value % 64];
}

class ImportTest : public ::testing::Test {
 protected:
  void add(const std::string& headword, const std::string& article) {
    index += headword + "\t" + base64(text.size()) + "\t" + base64(article.size()) + "\n";
    text += article;
  }
  void write(bool compressed = false) const {
    // With a byte-order mark, which belongs to no headword.
    dir.write("db.index", "\xEF\xBB\xBF" + index);
    if (!compressed) {
      dir.write("db.dict", text);
      return;
    }
    gzFile file = gzopen(dir.file("db.dict.dz").c_str(), "wb");
    gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
    gzclose(file);
  }
  std::string imported(const std::string& base = "db", const std::string& language = {}) {
    std::ostringstream out;
    summary = import_dictd(dir.file(base), language, out);
    return out.str();
  }
  // The message of an import that fails for its data.
  std::string refusal() {
    try {
      return imported("db", "ENRU");
    } catch (const Error& error) {
      EXPECT_EQ(error.code(), ErrorCode::kData);
      return error.what();
    }
  }

  TempDir dir;
  std::string index, text;
  ImportSummary summary;
};

TEST_F(ImportTest, WritesSourceLines) {
  add("00-database-short", "A sample\n");
  add("abandon",
      "abandon\n   [ɜ↗bændɜn]\n   1. _v.\n      1) покидать,\n      оставлять\n"
      "      2) отказываться; to abandon smth. (или it) бросать в 1945. году\n"
      "   2. _n. _книж. развязность\n   3. = leave I\n");
  add("haus", "Haus /haʊs/ <n, neut>\n1. дом, здание 2.\nein Gebäude\n 3.\nFamilie\n2. палата\n");
  add("!", "!\n   возглас\n");
  write();
  const std::string lines = imported();
  EXPECT_THAT(lines, HasSubstr("*: language ENRU\n"));
  EXPECT_THAT(lines, testing::EndsWith(
                         "\nabandon*V1.покидать, оставлять/2.отказываться;{to abandon smth.} (или "
                         "{it}) бросать в {1945.} году\n"
                         "abandon*Nкниж. развязность\n"
                         "abandon*W={leave I}\n"
                         "Haus*N[N|]1.{ein Gebaeude; Familie}дом;здание/2.палата\n"));
  EXPECT_THAT(lines, Not(HasSubstr("sample")));
  EXPECT_EQ(summary.articles, 3u);
  EXPECT_EQ(summary.entries, 4u);
  EXPECT_EQ(summary.unindexed, 1u);
  std::filesystem::remove(dir.file("db.dict"));
  write(/*compressed=*/true);
  for (const char* base : {"db", "db.index", "db.dict.dz"}) EXPECT_EQ(imported(base), lines);
}

TEST_F(ImportTest, WordsAreFoundAsWrittenThatTheIndexCannotHold) {
  const std::vector<std::string> words = {"'cause",  "-able", "_ав.",  "букв.",
                                          "attaché", "δ",     "naïf’s"};
  for (const std::string& word : words) add(word, word + "\n   _n. перевод слова\n");
  add("cause", "cause\n   _n. причина\n");
  write();
  for (const bool packed : {false, true}) {
    Dictionary dictionary = Dictionary::from_memory(built(imported(), {.packed = packed}));
    for (const std::string& word : words) {
      const Answer answer = dictionary.find(word);
      ASSERT_TRUE(answer) << word;
      EXPECT_EQ(answer.entries[0].view().meanings[0].synonyms[0], "перевод слова");
    }
    using Entries = std::vector<std::string>;
    EXPECT_EQ(found(dictionary, "'CAUSE"), Entries{"cause*Nперевод слова\\\\'cause"});
    EXPECT_EQ(found(dictionary, "cause"),
              (Entries{"cause*Nперевод слова\\\\'cause", "cause*Nпричина"}));
    EXPECT_EQ(found(dictionary, "_АВ."), Entries{"av.*Nперевод слова\\\\_ав."});
    EXPECT_EQ(found(dictionary, "-cause"), Entries{});
    EXPECT_EQ(dictionary.find_prefix("-a").entries.at(0).text(), "able*Nперевод слова\\\\-able");
  }
}

TEST_F(ImportTest, RefusesDamagedDatabases) {
  dir.write("db.dict", "text");
  const std::pair<const char*, const char*> damages[] = {
      {"word\tA\n", "db.index:1:"},
      {"one\tA\tB\nword\tA\t//\n", "db.index:2:"},
      {"word\tA\t!\n", "db.index:1: the offset or length is no number"},
      {"word\t\tA\n", "db.index:1: the offset or length is no number"},
      {"word\t////////////\tA\n", "db.index:1:"}};
  for (const auto& [lines, message] : damages) {
    dir.write("db.index", lines);
    EXPECT_THAT(refusal(), HasSubstr(message));
  }
  dir.write("db.index", "word\tA\tI\n");
  dir.write("db.dict", "ab\xFF\xFE not UTF-8");
  EXPECT_THAT(refusal(), HasSubstr("db.dict: offset 2"));

  std::filesystem::remove(dir.file("db.dict"));
  dir.write("db.dict.dz", "plain text");
  EXPECT_THAT(refusal(), HasSubstr("db.dict.dz: not a gzip file"));
  add("word", "text");
  text += std::string(200'000, '\0');
  write(/*compressed=*/true);
  // The text is read to its end, whatever the index needs.
  const std::size_t length = text.size();
  EXPECT_EQ(DictdDatabase(dir.file("db"), length).entries().at(0).text, "text");
  EXPECT_THROW(DictdDatabase(dir.file("db"), length - 1), Error);
  add("last", "text");
  write(/*compressed=*/true);
  const std::string bytes = dir.read("db.dict.dz");
  dir.write("db.dict.dz", bytes.substr(0, bytes.size() - 12));
  EXPECT_THAT(refusal(), HasSubstr("db.dict.dz"));
}

// Whatever text goes in, a reader has to see no code, no number and no reference in it.
TEST(SourceWriter, HidesEveryMarkFromTheReader) {
  const std::u32string characters = U"абвяё   ,,aWzN(){}[]/|#~&=\\*.:12—«»;'\"";
  std::mt19937 random(5);
  SourceWriter writer("ENRU");
  for (int round = 0; round < 5000; ++round) {
    std::u32string text;
    for (std::size_t i = random() % 40; i > 0; --i) {
      text += characters[random() % characters.size()];
    }
    const PlainEntry entry{.headword = "word",
                           .part_code = "N",
                           .meanings = {{.number = 1, .synonyms = {to_utf8(text)}},
                                        {.number = 2, .synonyms = {"слово", to_utf8(text)}}}};
    for (const std::string& line : writer.lines(entry)) {
      SCOPED_TRACE(line);
      const EntryView view = view_entry(line, "ENRU");
      EXPECT_EQ(view.headword + view.reference + view.attribute, "word");
      EXPECT_LE(view.meanings.size(), 2u);
      for (const MeaningView& meaning : view.meanings) {
        EXPECT_EQ(meaning.part_of_speech, "");
        EXPECT_TRUE(meaning.number == "1." || meaning.number == "2.") << meaning.number;
        EXPECT_LE(meaning.synonyms.size(), meaning.number == "1." ? 1u : 2u);
        EXPECT_THAT(meaning.synonyms, Each(Not(ContainsRegex("[{}]"))));
      }
      EXPECT_EQ(view.meanings.back().synonyms.front(), "слово");
    }
  }
}

TEST(SourceWriter, SpreadsLongEntriesOverRecordsAndKeepsEverySynonym) {
  PlainEntry entry{.headword = "long"};
  for (int i = 1; i <= 60; ++i) {
    std::string text;
    while (text.size() < 180) text += "а";
    entry.meanings.push_back({.number = i, .synonyms = {text, "б"}});
  }
  entry.meanings.push_back({.number = 61, .synonyms = std::vector<std::string>(300, "синоним")});
  std::size_t synonyms = 0;
  for (const std::string& line : SourceWriter("ENRU").lines(entry)) {
    EXPECT_LT(from_utf8(line).size(), 2049u);
    for (const auto& meaning : view_entry(line, "ENRU").meanings) {
      synonyms += meaning.synonyms.size();
    }
  }
  EXPECT_EQ(synonyms, 60u * 2 + 300);
}

// A line for each entry: part of speech, then the synonyms of its meanings.
TEST(Article, BecomesEntriesByItsLayout) {
  const std::pair<const char32_t*, std::vector<std::u32string>> articles[] = {
      {U"bow\n   _I  [baʊ]\n      1. _n. поклон\n      2. _v.\n         1) гнуть(ся)\n"
       U"         2) кланяться\n   _II [bɜʊ]\n      1. _n.\n         1) лук\n         2) дуга\n"
       U"      2. _v. владеть смычком\n   _III[baʊ] _n. (часто _pl.) нос (корабля)\n",
       {U"N поклон", U"V гнуть(ся)|кланяться", U"N лук|дуга", U"V владеть смычком",
        U"N (часто pl.) нос (корабля)"}},
      {U"row\n   _I  [rɜʊ] _n.\n      1) ряд\n      2) улица\n   _II [rɜʊ]\n         1. _n.\n"
       U"      1) гребля\n         2. _v.\n      1) грести\n   _III[raʊ] _разг.\n      1. _n. шум\n"
       U"      2. _v. шуметь\n   _IV= rowel\n",
       {U"N ряд|улица", U"N гребля", U"V грести", U"N разг. шум", U"V разг. шуметь", U"W = rowel"}},
      {U"lie\n   _I  [laɪ] _v. лгать _II [laɪ] _v. лежать; см. set II\n",
       {U"V лгать", U"V лежать|см. set II"}},
      {U"set\n   [sɛt]\n   1. _n.\n      1) набор\n      10)декорации; to make a set at\n"
       U"         а) нападать;\n         б) домогаться\n   2. _a. твёрдый\n   3. _p. и _p-p. от "
       U"set 2\n",
       {U"N набор|декорации|to make a set at|нападать|домогаться", U"A твёрдый",
        U"W p. и p-p. от set 2"}},
      {U"decapod\n   [↗dɛkɜpɘd] _зоол.\n   1. _n. десятиногий рак\n   2. _a. северо-\n   восток\n",
       {U"N зоол. десятиногий рак", U"A зоол. северо-восток"}},
      {U"d’abord /d‿a.bɔʁ/ <adv>\nсначала (тут, там), прежде\n", {U"D сначала (тут, там)|прежде"}},
  };
  for (const auto& [article, expected] : articles) {
    std::vector<std::u32string> entries;
    for (const EntryDraft& entry : read_article(article)) {
      std::u32string line(1, static_cast<char32_t>(entry.part));
      for (const auto& meaning : entry.meanings) {
        for (const auto& synonym : meaning.synonyms) line += (line[1] ? U"|" : U" ") + synonym;
      }
      entries.push_back(line);
    }
    EXPECT_EQ(entries, expected);
  }
}

}  // namespace
}  // namespace kz::test

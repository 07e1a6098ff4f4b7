// kzdic import, and the rules by which free text becomes entry bodies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include <random>

#include "lexicon/entry/record_view.h"
#include "lexicon/import/article.h"
#include "lexicon/import/dictd.h"
#include "lexicon/source/body_writer.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "tests/tools/kzdic_run.h"
#include "tools/status.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::string base64(std::size_t value) {
  const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string result(1, digits[value % 64]);
  while ((value /= 64) > 0) result.insert(0, 1, digits[value % 64]);
  return result;
}

struct Database {
  void add(const std::string& headword, const std::string& article) {
    index += headword + "\t" + base64(text.size()) + "\t" + base64(article.size()) + "\n";
    text += article;
  }
  void write(const Workplace& place, bool compressed) const {
    // With a byte-order mark, which belongs to no headword.
    place.write("db.index", "\xEF\xBB\xBF" + index);
    if (!compressed) return place.write("db.dict", text);
    gzFile file = gzopen(place.path("db.dict.dz").c_str(), "wb");
    gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
    gzclose(file);
  }
  std::string index;
  std::string text;
};

Database sample() {
  Database database;
  database.add("00-database-short", "A sample\n");
  database.add("abandon",
               "abandon\n   [ɜ↗bændɜn]\n   1. _v.\n      1) покидать,\n      оставлять\n"
               "      2) отказываться; to abandon smth. (или it) бросать в 1945. году\n"
               "   2. _n. _книж. развязность\n   3. = leave I\n");
  database.add("haus",
               "Haus /haʊs/ <n, neut>\n1. дом, здание 2.\nein Gebäude\n 3.\nFamilie\n"
               "2. палата\n");
  database.add("!", "!\n   возглас\n");
  return database;
}

TEST(Import, WritesSourceThatBuildsAndFindsItsWords) {
  for (const bool compressed : {false, true}) {
    const Workplace place;
    sample().write(place, compressed);
    const Outcome imported =
        place.kzdic({"import", "--from", "dictd", compressed ? "db.dict.dz" : "db.index", "-o",
                     "s.txt", "--language", "ENRU"});
    ASSERT_EQ(imported.status, 0) << imported.err;
    EXPECT_THAT(imported.err, HasSubstr("1 headwords left out: without a letter"));
    EXPECT_THAT(place.read("s.txt"),
                HasSubstr("\nabandon*V1.покидать, оставлять/2.отказываться;{to abandon smth.} (или "
                          "{it}) бросать в {1945.} году\n"
                          "abandon*Nкниж. развязность\n"
                          "abandon*W={leave I}\n"
                          "Haus*N[N|]1.{ein Gebaeude; Familie}дом;здание/2.палата\n"));
    EXPECT_THAT(place.read("s.txt"), Not(HasSubstr("sample")));
    ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "o.dic"}).status, 0);
    EXPECT_THAT(place.kzdic({"lookup", "o.dic", "abandon"}).out,
                HasSubstr("2. отказываться; to abandon smth. (или it) бросать в 1945. году\n"));
  }
}

TEST(Import, FindsWordsAsWrittenThatTheIndexCannotHold) {
  const std::vector<std::string> words = {"'cause",  "-able", "_ав.",  "букв.",
                                          "attaché", "δ",     "naïf’s"};
  Database database;
  for (const std::string& word : words) database.add(word, word + "\n   _n. перевод слова\n");
  database.add("cause", "cause\n   _n. причина\n");
  const Workplace place;
  database.write(place, false);
  ASSERT_EQ(place.kzdic({"import", "--from", "dictd", "db", "-o", "s.txt"}).status, 0);
  for (const char* form : {"--plain", "--packed"}) {
    ASSERT_EQ(place.kzdic({"build", form, "s.txt", "-o", "o.dic"}).status, 0);
    for (const std::string& word : words) {
      EXPECT_THAT(place.kzdic({"lookup", "o.dic", "--", word}).out, HasSubstr("перевод слова"))
          << word;
    }
    const auto raw = [&](const char* word) {
      return place.kzdic({"lookup", "--raw", "o.dic", "--", word}).out;
    };
    EXPECT_EQ(raw("'CAUSE"), "cause*Nперевод слова\\\\'cause\n");
    EXPECT_EQ(raw("cause"), raw("'CAUSE") + "cause*Nпричина\n");
    EXPECT_EQ(raw("_АВ."), "av.*Nперевод слова\\\\_ав.\n");
    EXPECT_EQ(raw("-cause"), "");
    EXPECT_EQ(place.kzdic({"lookup", "--raw", "--prefix", "o.dic", "--", "-a"}).out,
              "able*Nперевод слова\\\\-able\n");
  }
}

TEST(Import, TellsTheLanguagesFromTheWords) {
  const Workplace place;
  sample().write(place, false);
  ASSERT_EQ(place.kzdic({"import", "--from", "dictd", "db", "-o", "-"}).status, 0);
  EXPECT_THAT(place.kzdic({"import", "--from", "dictd", "db", "-o", "-"}).out,
              HasSubstr("*: language ENRU\n"));
}

TEST(Import, RefusesDamagedDatabases) {
  const std::vector<std::pair<std::string, std::string>> damages = {
      {"word\tA\n", "db.index:1:"},
      {"one\tA\tB\nword\tA\t//\n", "db.index:2:"},
      {"word\tA\t!\n", "db.index:1: the offset or length is no number"},
      {"word\t////////////\tA\n", "db.index:1:"}};
  for (const auto& [index, message] : damages) {
    const Workplace place;
    place.write("db.index", index);
    place.write("db.dict", "text");
    const Outcome outcome = place.kzdic({"import", "--from", "dictd", "db", "-o", "s.txt"});
    EXPECT_EQ(outcome.status, 4) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(message));
    EXPECT_FALSE(place.exists("s.txt"));
  }
  const Workplace place;
  sample().write(place, true);
  const std::string bytes = place.read("db.dict.dz");
  place.write("db.dict.dz", bytes.substr(0, bytes.size() - 12));
  EXPECT_EQ(place.kzdic({"import", "--from", "dictd", "db", "-o", "s.txt"}).status, 4);
  place.write("db.dict.dz", "plain text");
  EXPECT_THAT(place.kzdic({"import", "--from", "dictd", "db", "-o", "s.txt"}).err,
              HasSubstr("db.dict.dz: not a gzip file"));
  std::filesystem::remove(place.path("db.dict.dz"));
  place.write("db.dict", "ab\xFF\xFE not UTF-8");
  place.write("db.index", "word\tA\tI\n");
  const Outcome outcome =
      place.kzdic({"import", "--from", "dictd", "db", "-o", "s.txt", "--language", "ENRU"});
  EXPECT_EQ(outcome.status, 4);
  EXPECT_THAT(outcome.err, HasSubstr("db.dict: offset 2"));
}

TEST(Dictd, TextIsReadToItsEndWhateverTheIndexNeeds) {
  const Workplace place;
  Database database;
  database.add("word", "text");
  database.text += std::string(200'000, '\0');
  database.write(place, true);
  const std::size_t length = database.text.size();
  EXPECT_EQ(kzdic::DictdDatabase(place.path("db"), length).entries().at(0).text, "text");
  try {
    kzdic::DictdDatabase(place.path("db"), length - 1);
    ADD_FAILURE();
  } catch (const kzdic::Error& error) {
    EXPECT_EQ(error.code(), kz::lexicon::ErrorCode::kData);
    EXPECT_THAT(error.what(), HasSubstr("db.dict.dz: the text is longer than 200003 bytes"));
  }
}

TEST(Base64, ReadsDigitsMostSignificantFirst) {
  EXPECT_EQ(kzdic::base64_number("A"), 0u);
  EXPECT_EQ(kzdic::base64_number("BA"), 64u);
  EXPECT_EQ(kzdic::base64_number("//"), 4095u);
  EXPECT_FALSE(kzdic::base64_number(""));
  EXPECT_FALSE(kzdic::base64_number("A="));
}

// Whatever text goes in, the entry parser has to see no code, no number and no reference in it.
TEST(BodyWriter, HidesEveryMarkFromTheParser) {
  const std::u32string characters = U"абвяё   ,,aWzN(){}[]/|#~&=\\*.:12—«»;'\"";
  std::mt19937 random(5);
  for (int round = 0; round < 20000; ++round) {
    std::u32string text;
    for (std::size_t i = random() % 40; i > 0; --i)
      text += characters[random() % characters.size()];
    kzdic::EntryDraft entry;
    entry.headword = U"word";
    entry.part = 'N';
    entry.meanings = {{1, {}, {text}}, {2, {}, {U"слово", text}}};
    kzdic::BodyWriter writer("ENRU");
    for (const std::string& line : writer.lines(entry)) {
      SCOPED_TRACE(line);
      const std::string bytes = kzdic::encode_entry(kzdic::from_utf8(line), "ENRU");
      const kzdic::EntryView view = kz::lexicon::view_record(bytes, "ENRU");
      EXPECT_EQ(view.headword, "word");
      EXPECT_EQ(view.reference, "");
      EXPECT_EQ(view.attribute, "");
      EXPECT_LE(view.meanings.size(), 2u);
      for (const kzdic::MeaningView& meaning : view.meanings) {
        EXPECT_EQ(meaning.part_of_speech, "");
        EXPECT_TRUE(meaning.number == "1." || meaning.number == "2.") << meaning.number;
      }
      EXPECT_EQ(view.meanings.back().synonyms.front(), "слово");
    }
  }
}

TEST(BodyWriter, SpreadsLongEntriesOverRecordsAndKeepsEverySynonym) {
  kzdic::EntryDraft entry;
  entry.headword = U"long";
  for (int i = 1; i <= 60; ++i) {
    entry.meanings.push_back({i, {}, {std::u32string(90, U'а'), std::u32string(1, U'б')}});
  }
  entry.meanings.push_back({61, {}, std::vector<std::u32string>(300, U"синоним")});
  kzdic::BodyWriter writer("ENRU");
  std::size_t synonyms = 0;
  for (const std::string& line : writer.lines(entry)) {
    const std::string bytes = kzdic::encode_entry(kzdic::from_utf8(line), "ENRU");
    EXPECT_LT(bytes.size(), 2049u);
    for (const auto& meaning : kz::lexicon::view_record(bytes, "ENRU").meanings) {
      synonyms += meaning.synonyms.size();
    }
  }
  EXPECT_EQ(synonyms, 60u * 2 + 300);
}

TEST(Article, TakesEveryHomonymForItself) {
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
  };
  for (const auto& [article, expected] : articles) {
    std::vector<std::u32string> entries;
    for (const kzdic::EntryDraft& entry : kzdic::read_article(article)) {
      std::u32string text(1, static_cast<char32_t>(entry.part));
      for (const auto& meaning : entry.meanings) {
        for (const std::u32string& synonym : meaning.synonyms) {
          text += (text.size() == 1 ? U" " : U"|") + synonym;
        }
      }
      entries.push_back(text);
    }
    EXPECT_EQ(entries, expected);
  }
}

TEST(Article, ReadsBothLayouts) {
  const auto marked = kzdic::read_article(U"d’abord /d‿a.bɔʁ/ <adv>\nсначала (тут, там), прежде\n");
  ASSERT_EQ(marked.size(), 1u);
  EXPECT_EQ(marked[0].part, 'D');
  EXPECT_THAT(marked[0].meanings[0].synonyms, ElementsAre(U"сначала (тут, там)", U"прежде"));

  const auto labelled = kzdic::read_article(
      U"decapod\n   [↗dɛkɜpɘd] _зоол.\n   1. _n. десятиногий рак\n   2. _a. северо-\n   восток\n");
  ASSERT_EQ(labelled.size(), 2u);
  EXPECT_EQ(labelled[0].part, 'N');
  EXPECT_THAT(labelled[0].meanings[0].synonyms, ElementsAre(U"зоол. десятиногий рак"));
  EXPECT_EQ(labelled[1].part, 'A');
  EXPECT_THAT(labelled[1].meanings[0].synonyms, ElementsAre(U"зоол. северо-восток"));
}

}  // namespace

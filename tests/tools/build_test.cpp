// kzdic build: random dictionaries against an independent reader, and the rules of a build.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <tuple>

#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "tests/tools/dictionary_reader.h"
#include "tests/tools/kzdic_run.h"
#include "tools/status.h"

namespace {

using ::testing::HasSubstr;

std::string in_page(const std::string& utf8, const std::string& language) {
  return kzdic::encode_entry(kzdic::from_utf8(utf8), language);
}

struct Form {
  const char* name;
  std::vector<std::string> options;
  bool packed;
};

const std::vector<Form> kForms = {{"plain", {}, false},
                                  {"plain_shared", {"--shared"}, false},
                                  {"packed", {"--packed"}, true},
                                  {"packed_unshared", {"--packed", "--no-shared"}, true}};

// The letters of headwords, with capitals, and of bodies. Packed headwords do without the last one
// of each list that has a letter that packed records cannot hold.
struct Letters {
  std::u32string small;
  std::u32string capital;
  std::u32string body;
  std::u32string unpackable;
};

const std::map<std::string, Letters> kLetters = {
    {"ENRU", {U"abtz", U"ABTZ", U"абвгшъя", U""}}, {"RUEN", {U"абеяё", U"АБЕЯЁ", U"abcdefg", U"ё"}},
    {"DERU", {U"aäsßü", U"AÄSßÜ", U"абвёя", U""}}, {"FRRU", {U"aeéœç", U"AEÉŒÇ", U"абвя", U"œ"}},
    {"RUFR", {U"абея", U"АБЕЯ", U"aeéœ", U""}},    {"RUDE", {U"абея", U"АБЕЯ", U"abc", U""}},
    {"DE", {U"aäoöz", U"AÄOÖZ", U"abäöü", U""}}};

class RandomSource {
 public:
  RandomSource(std::string language, bool packed, bool roomy)
      : language_(std::move(language)), letters_(kLetters.at(language_)), roomy_(roomy) {
    if (!packed) return;
    for (const char32_t c : letters_.unpackable) {
      const std::size_t at = letters_.small.find(c);
      letters_.small.erase(at, 1);
      letters_.capital.erase(at, 1);
    }
  }

  void make(int count) {
    std::set<std::string> seen;
    for (int i = 0; i < count; ++i) {
      const auto [small, written] = headword();
      const std::string head = kzdic::to_utf8(small);
      std::string rest = "*N" + body();
      source += kzdic::to_utf8(written) + rest + "\n";
      if (small != written) rest += "\\\\" + kzdic::to_utf8(written);
      if (seen.insert(head + rest).second) entries[head].push_back(head + rest);
    }
  }

  std::string source;
  std::map<std::string, std::vector<std::string>> entries;  // by headword, in source order

 private:
  std::size_t pick(std::size_t limit) { return random_() % limit; }

  std::pair<std::u32string, std::u32string> headword() {
    std::u32string small;
    std::u32string written;
    const std::size_t length = 1 + pick(pick(20) == 0 ? 60 : 5);
    for (std::size_t i = 0; i < length; ++i) {
      const std::size_t letter = pick(letters_.small.size());
      const std::size_t kind = pick(12);
      if (kind == 0) {
        small += static_cast<char32_t>(U'0' + pick(10));
        written += small.back();
      } else if (kind == 1 && i > 0) {
        small += U"-'./"[pick(4)];
        written += small.back();
      } else {
        small += letters_.small[letter];
        written += pick(8) == 0 ? letters_.capital[letter] : letters_.small[letter];
      }
    }
    return {small, written};
  }

  std::string body() {
    static const std::vector<std::string> fixed = {"dad", "1", "0", "1.two/2.three", ""};
    const std::size_t kind = pick(10);
    if (kind == 0 && language_ != "RUDE") return fixed[pick(fixed.size())];
    std::u32string text = kind == 1 ? U"[M]" : U"";
    const std::size_t length = 1 + pick(kind == 2 && roomy_ ? 1500 : 12);
    for (std::size_t i = 0; i < length; ++i) text += letters_.body[pick(letters_.body.size())];
    if (kind == 3) text += U"\\list";
    return kzdic::to_utf8(text);
  }

  std::string language_;
  Letters letters_;
  bool roomy_;
  std::mt19937 random_{20240601};
};

using Setting = std::tuple<std::string, int, int>;  // language, depth, number of the form

class RandomDictionary : public ::testing::TestWithParam<Setting> {};

// Every block is where the index says; packed blocks take nothing over from before.
void expect_reachable(const ReadDictionary& dictionary) {
  std::set<std::size_t> starts(dictionary.cells.begin(), dictionary.cells.end());
  for (const auto& [key, position] : dictionary.keys) starts.insert(position);
  for (const ReadRecord& record : dictionary.records) {
    const std::string headword = record.stored.substr(0, record.stored.find('*'));
    const auto [begin, end] = dictionary.block(headword);
    EXPECT_TRUE(begin <= record.position && record.position < end) << headword;
    EXPECT_LE(record.count, starts.count(record.position) != 0 ? 0u : 63u) << headword;
  }
}

TEST_P(RandomDictionary, HoldsItsSourceAndAnswersForEveryHeadword) {
  const auto& [language, depth, form_number] = GetParam();
  const Form& form = kForms[static_cast<std::size_t>(form_number)];
  const bool shares = form.options.size() < 2;
  RandomSource random(language, form.packed, !form.packed || shares);
  random.make(400);
  const Workplace place;
  place.write("source.txt", random.source);
  std::vector<std::string> arguments = {"build",   "source.txt",         "-o",
                                        "out.dic", "--language",         language,
                                        "--depth", std::to_string(depth)};
  arguments.insert(arguments.end(), form.options.begin(), form.options.end());
  // Without shared text, bodies with unpackable letters have no place.
  if (!shares && form.packed) arguments.emplace_back("--skip-bad");
  const Outcome built = place.kzdic(arguments);
  ASSERT_EQ(built.status, 0) << built.err;

  const std::string bytes = place.read("out.dic");
  const ReadDictionary dictionary = read_dictionary(bytes);
  EXPECT_EQ(dictionary.packed, form.packed);
  std::map<std::string, std::vector<std::string>> held;
  for (const ReadRecord& record : dictionary.records) {
    const std::string entry = kzdic::decode_entry(record.entry, language);
    held[entry.substr(0, entry.find('*'))].push_back(entry);
  }
  if (shares) {
    EXPECT_EQ(held, random.entries);
  }
  expect_reachable(dictionary);

  std::string words;
  std::string answers;
  for (const auto& [word, entries] : held) {
    words += word + "\n";
    for (const std::string& entry : entries) answers += entry + "\n";
    answers += "\n";
  }
  const Outcome looked = place.kzdic({"lookup", "--raw", "out.dic", "-"}, words);
  EXPECT_EQ(looked.status, 0);
  EXPECT_EQ(looked.out, answers);

  ASSERT_EQ(place.kzdic(arguments).status, 0);
  EXPECT_EQ(place.read("out.dic"), bytes) << "a second build gives other bytes";

  const Outcome dumped = place.kzdic({"dump", "out.dic"});
  ASSERT_EQ(dumped.status, 0) << dumped.err;
  place.write("source.txt", dumped.out);
  ASSERT_EQ(place.kzdic(arguments).status, 0);
  EXPECT_EQ(place.read("out.dic"), bytes) << "a build of what was dumped gives other bytes";
  EXPECT_EQ(place.kzdic({"dump", "out.dic"}).out, dumped.out);
}

INSTANTIATE_TEST_SUITE_P(
    All, RandomDictionary,
    ::testing::Combine(::testing::Values("ENRU", "RUEN", "DERU", "FRRU", "RUFR", "RUDE", "DE"),
                       ::testing::Values(2, 3, 5), ::testing::Values(0, 1, 2, 3)),
    [](const ::testing::TestParamInfo<Setting>& setting) {
      return std::get<0>(setting.param) + "_" + std::to_string(std::get<1>(setting.param)) + "_" +
             kForms[static_cast<std::size_t>(std::get<2>(setting.param))].name;
    });

TEST(Build, PutsDigitsBeforeTheFirstLetterInItsBlock) {
  const Workplace place;
  place.write("s.txt", "bat*Nа\n24-hour*Aб\nbb*Nв\n1st*Aг\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "o.dic", "--language", "ENRU"}).status, 0);
  const ReadDictionary dictionary = read_dictionary(place.read("o.dic"));
  ASSERT_EQ(dictionary.records.size(), 4u);
  EXPECT_TRUE(dictionary.records[0].entry.starts_with("1st*"));
  EXPECT_TRUE(dictionary.records[1].entry.starts_with("24-hour*"));
  EXPECT_EQ(dictionary.block("bat").first, dictionary.data_offset);
  EXPECT_EQ(dictionary.block("9").first, dictionary.data_offset);
}

TEST(Build, StoresEqualBodiesOnceAndAllBodiesThatReadAsNumbers) {
  const Workplace place;
  const std::string body(100, 'x');
  place.write("s.txt", "а*N" + body + "\nб*V" + body + "\nв*Nface\nг*Nfaces\nд*N[M]bed\\r\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "o.dic", "--language", "RUEN", "--shared"}).status,
            0);
  const ReadDictionary dictionary = read_dictionary(place.read("o.dic"));
  EXPECT_EQ(dictionary.shared, body + '\0' + "face" + '\0' + "bed" + '\0');
  EXPECT_EQ(dictionary.records[3].stored, in_page("г*Nfaces", "RUEN"));
  EXPECT_EQ(dictionary.records[4].entry, in_page("д*N[M]bed\\r", "RUEN"));
}

TEST(Build, FoldsYoOnlyWhereItCannotStay) {
  const Workplace place;
  place.write("s.txt", "*: language RUEN\nЁлка*Nfir\n");
  EXPECT_EQ(place.kzdic({"build", "s.txt", "-o", "p.dic", "--packed"}).status, 4);
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "p.dic", "--packed", "--fold-yo"}).status, 0);
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "p.dic", "ЁЛКА"}).out, "елка*Nfir\\\\Елка\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "q.dic", "--fold-yo"}).status, 0);
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "q.dic", "елка"}).out, "елка*Nfir\\\\Ёлка\n");
}

TEST(Build, OptionsWinOverDirectivesAndTheHeaderTellsThem) {
  const Workplace place;
  place.write("s.txt", "*: language ENRU\n*: title Один\n*: label one\n* note\n\ncat*Nкот\r\n");
  ASSERT_EQ(place
                .kzdic({"build", "s.txt", "-o", "o.dic", "--title", "Два", "--password", "secret",
                        "--timestamp", "77"})
                .status,
            0);
  const std::string info = place.kzdic({"info", "o.dic"}).out;
  for (const char* line :
       {"title           Два\n", "label           one\n", "password        set\n",
        "time stamp      77\n", "checksum        agrees\n", "language        ENRU\n",
        "type            C\n", "records         1\n", "index depth     2\n"}) {
    EXPECT_THAT(info, HasSubstr(line));
  }
  // Several sources may contradict what an option states, and one another.
  place.write("t.txt", "*: language FR\n*: title \xFF\n*: label 1234567890\n*: type Q\ndog*Nпёс\n");
  ASSERT_EQ(place
                .kzdic({"build", "t.txt", "s.txt", "-o", "o.dic", "--language", "ENRU", "--title",
                        "", "--label", "", "--type", "T"})
                .status,
            0);
  EXPECT_EQ(place.kzdic({"dump", "o.dic"}).out,
            "*: language ENRU\n*: type T\ncat*Nкот\ndog*Nпёс\n");
}

TEST(Build, LeavesRepeatedEntriesOutAndSaysSo) {
  const Workplace place;
  place.write("s.txt", "Cat*Nкот\ncat*Nкот\nCat*Nкот\n");
  const Outcome built = place.kzdic({"build", "s.txt", "-o", "o.dic", "--language", "ENRU"});
  EXPECT_THAT(built.err, HasSubstr("s.txt:3: the same entry stands in s.txt:1"));
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "o.dic", "cat"}).out, "cat*Nкот\\\\Cat\ncat*Nкот\n");
}

struct BadLine {
  const char* line;
  int status;
  const char* message;
};

TEST(Build, RefusesWhatTheFormatCannotHoldAndNamesTheLine) {
  const std::string long_word = std::string(78, 'a') + "*Nа";
  const std::string long_body = "cat*N" + std::string(2045, '1');
  const std::vector<BadLine> lines = {
      {"no star", 4, "no '*'"},
      {"a*N*б", 4, "more than one"},
      {"!*Nб", 4, "neither a letter"},
      {"!a*Nб\\\\A", 4, "neither a letter"},
      {"a!b*", 4, "character 2"},
      {"дом*Nhouse", 4, "neither a letter"},
      {"cat *Nкот", 4, "blank"},
      {"*x\ncat*N\tкот", 4, "control"},
      {"cat*N\xFFкот", 4, "UTF-8"},
      {long_word.c_str(), 4, "78 characters"},
      {long_body.c_str(), 4, "2050 characters"},
      {"cat*Nкот ≤ кошка", 5, "U+2264"},
      {"café*Nкафе", 5, "U+00E9"},
  };
  for (const BadLine& bad : lines) {
    SCOPED_TRACE(bad.line);
    const Workplace place;
    place.write("o.dic", "what was here before");
    place.write("s.txt", std::string("dog*Nсобака\n") + bad.line + "\n");
    const std::vector<std::string> build = {"build", "s.txt", "-o", "o.dic", "--language", "ENRU"};
    const Outcome outcome = place.kzdic(build);
    EXPECT_EQ(outcome.status, bad.status);
    const char* line = bad.line[0] == '*' ? "s.txt:3: " : "s.txt:2: ";
    EXPECT_THAT(outcome.err, HasSubstr(line));
    EXPECT_THAT(outcome.err, HasSubstr(bad.message));
    EXPECT_EQ(place.read("o.dic"), "what was here before");

    std::vector<std::string> skipping = build;
    skipping.emplace_back("--skip-bad");
    const Outcome skipped = place.kzdic(skipping);
    EXPECT_EQ(skipped.status, 0) << skipped.err;
    EXPECT_THAT(skipped.err, HasSubstr("1 entries left out"));
  }
}

TEST(Build, TakesTheLongestHeadwordAndEntry) {
  const Workplace place;
  const std::string word(77, 'a');
  const std::string body(2044, '1');
  place.write("s.txt", word + "*Nа\ncat*N" + body + "\n");
  ASSERT_EQ(place.kzdic({"build", "s.txt", "-o", "o.dic", "--language", "ENRU"}).status, 0);
  EXPECT_EQ(place.kzdic({"lookup", "--raw", "o.dic", word, "cat"}).out,
            word + "*Nа\ncat*N" + body + "\n");
}

TEST(Build, RefusesPackedWordsThatShareMoreThanTheReaderTakes) {
  const Workplace place;
  const std::string beginning(63, 'a');
  place.write("good.txt", beginning + "b*Nа\n" + beginning + "c*Nб\n" + beginning + "c*Vв\n");
  place.write("bad.txt", beginning + "ab*Nа\n" + beginning + "ac*Nб\n");
  const std::vector<std::string> options = {"-o", "o.dic", "--language", "ENRU", "--packed"};
  const auto build = [&](const std::string& source) {
    std::vector<std::string> arguments = {"build", source};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return place.kzdic(arguments);
  };
  EXPECT_EQ(build("good.txt").status, 0);
  const Outcome bad = build("bad.txt");
  EXPECT_EQ(bad.status, 4);
  EXPECT_THAT(bad.err, HasSubstr("bad.txt:2: the headword shares more than 63"));
}

}  // namespace

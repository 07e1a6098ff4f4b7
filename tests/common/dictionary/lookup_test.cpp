// Searches in dictionaries of every form, held against a slow reader of the same files.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "kz/dic_error.h"
#include "kz/dic_index.h"
#include "kz/dictionary.h"
#include "kz/entry.h"
#include "kz/file.h"
#include "tests/common/dictionary/dictionary_file.h"
#include "tests/common/dictionary/slow_dictionary.h"
#include "tests/support/temp_dir.h"

namespace kz::test {
namespace {

struct Close {
  void operator()(CDic* dictionary) const { DicClose(dictionary); }
};
using Dictionary = std::unique_ptr<CDic, Close>;

using Random = std::mt19937;

int below(Random& random, int limit) {
  return static_cast<int>(random() % static_cast<unsigned>(limit));
}

constexpr int kLineFeeds = 60000;

// A file without records.
using Shape = DictionaryFile;

std::string random_word(Random& random, const Shape& shape) {
  // Few different letters make for shared beginnings and full groups.
  std::string letters = alphabet(shape.alphabet_size);
  letters = letters.substr(0, 4) + letters.back();
  std::string word(1, below(random, 12) == 0 ? '7' : letters[random() % letters.size()]);
  for (int i = below(random, 8); i > 0; --i) {
    word += below(random, 9) == 0 ? std::string("-' .5")[random() % 5]
                                  : letters[random() % letters.size()];
  }
  return word;
}

std::string random_body(Random& random, const DictionaryFile& file) {
  std::string body = "N";
  if (!file.shared.empty() && below(random, 2) == 0) {
    char number[16];
    const auto offset =
        static_cast<unsigned>(below(random, static_cast<int>(file.shared.size()) + 3));
    std::snprintf(number, sizeof number, below(random, 2) ? "%x" : "%04X", offset);
    return body + number;
  }
  // Long ones only in plain records, where a block then takes several steps to read.
  const int length = file.packed()       ? below(random, 60)
                     : below(random, 20) ? below(random, 60)
                                         : 2500;
  for (int i = length; i > 0; --i) body += "xyz;/ "[random() % 6];
  return body;
}

DictionaryFile random_dictionary(Random& random, const Shape& shape, int size) {
  DictionaryFile file = shape;
  if (shape.packing >= 2) {
    file.shared = std::string("shared text\0next one\0last, without its zero", 42);
  }
  for (int i = 0; i < size; ++i) {
    file.records.push_back({random_word(random, shape), random_body(random, file)});
  }
  return file;
}

std::vector<Shape> shapes() {
  std::vector<Shape> all;
  for (const auto& [language, size] :
       {std::pair{"ENRU", 26}, std::pair{"RUEN", 32}, std::pair{"DERU", 43}, std::pair{"FR", 43}}) {
    for (const int depth : {2, 3, 5}) {
      if (depth == 5 && size != 32) continue;  // its keys know Russian letters alone
      all.push_back({language, 'C', depth, size, 256, 0, true});
      all.push_back({language, 'C', depth, size, 539, 2, true});
      all.push_back({language, 'G', depth, size, 600, 1, true});
      all.push_back({language, 'C', depth, size, 600, 3, true});
      all.push_back({language, 'C', depth, size, 600, 3, false});
      all.push_back({language, 'S', depth, size, 600, 1, true});
    }
  }
  all.push_back({"", 'C', 2, 26});
  return all;
}

std::vector<std::string> words_to_search(Random& random, const DictionaryFile& file) {
  std::vector<std::string> words;
  for (int i = 0; i < 25; ++i) {
    const std::string& word = file.records[random() % file.records.size()].word;
    words.push_back(word);
    words.push_back(word.substr(0, 1 + random() % word.size()));
    words.push_back(random_word(random, file));
    // A capital, a character that no headword has, a letter of another language.
    words.push_back(word);
    words.back()[random() % word.size()] = "Z!\xE9\xF1\xC5*"[random() % 6];
  }
  words.insert(words.end(), {"A", "!", "*", "", words[0] + "*", words[0] + "*N", words[0] + "\n"});
  return words;
}

// The text up to its first zero.
std::string text_of(const std::optional<std::string>& text) {
  return text ? text->c_str() : "nothing";
}

// Asks the same of the library and the slow reader; stops at the first difference.
void compare_searches(CDic* dictionary, SlowDictionary& slow,
                      const std::vector<std::string>& words) {
  for (const int mode : {0, 1, 2, -1, 0}) {
    for (const std::string& word : words) {
      const char* found = DicFind(dictionary, word.c_str(), static_cast<std::int16_t>(mode), 2);
      auto expected = slow.find(word.c_str(), mode);
      for (int step = 0; step < 4; ++step) {
        ASSERT_EQ(found != nullptr ? found : "nothing", text_of(expected))
            << "word '" << word << "', search mode " << mode << ", step " << step;
        if (found == nullptr) break;
        found = DicFindNext(dictionary, 2);
        expected = slow.next();
      }
    }
  }
}

std::string name_of(const Shape& shape, int mode) {
  return shape.language + ' ' + shape.type + " depth " + std::to_string(shape.depth) + " packing " +
         std::to_string(shape.packing) + (shape.fresh_groups ? "" : " running") + " mode " +
         std::to_string(mode);
}

TEST(Lookup, EveryModeFindsWhatIsInTheFile) {
  const TempDir dir;
  Random random(20261122);
  for (const Shape& shape : shapes()) {
    for (const int size : {1, 30, 600}) {
      DictionaryFile file = random_dictionary(random, shape, size);
      SlowDictionary slow(file.write(dir.file("d.dic")));
      const std::vector<std::string> words = words_to_search(random, file);
      for (const auto mode : std::initializer_list<std::int16_t>{0, 2, 4}) {
        const Dictionary dictionary(DicOpen(dir.file("d.dic").c_str(), mode));
        SCOPED_TRACE(name_of(shape, mode));
        ASSERT_NE(dictionary, nullptr) << kz_dict_dic_errno();
        LoadAllOffsets(dictionary.get());
        ASSERT_NO_FATAL_FAILURE(compare_searches(dictionary.get(), slow, words));

        // No word finds the first record, and the walk finds them all.
        const char* found = DicFind(dictionary.get(), nullptr, 0, 2);
        auto expected = slow.find(nullptr, 0);
        std::size_t count = 0;
        for (; found != nullptr; ++count) {
          ASSERT_EQ(found, text_of(expected));
          found = DicFindNext(dictionary.get(), 2);
          expected = slow.next();
        }
        ASSERT_EQ(count, file.records.size());
      }
    }
  }
}

TEST(Lookup, DamagedRecordsAndTablesAreReadTheSameWay) {
  const TempDir dir;
  Random random(13);
  for (const Shape& shape : shapes()) {
    if (shape.depth == 5) continue;  // what a search finds among keys out of order is open
    for (int round = 0; round < 6; ++round) {
      DictionaryFile file = random_dictionary(random, shape, 60);
      std::string bytes = file.bytes();
      const std::size_t end = bytes.size() - file.shared.size();
      for (int i = 0; i < 12; ++i) {
        bytes[154 + random() % (end - 154)] = static_cast<char>(random());
      }
      dir.write("d.dic", bytes);
      SlowDictionary slow(bytes);
      const std::vector<std::string> words = words_to_search(random, file);
      for (const auto mode : std::initializer_list<std::int16_t>{0, 4}) {
        const Dictionary dictionary(DicOpen(dir.file("d.dic").c_str(), mode));
        SCOPED_TRACE(name_of(shape, mode));
        ASSERT_NE(dictionary, nullptr);
        ASSERT_NO_FATAL_FAILURE(compare_searches(dictionary.get(), slow, words));
      }
    }
  }
}

TEST(Lookup, AnyDamageToHeaderOrLengthIsRefusedOrSurvived) {
  const TempDir dir;
  Random random(17);
  for (const Shape& shape :
       {Shape{"RUEN", 'C', 5, 32, 600, 3, true}, Shape{"ENRU", 'C', 2, 26, 600, 2, true}}) {
    DictionaryFile file = random_dictionary(random, shape, 20);
    const std::string good = file.bytes();
    // The answers of a file, or nothing when it is refused.
    const auto answers = [&](const std::string& bytes) {
      std::vector<std::string> all;
      const Dictionary dictionary(DicOpen(dir.write("d.dic", bytes).c_str(), 2));
      EXPECT_EQ(kz_dict_dic_errno(), dictionary ? DIC_OK : DIC_ERR_FORMAT);
      LoadAllOffsets(dictionary.get());
      for (const auto mode : std::initializer_list<std::int16_t>{0, 1, 2, -1}) {
        const char* found = DicFind(dictionary.get(), file.records[3].word.c_str(), mode, 2);
        for (int i = 0; i < 30 && found != nullptr; ++i) {
          all.emplace_back(found);
          found = DicFindNext(dictionary.get(), 2);
        }
      }
      return all;
    };
    const auto expected = answers(good);
    ASSERT_GT(expected.size(), 4U);
    for (std::size_t i = 0; i < 154; ++i) {
      // Label, title, password and property, time and checksum say nothing about the records.
      const bool carried = (i >= 44 && i < 56) || (i >= 63 && i < 113) || (i >= 131 && i < 141);
      for (const char value : {'\0', '\x7F', '\xFF'}) {
        std::string bytes = good;
        bytes[i] = value;
        const auto found = answers(bytes);
        EXPECT_TRUE(!carried || found == expected) << i;
      }
    }
    for (std::size_t length = 0; length < good.size(); length += 1 + length / 40) {
      EXPECT_EQ(answers(good.substr(0, length)).size(), 0U) << length;
    }
  }
}

// A file of line feeds with these positions in the cells of its table, or, at depth 5, with
// ascending keys of two letters.
std::string file_of_cells(const Shape& shape, const std::vector<std::int32_t>& cells) {
  std::string bytes = Shape(shape).bytes().substr(0, 154) + std::string(kLineFeeds, '\n');
  put_number(bytes, 119, 4, static_cast<std::int64_t>(bytes.size()));
  put_number(bytes, 146, 4, static_cast<std::int64_t>(cells.size()));
  for (std::int64_t i = 0; const std::int32_t cell : cells) {
    if (shape.depth == 5)
      put_number(bytes, bytes.size(), 4, (8 + i / 32) << 24 | (8 + i % 32) << 18);
    put_number(bytes, bytes.size(), 4, cell);
    ++i;
  }
  return bytes;
}

std::size_t cell_count(const Shape& shape) {
  const auto n = static_cast<std::size_t>(shape.alphabet_size);
  return shape.depth == 5 ? 200 : n * (n + 1) * (shape.depth == 3 ? n + 1 : 1);
}

TEST(Lookup, BlocksEndAtTheNextGroupWhateverThePositions) {
  const TempDir dir;
  Random random(31);
  for (const Shape& shape : {Shape{"ENRU", 'C', 2, 26}, Shape{"DERU", 'C', 3, 43},
                             Shape{"RUEN", 'C', 3, 32}, Shape{"RUEN", 'C', 5, 32}}) {
    for (const int used : {2, 50, 700}) {  // of 1,000
      for (const bool sorted : {true, false}) {
        std::vector<std::int32_t> cells(cell_count(shape), -1);
        std::int32_t last = 154;
        for (std::int32_t& cell : cells) {
          if (shape.depth != 5 && below(random, 1000) >= used) continue;
          last += below(random, 4);
          cell = sorted ? last : below(random, kLineFeeds + 2000) - (shape.depth == 5 ? 0 : 1000);
        }
        const std::string bytes = file_of_cells(shape, cells);
        const Dictionary dictionary(DicOpen(dir.write("d.dic", bytes).c_str(), 0));
        ASSERT_NE(dictionary, nullptr);
        const SlowDictionary slow(bytes);
        const std::string letters = alphabet(shape.alphabet_size) + '-';
        for (int i = 0; i < 150; ++i) {
          std::string word(1, i % 10 == 0 ? '7' : letters[random() % (letters.size() - 1)]);
          for (int more = i % 3; more > 0; --more) word += letters[random() % letters.size()];
          const auto& [position, size] = slow.place(word);
          ASSERT_EQ(DicOffsetX(dictionary.get(), word.c_str()), position) << word;
          ASSERT_EQ(DicSizeX(dictionary.get(), word.c_str()), size) << word;
        }
        ZCFile list;
        ASSERT_TRUE(list.Open(dir.file("list").c_str(), 0x1002));
        PrintAllOffsets(dictionary.get(), &list);
        list.Close();
        ASSERT_EQ(dir.read("list"), slow.listing());
      }
    }
  }
}

TEST(Lookup, OverlappingBlocksTakeNoMoreMemoryThanAFewTimesTheFile) {
  // Positions that fall from cell to cell: most blocks reach far after their neighbours.
  const Shape shape{"DERU", 'C', 3, 43};
  std::vector<std::int32_t> cells(cell_count(shape));
  for (std::size_t i = 0; i < cells.size(); ++i) {
    cells[i] = 154 + static_cast<std::int32_t>((cells.size() - i) % kLineFeeds);
  }
  const TempDir dir;
  const std::string bytes = file_of_cells(shape, cells);
  const std::string path = dir.write("d.dic", bytes);
  const Dictionary dictionary(DicOpen(path.c_str(), 2));
  ASSERT_NE(dictionary, nullptr);
  LoadAllOffsets(dictionary.get());

  // Without the file, searches in the blocks in memory still work.
  std::filesystem::resize_file(path, 154);
  std::size_t in_memory = 0;
  for (const char first : alphabet(43)) {
    for (const char second : alphabet(43)) {
      const std::string word = {first, second, 'b'};
      EXPECT_EQ(DicFind(dictionary.get(), word.c_str(), 0, 2), nullptr);
      if (kz_dict_dic_errno() != DIC_OK) continue;
      in_memory += static_cast<std::size_t>(DicSizeX(dictionary.get(), word.c_str()));
    }
  }
  EXPECT_GT(in_memory, 0u);
  EXPECT_LT(in_memory, 32 * bytes.size());
}

class SmallDictionary : public ::testing::Test {
 protected:
  // Opens a dictionary with these records, and two texts in its shared block.
  CDic* open(int packing, std::vector<Record> records, std::int16_t mode = 0) {
    DictionaryFile file;
    file.packing = packing;
    file.shared = std::string("first\0second", 13);
    file.records = std::move(records);
    return open(file, mode);
  }
  CDic* open(DictionaryFile& file, std::int16_t mode = 0) {
    dictionary_.reset();
    file.write(path_);
    dictionary_.reset(DicOpen(path_.c_str(), mode));
    return dictionary_.get();
  }
  std::string find(const std::string& word, std::int16_t mode = 0, std::int16_t level = 2) {
    return shown(DicFind(dictionary_.get(), word.c_str(), mode, level));
  }
  // The third search of a word reads from the table of headwords, not from the block.
  std::string find_thrice(const std::string& word, std::int16_t mode = 0) {
    for (int time = 0; time < 2; ++time) find(word, mode);
    return find(word, mode);
  }
  std::string first() { return shown(DicFind(dictionary_.get(), nullptr, 0, 2)); }
  std::string next(std::int16_t level = 2) { return shown(DicFindNext(dictionary_.get(), level)); }
  std::string current(std::int16_t level = 2) {
    return shown(DicGetFound(dictionary_.get(), nullptr, level));
  }
  static std::string shown(const char* text) { return text != nullptr ? text : "nothing"; }

  TempDir dir_;
  const std::string path_ = dir_.file("small.dic");
  Dictionary dictionary_;
};

TEST_F(SmallDictionary, LevelsDecodeAsFarAsAsked) {
  open(3, {{"table", "N6\\\\Table"}});
  EXPECT_EQ(find("table", 0, 0), "");
  EXPECT_EQ(current(1), "table*N6\\\\Table");
  EXPECT_EQ(current(0), "table*N6\\\\Table");
  EXPECT_EQ(current(-1), "table*Nsecond\\\\Table");
  EXPECT_EQ(find("table", 0, 1), "table*N6\\\\Table");
  // The end of a walk leaves the record found last.
  EXPECT_EQ(find("table", 0, 0), "");
  EXPECT_EQ(next(0), "nothing");
  EXPECT_EQ(current(), "table*Nsecond\\\\Table");
  EXPECT_EQ(next(0), "nothing");

  open(2, {{"table", "N0"}});
  EXPECT_EQ(find("table", 0, 0), "table*N0");
  char copy[DIC_ENTRY_ROOM];
  EXPECT_STREQ(DicGetFound(dictionary_.get(), copy, 2), "table*Nfirst");
  EXPECT_STREQ(copy, "table*Nfirst");
}

TEST_F(SmallDictionary, OnlyANumberInsideTheSharedTextIsAReference) {
  const std::pair<const char*, const char*> bodies[] = {{"N6x", "N6x"},
                                                        {"N-6", "N-6"},
                                                        {"N 6", "N 6"},
                                                        {"N0x6", "N0x6"},
                                                        {"Nd", "Nd"},
                                                        {"N00000000006", "N00000000006"},
                                                        {"Nc", "N"},  // its zero alone
                                                        {"N00000006", "Nsecond"},
                                                        {"N[6]6", "N[6]second"},
                                                        {"$6\\7", "$second"},
                                                        {"N6\\", "Nsecond"}};
  std::vector<Record> records;
  for (const auto& [body, shared] : bodies) {
    records.push_back({std::string("a") + static_cast<char>('a' + records.size()), body});
  }
  open(2, records);
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_EQ(find_thrice(records[i].word), records[i].word + '*' + bodies[i].second);
  }
}

TEST_F(SmallDictionary, TheEntryObjectShowsTheFoundEntry) {
  for (const int packing : {2, 3}) {
    CDic* dictionary = open(packing, {{"table", "N6\\\\Table"}, {"tax", "N0"}, {"tent", "N1"}});
    const auto word = [&] { return DicEntryGetInWord(DicGetEntryHandler(dictionary), nullptr); };
    for (int time = 0; time < 3; ++time) {  // read from the block, then from the table of headwords
      find("table");
      EXPECT_STREQ(DicEntryGetSrcWord(DicGetEntryHandler(dictionary), nullptr), "Table");
      find("tent", 0, 0);
      EXPECT_STREQ(word(), "tent");
      // A step at level 0 does not show the text of the record before it.
      find("table");
      EXPECT_EQ(next(0), packing == 3 ? "" : "tax*N0");
      EXPECT_STREQ(word(), "tax");
      EXPECT_EQ(current(), "tax*Nfirst");
    }
  }
}

// A search stops where a packed block says so, from the block as from the table of headwords.
TEST_F(SmallDictionary, PackedBlocksEndAtThePairAndSearchesAtARecordThatSharesTooLittle) {
  DictionaryFile file;
  file.packing = 1;
  file.records = {{"tab", "N1"}, {"tack", "N2"}, {"tag", "N3"}};
  file.end_pair_before = "tag";
  open(file);
  for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
    EXPECT_EQ(find_thrice("tab", mode), "tab*N1");
    EXPECT_EQ(find_thrice("tack", mode), "nothing") << "the pair follows directly";
    EXPECT_EQ(find_thrice("tag", mode), "nothing");
  }
  EXPECT_EQ(find("tab"), "tab*N1");
  EXPECT_EQ(next(), "tack*N2");
  EXPECT_EQ(next(), "nothing");

  file.end_pair_before.clear();
  file.shared_max = 1;
  open(file);
  EXPECT_EQ(find_thrice("tab"), "tab*N1");
  EXPECT_EQ(find_thrice("tack"), "nothing");
}

TEST_F(SmallDictionary, RecordsMayBeOneCharacterOrLongerThanAnEntry) {
  open(0, {{"a", "\nb"}, {"c", "N1"}});  // the lines "a*", "b" and "c*N1"
  EXPECT_EQ(first(), "a*");
  EXPECT_EQ(next(), "b");
  EXPECT_EQ(next(), "c*N1");
  DictionaryFile words;
  words.type = 'S';
  words.packing = 1;
  words.records = {{"a", ""}, {"ab", ""}};
  open(words);
  EXPECT_EQ(find_thrice("a"), "a");

  const std::string body(5000, 'x');
  open(0, {{"long", body}, {"lost", "N1"}});
  EXPECT_EQ(find("long"), ("long*" + body).substr(0, DIC_ENTRY_ROOM - 1));
  EXPECT_EQ(next(), "lost*N1");
  // Packed: 259 characters are a record, 260 end the search.
  open(1, {{"aa", std::string(256, 'x')}, {"ab", std::string(257, 'x')}});
  EXPECT_EQ(find("aa").size(), 259u);
  EXPECT_EQ(find("ab"), "nothing");

  // A match across the edge of the read buffer.
  for (std::size_t before = 65530; before <= 65537; ++before) {
    open(0, {{"aa", std::string(before - 4, 'x')}, {"zz", "N1"}}, 1);
    EXPECT_EQ(find("zz"), "zz*N1") << before;
  }
}

TEST_F(SmallDictionary, WordsThatCannotBeSearchedFindNothing) {
  const std::string longest(77, 'a');
  open(0, {{longest, "N"}, {longest + 'a', "N"}, {"word", "N1"}});
  EXPECT_EQ(find(longest), longest + "*N");
  EXPECT_EQ(find(longest + 'a'), "nothing");
  EXPECT_EQ(find(""), "nothing");
  EXPECT_EQ(next(), "nothing");  // nothing to go on from
  EXPECT_EQ(current(), "");
  // The word may be the entry found last.
  EXPECT_EQ(shown(DicFind(dictionary_.get(), DicFind(dictionary_.get(), "word", 0, 2), 1, 2)),
            "word*N1");
}

TEST_F(SmallDictionary, ErrorsAreLeftInTheErrorVariable) {
  EXPECT_EQ(DicOpen(dir_.file("none.dic").c_str(), 0), nullptr);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FILE);
  EXPECT_EQ(kz_dict_errno(), ENOENT);
  char buffer[DIC_ENTRY_ROOM] = "word";
  EXPECT_EQ(DicOpenGetEntry(dir_.file("none.dic").c_str(), buffer, 0), DIC_ERR_FILE);

  CDic* dictionary = open(0, {{"word", "N1"}});
  EXPECT_EQ(find("work"), "nothing");
  EXPECT_EQ(kz_dict_dic_errno(), DIC_OK);
  EXPECT_EQ(DicGetEntry(dictionary, buffer, 0), DIC_OK);
  EXPECT_STREQ(buffer, "word*N1");
  std::strcpy(buffer, "work");
  EXPECT_EQ(DicGetEntry(dictionary, buffer, 0), DIC_ERR_NOT_FOUND);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_NOT_FOUND);
  EXPECT_EQ(DicGetEntry(nullptr, buffer, 0), DIC_ERR_NOT_FOUND);
  std::strcpy(buffer, "wo");
  EXPECT_EQ(DicOpenGetEntry(path_.c_str(), buffer, 1), DIC_OK);
  EXPECT_STREQ(buffer, "word*N1");

  // A file that has become shorter since it was opened.
  std::filesystem::resize_file(path_, 160);
  EXPECT_EQ(first(), "nothing");
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FILE);
}

TEST_F(SmallDictionary, SharedTextIsAskedForOnlyByTranslationDictionaries) {
  DictionaryFile file;
  file.packing = 2;
  file.records = {{"word", "N0"}};
  EXPECT_EQ(open(file), nullptr);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FORMAT);
  file.type = 'G';
  open(file);
  EXPECT_EQ(find("word"), "word*N0");
}

TEST_F(SmallDictionary, ModeOneReadsFromTheCurrentBlockWithoutTheIndex) {
  EXPECT_EQ(DicGetMode(open(0, {{"alpha", "N1"}, {"beta", "N2"}, {"zeta", "N3"}}, 1)), 1);
  EXPECT_EQ(find("zeta"), "zeta*N3");
  EXPECT_EQ(find("alpha"), "alpha*N1");
  EXPECT_EQ(next(), "beta*N2");

  // A first record after the end of the records is none.
  std::string bytes = dir_.read("small.dic");
  bytes.replace(123, 4, std::string("\0\0\1\0", 4));
  dictionary_.reset(DicOpen(dir_.write("small.dic", bytes).c_str(), 1));
  ASSERT_NE(dictionary_, nullptr);
  EXPECT_EQ(find("alpha"), "nothing");
  EXPECT_EQ(first(), "nothing");
}

TEST_F(SmallDictionary, AccessorsAnswerForMissingHandles) {
  CDic* dictionary = open(0, {{"word", "N1"}}, 4);
  DicSetId(dictionary, 200);
  EXPECT_EQ(DicGetId(dictionary), 200);
  EXPECT_EQ(DicGetMode(dictionary), 4);
  EXPECT_EQ(DicGetPath(dictionary), path_);
  EXPECT_EQ(DicOffsetX(dictionary, "word"), 154);
  EXPECT_EQ(DicSizeX(dictionary, "word"), 10);
  for (const int none : {DicOffsetX(nullptr, "word"), DicSizeX(nullptr, "word"),
                         DicSizeX(dictionary, "Word"), DicLetterOffsetX(dictionary, 'w'),
                         DicLetterNumberX(dictionary, 'w'), int{DicGetId(nullptr)}}) {
    EXPECT_EQ(none, -1);
  }
  EXPECT_EQ(DicLetterNumberX(dictionary, 0) + DicGetMode(nullptr), 0);
  for (const char* text : {DicGetPath(nullptr), DicFind(nullptr, "word", 0, 2),
                           DicFindNext(nullptr, 2), DicGetFound(nullptr, nullptr, 2)}) {
    EXPECT_EQ(text, nullptr);
  }
  EXPECT_EQ(DicGetEntryHandler(nullptr), nullptr);
  DicClose(nullptr);
  LoadAllOffsets(nullptr);
  PrintAllOffsets(nullptr, nullptr);
  PrintAllOffsets(dictionary, nullptr);
}

}  // namespace
}  // namespace kz::test

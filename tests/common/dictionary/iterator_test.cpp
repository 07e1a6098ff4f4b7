// Entry iterators against the records that the dictionary was written from.
#include "kz/dic_iterator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "kz/dic_error.h"
#include "kz/dictionary.h"
#include "tests/common/dictionary/dictionary_file.h"
#include "tests/common/dictionary/slow_dictionary.h"
#include "tests/support/temp_dir.h"

namespace kz::test {
namespace {

using kz::operator""_1251;
using kz::operator""_1252;

// What a walk hands out.
struct Parts {
  std::string record, headword, code, body, extra;
  bool operator==(const Parts&) const = default;
};

void PrintTo(const Parts& p, std::ostream* out) {
  *out << p.record << " -> " << p.headword << '|' << p.code << '|' << p.body << '|' << p.extra;
}

constexpr const char* kUntouched = "untouched";

Parts split(const std::string& record) {
  const std::size_t star = record.rfind('*');
  Parts parts{record, record.substr(0, star), "", "", kUntouched};
  if (star == std::string::npos || star + 1 == record.size()) return parts;
  parts.code = record.substr(star + 1, 1);
  const std::string rest = record.substr(star + 2);
  const std::size_t end = rest.find('\\');
  parts.body = rest.substr(0, end);
  if (end == std::string::npos) return parts;
  std::string tail = rest.substr(end);
  if (!tail.starts_with("\\\\")) {
    parts.extra = tail.substr(0, tail.find('\\', 1));
    tail = tail.substr(parts.extra.size());
  }
  if (tail.starts_with("\\\\")) parts.headword = tail.substr(2);
  return parts;
}

std::vector<Parts> walk(CDicEntryIterator* iterator, int16_t mode, const std::string& headword) {
  std::vector<Parts> all;
  std::array<char, DIC_ENTRY_ROOM> word{}, body{}, extra{};
  char code[2];
  headword.copy(word.data(), headword.size());
  std::string(kUntouched).copy(extra.data(), extra.size());
  const char* record =
      DicIteratorGetFirstEntry(iterator, word.data(), code, body.data(), extra.data(), mode);
  while (record != nullptr) {
    all.push_back({record, word.data(), code, body.data(), extra.data()});
    EXPECT_EQ(DicIteratorGetCounter(iterator), static_cast<int>(all.size()));
    extra = {};
    std::string(kUntouched).copy(extra.data(), extra.size());
    record = DicIteratorGetNextEntry(iterator, word.data(), code, body.data(), extra.data());
  }
  return all;
}

// The range and the filter of a walk.
struct Wish {
  const char* from = nullptr;
  const char* to = nullptr;
  const char* filter = nullptr;
  int16_t include = 0;
};

class IteratorTest : public testing::Test {
 protected:
  std::string random_word(const std::string& letters) {
    std::string word(1 + random_() % 4, ' ');
    for (char& c : word) c = letters[random_() % letters.size()];
    return word;
  }

  DictionaryFile random_dictionary() {
    // A packed record can hold neither the letter yo nor œ.
    const struct {
      const char* language;
      char type;
      int size;
      bool may_pack;
      std::string letters;
    } kinds[] = {{"ENRU", 'C', 26, true, "abcmyz"},
                 {"RUEN", 'C', 32, false, std::string(U"абеёмюя7"_1251)},
                 {"DERU", 'C', 43, true, std::string(U"aäbcüuzß7"_1252)},
                 {"EN", 'S', 26, true, "abyz19"},
                 {"FR", 'C', 43, false, std::string(U"aàçdéeoœpz7"_1252)}};
    const auto& kind = kinds[random_() % 5];
    DictionaryFile file;
    file.language = kind.language;
    file.alphabet_size = kind.size;
    file.type = kind.type;
    file.depth = kind.size == 32 && random_() % 2 != 0 ? 5 : random_() % 2 != 0 ? 3 : 2;
    file.packing = kind.may_pack && random_() % 2 != 0;
    letters_ = kind.letters;
    const char* const rests[] = {
        "N1.a", "v",     "n\\x1\\y2", "Vb\\\\Shown form",    "n\\4\\\\Form", "Adjbo[dy]*m", "",
        "N\\",  "N\\\\", "vb*",       "A\\one\\two\\\\three"};
    std::set<std::string> words;
    for (auto count = 1 + random_() % 60; count > 0; --count) words.insert(random_word(letters_));
    for (const auto& word : words) {
      file.records.push_back({word, rests[random_() % std::size(rests)]});
    }
    return file;
  }

  // A letter without its accent.
  static char base(char c, const std::string& language) {
    const bool russian = language[0] == 'R';
    const std::string_view accented = russian ? U"ё"_1251 : U"äüßàçé"_1252;
    const std::size_t at = accented.find(c);
    return at == std::string_view::npos ? c : (russian ? U"е"_1251 : "ausace")[at];
  }
  // Where a range ends: letters by code, or by place in the alphabet of 43; -1 for what has none.
  static int place(char c, const std::string& language) {
    const char letter = base(c, language);
    if (language[0] != 'D' && language[0] != 'F') return static_cast<unsigned char>(letter);
    const int place = slot({letter}, 0, 43);
    return place == 43 ? -1 : place;
  }

  static bool passes(const Wish& wish, const Parts& parts) {
    const std::string filter = wish.filter != nullptr ? wish.filter : "";
    if (filter.empty()) return true;
    const bool listed = !parts.code.empty() && filter.find(parts.code) != std::string::npos;
    return listed == (wish.include != 0);
  }

  static std::vector<Parts> expected(const std::vector<std::string>& records,
                                     const std::string& language, const Wish& wish, bool skip) {
    const std::string from = wish.from != nullptr ? wish.from : "";
    const std::string to = wish.to != nullptr ? wish.to : "";
    const bool russian = language[0] == 'R';
    const auto first = russian ? static_cast<char>(U'а'_1251) : 'a';
    const auto last = russian ? static_cast<char>(U'я'_1251) : 'z';
    const char start = from.empty() ? first : from[0];
    const char end = wish.to == nullptr ? start : to.empty() ? last : to[0];
    std::vector<Parts> result;
    // In Windows-1252 the Russian first letter is à.
    bool begun = !skip || start == 'a' || start == static_cast<char>(U'а'_1251);
    for (const std::string& record : records) {
      begun = begun || base(record[0], language) == base(start, language);
      if (!begun) continue;
      if (place(record[0], language) > place(end, language)) break;
      if (passes(wish, split(record))) result.push_back(split(record));
    }
    return result;
  }

  Wish random_wish() {
    static std::string from, to;
    static const char* const filters[] = {nullptr, "", "nv", "N", "nvNVA"};
    from = random_() % 3 == 0 ? "" : random_word(letters_);
    if (random_() % 8 == 0) from = "!" + from;
    to = random_() % 3 == 0 ? "" : random_word(letters_);
    return {random_() % 4 == 0 ? nullptr : from.c_str(), random_() % 3 == 0 ? nullptr : to.c_str(),
            filters[random_() % std::size(filters)], static_cast<int16_t>(random_() % 2)};
  }

  static void write_words(const std::string& path, std::initializer_list<const char*> words) {
    DictionaryFile file;
    for (const char* word : words) file.records.push_back({word, "Bx"});
    file.write(path);
  }

  TempDir dir_;
  const std::string path_ = dir_.file("d.dic");
  CDicEntryIterator walker_;
  std::mt19937 random_{11};
  std::string letters_;
};

// All records from the first one, or from where a search finds the word.
std::vector<std::string> records_from(SlowDictionary& slow, const char* word, int16_t mode) {
  std::vector<std::string> records;
  for (auto record = slow.find(word, mode); record; record = slow.next())
    records.push_back(*record);
  return records;
}

TEST_F(IteratorTest, WalksTheRecordsOfTheRangeThatPassTheFilter) {
  for (int round = 0; round < 150; ++round) {
    DictionaryFile file = random_dictionary();
    SlowDictionary slow(file.write(path_));
    const auto all = records_from(slow, nullptr, 0);
    ASSERT_EQ(all.size(), file.records.size());
    for (const int16_t mode : {int16_t{-1}, int16_t{0}, int16_t{1}, int16_t{2}, int16_t{4}}) {
      CDic* dictionary = mode >= 0 ? DicOpen(path_.c_str(), mode) : nullptr;
      const Wish wish = random_wish();
      // No word of any dictionary begins like this; others count even when there are none.
      const bool indexed = wish.from == nullptr || *wish.from != '!';
      const auto open = [&] {
        return DicIteratorOpen(dictionary, path_.c_str(), wish.from, wish.to, 77, wish.filter,
                               wish.include);
      };
      CDicEntryIterator* const iterator = open();
      ASSERT_EQ(iterator != nullptr, indexed);
      if (iterator == nullptr) {
        // The caller's dictionary is still the caller's.
        EXPECT_EQ(dictionary != nullptr, DicFind(dictionary, nullptr, 0, 2) != nullptr);
        DicClose(dictionary);
        continue;
      }
      char language[5];
      EXPECT_EQ(DicIteratorGetLanguage(iterator, language),
                DicIteratorGetLanguage(iterator, nullptr));
      EXPECT_EQ(language, file.language);
      EXPECT_TRUE(dictionary == nullptr || DicIteratorGetDicHandler(iterator) == dictionary);
      const auto wanted = expected(all, file.language, wish, true);
      ASSERT_EQ(walk(iterator, 0, ""), wanted);
      ASSERT_EQ(walk(iterator, 0, "anything"), wanted);  // a first call begins again

      const std::string& word = file.records[random_() % file.records.size()].word;
      for (const int16_t search : {int16_t{1}, int16_t{2}, int16_t{-1}}) {
        if (mode == 1) break;
        ASSERT_EQ(walk(iterator, search, word),
                  expected(records_from(slow, word.c_str(), search), file.language, wish, false));
      }
      DicIteratorClose(iterator);
    }
  }
}

TEST_F(IteratorTest, WithoutAHeadwordASearchTakesTheFirstLetterOfTheRange) {
  write_words(path_, {"apple", "bear", "bee", "cat"});
  const auto open = [&](CDic* dictionary, const char* from, const char* to) {
    return walker_.OpenIterator(dictionary, path_.c_str(), from, to, 0, nullptr, 0);
  };
  const auto first = [&](char* word, int16_t mode) {
    return walker_.GetFirstEntry(word, nullptr, nullptr, nullptr, mode);
  };
  EXPECT_EQ(open(nullptr, "!be", ""), nullptr);
  const std::string long_word(500, 'b');  // cut to its field
  ASSERT_EQ(open(nullptr, long_word.c_str(), long_word.c_str()), &walker_);
  // The first letter counts; no word need begin with the others.
  ASSERT_EQ(open(nullptr, "bob", ""), &walker_);
  char word[80] = "";
  EXPECT_STREQ(first(word, -1), "bear*Bx");
  EXPECT_STREQ(first(nullptr, -1), "bear*Bx");
  EXPECT_STREQ(first(word, -1), "bear*Bx");
  EXPECT_STREQ(word, "bear");
  EXPECT_STREQ(walker_.GetNextEntry(word, nullptr, nullptr, nullptr), "bee*Bx");
  EXPECT_EQ(walker_.GetCounter(), 2);

  // Opening again closes first, and works on another dictionary.
  write_words(dir_.file("z.dic"), {"zebra"});
  CDic* const borrowed = DicOpen(dir_.file("z.dic").c_str(), 0);
  open(borrowed, nullptr, "");
  EXPECT_STREQ(first(word, 0), "zebra*Bx");
  walker_.CloseIterator(1);  // the dictionary is left open
  EXPECT_EQ(first(word, 0), nullptr);
  EXPECT_EQ(walker_.GetNextEntry(word, nullptr, nullptr, nullptr), nullptr);
  EXPECT_EQ(walker_.GetLanguage(nullptr), nullptr);
  EXPECT_EQ(walker_.GetDicHandler(), nullptr);
  EXPECT_STREQ(DicFind(borrowed, "zebra", 0, 2), "zebra*Bx");
  DicClose(borrowed);
}

// The texts belong to the dictionary that opening again closes or keeps.
TEST_F(IteratorTest, OpensAnewFromItsOwnDictionaryPathAndRecord) {
  write_words(path_, {"apple", "bear", "bee", "cat"});
  for (const bool by_handle : {true, false}) {
    SCOPED_TRACE(by_handle);
    ASSERT_NE(walker_.OpenIterator(nullptr, path_.c_str(), "b", "c", 0, nullptr, 0), nullptr);
    const char* const record = walker_.GetFirstEntry(nullptr, nullptr, nullptr, nullptr, 0);
    ASSERT_STREQ(record, "bear*Bx");
    CDic* const own = walker_.GetDicHandler();
    ASSERT_EQ(walker_.OpenIterator(by_handle ? own : nullptr, DicGetPath(own), record, record, 0,
                                   record + 5, 1),
              &walker_);
    EXPECT_TRUE(!by_handle || walker_.GetDicHandler() == own);
    EXPECT_EQ(walk(&walker_, 0, "").size(), 2U);  // all of b
  }
  // A dictionary that cannot be walked so is the caller's again.
  CDic* const own = walker_.GetDicHandler();
  EXPECT_EQ(walker_.OpenIterator(own, nullptr, "!", nullptr, 0, nullptr, 0), nullptr);
  EXPECT_EQ(walker_.GetDicHandler(), nullptr);
  EXPECT_STREQ(DicFind(own, "cat", 0, 2), "cat*Bx");
  DicClose(own);
}

TEST_F(IteratorTest, MissingIteratorsAndFilesGiveNothing) {
  EXPECT_EQ(DicIteratorOpen(nullptr, "/no/such.dic", nullptr, "", 0, nullptr, 0), nullptr);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FILE);
  EXPECT_EQ(DicIteratorOpen(nullptr, nullptr, nullptr, "", 0, nullptr, 0), nullptr);
  EXPECT_EQ(DicIteratorGetFirstEntry(nullptr, nullptr, nullptr, nullptr, nullptr, 0), nullptr);
  EXPECT_EQ(DicIteratorGetNextEntry(nullptr, nullptr, nullptr, nullptr, nullptr), nullptr);
  EXPECT_EQ(DicIteratorGetLanguage(nullptr, nullptr), nullptr);
  EXPECT_EQ(DicIteratorGetCounter(nullptr), 0);
  EXPECT_EQ(DicIteratorGetDicHandler(nullptr), nullptr);
  DicIteratorClose(nullptr);
}

}  // namespace
}  // namespace kz::test

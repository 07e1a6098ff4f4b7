// Letter numbering, character tests, and the image that a written index leaves in the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

#include "kz/dic_error.h"
#include "kz/dic_index.h"
#include "kz/file.h"
#include "tests/common/dictionary/dictionary_file.h"
#include "tests/common/dictionary/scratch_file.h"
#include "text/literal.h"

using namespace kz::test;
using kz::operator""_1251;

namespace {

TEST(LetterNumbering, FollowsTheAlphabetsInBothDirections) {
  // The 43 letters by their Windows-1252 codes.
  constexpr int kWestern[] = {97,  224, 226, 228, 98,  99,  231, 100, 101, 232, 233,
                              234, 235, 102, 103, 104, 105, 238, 239, 106, 107, 108,
                              109, 110, 111, 244, 246, 156, 112, 113, 114, 115, 223,
                              116, 117, 249, 251, 252, 118, 119, 120, 121, 122};
  for (int c = 0; c < 256; ++c) {
    const int western = static_cast<int>(std::find(kWestern, kWestern + 43, c) - kWestern);
    const int russian = c >= 224 ? c - 224 : c == 184 ? 5 : 32;  // yo is ye
    const auto byte = static_cast<signed char>(c);
    EXPECT_EQ(lat_abc_index(byte), western) << c;
    EXPECT_EQ(Index0(c, "FRRU", 43), western) << c;
    EXPECT_EQ(ru_abc_index(byte), russian) << c;
    EXPECT_EQ(Index0(c, "RUEN", 32), russian) << c;
    EXPECT_EQ(Index0(byte, nullptr, 26), c - 'a') << c;
  }
  for (int slot = -1; slot <= 43; ++slot) {
    const int western = slot >= 0 && slot < 43 ? kWestern[slot] : 0;
    const int russian = slot >= 0 && slot < 32 ? 224 + slot : 0;
    EXPECT_EQ(lat_index_abc(slot), western);
    EXPECT_EQ(index_abc(slot, 43), western);
    EXPECT_EQ(ru_index_abc(slot), russian);
    EXPECT_EQ(index_abc(slot, 32), russian);
    EXPECT_EQ(index_abc(slot, 26), 'a' + slot);
  }
}

TEST(CharacterTests, AgreeWithTheListOfHeadwordMarks) {
  const std::string_view marks = "0123456789 \"#$%&'()+,-./:;<=>@[]~";
  ASSERT_EQ(marks.size(), 10u + 23u);
  for (int c = 0; c < 256; ++c) {
    const bool mark = marks.find(static_cast<char>(c)) != marks.npos;
    EXPECT_EQ(kz_dict_is_valid_char(c), mark) << c;
    EXPECT_EQ(kz_dict_is_valid_char1(c), c >= '0' && c <= '9') << c;
    EXPECT_EQ(IsValidLetterForIndex1(c), !mark && c != '*') << c;
    for (int n : {26, 32, 43}) {
      EXPECT_EQ(Index1(c, "ENRU", n), mark || c == '*' || c == 0 ? n : Index0(c, "ENRU", n)) << c;
    }
  }
}

TEST(CharacterTests, WordsBeginWithLettersOrDigits) {
  const struct {
    const char* word;
    int western, russian, valid;
  } cases[] = {{"Q!", 1, 0, 0},
               {"7", 1, 1, 1},
               {"-a", 0, 0, 0},
               {"", 0, 0, 0},
               {"a", 1, 0, 1},
               {"a*", 1, 0, 1},
               {"a-b", 1, 0, 1},
               {"aB", 1, 0, 0},
               {"a!", 1, 0, 0},
               {"1a", 1, 1, 1},
               {"*", 0, 0, 0},
               {nullptr, 0, 0, 0},
               {U"Ёж"_1251.data(), 0, 1, 0},
               {U"ёж"_1251.data(), 0, 1, 1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.word != nullptr ? c.word : "null");
    EXPECT_EQ(kz_dict_is_valid_en_word_begin(c.word), c.western);
    EXPECT_EQ(kz_dict_is_valid_ru_word_begin(c.word), c.russian);
    EXPECT_EQ(IsValidWordBegin(c.word), c.valid);
  }
}

// Writes an index over words that are one after the other from position 1000 on, 10 bytes each.
class Writer {
 public:
  Writer(const char* language, std::int16_t alphabet_size, std::int16_t depth) {
    EXPECT_EQ(file_.Open(scratch_.path(), 0x1002), 1);
    EXPECT_EQ(index_.Init(0, language, "C", alphabet_size, 0, depth, 539, 0, 0), 1);
    file_.Seek(1000, 0);
  }

  bool add(const std::string& word) {
    index_.SetFileIndex(file_, word.c_str());
    file_.Seek(10, 1);
    return index_.IsIndexChanged() != 0;
  }

  std::string image() {
    file_.Seek(0, 0);
    EXPECT_EQ(index_.Write(file_), 0);
    const Bytes bytes = scratch_.read();
    return {bytes.begin(), bytes.end()};
  }

 private:
  ScratchFile scratch_;
  ZCFile file_;
  CDicIndex index_{'R'};
};

TEST(IndexImage, HasTheFirstWordOfEveryGroup) {
  std::mt19937 random(4);
  const struct {
    const char* language;
    std::int16_t n, depth;
    std::size_t words;
  } cases[] = {{"ENRU", 26, 2, 200}, {"FR", 43, 2, 200}, {"ENRU", 26, 3, 200},
               {"RU", 32, 3, 200},   {"FR", 43, 3, 200}, {"RU", 32, 5, 4000}};
  for (const auto& [language, n, depth, count] : cases) {
    const std::string all = alphabet(n);
    const std::string first = depth == 5 ? all : all.substr(0, 5) + all.back();
    // Marks, the end of a word, a capital, and in Russian the letter that shares the slot of ye.
    const std::string next = first + "-. *" + (n == 32 ? "\xC0\xB8" : "Z");
    std::vector<std::string> words;
    for (std::size_t i = 0; i < count; ++i) {
      words.emplace_back(1, first[random() % first.size()]);
      for (std::size_t more = random() % 5; more > 0; --more) {
        words.back() += next[random() % next.size()];
      }
    }
    const auto cut = [](const std::string& word) { return word.substr(0, word.find('*')); };
    DictionaryFile order;
    order.depth = depth;
    order.alphabet_size = n;
    std::stable_sort(words.begin(), words.end(), [&](const auto& a, const auto& b) {
      return order.group(cut(a)) < order.group(cut(b));
    });
    // Words with a mark that come after the pairs of their row, and one without a first letter.
    const std::string last(1, all.back());
    if (depth == 3) words.insert(words.end(), {last + '-' + last, last + "-a", last + "-y", "Aa"});
    Writer writer(language, n, depth);
    std::vector<std::pair<std::string, std::int64_t>> places;
    for (std::size_t i = 0; i < words.size(); ++i) {
      const std::string word = cut(words[i]);
      const std::string before = i < 250 ? index_image(depth, n, places) : "";
      // No key has a capital, no cell a word that begins with one.
      const bool indexed = depth == 5 ? word.substr(0, 5).find('\xC0') == word.npos : word != "Aa";
      if (indexed) places.emplace_back(word, 1000 + 10 * i);
      const bool added = writer.add(words[i]);
      if (i < 250) {
        EXPECT_EQ(added, index_image(depth, n, places) != before) << words[i];
      }
    }
    EXPECT_TRUE(writer.image() == index_image(depth, n, places)) << language << depth;
  }
}

TEST(IndexImage, HasTheDocumentedSizesAndIsEmptyAtFirst) {
  const struct {
    std::int16_t alphabet_size, depth;
    std::size_t size;
  } cases[] = {{26, 2, 2808},   {32, 2, 4224},   {43, 2, 7568}, {26, 3, 75816},
               {32, 3, 139392}, {43, 3, 332992}, {43, 5, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(Writer("FR", c.alphabet_size, c.depth).image(), std::string(c.size, '\xFF'));
  }
}

TEST(IndexImage, UnknownShapesAreRefused) {
  const struct {
    std::int16_t alphabet_size, depth;
    std::int32_t records;
    int made;
  } cases[] = {
      {26, 0, 0, 0},  {26, 1, 0, 0},  {26, 4, 0, 0},        {26, 6, 0, 0},
      {0, 2, 0, 0},   {25, 2, 0, 0},  {33, 2, 0, 0},        {-26, 2, 0, 0},
      {32, 2, -1, 1}, {32, 5, -1, 0}, {32, 5, INT32_MAX, 0}};  // a table has no key records
  for (const auto& c : cases) {
    EXPECT_EQ(CDicIndex('R').Init(0, "RU", "C", c.alphabet_size, 0, c.depth, 0, 0, c.records),
              c.made)
        << c.alphabet_size << ' ' << c.depth;
  }
}

TEST(IndexImage, TheAccessLetterIsKept) {
  CDicIndex index('R');
  // After the pointer to the virtual functions and the 16 bits of the access mode.
  const char& letter = reinterpret_cast<const char*>(&index)[sizeof(void*) + 2];
  EXPECT_EQ(letter, 'R');
  index.SetAccessMode('W');
  EXPECT_EQ(letter, 'W');
}

TEST(IndexImage, AFailedWriteIsReported) {
  const ScratchFile scratch(Bytes(10));
  ZCFile reader;
  ASSERT_TRUE(reader.Open(scratch.path(), 0x8020));
  CDicIndex index('R');
  ASSERT_EQ(index.Init(0, "EN", "C", 26, 0, 2, 0, 0, 0), 1);
  EXPECT_EQ(index.Write(reader), 195);

  // An index that could not be made is not written either.
  ZCFile writer;
  ASSERT_TRUE(writer.Open(ScratchFile().path(), 0x1002));
  EXPECT_EQ(index.Write(writer), 0);
  ASSERT_EQ(index.Init(0, "EN", "C", 27, 0, 2, 0, 0, 0), 0);
  EXPECT_EQ(index.Write(writer), 195);
  EXPECT_EQ(kz_dict_dic_errno(), 195);
  EXPECT_EQ(CDicIndex('R').Write(writer), 195);
}

}  // namespace

// Letter numbering, character tests, and the image that a written index leaves in the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <string_view>

#include "kz/dic_error.h"
#include "kz/dic_index.h"
#include "kz/file.h"
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

// Writes an index over words that stand one after the other from position 1000 on, 10 bytes each.
class Writer {
 public:
  Writer(const char* language, std::int16_t alphabet_size, std::int16_t depth) {
    EXPECT_EQ(file_.Open(scratch_.path(), 0x1002), 1);
    EXPECT_EQ(index_.Init(0, language, "C", alphabet_size, 0, depth, 539, 0, 0), 1);
    file_.Seek(1000, 0);
  }

  bool add(std::string_view word) {
    index_.SetFileIndex(file_, std::string(word).c_str());
    file_.Seek(10, 1);
    return index_.IsIndexChanged() != 0;
  }

  Bytes image() {
    file_.Seek(0, 0);
    EXPECT_EQ(index_.Write(file_), 0);
    return scratch_.read();
  }

 private:
  ScratchFile scratch_;
  ZCFile file_;
  CDicIndex index_{'R'};
};

std::int32_t cell(const Bytes& image, int number) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) {
    value = value << 8 | image.at(static_cast<std::size_t>(number) * 4 + i);
  }
  return static_cast<std::int32_t>(value);
}

// Checks that an image holds the given cells and -1 everywhere else.
void expect_cells(const Bytes& image, std::size_t size, const std::map<int, std::int32_t>& cells) {
  ASSERT_EQ(image.size(), size);
  for (int i = 0; i < static_cast<int>(size / 4); ++i) {
    const auto expected = cells.find(i);
    EXPECT_EQ(cell(image, i), expected == cells.end() ? -1 : expected->second) << i;
  }
}

TEST(IndexImage, Depth2KeepsRowsOfSecondLettersWithTheHeadLast) {
  Writer writer("ENRU", 26, 2);
  EXPECT_TRUE(writer.add("b"));        // 1000: row head
  EXPECT_FALSE(writer.add("b-x"));     // a mark counts as no letter
  EXPECT_FALSE(writer.add("bZ"));      // nor has a capital a slot
  EXPECT_TRUE(writer.add("ba"));       // 1030
  EXPECT_FALSE(writer.add("bat"));     // same two letters
  EXPECT_TRUE(writer.add("bz"));       // 1050
  EXPECT_FALSE(writer.add("Bz"));      // no group without a first letter
  EXPECT_TRUE(writer.add("ca*rest"));  // 1070: head and pair together
  EXPECT_TRUE(writer.add("d*a"));      // 1080: the word ends before '*'
  expect_cells(writer.image(), 2808,
               {{27 + 26, 1000},
                {27 + 0, 1030},
                {27 + 25, 1050},
                {54 + 26, 1070},
                {54 + 0, 1070},
                {81 + 26, 1080}});
}

TEST(IndexImage, Depth3KeepsTheSameOneLevelDown) {
  Writer writer("RU", 32, 3);
  const auto at = [](int i, int j, int k) { return (i * 33 + j) * 33 + k; };
  EXPECT_TRUE(writer.add(U"ежа"_1251));   // 1000: row, pair and group
  EXPECT_FALSE(writer.add(U"ёжа"_1251));  // the same slots
  EXPECT_TRUE(writer.add(U"ежи"_1251));   // 1020
  EXPECT_TRUE(writer.add(U"ел"_1251));    // 1030: a pair alone
  EXPECT_TRUE(writer.add(U"ель"_1251));   // 1040
  EXPECT_TRUE(writer.add(U"и-а"_1251));   // 1050: a mark, then a letter
  EXPECT_FALSE(writer.add(U"и.а"_1251));
  EXPECT_TRUE(writer.add(U"и-б"_1251));  // 1070
  EXPECT_TRUE(writer.add(U"из"_1251));   // 1080
  EXPECT_TRUE(writer.add(U"и-я"_1251));  // 1090: too late, but the cell is free
  EXPECT_FALSE(writer.add(U"и-б"_1251));
  EXPECT_FALSE(writer.add(U"из-за"_1251));
  expect_cells(writer.image(), 139392,
               {{at(5, 32, 32), 1000},
                {at(5, 6, 32), 1000},
                {at(5, 6, 0), 1000},
                {at(5, 6, 8), 1020},
                {at(5, 11, 32), 1030},
                {at(5, 11, 28), 1040},
                {at(8, 32, 32), 1050},
                {at(8, 32, 0), 1050},
                {at(8, 32, 1), 1070},
                {at(8, 7, 32), 1080},
                {at(8, 32, 31), 1090}});
}

TEST(IndexImage, Depth5ListsKeysOfFiveSixBitCodes) {
  Writer writer("RU", 32, 5);
  writer.add("1");             // every code 0
  writer.add(U"а"_1251);       // 8
  writer.add(U"а-б*"_1251);    // 8 4 9
  writer.add(U"абвгд"_1251);   // 8 9 10 11 12
  writer.add(U"абвгде"_1251);  // the same five
  writer.add(U"абв Я"_1251);   // a capital cannot be indexed
  writer.add(U"я ')/"_1251);   // 39 1 2 3 6
  const auto key = [](std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d,
                      std::uint32_t e) { return a << 24 | b << 18 | c << 12 | d << 6 | e; };
  Bytes expected(5 * 8);
  const std::pair<std::uint32_t, std::uint32_t> records[] = {{0, 1000},
                                                             {key(8, 0, 0, 0, 0), 1010},
                                                             {key(8, 4, 9, 0, 0), 1020},
                                                             {key(8, 9, 10, 11, 12), 1030},
                                                             {key(39, 1, 2, 3, 6), 1060}};
  for (std::size_t i = 0; i < 5; ++i) {
    put_number(expected, i * 8, 4, records[i].first);
    put_number(expected, i * 8 + 4, 4, records[i].second);
  }
  EXPECT_EQ(writer.image(), expected);
}

TEST(IndexImage, Depth5HoldsAnyNumberOfKeys) {
  Writer writer("RU", 32, 5);
  for (int i = 0; i < 2048; ++i) {
    const int letters[] = {224 + i / 1024, 224 + i / 32 % 32, 224 + i % 32};
    EXPECT_TRUE(writer.add(std::string(std::begin(letters), std::end(letters))));
  }
  const Bytes image = writer.image();
  ASSERT_EQ(image.size(), 2048u * 8);
  for (int i = 0; i < 2048; ++i) {
    ASSERT_EQ(cell(image, 2 * i),
              (8 + i / 1024) << 24 | (8 + i / 32 % 32) << 18 | (8 + i % 32) << 12);
    ASSERT_EQ(cell(image, 2 * i + 1), 1000 + 10 * i);
  }
}

TEST(IndexImage, HasTheDocumentedSizesAndIsEmptyAtFirst) {
  const struct {
    std::int16_t alphabet_size, depth;
    std::size_t size;
  } cases[] = {{26, 2, 2808},   {32, 2, 4224},   {43, 2, 7568}, {26, 3, 75816},
               {32, 3, 139392}, {43, 3, 332992}, {43, 5, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(Writer("FR", c.alphabet_size, c.depth).image(), Bytes(c.size, 0xFF));
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
  // Behind the pointer to the virtual functions and the 16 bits of the access mode.
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

// Look-up, block sizes and block cache against slow models, and indexes of damaged files.
#include "dictionary/index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dictionary/block.h"
#include "kz/file.h"
#include "tests/common/dictionary/scratch_file.h"
#include "text/literal.h"

using namespace kz::test;
using kz::operator""_1251;

namespace {

struct Kind {
  const char* language;
  std::int16_t n;
};
constexpr Kind kLatin{"ENRU", 26};
constexpr Kind kRussian{"RUEN", 32};
constexpr Kind kWestern{"DERU", 43};

constexpr std::int32_t kIndexOffset = 1'000'000;

// An index of the given depth read from an image.
class Image {
 public:
  Image(Kind kind, std::int16_t depth, const Bytes& bytes, std::int16_t mode = 0,
        std::int32_t index_offset = kIndexOffset)
      : scratch_(bytes) {
    const auto records = static_cast<std::int32_t>(depth == 5 ? bytes.size() / 8 : 0);
    EXPECT_EQ(index_.Init(mode, kind.language, "C", kind.n, 0, depth, 539, index_offset, records),
              1);
    ZCFile file;
    EXPECT_EQ(file.Open(scratch_.path(), 0x8020), 1);
    EXPECT_EQ(core.read(file), 0);
  }

 private:
  ScratchFile scratch_;
  CDicIndex index_{'R'};

 public:
  kz::IndexCore core{index_};
};

Bytes image_of(const std::vector<std::int32_t>& cells) {
  Bytes bytes(cells.size() * 4);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    put_number(bytes, i * 4, 4, static_cast<std::uint32_t>(cells[i]));
  }
  return bytes;
}

// The rule for the end of a block, cell by cell: the first cell behind (i, j, k) in index order
// with a greater position. Depth 2 has no k.
struct SlowTable {
  int n, depth;
  std::vector<std::int32_t> cells;

  std::vector<int> places() const {
    std::vector<int> order{n};
    for (int s = 0; s < n; ++s) order.push_back(s);
    return order;
  }
  std::int32_t at(int i, int j, int k) const {
    const int number = depth == 2 ? i * (n + 1) + j : (i * (n + 1) + j) * (n + 1) + k;
    return cells[static_cast<std::size_t>(number)];
  }

  std::int32_t size(int i, int j, int k, bool widened) const {
    const std::int32_t position = at(i, j, k);
    const bool row_head = depth == 3 && j == n && k == n;
    bool behind = false;
    for (int a = i; a < n; ++a) {
      if (a > i) behind = true;
      for (int b : places()) {
        for (int c : depth == 3 ? places() : std::vector<int>{n}) {
          const bool counts = behind && !(row_head && a == i) && !(widened && c != n) &&
                              !(widened && a == i && b == j);
          if (counts && at(a, b, c) > position) return limit(at(a, b, c), position);
          if (a == i && b == j && c == k) behind = true;
        }
      }
    }
    return limit(kIndexOffset, position);
  }
  static std::int32_t limit(std::int32_t end, std::int32_t position) {
    return std::max(0, std::min(end, kIndexOffset) - position);
  }
};

std::vector<std::int32_t> random_cells(const Kind& kind, int depth, bool sorted, double density,
                                       std::mt19937& random) {
  const int n = kind.n;
  SlowTable table{n, depth, {}};
  table.cells.assign(static_cast<std::size_t>(n * (n + 1) * (depth == 3 ? n + 1 : 1)), -1);
  std::bernoulli_distribution used(density);
  std::uniform_int_distribution<std::int32_t> anywhere(-100'000, kIndexOffset + 300'000);
  std::uniform_int_distribution<std::int32_t> step(0, 3);
  std::int32_t position = 200;
  for (int a = 0; a < n; ++a) {
    for (int b : table.places()) {
      for (int c : depth == 3 ? table.places() : std::vector<int>{n}) {
        if (!used(random)) continue;
        position += step(random);
        const int number = depth == 2 ? a * (n + 1) + b : (a * (n + 1) + b) * (n + 1) + c;
        table.cells[static_cast<std::size_t>(number)] = sorted ? position : anywhere(random);
      }
    }
  }
  return table.cells;
}

// A word whose prefix has the given slots.
std::string word_of(const Kind& kind, int i, int j, int k) {
  std::string word;
  for (int slot : {i, j, k})
    word += slot == kind.n ? '-' : static_cast<char>(index_abc(slot, kind.n));
  return word;
}

TEST(BlockSize, IsTheDistanceThatVisitingCellByCellFinds) {
  std::mt19937 random(31);
  for (const Kind& kind : {kLatin, kRussian, kWestern}) {
    for (int depth : {2, 3}) {
      for (double density : {0.0005, 0.02, 0.7}) {
        for (bool sorted : {true, false}) {
          const SlowTable slow{kind.n, depth, random_cells(kind, depth, sorted, density, random)};
          Image image(kind, static_cast<std::int16_t>(depth), image_of(slow.cells));
          std::uniform_int_distribution<int> row(0, kind.n - 1), slot(0, kind.n);
          for (int trial = 0; trial < 150; ++trial) {
            const int i = row(random);
            const int j = trial % 5 == 0 ? kind.n : slot(random);
            const int k = depth == 2 || trial % 3 == 0 ? kind.n : slot(random);
            const std::string word = word_of(kind, i, j, k);
            ASSERT_TRUE(image.core.set_prefix(word.c_str()));
            const std::int32_t position = slow.at(i, j, k);
            const bool inside = position >= 124 && position <= kIndexOffset;
            ASSERT_EQ(image.core.lookup(), inside ? position : -1);
            if (!inside) continue;
            ASSERT_EQ(image.core.block_size(), slow.size(i, j, k, false))
                << i << " " << j << " " << k;
            const bool widens = depth == 3 && k == kind.n;
            ASSERT_EQ(image.core.widen(2), widens);
            if (widens) {
              ASSERT_EQ(image.core.block_size(), slow.size(i, j, k, true));
            }
          }
        }
      }
    }
  }
}

TEST(GroupWalk, VisitsEveryCellInsideTheRecordsInIndexOrder) {
  std::mt19937 random(32);
  for (int depth : {2, 3}) {
    const SlowTable slow{26, depth, random_cells(kLatin, depth, false, 0.3, random)};
    Image image(kLatin, static_cast<std::int16_t>(depth), image_of(slow.cells));
    std::vector<std::pair<std::int32_t, std::int32_t>> expected, found;
    for (int a = 0; a < 26; ++a) {
      for (int b : slow.places()) {
        for (int c : depth == 3 ? slow.places() : std::vector<int>{26}) {
          const std::int32_t position = slow.at(a, b, c);
          if (position < 124 || position > kIndexOffset) continue;
          expected.emplace_back(position, slow.size(a, b, c, false));
        }
      }
    }
    image.core.for_each_group(
        [&](std::int32_t position, std::int32_t size) { found.emplace_back(position, size); });
    EXPECT_EQ(found, expected);
  }
}

// --- Building and looking up, against the list of records. ---

// What the index tells words apart by: letter slots of a table, character codes of a key. No
// letter is 0 and so comes before the letters.
using Place = std::array<int, 5>;

Place place_of(const Kind& kind, int depth, const std::string& word) {
  Place place{};
  const std::string_view marks = " ')-./`";
  for (std::size_t i = 0; i < word.size() && i < static_cast<std::size_t>(depth); ++i) {
    const int c = static_cast<unsigned char>(word[i]);
    if (depth == 5) {
      place[i] = c >= 224 ? c - 224 + 8 : static_cast<int>(marks.find(word[i]) + 1);
      continue;
    }
    for (int slot = 0; slot < kind.n; ++slot) {
      if (index_abc(slot, kind.n) == c) place[i] = slot + 1;
    }
    if (kind.n == 32 && c == U'ё'_1251) place[i] = 6;
  }
  return place;
}

struct Record {
  std::string word;
  Place place;
  std::int32_t position;
};

class Model {
 public:
  Model(Kind kind, int depth, std::mt19937& random) : kind_(kind), depth_(depth) {
    for (int i = 0; i < 400; ++i) {
      const std::string word = random_word(random);
      records_.push_back({word, place_of(kind, depth, word), 0});
    }
    std::stable_sort(records_.begin(), records_.end(),
                     [](const Record& a, const Record& b) { return a.place < b.place; });
    for (Record& record : records_) {
      record.position = end_;
      end_ += static_cast<std::int32_t>(record.word.size()) + 3;
    }
  }

  std::string random_word(std::mt19937& random) const {
    std::string word;
    std::uniform_int_distribution<int> letter(0, std::min<int>(kind_.n - 1, 9)), choice(0, 9);
    for (int length = choice(random) / 2 + 1; length > 0; --length) {
      const int c = choice(random);
      if (!word.empty() && c < 2) {
        word += "- "[c];
      } else if (kind_.n == 32 && depth_ != 5 && c == 2) {
        word += static_cast<char>(U'ё'_1251);
      } else {
        word += static_cast<char>(index_abc(letter(random), kind_.n));
      }
    }
    return word;
  }

  Bytes build() const {
    const ScratchFile scratch;
    ZCFile file;
    EXPECT_EQ(file.Open(scratch.path(), 0x1002), 1);
    CDicIndex index('R');
    const auto depth = static_cast<std::int16_t>(depth_);
    EXPECT_EQ(index.Init(0, kind_.language, "C", kind_.n, 0, depth, 539, 0, 0), 1);
    for (const Record& record : records_) {
      file.Seek(record.position, 0);
      index.SetFileIndex(file, (record.word + "*x").c_str());
    }
    file.Seek(0, 0);
    EXPECT_EQ(index.Write(file), 0);
    return scratch.read();
  }

  // The first record that shares the letters of the word. In a table a place without a letter
  // leads to the head of the group before it.
  std::int32_t position(const Place& place) const {
    const auto first = std::find_if(records_.begin(), records_.end(), [&](const Record& record) {
      return same_group(place, record.place, letters(place));
    });
    return first == records_.end() ? -1 : first->position;
  }

  // The block reaches to the next record that begins a group of any kind; the block of a row head
  // of depth 3 to the next row, a widened one to the next pair.
  std::int32_t size(const Place& place, bool widened) const {
    const std::int32_t start = position(place);
    if (depth_ == 5 && widened) return end_ - start;
    const int places = depth_ == 3 && letters(place) == 1 ? 1 : widened ? 2 : depth_;
    for (std::size_t r = 1; r < records_.size(); ++r) {
      if (records_[r].position > start &&
          !same_group(records_[r].place, records_[r - 1].place, places)) {
        return records_[r].position - start;
      }
    }
    return end_ - start;
  }

  const std::vector<Record>& records() const { return records_; }
  std::int32_t end() const { return end_; }

 private:
  int letters(const Place& place) const {
    int places = depth_;
    while (depth_ != 5 && places > 1 && place[static_cast<std::size_t>(places) - 1] == 0) --places;
    return places;
  }
  static bool same_group(const Place& a, const Place& b, int places) {
    return std::equal(a.begin(), a.begin() + places, b.begin());
  }

  Kind kind_;
  int depth_;
  std::vector<Record> records_;
  std::int32_t end_ = 154;
};

TEST(IndexLookup, FindsTheBlockThatTheListOfRecordsGives) {
  std::mt19937 random(33);
  for (const Kind& kind : {kLatin, kRussian, kWestern}) {
    for (int depth : {2, 3, 5}) {
      if (depth == 5 && kind.n != 32) continue;  // other letters have no key codes
      for (int round = 0; round < 2; ++round) {
        const Model model(kind, depth, random);
        Image image(kind, static_cast<std::int16_t>(depth), model.build(), 0, model.end());
        const auto check = [&](const std::string& word) {
          SCOPED_TRACE(word + " at depth " + std::to_string(depth));
          const Place place = place_of(kind, depth, word);
          const std::int32_t position = model.position(place);
          ASSERT_EQ(image.core.word_position((word + "*~").c_str()), position);
          ASSERT_EQ(image.core.word_block_size(word.c_str()),
                    position < 0 ? -1 : model.size(place, false));
          if (position < 0) return;
          const bool widens = depth == 3 ? place[2] == 0 : depth == 5 && word.size() < 5;
          ASSERT_FALSE(image.core.widen(1));
          ASSERT_EQ(image.core.widen(2), widens);
          if (widens) {
            ASSERT_EQ(image.core.block_size(), model.size(place, true));
          }
        };
        for (const Record& record : model.records()) {
          check(record.word);
          const std::int32_t start = image.core.word_position(record.word.c_str());
          const std::int32_t end = start + image.core.block_size();
          ASSERT_TRUE(start <= record.position && record.position < end) << record.word;
        }
        for (int i = 0; i < 150; ++i) check(model.random_word(random));
      }
    }
  }
}

// --- Single rules. ---

TEST(IndexLookup, WordsBeginningWithDigitsGoToTheFirstRowThatHasRecords) {
  std::vector<std::int32_t> cells(26 * 27, -1);
  Image empty(kLatin, 2, image_of(cells));
  EXPECT_EQ(empty.core.word_position("1"), -1);
  cells[3 * 27 + 26] = 300;
  cells[3 * 27 + 0] = 310;
  cells[4 * 27 + 26] = 400;
  Image image(kLatin, 2, image_of(cells));
  for (const char* word : {"1", "1a", "9-", "3*x"}) {
    EXPECT_EQ(image.core.word_position(word), 300) << word;
    EXPECT_EQ(image.core.word_block_size(word), 10) << word;
  }
}

TEST(IndexLookup, SetPrefixTakesLowerCaseLettersOfTheLanguage) {
  const struct {
    Kind kind;
    std::int16_t depth;
    std::string_view word;
    bool taken;
  } cases[] = {{kLatin, 2, "ab", true},
               {kLatin, 2, "abZ", true},
               {kLatin, 2, "aZ", false},
               {kLatin, 2, "a~", true},
               {kLatin, 2, "a*Z", true},
               {kLatin, 2, "", false},
               {kLatin, 2, "*", false},
               {kLatin, 2, "!", false},
               {kLatin, 2, "-a", false},
               {kLatin, 2, "A", false},
               {kLatin, 2, "\xE9", false},
               {kLatin, 3, "abZ", false},
               {kLatin, 3, "a*Z", true},
               {kLatin, 3, "a-b", true},
               {kLatin, 3, "ab!", false},
               {kLatin, 3, "7", true},
               {kWestern, 3, "\xE9t\xE9", true},
               {kRussian, 3, U"ёж"_1251, true},
               {kRussian, 3, U"Ёж"_1251, false},
               {kRussian, 3, "ab", false},
               {kRussian, 5, U"дом-2"_1251, true},
               {kRussian, 5, U"домик!"_1251, true},
               {kRussian, 5, U"дом!"_1251, false},
               {kRussian, 5, "1-2", true},
               {kRussian, 5, "-1", false},
               {kRussian, 5, "doma", false}};
  for (const auto& c : cases) {
    CDicIndex index('R');
    ASSERT_EQ(index.Init(0, c.kind.language, "C", c.kind.n, 0, c.depth, 539, 154, 0), 1);
    EXPECT_EQ(kz::IndexCore(index).set_prefix(std::string(c.word).c_str()), c.taken) << c.word;
  }
}

TEST(IndexLookup, AnIndexWithoutLanguageTakesTheLettersOfItsAlphabet) {
  CDicIndex index('R');
  ASSERT_EQ(index.Init(0, "", "", 26, 0, 2, 256, 154, 0), 1);
  EXPECT_TRUE(kz::IndexCore(index).set_prefix("word"));
  EXPECT_FALSE(kz::IndexCore(index).set_prefix("\xE9"));
}

// --- Damaged files. ---

TEST(DamagedIndex, MustFitTheFileBeforeAnythingIsAllocated) {
  EXPECT_TRUE(kz::index_fits(2, 26, 0, 154, 154 + 2808));
  EXPECT_FALSE(kz::index_fits(2, 26, 0, 154, 154 + 2807));
  EXPECT_TRUE(kz::index_fits(3, 43, 0, 0, 332992));
  EXPECT_FALSE(kz::index_fits(3, 43, 0, 1, 332992));
  EXPECT_TRUE(kz::index_fits(5, 32, 10, 200, 280));
  EXPECT_FALSE(kz::index_fits(5, 32, 11, 200, 280));
  EXPECT_FALSE(kz::index_fits(5, 32, 0x7FFFFFFF, 200, 0xFFFFFFFF));
  EXPECT_FALSE(kz::index_fits(5, 32, -1, 200, 280));
  EXPECT_TRUE(kz::index_fits(2, 26, -1, 154, 154 + 2808)) << "a table has no key records";
  EXPECT_FALSE(kz::index_fits(2, 26, 0, -1, 1 << 20));
  EXPECT_FALSE(kz::index_fits(4, 26, 0, 154, 1 << 20));
  EXPECT_FALSE(kz::index_fits(2, 27, 0, 154, 1 << 20));
}

TEST(DamagedIndex, IsRefusedWhenCutShort) {
  for (const std::int16_t depth : std::initializer_list<std::int16_t>{2, 5}) {
    CDicIndex index('R');
    ASSERT_EQ(index.Init(0, "RU", "C", 32, 0, depth, 539, 154, 528), 1);
    const ScratchFile scratch(Bytes(4223));
    ZCFile file;
    ASSERT_TRUE(file.Open(scratch.path(), 0x8020));
    EXPECT_EQ(kz::IndexCore(index).read(file), 202);
  }
}

TEST(DamagedIndex, KeysThatPointOutsideAreNotFollowed) {
  Bytes bytes(4 * 8);
  const std::uint32_t key = 8u << 24;
  const std::uint32_t positions[] = {200, 0xFFFFFFFF, 100, 0x80000000};
  for (std::uint32_t i = 0; i < 4; ++i) {
    put_number(bytes, i * 8, 4, key + (i << 24));
    put_number(bytes, i * 8 + 4, 4, positions[i]);
  }
  Image image(kRussian, 5, bytes);
  EXPECT_EQ(image.core.word_position(U"а"_1251.data()), 200);
  EXPECT_EQ(image.core.word_block_size(U"а"_1251.data()), kIndexOffset - 200);
  for (std::string_view word : {U"б"_1251, U"в"_1251, U"г"_1251}) {
    EXPECT_EQ(image.core.word_position(word.data()), -1);
    EXPECT_EQ(image.core.cached_block(), nullptr);
  }
  int groups = 0;
  image.core.for_each_group([&](std::int32_t, std::int32_t) { ++groups; });
  EXPECT_EQ(groups, 1);
}

// --- Block cache. ---

std::unique_ptr<kz::Block> block() { return std::make_unique<kz::Block>(); }

TEST(BlockCache, SharesABlockWithTheHeadsOfTheSameGroup) {
  std::vector<std::int32_t> cells(26 * 27 * 27, -1);
  const auto at = [&](int i, int j, int k) -> std::int32_t& {
    return cells[static_cast<std::size_t>((i * 27 + j) * 27 + k)];
  };
  at(0, 26, 26) = at(0, 1, 26) = at(0, 1, 2) = 200;  // abc
  at(0, 1, 3) = 300;                                 // abd
  at(1, 26, 26) = at(1, 0, 26) = at(1, 0, 0) = 400;  // baa, alone in its row
  Image image(kLatin, 3, image_of(cells), 4);
  ASSERT_TRUE(image.core.has_cache());

  const auto cached = [&](const char* word) {
    EXPECT_GE(image.core.word_block_size(word), 0);
    return image.core.cached_block();
  };
  EXPECT_EQ(cached("abc"), nullptr);
  kz::Block* abc = image.core.put_block(block());
  ASSERT_NE(abc, nullptr);
  EXPECT_EQ(cached("abc"), abc);
  EXPECT_EQ(cached("ab"), abc);
  EXPECT_EQ(cached("a"), nullptr) << "the row reaches further than this block";
  EXPECT_EQ(cached("abd"), nullptr);

  cached("baa");
  kz::Block* baa = image.core.put_block(block());
  EXPECT_EQ(cached("ba"), baa);
  EXPECT_EQ(cached("b"), baa);

  // A widened group is not what the cache keeps.
  cached("ab");
  ASSERT_TRUE(image.core.widen(2));
  image.core.block_size();
  EXPECT_EQ(image.core.cached_block(), nullptr);
  EXPECT_EQ(image.core.put_block(block()), nullptr);
  EXPECT_EQ(cached("ab"), abc);
}

TEST(BlockCache, HasOneCellPerKey) {
  Bytes bytes(2 * 8);
  put_number(bytes, 0, 4, 8u << 24);
  put_number(bytes, 4, 4, 200);
  put_number(bytes, 8, 4, 9u << 24);
  put_number(bytes, 12, 4, 200);
  Image image(kRussian, 5, bytes, 2);
  image.core.word_block_size(U"б"_1251.data());
  kz::Block* kept = image.core.put_block(block());
  EXPECT_EQ(image.core.cached_block(), kept);
  image.core.word_block_size(U"а"_1251.data());
  EXPECT_EQ(image.core.cached_block(), nullptr);
}

TEST(BlockCache, ExistsInModes2And4UntilFree) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{0, 1, 2, 4}) {
    CDicIndex index('R');
    ASSERT_EQ(index.Init(mode, "EN", "C", 26, 0, 2, 539, 154, 0), 1);
    const kz::IndexCore core(index);
    EXPECT_EQ(core.access_mode(), mode);
    EXPECT_EQ(core.has_cache(), mode == 2 || mode == 4);
    index.Free();
    EXPECT_FALSE(core.has_cache());
    EXPECT_EQ(kz::IndexCore(index).word_block_size("a"), -1);
  }
}

TEST(GroupList, PrintsOneLinePerGroup) {
  std::vector<std::int32_t> cells(32 * 33, -1);
  cells[5 * 33 + 32] = 200;
  cells[5 * 33 + 6] = 1200;
  Image table(kRussian, 2, image_of(cells), 0, 1234567);
  const ScratchFile scratch;
  ZCFile file;
  ASSERT_TRUE(file.Open(scratch.path(), 0x1002));
  table.core.print(file);

  Bytes keys(8);
  put_number(keys, 0, 4, 12u << 24 | 4u << 18);
  put_number(keys, 4, 4, 300);
  Image list(kRussian, 5, keys, 0, 400);
  list.core.print(file);
  const std::string expected = std::string("*200     '") +
                               std::string(U"е  ' 1000   \n*1200    'еж "_1251) +
                               "' 1233367\n*300     '" + std::string(U"д- ' 100    \n"_1251);
  const Bytes written = scratch.read();
  EXPECT_EQ(std::string(written.begin(), written.end()), expected);
}

}  // namespace

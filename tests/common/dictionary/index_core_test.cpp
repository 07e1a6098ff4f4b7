// Indexes that are refused before they are read.
#include "dictionary/index.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "kz/file.h"
#include "tests/support/temp_dir.h"

namespace {

TEST(DamagedIndex, MustFitTheFileBeforeAnythingIsAllocated) {
  const struct {
    std::int16_t depth, alphabet_size;
    std::int32_t records, offset;
    std::uint64_t length;
    bool fits;
  } cases[] = {{2, 26, 0, 154, 154 + 2808, true},  {2, 26, 0, 154, 154 + 2807, false},
               {2, 26, -1, 154, 154 + 2808, true},  // a table has no key records
               {3, 43, 0, 1, 332992, false},       {5, 32, 10, 200, 280, true},
               {5, 32, 11, 200, 280, false},       {5, 32, 0x7FFFFFFF, 200, 0xFFFFFFFF, false},
               {5, 32, -1, 200, 280, false},       {2, 26, 0, -1, 1 << 20, false},
               {4, 26, 0, 154, 1 << 20, false},    {2, 27, 0, 154, 1 << 20, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(kz::index_fits(c.depth, c.alphabet_size, c.records, c.offset, c.length), c.fits)
        << c.depth << ' ' << c.alphabet_size << ' ' << c.records << ' ' << c.offset;
  }
}

TEST(DamagedIndex, IsRefusedWhenCutShort) {
  const kz::test::TempDir dir;
  const std::string path = dir.write("index", std::string(4223, '\0'));
  for (const std::int16_t depth : std::initializer_list<std::int16_t>{2, 5}) {
    CDicIndex index('R');
    ASSERT_EQ(index.Init(0, "RU", "C", 32, 0, depth, 539, 154, 528), 1);
    ZCFile file;
    ASSERT_TRUE(file.Open(path.c_str(), 0x8020));
    EXPECT_EQ(kz::IndexCore(index).read(file), 202);
  }
}

}  // namespace

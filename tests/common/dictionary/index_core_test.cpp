// Words that an index can look up, and indexes that are refused before they are read.
#include "dictionary/index.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "kz/file.h"
#include "tests/support/temp_dir.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

TEST(IndexPrefix, TakesLowerCaseLettersOfTheLanguage) {
  struct Kind {
    const char* language;
    std::int16_t n;
  };
  constexpr Kind kLatin{"ENRU", 26}, kRussian{"RUEN", 32}, kWestern{"DERU", 43}, kNone{"", 26};
  const struct {
    Kind kind;
    std::int16_t depth;
    std::string_view word;
    bool taken;
  } cases[] = {{kLatin, 2, "abZ", true},
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
               {kRussian, 5, "doma", false},
               // Without a language, the letters of the alphabet.
               {kNone, 2, "word", true},
               {kNone, 2, "\xE9", false}};
  for (const auto& c : cases) {
    CDicIndex index('R');
    ASSERT_EQ(index.Init(0, c.kind.language, "C", c.kind.n, 0, c.depth, 539, 154, 0), 1);
    EXPECT_EQ(kz::IndexCore(index).set_prefix(std::string(c.word).c_str()), c.taken) << c.word;
  }
}

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

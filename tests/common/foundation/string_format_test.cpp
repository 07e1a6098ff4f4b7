// ZCString::Format: the text of snprintf in the "C" locale, in the room of the estimate.
#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <vector>

#include "kz/string.h"
#include "kz/time.h"
#include "tests/support/temp_dir.h"

namespace {

template <typename... Arguments>
void expect_as_snprintf(const char* format, Arguments... arguments) {
  std::vector<char> expected(2000);
  std::snprintf(expected.data(), expected.size(), format, arguments...);
  ZCString text("a text from before");
  text.Format(format, arguments...);
  EXPECT_STREQ(text, expected.data()) << format;
  EXPECT_EQ(text.GetLength(), static_cast<int>(std::string(expected.data()).size())) << format;
}

// The room that a fresh string has after formatting.
template <typename... Arguments>
int room(const char* format, Arguments... arguments) {
  ZCString text;
  text.Format(format, arguments...);
  return text.GetAllocLength();
}

TEST(StringFormat, EveryConversionFormatsAsSnprintf) {
  for (const char* flags : {"", "-", "+", "0", " ", "#", "-#", "'"}) {
    for (const char* width : {"", "1", "9", "300", "600"}) {
      for (const char* precision : {"", ".", ".0", ".3", ".400"}) {
        const std::string item = std::string("<%") + flags + width + precision;
        for (const char* conversion : {"d", "i", "o", "u", "x", "X", "hd", "hhu", "c"}) {
          const std::string format = item + conversion + "> %% %s";
          for (int number : {1, 65, -1, INT_MIN, INT_MAX}) {
            expect_as_snprintf(format.c_str(), number, "tail");
          }
        }
        for (const char* conversion : {"e", "E", "f", "F", "g", "G", "a", "A"}) {
          const std::string format = item + conversion + "> %d %s";
          for (double number : {0.0, -2.5, 1e300, HUGE_VAL}) {
            expect_as_snprintf(format.c_str(), number, 7, "tail");
          }
        }
        expect_as_snprintf((item + "s>%s").c_str(), "word", "tail");
        expect_as_snprintf((item + "lld>%s").c_str(), INT64_C(1) << 60, "tail");
        expect_as_snprintf((item + "ld>%s").c_str(), 1L, "tail");
        expect_as_snprintf((item + "zu>%s").c_str(), std::size_t{4}, "tail");
        expect_as_snprintf((item + "jd>%s").c_str(), std::intmax_t{-5}, "tail");
        expect_as_snprintf((item + "td>%s").c_str(), std::ptrdiff_t{-5}, "tail");
        expect_as_snprintf((item + "Lf>%s").c_str(), 2.5L, "tail");
        expect_as_snprintf((item + "p>%s").c_str(), static_cast<const void*>("x"), "tail");
        expect_as_snprintf((item + "ls>%s").c_str(), L"wide", "tail");
      }
    }
  }
  expect_as_snprintf("%*d|%-*.*s|%.*f|%s", -7, 5, 6, 2, "abcdef", -1, 2.5, "tail");
  expect_as_snprintf("%2$s %1$s", "world", "hello");
  expect_as_snprintf("no item at all");
  expect_as_snprintf("");
}

TEST(StringFormat, RoomFollowsTheEstimate) {
  const char* const null = nullptr;
  const char* const unterminated = "abcdef";
  struct {
    int room;
    int expected;
  } const cases[] = {
      {room("%s", null), 6},
      {room("%5.2f", 1.0), 128},
      {room("%100.50e", 1.0), 150},
      {room("%d", 1), 32},
      {room("%40d", 1), 40},
      {room("%20.15x", 1U), 35},
      {room("%#x", 1U), 34},
      {room("%p", null), 32},
      {room("%hd", 1), 32},
      {room("%c", 'x'), 2},
      {room("%-*c", 7, 'x'), 7},
      {room("%.1c", 'x'), 1},
      {room("%s", "abcdef"), 6},
      {room("%.2s", "abcdef"), 2},
      {room("%9.2s", "abcdef"), 9},
      {room("%s", ""), 1},
      {room("%.*s", 3, unterminated), 3},
      {room("abc"), 3 + 2 + 1},
      {room("%%"), 1},
      {room("x%d", 1), 3 + 32},
      {room("%s%s", "ab", null), 8},
      {room("%ls", L"wide"), 4},
      {room(""), 0},
      {room("%f", 1e300), 308},
      {room(std::string(100, 'x').c_str()), 5050},
      {room(std::string(5000, 'x').c_str()), 1 << 16},
      {room(std::string(100000, 'x').c_str()), 100000},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(cases[i].room, cases[i].expected) << "case " << i;
  }
}

TEST(StringFormat, ArgumentsMayComeFromTheStringItself) {
  for (const std::size_t length : {1U, 300U, 510U, 511U, 512U, 513U, 2000U}) {
    const std::string word(length, 'w');
    ZCString text(word.c_str());
    text.GetBuffer(5000);
    text.SetLanguage(1033);
    text.Format("<%s%s>", static_cast<const char*>(text), static_cast<const char*>(text));
    EXPECT_EQ(std::string(text), std::string("<").append(word).append(word).append(">"));
    EXPECT_EQ(text.GetLanguage(), 1033) << "the buffer was kept";
    ZCString format("%d %%");
    const char* const own_text = format;
    format.Format(own_text, 5);
    EXPECT_STREQ(format, "5 %");
  }
}

TEST(StringFormat, TheTextEndsAtItsFirstNulAndAtWhatCannotBeFormatted) {
  ZCString text("before");
  const ZCString sharer(text);
  text.Format("ab%cde", 0);
  EXPECT_EQ(text.GetLength(), 2);
  EXPECT_STREQ(sharer, "before");
  text.Format("ab%lc", static_cast<wint_t>(0x110000));  // no character
  EXPECT_EQ(text.GetLength(), 0);
  text = "before";
  const char* const null = nullptr;
  text.Format(null);
  EXPECT_EQ(text.GetLength(), 0);
}

TEST(StringFormat, FollowsNoLocaleOfTheProcess) {
  const kz::test::TempDir place;
  const std::string make = "localedef -i de_DE -f ISO-8859-1 --no-archive ";
  ASSERT_EQ(std::system((make + place.file("de_DE")).c_str()), 0);
  setenv("LOCPATH", place.file("").c_str(), 1);
  const char* const set = std::setlocale(LC_ALL, "de_DE");
  const std::string before = std::to_string(1.5);
  ZCString number;
  number.Format("%.1f", 1.5);
  const ZCString day = ZCTime(0).FormatGmt("%A");
  const std::string after = std::to_string(1.5);
  std::setlocale(LC_ALL, "C");
  unsetenv("LOCPATH");
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(before, "1,500000") << "not the locale that was made";
  EXPECT_STREQ(number, "1.5");
  EXPECT_STREQ(day, "Thursday");
  EXPECT_EQ(after, before) << "the locale of the process did not stay";
}

}  // namespace

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
        const auto expect = [&item](const char* conversion, auto argument) {
          expect_as_snprintf((item + conversion + ">%s").c_str(), argument, "tail");
        };
        expect("s", "word");
        expect("lld", INT64_C(1) << 60);
        expect("ld", 1L);
        expect("zu", std::size_t{4});
        expect("jd", std::intmax_t{-5});
        expect("td", std::ptrdiff_t{-5});
        expect("Lf", 2.5L);
        expect("p", static_cast<const void*>("x"));
        expect("ls", L"wide");
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
  const auto filler = [](std::size_t size) { return room(std::string(size, 'x').c_str()); };
  using Rooms = std::vector<int>;
  EXPECT_EQ((Rooms{room("%s", null), room("%s%s", "ab", null), room("%p", null)}),
            (Rooms{6, 8, 32}));
  EXPECT_EQ((Rooms{room("%5.2f", 1.0), room("%100.50e", 1.0), room("%f", 1e300)}),
            (Rooms{128, 150, 308}));
  EXPECT_EQ((Rooms{room("%d", 1), room("%40d", 1), room("x%d", 1), room("%hd", 1)}),
            (Rooms{32, 40, 3 + 32, 32}));
  EXPECT_EQ((Rooms{room("%20.15x", 1U), room("%#x", 1U)}), (Rooms{35, 34}));
  EXPECT_EQ((Rooms{room("%c", 'x'), room("%-*c", 7, 'x'), room("%.1c", 'x')}), (Rooms{2, 7, 1}));
  EXPECT_EQ((Rooms{room("%s", ""), room("%s", "abcdef"), room("%.2s", "abcdef")}),
            (Rooms{1, 6, 2}));
  EXPECT_EQ((Rooms{room("%9.2s", "abcdef"), room("%.*s", 3, "abcdef"), room("%ls", L"wide")}),
            (Rooms{9, 3, 4}));
  EXPECT_EQ((Rooms{room("abc"), room("%%"), room("")}), (Rooms{3 + 2 + 1, 1, 0}));
  EXPECT_EQ((Rooms{filler(100), filler(5000), filler(100000)}), (Rooms{5050, 1 << 16, 100000}));
}

TEST(StringFormat, ArgumentsMayComeFromTheStringItself) {
  for (const std::size_t length : {1U, 300U, 510U, 511U, 512U, 513U, 2000U}) {
    const std::string word(length, 'w');
    ZCString text(word.c_str());
    text.GetBuffer(5000);
    text.SetLanguage(1033);
    text.Format("<%s%s>", static_cast<const char*>(text), static_cast<const char*>(text));
    EXPECT_EQ(std::string(text), '<' + word + word + '>');
    EXPECT_EQ(text.GetLanguage(), 1033) << "the buffer was kept";
  }
  ZCString format("%d %%");
  format.Format(static_cast<const char*>(format), 5);
  EXPECT_STREQ(format, "5 %");
}

TEST(StringFormat, TheTextEndsAtItsFirstNulAndAtWhatCannotBeFormatted) {
  ZCString text("before");
  const ZCString sharer(text);
  EXPECT_EQ((text.Format("ab%cde", 0), text.GetLength()), 2);
  EXPECT_STREQ(sharer, "before");
  EXPECT_EQ((text.Format("ab%lc", static_cast<wint_t>(0x110000)), text.GetLength()), 0);
  text = "before";
  EXPECT_EQ((text.Format(static_cast<const char*>(nullptr)), text.GetLength()), 0);
}

TEST(StringFormat, FollowsNoLocaleOfTheProcess) {
  const kz::test::TempDir place;
  const std::string make = "localedef -i de_DE -f ISO-8859-1 --no-archive ";
  ASSERT_EQ(std::system((make + place.file("de_DE")).c_str()), 0);
  setenv("LOCPATH", place.file("").c_str(), 1);
  EXPECT_NE(std::setlocale(LC_ALL, "de_DE"), nullptr);
  ZCString number;
  number.Format("%.1f", 1.5);
  EXPECT_STREQ(number, "1.5");
  EXPECT_STREQ(ZCTime(0).FormatGmt("%A"), "Thursday");
  EXPECT_EQ(std::to_string(1.5), "1,500000") << "the locale of the process did not stay";
  std::setlocale(LC_ALL, "C");
  unsetenv("LOCPATH");
}

}  // namespace

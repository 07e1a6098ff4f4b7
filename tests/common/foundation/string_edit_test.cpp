// ZCString: extraction and change in place.
#include <climits>
#include <random>
#include <string>

#include "kz/string.h"
#include "tests/common/foundation/fixture.h"

using namespace std::string_literals;

namespace {

TEST(StringEdit, ExtractionIsCutToWhatThereIs) {
  const ZCString abc("abcdef");
  EXPECT_EQ(texts({abc.Mid(-2, 3), abc.Mid(4, 10), abc.Mid(6), abc.Mid(7)}), "abc|ef|||");
  EXPECT_EQ(texts({abc.Mid(2, -1), abc.Mid(2, INT_MAX), abc.Mid(-3)}), "|cdef|abcdef|");
  EXPECT_EQ(texts({abc.Mid(INT_MIN, 2), abc.Mid(INT_MAX, INT_MAX)}), "ab||");
  EXPECT_EQ(texts({abc.Right(10), abc.Right(2), abc.Right(-1)}), "abcdef|ef||");
  EXPECT_EQ(texts({abc.Left(9), abc.Left(0), abc.Left(-1)}), "abcdef|||");
  EXPECT_EQ(texts({abc.SpanIncluding("cba"), abc.SpanIncluding("x")}), "abc||");
  EXPECT_EQ(texts({abc.SpanExcluding("fe"), abc.SpanExcluding("x")}), "abcd|abcdef|");
}

TEST(StringEdit, GetInsideEndsAtTheLastUnescapedDelimiter) {
  const struct {
    const char *text, *inside;
    int position, end;
  } cases[] = {{"'ab'cd'", "ab'cd", 0, 6}, {"'a\\'b'", "a\\'b", 0, 5}, {"'abc", "'abc", 0, 0},
               {"'a\\'", "'a\\'", 0, 0},   {"''", "", 0, 1},           {"x\"a\"", "a", 1, 3},
               {"'a'", "", 3, 3},          {"'a'", "", -1, -1}};
  for (const auto& c : cases) {
    int position = c.position;
    EXPECT_EQ(text(ZCString(c.text).GetInside(position, '\\')), c.inside) << c.text;
    EXPECT_EQ(position, c.end) << c.text;
  }
}

TEST(StringEdit, WhiteSpaceIsCodes9To13And32) {
  for (int c = 0; c < 256; ++c) {
    const bool is_space = c == 32 || (c >= 9 && c <= 13);
    ZCString twice(static_cast<char>(c), 2);
    EXPECT_EQ(twice.IsSpace(0), is_space ? 1 : 0);
    EXPECT_EQ(twice.IsDigit(0), c >= '0' && c <= '9' ? 1 : 0);
    EXPECT_EQ(text(ZCString(twice).MakeOneSpace()), is_space ? " "s : text(twice));
    twice.Trim();
    EXPECT_EQ(twice.GetLength(), is_space ? 0 : 2);
  }
  ZCString inner(" \t a\0 b \n", 9), spaced("  a \t\n b  ");
  EXPECT_EQ((inner.TrimRight(), text(inner)), " \t a\0 b"s);
  EXPECT_EQ((inner.TrimLeft(), text(inner)), "a\0 b"s);
  EXPECT_EQ(text(spaced.MakeOneSpace()), " a b ");
  EXPECT_EQ(text(spaced), " a b ");
}

TEST(StringEdit, ReplaceAgreesWithASlowReferenceAndReusesItsBuffer) {
  std::mt19937 random(7);
  const auto any = [&random](unsigned longest) {
    std::string result(random() % (longest + 1), '\0');
    for (char& c : result) c = "ab"[random() % 2];
    return result;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string source = any(12), old_text = any(3), new_text = any(3);
    std::string expected;
    for (std::size_t i = 0; i < source.size();) {
      const bool found = !old_text.empty() && source.compare(i, old_text.size(), old_text) == 0;
      expected += found ? new_text : source.substr(i, 1);
      i += found ? old_text.size() : 1;
    }
    ZCString string(source.c_str());
    string.GetBuffer(40);
    string.SetLanguage(1049);
    const ZCString result = string.Replace(old_text.c_str(), new_text.c_str());
    ASSERT_EQ(text(result), expected) << source << ' ' << old_text << ' ' << new_text;
    ASSERT_EQ(text(string), expected);
    ASSERT_EQ(string.GetAllocLength(), 40);
    ASSERT_EQ(result.GetLanguage(), 1049);
  }
}

TEST(StringEdit, CharacterOverloadsReplaceLikeTextsOfOneCharacter) {
  const auto abab = [] { return ZCString("abab"); };
  const auto list = [] { return ZCString("a,b;c"); };
  EXPECT_EQ(texts({abab().Replace('a', 'x'), abab().Replace('a', '\0')}), "xbxb|bb|");
  EXPECT_EQ(texts({abab().Replace("ab", '-'), abab().Replace('b', "<>")}), "--|a<>a<>|");
  EXPECT_EQ(texts({ZCString("a\0b", 3).Replace('\0', 'x')}), "a\0b|"s) << "an empty text";
  EXPECT_EQ(texts({list().ReplaceOneOf(",;", ""), list().ReplaceOneOf(",;", '+')}), "abc|a+b+c|");
  EXPECT_EQ(texts({list().ReplaceOneOf(",;", ",;"), list().ReplaceOneOf("", "x")}),
            "a,;b,;c|a,b;c|");
}

TEST(StringEdit, InsertTakesEveryPositionInsideAndItsOwnText) {
  ZCString string;
  EXPECT_EQ(texts({string.Insert("x", 0), string.Insert(2, "y")}), "x|x|");
  EXPECT_EQ(texts({string.Insert(-1, "y"), string.Insert(1, "yz")}), "x|xyz|");
  string.GetBuffer(20);
  EXPECT_EQ(text(string.Insert(static_cast<const char*>(string) + 1, 2)), "xyyzz");
  EXPECT_EQ(string.GetAllocLength(), 20);
  EXPECT_EQ(text(string.Insert(static_cast<const char*>(string), 0)), "xyyzzxyyzz");
}

TEST(StringEdit, ScramblingKeepsTheLengthAndUndoesItself) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  ZCString plain(all.data(), 256), scrambled(plain);
  scrambled.Code();
  EXPECT_EQ(text(plain), all) << "the other sharer";
  EXPECT_EQ(text(scrambled).substr(0, 4), "\x7E\x7F\x7C\x7D");
  plain.Code();
  EXPECT_EQ(text(plain), text(scrambled));
  scrambled.DeCode();
  plain.Code();
  EXPECT_EQ(text(scrambled), all);
  EXPECT_EQ(text(plain), all);
}

}  // namespace

// ZCString: extraction and change in place.
#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>
#include <string_view>

#include "kz/string.h"

using namespace std::string_literals;

namespace {

std::string value(const ZCString& text) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength())};
}

TEST(StringEdit, ExtractionIsCutToWhatThereIs) {
  const ZCString text("abcdef");
  struct {
    ZCString part;
    const char* expected;
  } const cases[] = {
      {text.Mid(-2, 3), "abc"},
      {text.Mid(4, 10), "ef"},
      {text.Mid(6), ""},
      {text.Mid(7), ""},
      {text.Mid(2, -1), ""},
      {text.Mid(2, INT_MAX), "cdef"},
      {text.Mid(-3), "abcdef"},
      {text.Mid(INT_MIN, 2), "ab"},
      {text.Mid(INT_MAX, INT_MAX), ""},
      {text.Right(10), "abcdef"},
      {text.Right(2), "ef"},
      {text.Right(-1), ""},
      {text.Left(0), ""},
      {text.Left(-1), ""},
      {text.Left(9), "abcdef"},
      {text.SpanIncluding("cba"), "abc"},
      {text.SpanIncluding("x"), ""},
      {text.SpanExcluding("fe"), "abcd"},
      {text.SpanExcluding("x"), "abcdef"},
  };
  for (const auto& [part, expected] : cases) EXPECT_EQ(value(part), expected);
}

TEST(StringEdit, GetInsideEndsAtTheLastUnescapedDelimiter) {
  struct {
    const char* text;
    const char* inside;
    int position;
    int end;
  } const cases[] = {
      {"\"ab\"cd\"", "ab\"cd", 0, 6},
      {"\"a\\\"b\"", "a\\\"b", 0, 5},
      {"\"abc", "\"abc", 0, 0},
      {"\"a\\\"", "\"a\\\"", 0, 0},
      {"''", "", 0, 1},
      {"x'a'", "a", 1, 3},
      {"'a'", "", 3, 3},
      {"'a'", "", -1, -1},
  };
  for (const auto& c : cases) {
    int position = c.position;
    EXPECT_EQ(value(ZCString(c.text).GetInside(position, '\\')), c.inside) << c.text;
    EXPECT_EQ(position, c.end) << c.text;
  }
}

TEST(StringEdit, WhiteSpaceIsCodes9To13And32) {
  for (int c = 0; c < 256; ++c) {
    const bool is_space = c == 32 || (c >= 9 && c <= 13);
    ZCString text(static_cast<char>(c), 2);
    EXPECT_EQ(text.IsSpace(0), is_space ? 1 : 0);
    EXPECT_EQ(text.IsDigit(0), c >= '0' && c <= '9' ? 1 : 0);
    EXPECT_EQ(value(ZCString(text).MakeOneSpace()), is_space ? " "s : value(text));
    text.Trim();
    EXPECT_EQ(text.GetLength(), is_space ? 0 : 2);
  }
}

TEST(StringEdit, TrimmingKeepsInnerSpaceAndNuls) {
  ZCString text(" \t a\0 b \n", 9);
  text.TrimRight();
  EXPECT_EQ(value(text), " \t a\0 b"s);
  text.TrimLeft();
  EXPECT_EQ(value(text), "a\0 b"s);
  ZCString blank("\t\n");
  blank.TrimLeft();
  EXPECT_EQ(value(blank), "");
  ZCString spaced("  a \t\n b  ");
  EXPECT_EQ(value(spaced.MakeOneSpace()), " a b ");
  EXPECT_EQ(value(spaced), " a b ");
}

TEST(StringEdit, ReplaceAgreesWithASlowReferenceAndReusesItsBuffer) {
  std::mt19937 random(7);
  const auto text = [&random](unsigned longest) {
    std::string result(random() % (longest + 1), '\0');
    for (char& c : result) c = "ab"[random() % 2];
    return result;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string source = text(12);
    const std::string old_text = text(3);
    const std::string new_text = text(3);
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
    ASSERT_EQ(value(result), expected) << source << ' ' << old_text << ' ' << new_text;
    ASSERT_EQ(value(string), expected);
    ASSERT_EQ(string.GetAllocLength(), 40);
    ASSERT_EQ(result.GetLanguage(), 1049);
  }
}

TEST(StringEdit, CharacterOverloadsReplaceLikeTextsOfOneCharacter) {
  EXPECT_EQ(value(ZCString("abab").Replace('a', 'x')), "xbxb");
  EXPECT_EQ(value(ZCString("abab").Replace('a', '\0')), "bb");
  EXPECT_EQ(value(ZCString("a\0b", 3).Replace('\0', 'x')), "a\0b"s) << "an empty text";
  EXPECT_EQ(value(ZCString("abab").Replace("ab", '-')), "--");
  EXPECT_EQ(value(ZCString("abab").Replace('b', "<>")), "a<>a<>");
  EXPECT_EQ(value(ZCString("a,b;c").ReplaceOneOf(",;", "")), "abc");
  EXPECT_EQ(value(ZCString("a,b;c").ReplaceOneOf(",;", '+')), "a+b+c");
  EXPECT_EQ(value(ZCString("a,b;c").ReplaceOneOf(",;", ",;")), "a,;b,;c");
  EXPECT_EQ(value(ZCString("a,b").ReplaceOneOf("", "x")), "a,b");
}

TEST(StringEdit, InsertTakesEveryPositionInsideAndItsOwnText) {
  ZCString text;
  EXPECT_EQ(value(text.Insert("x", 0)), "x");
  EXPECT_EQ(value(text.Insert(2, "y")), "x");
  EXPECT_EQ(value(text.Insert(-1, "y")), "x");
  EXPECT_EQ(value(text.Insert(1, "yz")), "xyz");
  text.GetBuffer(20);
  EXPECT_EQ(value(text.Insert(static_cast<const char*>(text) + 1, 2)), "xyyzz");
  EXPECT_EQ(text.GetAllocLength(), 20);
  EXPECT_EQ(value(text.Insert(static_cast<const char*>(text), 0)), "xyyzzxyyzz");
}

TEST(StringEdit, ScramblingKeepsTheLengthAndUndoesItself) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  const ZCString plain(all.data(), 256);
  ZCString text(plain);
  text.Code();
  EXPECT_EQ(value(plain), all) << "the other sharer";
  EXPECT_EQ(text.GetLength(), 256);
  EXPECT_EQ(text.Left(4), ZCString("\x7E\x7F\x7C\x7D"));
  EXPECT_EQ(value(text).find('\0'), static_cast<std::size_t>('~'));
  ZCString again(text);
  again.Code();
  text.DeCode();
  EXPECT_EQ(value(text), all);
  EXPECT_EQ(value(again), all);
}

}  // namespace

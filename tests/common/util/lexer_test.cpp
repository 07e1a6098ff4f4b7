// The lexers: tokens and lines.
#include "kz/lexer.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace {

TEST(StrLex, TokensOfATextAreThoseBetweenDelimiters) {
  const struct {
    const char *picture, *text;
    std::vector<std::pair<int, std::string>> tokens;  // where they begin
  } cases[] = {{nullptr, "  ab cd", {{2, "ab"}, {5, "cd"}}},
               {nullptr, "a\v\f\r\n\t b,\xA0 ", {{0, "a"}, {7, "b,\xA0"}}},
               {";\xFF", "\xFF;a b;;\x7F\xFF", {{2, "a b"}, {7, "\x7F"}}},
               {"", "a b", {{0, "a b"}}},
               {nullptr, " \n", {}}};
  for (const auto& [picture, text, tokens] : cases) {
    CStrLex lex(picture);
    char output[32] = "before";
    const char* at = lex.First(text, output);
    for (const auto& [begin, token] : tokens) {
      ASSERT_EQ(at, text + begin);
      EXPECT_EQ(output, token);
      EXPECT_EQ(lex.LastBegin(), at);
      EXPECT_EQ(lex.LastLen(), static_cast<int>(token.size()));
      const char* const end = at + token.size();
      EXPECT_EQ(lex.LastEnd(), *end == '\0' ? nullptr : end);
      at = lex.Next(output);
    }
    for (int again = 0; again < 2; ++again, at = lex.Next(output)) {
      EXPECT_EQ(at, nullptr);
      EXPECT_STREQ(output, "");
      EXPECT_TRUE(lex.LastBegin() == nullptr && lex.LastEnd() == nullptr);
    }
  }
}

TEST(StrLex, NumbersSelectTokensOfItsOwnCopy) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"a;bc,,d", {"a", "bc", "d", "d", "d"}},
      {";a;b;", {"a", "b", "", ""}},
      {"a", {"a", "a", "a"}},
      {";", {"", "", ""}},
      {"", {"", "", ""}}};
  for (const auto& [text, tokens] : cases) {  // of the numbers from 0 on
    CStrLex lex(";,");
    std::string given = text;
    EXPECT_EQ(lex.FirstStr(given.c_str()), tokens[0]);
    given.assign(given.size(), 'x');
    for (std::size_t n = 1; n < tokens.size(); ++n) {
      EXPECT_EQ(lex.GetAtStr(0), tokens[0]);
      EXPECT_STREQ(lex.GetAtStr(n == 1 ? -1 : INT_MIN), "");
      EXPECT_EQ(lex.NextStr(), tokens[n]) << text << ' ' << n;
      EXPECT_EQ(lex.GetStr(), tokens[n]);
      EXPECT_EQ(lex.GetAtStr(static_cast<int>(n) - 1), tokens[n - 1]);
    }
  }
  // Its own token is a text like any other.
  CStrLex lex(";,");
  lex.FirstStr("a b;c");
  lex.SetPic(" ");
  EXPECT_STREQ(lex.FirstStr(lex.GetStr()), "a");
  lex.SetPic(nullptr);
  EXPECT_STREQ(lex.FirstStr("\v\fx\ry"), "x");
  EXPECT_STREQ(lex.FirstStr(nullptr), "");
}

TEST(StrLex, ContinuesOnlyWhatWasBegun) {
  CStrLex lex(",");
  char output[] = "x";
  EXPECT_EQ(lex.Next(output), nullptr);
  EXPECT_STREQ(output, "");
  const char* const text = "a,b";
  EXPECT_EQ(lex.Get(text, nullptr), text);
  EXPECT_EQ(lex.Get(nullptr, nullptr), text + 2);
  const std::string large(40000, 'a');
  EXPECT_EQ(lex.First(large.c_str(), nullptr), large.c_str());
  EXPECT_EQ(lex.LastLen(), static_cast<std::int16_t>(40000));
}

TEST(StrLine, LinesEndAtCarriageReturnAndLineFeed) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"x\r\ny", {"x", "y"}},
      {"x\r\n", {"x"}},
      {"\r\n\r\nx\ny\rz\r", {"", "", "x\ny\rz\r"}},
      {std::string("a\0b\r\nc", 6), {std::string("a\0b", 3), "c"}},
      {"", {}},
  };
  for (const auto& [text, expected] : cases) {
    CStrLine lines;
    ZCString line = lines.GetFirst(ZCString(text.data(), static_cast<int>(text.size())));
    for (const std::string& wanted : expected) {
      EXPECT_EQ(std::string(line, static_cast<std::size_t>(line.GetLength())), wanted) << text;
      EXPECT_EQ(lines.EndOfBuffer(), 0);
      line = lines.GetNext();
    }
    EXPECT_EQ(line.GetLength() + lines.GetNext().GetLength(), 0);
    EXPECT_EQ(lines.EndOfBuffer(), 1);
  }
}

}  // namespace

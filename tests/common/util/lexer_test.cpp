// The lexers against a slow reading of the same rules.
#include "kz/lexer.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

const std::string kWhiteSpace = " \r\n\t\f\v";

struct Token {
  std::size_t begin;
  std::string text;
};

bool in(const std::string& set, char c) { return set.find(c) != std::string::npos; }

// All tokens, character by character.
std::vector<Token> tokens(const std::string& text, const std::string& picture) {
  std::vector<Token> result;
  bool inside = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (in(picture, text[i])) {
      inside = false;
    } else {
      if (!inside) result.push_back({i, ""});
      result.back().text += text[i];
      inside = true;
    }
  }
  return result;
}

std::string numbered(const std::string& text, const std::string& picture, std::size_t n) {
  const auto all = tokens(text, picture);
  if (n < all.size()) return all[n].text;
  return all.empty() || in(picture, text.back()) ? "" : all.back().text;
}

std::string random_text(std::mt19937& random, const std::string& letters, std::size_t max) {
  std::string text(random() % (max + 1), ' ');
  for (char& c : text) c = letters[random() % letters.size()];
  return text;
}

TEST(StrLex, TokensOfATextAreThoseBetweenDelimiters) {
  std::mt19937 random(1);
  for (int round = 0; round < 3000; ++round) {
    const bool own = random() % 2 != 0;
    const std::string picture = own ? random_text(random, ";, \t)\xFF", 4) : kWhiteSpace;
    const std::string text = random_text(random, "ab;, \t\n)\v\f\r\xFF\x80", 20);
    CStrLex lex(own ? picture.c_str() : nullptr);
    char output[32] = "before";
    const char* at = lex.First(text.c_str(), output);
    for (const Token& token : tokens(text, picture)) {
      ASSERT_EQ(at, text.c_str() + token.begin);
      ASSERT_EQ(output, token.text);
      ASSERT_EQ(lex.LastBegin(), at);
      ASSERT_EQ(lex.LastLen(), static_cast<int>(token.text.size()));
      const bool last = token.begin + token.text.size() == text.size();
      ASSERT_EQ(lex.LastEnd(), last ? nullptr : at + token.text.size());
      at = lex.Next(output);
    }
    for (int again = 0; again < 2; ++again, at = lex.Next(output)) {
      ASSERT_EQ(at, nullptr);
      ASSERT_STREQ(output, "");
      ASSERT_EQ(lex.LastBegin(), nullptr);
      ASSERT_EQ(lex.LastEnd(), nullptr);
    }
  }
}

TEST(StrLex, NumbersSelectTokensOfItsOwnCopy) {
  std::mt19937 random(2);
  CStrLex lex(";,");
  for (int round = 0; round < 2000; ++round) {
    std::string text = random_text(random, "abc;,", 16);
    const std::string kept = text;
    ASSERT_EQ(std::string(lex.FirstStr(text.c_str())), numbered(kept, ";,", 0));
    text.assign(text.size(), 'x');
    for (std::size_t n = 1; n < 8; ++n) {
      const auto other = static_cast<int>(random() % 12);
      ASSERT_EQ(std::string(lex.GetAtStr(other)),
                numbered(kept, ";,", static_cast<std::size_t>(other)));
      ASSERT_EQ(std::string(lex.NextStr()), numbered(kept, ";,", n)) << kept << ' ' << n;
      ASSERT_EQ(std::string(lex.GetStr()), numbered(kept, ";,", n));
    }
    ASSERT_STREQ(lex.GetAtStr(-1 - static_cast<int>(random() % 12)), "");
    ASSERT_STREQ(lex.GetAtStr(INT_MIN), "");
  }
  // Its own token is a text like any other.
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
  std::mt19937 random(3);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random_text(random, std::string("a\r\n\0", 4), 14);
    std::string rest = text;
    CStrLine lines;
    ZCString line = lines.GetFirst(ZCString(text.data(), static_cast<int>(text.size())));
    for (bool end = false; !end; line = lines.GetNext()) {
      const std::size_t at = rest.find("\r\n");
      const std::string expected = rest.substr(0, at);
      end = at == std::string::npos && expected.empty();
      rest = at == std::string::npos ? "" : rest.substr(at + 2);
      ASSERT_EQ(std::string(line, static_cast<std::size_t>(line.GetLength())), expected);
      ASSERT_EQ(lines.EndOfBuffer(), end ? 1 : 0);
    }
    ASSERT_EQ(line.GetLength(), 0);
    ASSERT_EQ(lines.EndOfBuffer(), 1);
  }
}

}  // namespace

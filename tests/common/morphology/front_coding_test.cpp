// Front coding against a slow coder and by reading back what was written.
#include "kz/front_coding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "text/literal.h"

namespace {

using kz::operator""_1251;

// The code of a word, with its zero byte; checks the result and that nothing after it is written.
std::string code(CGenSteno& coder, const std::string& word) {
  std::string out(word.size() + 2, '\x55');
  out += "guard";
  const int length = coder.CodeOrfo(word.c_str(), out.data());
  EXPECT_EQ(out.substr(word.size() + 2), "guard");
  EXPECT_EQ(out[static_cast<std::size_t>(length)], '\0');
  return out.substr(0, static_cast<std::size_t>(length));
}

std::string inverted(std::string text) {
  for (char& c : text) c = static_cast<char>(static_cast<unsigned char>(c) + 128);
  return text;
}

TEST(FrontCoding, WordsOfAnyBytesReadBack) {
  std::mt19937 random(3);
  std::vector<std::string> words(3000);
  for (std::string& word : words) {
    const bool narrow = random() % 2 != 0;
    word.resize(1 + random() % 90, 'a');
    for (char& c : word) {
      if (!narrow || random() % 30 == 0) c = static_cast<char>(1 + random() % 255);
    }
  }
  std::sort(words.begin(), words.end());
  CGenSteno coder;
  std::string previous(U"Я"_1251);
  for (const std::string& word : words) {
    std::size_t shared = 0;
    while (shared < 63 && shared < std::min(word.size(), previous.size()) &&
           word[shared] == previous[shared]) {
      ++shared;
    }
    ASSERT_EQ(code(coder, word), static_cast<char>(shared) + inverted(word.substr(shared)));
    previous = word;
  }
}

TEST(FrontCoding, AListStartsFromTheLetterYa) {
  CGenSteno coder;
  const std::string apple(U"Яблоко"_1251);
  for (int list = 0; list < 2; ++list) {
    EXPECT_EQ(code(coder, apple), '\1' + inverted(apple.substr(1)));
    coder.Start();
  }
}

TEST(FrontCoding, RefusesWhatHasNoCodeAndKeepsThePreviousWord) {
  CGenSteno coder;
  code(coder, "abc");
  char out[] = "unchanged";
  EXPECT_EQ(coder.CodeOrfo(nullptr, out), 0);
  EXPECT_EQ(coder.CodeOrfo("", out), 0);
  EXPECT_EQ(coder.CodeOrfo(std::string(32767, 'a').c_str(), out), 0);
  EXPECT_STREQ(out, "unchanged");
  EXPECT_EQ(code(coder, "abd"), '\2' + inverted("d"));
  EXPECT_EQ(code(coder, std::string(32766, 'z')).size(), 32767U);
}

}  // namespace

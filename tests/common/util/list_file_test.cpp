// List files beside a slow reader of the same files.
#include "kz/list_file.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/temp_dir.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

class ListFileTest : public testing::Test {
 protected:
  std::string write(const std::string& name, std::string_view contents) const {
    return dir_.write(name, contents);
  }

  kz::test::TempDir dir_;
};

Pairs pairs_of(CListFile& list) {
  Pairs pairs;
  for (CListItem* item = list.First(); item; item = list.Next()) {
    EXPECT_EQ(list.GetCurrentItem(), item);
    EXPECT_EQ(list.GetWordFor(), item->GetWordFor());
    EXPECT_EQ(list.GetWordTo(), item->GetWordTo());
    pairs.emplace_back(item->GetWordFor(), item->GetWordTo());
  }
  EXPECT_EQ(list.Next(), nullptr);
  EXPECT_EQ(list.GetCurrentItem(), nullptr);
  EXPECT_EQ(list.GetWordFor(), nullptr);
  EXPECT_EQ(list.GetWordTo(), nullptr);
  return pairs;
}

Pairs slow_pairs(const std::string& contents, std::string_view letters) {
  Pairs pairs;
  std::string line;
  for (const char c : contents + '\n') {
    if (c != '\n') {
      line += c;
      continue;
    }
    if (!line.empty() && letters.find(line[0]) != std::string_view::npos) {
      std::vector<std::string> words(1);
      for (const char character : line) {
        const bool blank = character == ' ' || character == '\t' || character == '\r';
        if (!blank) words.back() += character;
        if (blank && !words.back().empty()) words.emplace_back();
      }
      words.resize(2);
      pairs.emplace_back(words[0], words[1]);
    }
    line.clear();
  }
  return pairs;
}

TEST_F(ListFileTest, LinesThatBeginWithALetterGiveAPair) {
  const std::string_view alphabet = U"aZяЁ*|1 \t\r\n\n"_1251;
  std::mt19937 random(1);
  for (int round = 0; round < 300; ++round) {
    std::string contents(random() % 200, ' ');
    for (char& c : contents) c = alphabet[random() % alphabet.size()];
    if (round == 0) contents += "\nq " + std::string(5000, 'x');
    const std::string path = write("list.txt", contents);
    CListFile list;
    ASSERT_EQ(list._LoadList(path.c_str()), 0);
    const Pairs expected = slow_pairs(contents, U"aZяЁxq"_1251);
    ASSERT_EQ(pairs_of(list), expected) << contents;

    for (int i = 0; i < 20; ++i) {
      std::string text(random() % 6, ' ');
      for (char& c : text) c = alphabet[random() % 5];
      std::size_t at = 0;
      while (at < expected.size() && !text.starts_with(expected[at].first)) ++at;
      const char* found = list.Find(text.c_str());
      if (at == expected.size()) {
        ASSERT_EQ(found, nullptr);
        ASSERT_EQ(list.GetCurrentItem(), nullptr);
      } else {
        ASSERT_EQ(found, expected[at].second);
        ASSERT_EQ(list.GetCurrentItem(), list.GetList()->GetAt(static_cast<int>(at)));
        ASSERT_EQ(list.FindObj(text.c_str()), list.GetCurrentItem());
      }
    }
  }
}

TEST_F(ListFileTest, LoadTriesTheNameAndThenTheDirectory) {
  write("list.txt", "* comment\nabc xyz\nab q\n");
  const std::string path = write("other.txt", "abx\n");
  const std::string directory = dir_.file("");
  CListFile list;
  EXPECT_EQ(list.Load("list.txt", nullptr), 195);
  EXPECT_EQ(list.Load(nullptr, nullptr), 196);
  EXPECT_EQ(list.Load("", nullptr), 196);
  EXPECT_EQ(list.Load(nullptr, directory.c_str()), 195);  // a directory
  EXPECT_EQ(list.Load("list.txt", directory.c_str()), 0);
  EXPECT_EQ(list.Load(path.c_str(), directory.c_str()), 0);  // appends
  EXPECT_EQ(pairs_of(list), (Pairs{{"abc", "xyz"}, {"ab", "q"}, {"abx", ""}}));
  EXPECT_STREQ(list.Find("abcd"), "xyz");
  EXPECT_STREQ(list.Find("abx"), "q");
  EXPECT_EQ(list.Find("a"), nullptr);
  EXPECT_EQ(list.Find(nullptr), nullptr);

  // A zero byte is no text, wherever it is; what was held stays.
  for (const std::string_view damaged :
       {std::string_view("ac x\nad\0e y\nae z\n", 17), std::string_view("ac x\n* \0\n", 9)}) {
    const std::string bad = write("bad.txt", damaged);
    EXPECT_EQ(list.Load(bad.c_str(), nullptr), 202);
    EXPECT_EQ(pairs_of(list), (Pairs{{"abc", "xyz"}, {"ab", "q"}, {"abx", ""}}));
  }

  list.GetList()->Add(new CListItem("", "any"));
  EXPECT_STREQ(list.Find(""), "any");
  list.FreeList();
  EXPECT_EQ(list.First(), nullptr);
  EXPECT_EQ(list.Next(), nullptr);
  EXPECT_EQ(list.GetList()->GetSize(), 0);
}

}  // namespace

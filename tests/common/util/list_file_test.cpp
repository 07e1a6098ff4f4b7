// List files: their lines, look-up and loading.
#include "kz/list_file.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/temp_dir.h"
#include "tests/support/utf8.h"
#include "text/literal.h"

using kz::operator""_1251;
using kz::test::encoded_1251;

namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

class ListFileTest : public testing::Test, public kz::test::TempDir {};

Pairs pairs_of(CListFile& list) {
  Pairs pairs;
  for (CListItem* item = list.First(); item; item = list.Next()) {
    EXPECT_EQ(list.GetCurrentItem(), item);
    EXPECT_EQ(list.GetWordFor(), item->GetWordFor());
    EXPECT_EQ(list.GetWordTo(), item->GetWordTo());
    pairs.emplace_back(item->GetWordFor(), item->GetWordTo());
  }
  EXPECT_TRUE(list.Next() == nullptr && list.GetCurrentItem() == nullptr);
  EXPECT_TRUE(list.GetWordFor() == nullptr && list.GetWordTo() == nullptr);
  return pairs;
}

TEST_F(ListFileTest, LinesThatBeginWithALetterGiveAPair) {
  const std::string longest(5000, 'x');
  const std::string path =
      write("list.txt", encoded_1251("a\tb c\r\nЯ  x \n\r\n\n* q\n q\n1 q\n|q\nё\r\n"
                                     "q " +
                                     longest + "\nza*1 b|"));
  CListFile list;
  ASSERT_EQ(list._LoadList(path.c_str()), 0);
  EXPECT_EQ(pairs_of(list),
            (Pairs{{"a", "b"}, {"\xDF", "x"}, {"\xB8", ""}, {"q", longest}, {"za*1", "b|"}}));
  const std::pair<std::string_view, int> searches[] = {
      {"a", 0}, {"abc", 0}, {U"Яя"_1251, 1}, {"za*12", 4}, {"za", 5}, {"A", 5}, {"", 5}};
  for (const auto& [text, item] : searches) {
    CListItem* const found = list.FindObj(text.data());
    EXPECT_EQ(found, list.GetCurrentItem());
    EXPECT_EQ(found, item < 5 ? list.GetList()->GetAt(item) : nullptr) << text;
    EXPECT_EQ(list.Find(text.data()), found != nullptr ? found->GetWordTo() : nullptr);
  }
}

TEST_F(ListFileTest, LoadTriesTheNameAndThenTheDirectory) {
  write("list.txt", "* comment\nabc xyz\nab q\n");
  const std::string path = write("other.txt", "abx\n");
  const std::string directory = file("");
  CListFile list;
  EXPECT_EQ(list.Load("list.txt", nullptr), 195);
  for (const char* none : {static_cast<const char*>(nullptr), ""})
    EXPECT_EQ(list.Load(none, nullptr), 196);
  EXPECT_EQ(list.Load(nullptr, directory.c_str()), 195);  // a directory
  EXPECT_EQ(list.Load("list.txt", directory.c_str()), 0);
  EXPECT_EQ(list.Load(path.c_str(), directory.c_str()), 0);  // appends
  const Pairs held{{"abc", "xyz"}, {"ab", "q"}, {"abx", ""}};
  EXPECT_EQ(pairs_of(list), held);
  EXPECT_STREQ(list.Find("abcd"), "xyz");
  EXPECT_STREQ(list.Find("abx"), "q");
  EXPECT_EQ(list.Find("a"), nullptr);
  EXPECT_EQ(list.Find(nullptr), nullptr);

  // A zero byte is no text, wherever it is; what was held stays.
  for (const std::string_view damaged :
       {std::string_view("ac x\nad\0e y\nae z\n", 17), std::string_view("ac x\n* \0\n", 9)}) {
    const std::string bad = write("bad.txt", damaged);
    EXPECT_EQ(list.Load(bad.c_str(), nullptr), 202);
    EXPECT_EQ(pairs_of(list), held);
  }

  list.GetList()->Add(new CListItem("", "any"));
  EXPECT_STREQ(list.Find(""), "any");
  list.FreeList();
  EXPECT_EQ(pairs_of(list), Pairs());
  EXPECT_EQ(list.GetList()->GetSize(), 0);
}

}  // namespace

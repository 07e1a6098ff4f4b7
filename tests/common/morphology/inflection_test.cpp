// Inflection tables: both file forms, damaged files, look-ups beside a slow reference.
#include "kz/inflection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kz/file.h"
#include "kz/gram_codec.h"
#include "tests/support/temp_dir.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

// Lines that are skipped or rejected among others, and an ending twice.
constexpr std::string_view kTable =
    U"* окончания\r\n\r\nстол NM 12 D1 | NMa\r\nами\tNF VT 65537a Z_C\r\nи V\r\nый | NM + NF\r\n"
    U"лишь\r\n ой NM\r\nWort N\r\nё NMa |\r\nи NF\n"_1251;

using Records = std::vector<std::array<std::uint32_t, 2>>;
using Entry = std::pair<std::string, Records>;  // by ending

std::vector<Entry> entries_of(CGrSrcWordFlex& table) {
  std::vector<Entry> entries;
  for (const CGrSrcWordObj* at = table.GetFirstFlex(); at; at = table.GetNextFlex()) {
    Records& records = entries.emplace_back(at->ending, Records(at->count)).second;
    std::memcpy(records.data(), at->attributes, at->count * sizeof records[0]);
  }
  EXPECT_EQ(table.GetNextFlex(), nullptr);
  return entries;
}

class Table : public CGrSrcWordFlex {
 public:
  using CGrSrcWordFlex::GetWord;
};

class InflectionTest : public testing::Test, public kz::test::TempDir {
 protected:
  bool exists(const std::string& name) const { return std::filesystem::exists(file(name)); }
  std::int16_t load(CGrSrcWordFlex& table, std::int16_t flag = 1) const {
    return table.Load("ru.Dat", file("").c_str(), flag);
  }
  // Loads a compiled table without a text beside it: refused, or every entry can be written.
  int load_alone(const std::string& contents) const {
    write("alone.Dat", contents);
    Table table;
    const int result = table.Load("alone.Dat", file("").c_str(), 1);
    const std::vector<Entry> entries = entries_of(table);
    EXPECT_TRUE(result == 0 || (result == 195 && entries.empty()));
    for (const auto& [ending, records] : entries) {
      char text[GR_SRC_FLEX_STRING_SIZE];
      EXPECT_LT(std::strlen(table.FindStrAttr(ending.c_str(), text, 0)), sizeof text);
    }
    return result;
  }
};

TEST(Inflection, ALineOfTheTextGivesItsRecordsAndTheyAreWrittenBack) {
  // The longest text just fits the documented room.
  std::string record;
  Records longest(4, {0, 65535});
  for (const std::int16_t kind : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    std::string name;
    for (std::int16_t i = 1; const char* other = GetAttrNameStr(kind, i); ++i) {
      if (std::strlen(other) > name.size()) name = other;
    }
    record += (kind == 2 ? " 65535 " : " ") + name;
    const auto index = static_cast<std::uint32_t>(GetAttrNameIndex(kind, name.c_str()));
    for (auto& words : longest) words[0] |= index << kind * 8;
  }
  const std::string all =
      std::string(79, 'x') + record + " |" + record + " |" + record + " |" + record;
  EXPECT_EQ(all.size() + 1, std::size_t{GR_SRC_FLEX_STRING_SIZE});

  const struct {
    std::string line;
    Records records;  // none: the line is rejected
    std::string written;
  } rows[] = {{std::string(U"стол NM 12 D1 | NMa"_1251),
               {{1 | 1 << 16, 12}, {2, 0}},
               std::string(U"стол NM 12 D1 | NMa "_1251)},
              {std::string(U"ами\tNF VT 65537a Z_C"_1251),
               {{3 | 8 << 8 | 10 << 16, 1 | 'a' << 16}},
               std::string(U"ами NF VT 1 Z_C"_1251)},
              {std::string(U"ый | NM + NF"_1251), {{0, 0}, {1, 0}}, ""},
              {std::string(U"ё NMa |"_1251), {{2, 0}, {0, 0}}, std::string(U"ё NMa "_1251)},
              {"x Nf | no 3 | 7b D2 D3 9 D4 NM | AqyY | V",
               {{255, 0}, {255, 3}, {4 << 16, 9}, {21, 0}},
               "x ?  | ? 3 "},
              {"x NM no 40000 q", {{1 | 63 << 8 | 255 << 16, 40000}}, "x NM ? 40000 ?"},
              {all, longest, all},
              {std::string(80, 'a') + " NM", {}, ""},
              {"ab \t", {}, ""},
              {"", {}, ""}};
  for (const auto& [line, records, written] : rows) {
    Table table;
    char text[GR_SRC_FLEX_STRING_SIZE] = "old";
    EXPECT_EQ(table.GetWord(line.c_str()), records.empty() ? 0 : 1) << line;
    const std::string ending = line.substr(0, line.find_first_of(" \t"));
    const auto wanted =
        records.empty() ? std::vector<Entry>{} : std::vector<Entry>{{ending, records}};
    EXPECT_EQ(entries_of(table), wanted) << line;
    EXPECT_EQ(table.FindStrAttr(('b' + ending).c_str(), text, 0), records.empty() ? nullptr : text);
    EXPECT_EQ(text, written);
  }
  EXPECT_EQ(Table().GetWord(nullptr), 0);
}

// The compiled form, written by its own description.
std::string compiled(const std::vector<Entry>& entries) {
  std::string file;
  file += static_cast<char>(entries.size());
  file += static_cast<char>(entries.size() >> 8);
  for (const auto& [ending, records] : entries) {
    file += static_cast<char>(records.size());
    for (const auto& [first, second] : records) {
      for (int shift = 0; shift < 32; shift += 8) file += static_cast<char>(first >> shift);
      for (int shift = 0; shift < 32; shift += 8) file += static_cast<char>(second >> shift);
    }
    file += static_cast<char>(ending.size());
    for (const char c : ending) file += static_cast<char>(c ^ '~');
  }
  return file;
}

TEST_F(InflectionTest, TheFirstLoadCompilesTheTableAndLaterOnesReadThat) {
  write("ru.txt", kTable);
  Table first;
  ASSERT_EQ(load(first), 0);
  const std::vector<Entry> entries = entries_of(first);
  EXPECT_EQ(entries.size(), 6u);
  EXPECT_EQ(first.Find(U"и"_1251.data(), 0)->attributes[0][0], 3u) << "the later line";
  EXPECT_EQ(first.GetFirstFlex()->length, std::strlen(first.GetFirstFlex()->ending));
  EXPECT_EQ(read("ru.Dat"), compiled(entries));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file("")), {}), 2);

  std::filesystem::remove(file("ru.txt"));
  Table second;
  ASSERT_EQ(load(second), 0);
  EXPECT_THAT(entries_of(second), testing::UnorderedElementsAreArray(entries));
  EXPECT_EQ(second.GetFirstFlex()->length, std::strlen(second.GetFirstFlex()->ending));
}

TEST_F(InflectionTest, ADamagedCompiledTableIsMadeAnewOrRefused) {
  write("ru.txt", kTable);
  Table whole;
  ASSERT_EQ(load(whole), 0);
  const std::vector<Entry> entries = entries_of(whole);
  const std::string good = read("ru.Dat");
  for (std::size_t length = 0; length < good.size(); ++length) {
    ASSERT_EQ(load_alone(good.substr(0, length)), 195) << length;
    if (length % 64 != 0) continue;
    write("ru.Dat", good.substr(0, length));
    Table healed;
    ASSERT_EQ(load(healed), 0) << length;
    ASSERT_EQ(entries_of(healed), entries) << length;
    ASSERT_EQ(read("ru.Dat"), good) << length;
  }
  for (std::size_t i = 0; i < good.size() * 8; ++i) {
    std::string damaged = good;
    damaged[i / 8] = static_cast<char>(damaged[i / 8] ^ 1 << i % 8);
    load_alone(damaged);
  }
  EXPECT_EQ(load_alone(compiled({{"ed", {}}})), 195);
  EXPECT_EQ(load_alone(compiled({{"ed", {{1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}}}})), 195);
  EXPECT_EQ(load_alone(compiled({{std::string(80, 'e'), {{1, 0}}}})), 195);
}

TEST_F(InflectionTest, LoadFindsItsFilesOrSays195) {
  Table table;
  EXPECT_EQ(load(table), 195);
  EXPECT_EQ(table.Load(nullptr, nullptr, 1), 195);
  write("ru.txt", "ed V\n");
  for (const char* name : {"", "ru.dat"}) EXPECT_EQ(table.Load(name, file("").c_str(), 1), 195);

  std::filesystem::create_directory(file("x.Dat.Dat"));
  write("x.Dat.txt", "es NM\n");
  EXPECT_EQ(table.Load("x.Dat.Dat", file("").c_str(), 1), 0);
  EXPECT_EQ(load(table), 0);  // holds entries already
  EXPECT_EQ(entries_of(table), (std::vector<Entry>{{"es", {{1, 0}}}}));
}

TEST_F(InflectionTest, ATableThatCannotBeWrittenStaysInMemory) {
  write("ru.txt", "ed V\n");
  write("ru.Dat", "damaged");
  ZCFile other(file("ru.Dat").c_str(), 0x8040);
  Table table;
  EXPECT_EQ(load(table), 0);
  EXPECT_EQ(entries_of(table).size(), 1u);
  EXPECT_EQ(table.GetFirstFlex()->length, 0) << "in no compiled table yet";
  EXPECT_EQ(read("ru.Dat"), "damaged");
  other.Close();

  std::filesystem::permissions(file("ru.Dat"), std::filesystem::perms::owner_read);
  EXPECT_EQ(load(*std::make_unique<Table>()), 0);
  EXPECT_EQ(read("ru.Dat"), "damaged");
}

TEST_F(InflectionTest, WithFlagZeroTheFirstLookUpLoads) {
  Table never, finds, iterates, late, failed, failed_unflagged;
  EXPECT_EQ(never.Find("bed", 0), nullptr);
  ASSERT_EQ(load(failed, 1), 195);
  ASSERT_EQ(load(failed_unflagged, 0), 195);

  write("ru.txt", "ed V\n");
  ASSERT_EQ(load(finds, 0), 0);
  EXPECT_FALSE(exists("ru.Dat"));
  ASSERT_NE(finds.Find("bed", 0), nullptr);
  EXPECT_TRUE(exists("ru.Dat"));
  ASSERT_EQ(load(iterates, 0), 0);
  EXPECT_NE(iterates.GetFirstFlex(), nullptr);
  EXPECT_NE(failed.Find("bed", 0), nullptr);
  EXPECT_EQ(failed_unflagged.Find("bed", 0), nullptr);

  // A look-up that fails to load is the last that tries.
  ASSERT_EQ(load(late, 0), 0);
  for (const char* name : {"ru.Dat", "ru.txt"}) std::filesystem::remove(file(name));
  EXPECT_EQ(late.Find("bed", 0), nullptr);
  write("ru.txt", "ed V\n");
  EXPECT_EQ(late.Find("bed", 0), nullptr);
  EXPECT_EQ(late.GetFirstFlex(), nullptr);
}

TEST_F(InflectionTest, TheCountOfTheCompiledFormIsUnsignedAndBounded) {
  const auto lines = [](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += 'a' + std::to_string(i) + " V\n";
    return text;
  };
  write("ru.txt", lines(33000));
  ASSERT_EQ(load(*std::make_unique<Table>()), 0);
  std::filesystem::remove(file("ru.txt"));
  Table table;
  ASSERT_EQ(load(table), 0);
  EXPECT_EQ(entries_of(table).size(), 33000u);
  EXPECT_STREQ(table.Find("aa32999", 0)->ending, "a32999");

  std::filesystem::remove(file("ru.Dat"));
  write("ru.txt", lines(65536));
  Table large;
  ASSERT_EQ(load(large), 0);
  EXPECT_FALSE(exists("ru.Dat"));
  EXPECT_NE(large.Find("a65535", 0), nullptr);
}

// The look-up by the rules, one step after the other.
struct SlowTable {
  std::set<std::string> endings;
  std::map<char, std::size_t>
      longest;  // by the final letter, of endings that begin with a small one

  static bool is_small(char c) {
    return U"абвгдеёжзийклмнопрстуфхцчшщъыьэюя"_1251.find(c) != std::string_view::npos;
  }
  static char final_letter(const std::string& word) {
    return word.back() == static_cast<char>(U'ё'_1251) ? static_cast<char>(U'е'_1251) : word.back();
  }

  void add(const std::string& ending, bool has_attributes) {
    std::size_t& length = longest[final_letter(ending)];
    if (is_small(ending.front())) length = std::max(length, ending.size());
    if (has_attributes) endings.insert(ending);
  }

  std::string find(const std::string& word) {
    if (word.find(' ') != std::string::npos) return "";
    if (endings.contains(word)) return word;
    const std::size_t most = is_small(word.back()) ? longest[final_letter(word)] : word.size();
    for (std::size_t length = std::min(most, word.size()); length > 0; --length) {
      const std::string ending = word.substr(word.size() - length);
      if (endings.contains(ending)) return ending;
    }
    return "";
  }
};

TEST(Inflection, FindAgreesWithASlowReference) {
  const std::string_view letters = U"аяеёЯsй"_1251;
  std::mt19937 random(1);
  const auto word = [&](std::size_t most) {
    std::string text(1 + random() % most, ' ');
    for (char& c : text) c = letters[random() % letters.size()];
    return text;
  };
  for (int round = 0; round < 200; ++round) {
    Table table;
    SlowTable slow;
    table.GetWord("s V");  // not empty
    slow.add("s", true);
    for (auto n = random() % 60; n > 0; --n) {
      const std::string ending = word(6);
      const bool has_attributes = random() % 4 != 0;
      table.GetWord((ending + (has_attributes ? " NM" : "")).c_str());
      slow.add(ending, has_attributes);
    }
    for (int i = 0; i < 200; ++i) {
      std::string text = word(9);
      if (i % 20 == 0) text[random() % text.size()] = ' ';
      const CGrSrcWordObj* found = table.Find(text.c_str(), 0);
      ASSERT_EQ(found != nullptr ? found->ending : "", slow.find(text)) << text;
    }
    EXPECT_EQ(table.Find("", 0), nullptr);
    EXPECT_EQ(table.Find(nullptr, 0), nullptr);
  }
}

TEST(Inflection, OnlyRussianHasATable) {
  EXPECT_NE(GetRuSrcFlex(), nullptr);
  EXPECT_EQ(GetRuSrcFlex(), GetRuSrcFlex());
  EXPECT_EQ(GetRuSrcFlex()->GetFirstFlex(), nullptr);
  for (auto* get : {GetEnSrcFlex, GetFrSrcFlex, GetDeSrcFlex}) EXPECT_EQ(get(), nullptr);
}

}  // namespace

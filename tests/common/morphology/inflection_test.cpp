// Inflection tables: both file forms, damaged files, look-ups beside a slow reference.
#include "kz/inflection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <compare>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "kz/file.h"
#include "kz/gram_codec.h"
#include "tests/support/temp_dir.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

constexpr std::string_view kTable =
    U"* окончания\r\n"
    U"\r\n"
    U"стол NM 12 D1 | NMa\r\n"
    U"ами\tNF VT 65537a Z_C\r\n"
    U"и Nf | no 3 | 7b D2 D3 NM | AqyY | V\r\n"
    U"ый | NM + NF\r\n"
    U"лишь\r\n"
    U" ой NM\r\n"
    U"Wort N\r\n"
    U"ё NMa |\r\n"
    U"и NF\n"_1251;

struct Entry {
  std::string ending;
  std::vector<std::array<std::uint32_t, 2>> records;
  auto operator<=>(const Entry&) const = default;
};

Entry entry_of(const CGrSrcWordObj& object) {
  Entry entry{object.ending, {}};
  for (int i = 0; i < object.count; ++i) {
    entry.records.push_back({object.attributes[i][0], object.attributes[i][1]});
  }
  return entry;
}

std::vector<Entry> sorted(std::vector<Entry> entries) {
  std::sort(entries.begin(), entries.end());
  return entries;
}

std::vector<Entry> entries_of(CGrSrcWordFlex& table) {
  std::vector<Entry> entries;
  for (const CGrSrcWordObj* at = table.GetFirstFlex(); at; at = table.GetNextFlex()) {
    entries.push_back(entry_of(*at));
  }
  EXPECT_EQ(table.GetNextFlex(), nullptr);
  return entries;
}

class Table : public CGrSrcWordFlex {
 public:
  using CGrSrcWordFlex::GetWord;
};

class InflectionTest : public testing::Test {
 protected:
  std::string write(const std::string& name, std::string_view contents) const {
    return dir_.write(name, contents);
  }
  std::string read(const std::string& name) const { return dir_.read(name); }
  bool exists(const std::string& name) const { return std::filesystem::exists(dir_.file(name)); }
  std::int16_t load(CGrSrcWordFlex& table, std::int16_t flag = 1) const {
    return table.Load("ru.Dat", dir_.file("").c_str(), flag);
  }

  kz::test::TempDir dir_;
};

std::string attributes(const char* line) {
  Table table;
  std::array<char, GR_SRC_FLEX_STRING_SIZE> text;
  EXPECT_EQ(table.GetWord(line), 1);
  return table.GetStrAttr(table.GetFirstFlex(), text.data());
}

TEST_F(InflectionTest, ALineOfTheTextGivesItsRecords) {
  write("ru.txt", kTable);
  Table table;
  ASSERT_EQ(load(table), 0);
  std::map<std::string, Entry> entries;
  for (const Entry& entry : entries_of(table)) entries[entry.ending] = entry;

  const std::vector<Entry> expected = {
      {std::string(U"стол"_1251), {{1 | 1 << 16, 12}, {2, 0}}},
      {std::string(U"ами"_1251), {{3 | 8 << 8 | 10 << 16, 1 | 'a' << 16}}},
      {std::string(U"и"_1251), {{3, 0}}},
      {std::string(U"ый"_1251), {{0, 0}, {1, 0}}},
      {"Wort", {{7, 0}}},
      {std::string(U"ё"_1251), {{2, 0}, {0, 0}}},
  };
  EXPECT_EQ(entries.size(), expected.size());
  for (const Entry& entry : expected) EXPECT_EQ(entries[entry.ending], entry) << entry.ending;
}

TEST_F(InflectionTest, RecordsEndWithTheFourthAndFieldsAreReplaced) {
  Table table;
  ASSERT_EQ(table.GetWord("x Nf | no 3 | 7b D2 D3 9 D4 NM | AqyY | V"), 1);
  const Entry expected = {"x", {{255, 0}, {255, 3}, {4 << 16, 9}, {21, 0}}};
  EXPECT_EQ(entry_of(*table.GetFirstFlex()), expected);
}

TEST_F(InflectionTest, LinesWithoutAttributesOrWithALongEndingAreRejected) {
  Table table;
  const std::string longest(79, 'a');
  EXPECT_EQ(table.GetWord((longest + "a NM").c_str()), 0);
  EXPECT_EQ(table.GetWord("ab \t"), 0);
  EXPECT_EQ(table.GetWord(""), 0);
  EXPECT_EQ(table.GetWord(nullptr), 0);
  EXPECT_EQ(table.GetFirstFlex(), nullptr);
  EXPECT_EQ(table.GetWord((longest + " NM").c_str()), 1);
  EXPECT_EQ(table.Find(("b" + longest).c_str(), 0)->ending, longest);
}

TEST(Inflection, AttributesAreWrittenAsTheTextHasThem) {
  const auto line = U"стол NM 12 D1 | NMa"_1251;
  EXPECT_EQ(attributes(line.data()), std::string(line) + " ");
  EXPECT_EQ(attributes("ed V1 VT 40000a D2_i | V2 Z | 3 D4 | V"), "ed V1 VT 40000 D2_i | V2 ? ");
  EXPECT_EQ(attributes("ed X Y Z"), "ed ? ? ?");
  EXPECT_EQ(attributes("ed +"), "");

  // The longest text just fits the documented room.
  std::array<std::string, 3> longest;
  for (std::int16_t kind = 0; kind < 3; ++kind) {
    for (std::int16_t i = 1; const char* name = GetAttrNameStr(kind, i); ++i) {
      if (std::strlen(name) > longest[static_cast<std::size_t>(kind)].size()) {
        longest[static_cast<std::size_t>(kind)] = name;
      }
    }
  }
  const std::string record = longest[0] + ' ' + longest[1] + " 65535 " + longest[2];
  const std::string all =
      std::string(79, 'x') + ' ' + record + " | " + record + " | " + record + " | " + record;
  EXPECT_EQ(attributes(all.c_str()), all);
  EXPECT_EQ(all.size() + 1, std::size_t{GR_SRC_FLEX_STRING_SIZE});

  Table table;
  char text[] = "old";
  EXPECT_EQ(table.GetStrAttr(nullptr, text), nullptr);
  EXPECT_STREQ(text, "");
}

// The compiled form, written by its own description.
std::string compiled(const std::vector<Entry>& entries) {
  std::string file;
  file += static_cast<char>(entries.size());
  file += static_cast<char>(entries.size() >> 8);
  for (const Entry& entry : entries) {
    file += static_cast<char>(entry.records.size());
    for (const auto& record : entry.records) {
      for (const std::uint32_t word : record) {
        for (int shift = 0; shift < 32; shift += 8) file += static_cast<char>(word >> shift);
      }
    }
    file += static_cast<char>(entry.ending.size());
    for (const char c : entry.ending) file += static_cast<char>(c ^ '~');
  }
  return file;
}

TEST_F(InflectionTest, TheFirstLoadCompilesTheTableAndLaterOnesReadThat) {
  write("ru.txt", kTable);
  Table first;
  ASSERT_EQ(load(first), 0);
  const std::vector<Entry> entries = entries_of(first);
  EXPECT_EQ(first.GetFirstFlex()->length, std::strlen(first.GetFirstFlex()->ending));
  EXPECT_EQ(read("ru.Dat"), compiled(entries));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.file("")), {}), 2);

  std::filesystem::remove(dir_.file("ru.txt"));
  Table second;
  ASSERT_EQ(load(second), 0);
  EXPECT_EQ(sorted(entries_of(second)), sorted(entries));
  EXPECT_EQ(second.GetFirstFlex()->length, std::strlen(second.GetFirstFlex()->ending));
}

TEST_F(InflectionTest, ADamagedCompiledTableIsMadeAnewOrRefused) {
  write("ru.txt", kTable);
  Table whole;
  ASSERT_EQ(load(whole), 0);
  const std::vector<Entry> entries = entries_of(whole);
  const std::string good = read("ru.Dat");

  for (std::size_t length = 0; length < good.size(); ++length) {
    write("alone.Dat", good.substr(0, length));
    Table alone;
    ASSERT_EQ(alone.Load("alone.Dat", dir_.file("").c_str(), 1), 195) << length;
    ASSERT_EQ(alone.GetFirstFlex(), nullptr) << length;
    if (length % 64 != 0) continue;

    write("ru.Dat", good.substr(0, length));
    Table healed;
    ASSERT_EQ(load(healed), 0) << length;
    ASSERT_EQ(entries_of(healed), entries) << length;
    ASSERT_EQ(read("ru.Dat"), good) << length;
  }

  int refused = 0;
  for (std::size_t i = 0; i < good.size(); ++i) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string damaged = good;
      damaged[i] = static_cast<char>(damaged[i] ^ 1 << bit);
      write("alone.Dat", damaged);
      Table alone;
      const int result = alone.Load("alone.Dat", dir_.file("").c_str(), 1);
      const std::vector<Entry> found = entries_of(alone);
      ASSERT_TRUE(result == 0 || (result == 195 && found.empty())) << i;
      refused += result != 0 ? 1 : 0;
      for (const Entry& entry : found) {
        std::array<char, GR_SRC_FLEX_STRING_SIZE> text;
        ASSERT_LE(std::strlen(alone.FindStrAttr(entry.ending.c_str(), text.data(), 0)), 221u);
      }
    }
  }
  EXPECT_GT(refused, 0);

  write("alone.Dat", compiled({{"ed", {}}}));
  EXPECT_EQ(Table().Load("alone.Dat", dir_.file("").c_str(), 1), 195);
  write("alone.Dat", compiled({{"ed", {{1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}}}}));
  EXPECT_EQ(Table().Load("alone.Dat", dir_.file("").c_str(), 1), 195);
  write("alone.Dat", compiled({{std::string(80, 'e'), {{1, 0}}}}));
  EXPECT_EQ(Table().Load("alone.Dat", dir_.file("").c_str(), 1), 195);
}

TEST_F(InflectionTest, LoadFindsItsFilesOrSays195) {
  EXPECT_EQ(load(*std::make_unique<Table>()), 195);
  EXPECT_EQ(Table().Load(nullptr, nullptr, 1), 195);
  EXPECT_EQ(Table().Load("", dir_.file("").c_str(), 1), 195);
  write("ru.txt", "ed V\n");
  EXPECT_EQ(Table().Load("ru.dat", dir_.file("").c_str(), 1), 195);

  std::filesystem::create_directory(dir_.file("x.Dat.Dat"));
  write("x.Dat.txt", "es NM\n");
  Table table;
  EXPECT_EQ(table.Load("x.Dat.Dat", dir_.file("").c_str(), 1), 0);
  EXPECT_EQ(entries_of(table).size(), 1u);
  EXPECT_EQ(load(table), 0);  // holds entries already
  EXPECT_EQ(entries_of(table)[0].ending, "es");
}

TEST_F(InflectionTest, ATableThatCannotBeWrittenStaysInMemory) {
  write("ru.txt", "ed V\n");
  write("ru.Dat", "damaged");
  ZCFile other(dir_.file("ru.Dat").c_str(), 0x8040);
  Table table;
  EXPECT_EQ(load(table), 0);
  EXPECT_EQ(entries_of(table).size(), 1u);
  EXPECT_EQ(table.GetFirstFlex()->length, 0) << "in no compiled table yet";
  EXPECT_EQ(read("ru.Dat"), "damaged");
  other.Close();

  std::filesystem::permissions(dir_.file("ru.Dat"), std::filesystem::perms::owner_read);
  EXPECT_EQ(load(*std::make_unique<Table>()), 0);
  EXPECT_EQ(read("ru.Dat"), "damaged");
}

TEST_F(InflectionTest, WithFlagZeroTheFirstLookUpLoads) {
  Table never;
  EXPECT_EQ(never.Find("bed", 0), nullptr);

  write("ru.txt", "ed V\n");
  Table finds;
  ASSERT_EQ(load(finds, 0), 0);
  EXPECT_FALSE(exists("ru.Dat"));
  ASSERT_NE(finds.Find("bed", 0), nullptr);
  EXPECT_TRUE(exists("ru.Dat"));
  Table iterates;
  ASSERT_EQ(load(iterates, 0), 0);
  EXPECT_NE(iterates.GetFirstFlex(), nullptr);

  std::filesystem::remove(dir_.file("ru.Dat"));
  Table late;
  ASSERT_EQ(load(late, 0), 0);
  std::filesystem::remove(dir_.file("ru.txt"));
  EXPECT_EQ(late.Find("bed", 0), nullptr);
  write("ru.txt", "ed V\n");
  EXPECT_EQ(late.Find("bed", 0), nullptr);
  EXPECT_EQ(late.GetFirstFlex(), nullptr);

  std::filesystem::remove(dir_.file("ru.txt"));
  Table failed;
  Table failed_unflagged;
  ASSERT_EQ(load(failed, 1), 195);
  ASSERT_EQ(load(failed_unflagged, 0), 195);
  write("ru.txt", "ed V\n");
  EXPECT_NE(failed.Find("bed", 0), nullptr);
  EXPECT_EQ(failed_unflagged.Find("bed", 0), nullptr);
}

TEST_F(InflectionTest, TheCountOfTheCompiledFormIsUnsignedAndBounded) {
  const auto lines = [](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += 'a' + std::to_string(i) + " V\n";
    return text;
  };
  write("ru.txt", lines(33000));
  ASSERT_EQ(load(*std::make_unique<Table>()), 0);
  std::filesystem::remove(dir_.file("ru.txt"));
  Table table;
  ASSERT_EQ(load(table), 0);
  EXPECT_EQ(entries_of(table).size(), 33000u);
  EXPECT_STREQ(table.Find("aa32999", 0)->ending, "a32999");

  std::filesystem::remove(dir_.file("ru.Dat"));
  write("ru.txt", lines(65536));
  Table large;
  ASSERT_EQ(load(large), 0);
  EXPECT_FALSE(exists("ru.Dat"));
  EXPECT_NE(large.Find("a65535", 0), nullptr);
}

// The look-up by the rules, one step after the other.
class SlowTable {
 public:
  void add(const std::string& ending, bool has_attributes) {
    const unsigned char first = static_cast<unsigned char>(ending.front());
    const int place = place_of(ending.back());
    if ((first >= 224 || first == U'ё'_1251) && place >= 0) {
      longest_[place] = std::max(longest_[place], ending.size());
    }
    if (has_attributes) endings_[ending] = true;
  }

  std::string find(const std::string& word) const {
    if (word.empty() || word.find(' ') != std::string::npos) return "";
    if (endings_.contains(word)) return word;
    const int place = place_of(word.back());
    std::size_t skip = 0;
    if (place >= 0 && longest_.contains(place) && longest_.at(place) < word.size()) {
      skip = word.size() - longest_.at(place);
    }
    if (place >= 0 && !longest_.contains(place)) skip = word.size();
    for (; skip < word.size(); ++skip) {
      if (endings_.contains(word.substr(skip))) return word.substr(skip);
    }
    return "";
  }

 private:
  static int place_of(char c) {
    const std::string_view letters = U"абвгдежзийклмнопрстуфхцчшщъыьэюя"_1251;
    if (static_cast<unsigned char>(c) == U'ё'_1251) return 5;
    const std::size_t at = letters.find(c);
    return at == letters.npos ? -1 : static_cast<int>(at);
  }

  std::map<std::string, bool> endings_;
  std::map<int, std::size_t> longest_;
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

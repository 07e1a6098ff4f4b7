// The map against a model that files keys by an independently computed hash.
#include "kz/map.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <deque>
#include <random>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "text/literal.h"

namespace {

using kz::operator""_1251;

// The fields of a map as they lie in memory.
struct Record {
  void* virtual_table;
  void* table;
  std::uint32_t table_size;
  std::int32_t count;
  void* free_list;
  void* blocks;
  std::int32_t block_size;
};
static_assert(sizeof(ZCMapStringToOb) == sizeof(Record));

Record record_of(const ZCMapStringToOb& map) {
  Record record;
  std::memcpy(static_cast<void*>(&record), static_cast<const void*>(&map), sizeof record);
  return record;
}

// Sum of byte * 33^(distance from the end).
std::uint32_t slow_hash(const std::string& key) {
  std::uint32_t hash = 0, power = 1;
  for (std::size_t i = key.size(); i-- > 0; power *= 33) {
    hash += static_cast<unsigned char>(key[i]) * power;
  }
  return hash;
}

struct Model {
  std::unordered_map<std::string, ZCObject*> values;
  std::vector<std::deque<std::string>> buckets = std::vector<std::deque<std::string>>(17);

  std::deque<std::string>& bucket(const std::string& key) {
    return buckets[slow_hash(key) % buckets.size()];
  }
  void set(const std::string& key, ZCObject* value) {
    if (!values.contains(key)) bucket(key).push_front(key);
    values[key] = value;
  }
  bool remove(const std::string& key) {
    std::erase(bucket(key), key);
    return values.erase(key) != 0;
  }
  void clear(std::size_t table_size) {
    values.clear();
    buckets.assign(table_size, {});
  }
};

using Pairs = std::vector<std::pair<std::string, ZCObject*>>;

Pairs iterate(const ZCMapStringToOb& map) {
  Pairs pairs;
  ZCString key;
  ZCObject* value = nullptr;
  for (POSITION at = map.GetStartPosition(); at != nullptr;) {
    map.GetNextAssoc(at, key, value);
    pairs.emplace_back(key, value);
  }
  return pairs;
}

void expect_same(const ZCMapStringToOb& map, const Model& model) {
  Pairs expected;
  for (const auto& bucket : model.buckets) {
    for (const std::string& key : bucket) expected.emplace_back(key, model.values.at(key));
  }
  ASSERT_EQ(iterate(map), expected);
  ASSERT_EQ(map.GetCount(), static_cast<int>(expected.size()));
  ASSERT_EQ(map.IsEmpty(), expected.empty() ? 1 : 0);
  ASSERT_EQ(map.GetHashTableSize(), model.buckets.size());
  const Record record = record_of(map);
  ASSERT_EQ(record.blocks != nullptr, !expected.empty());
  ASSERT_TRUE(record.table != nullptr || expected.empty());
}

std::string random_key(std::mt19937& random) {
  const std::string_view letters = U"abABая"_1251;
  std::string key(random() % 4, ' ');
  for (char& c : key) c = letters[random() % letters.size()];
  return key;
}

void operate(ZCMapStringToOb& map, Model& model, std::mt19937& random) {
  static std::array<ZCObject, 8> objects;
  const std::string key = random_key(random);
  const bool present = model.values.contains(key);
  ZCObject* const value = &objects[random() % objects.size()];
  ZCObject* found = value;
  const char* stored = key.c_str();
  switch (random() % 40) {
    case 0: map.RemoveAll(); return model.clear(model.buckets.size());
    case 1: {
      const auto size = static_cast<unsigned int>(random() % 40);
      map.InitHashTable(size, static_cast<int>(random() % 2));
      if (model.values.empty()) model.clear(size == 0 ? 1 : size);
      return;
    }
    default: map.SetAt(key.c_str(), value); return model.set(key, value);
    case 10:
    case 11:
    case 12:
      EXPECT_EQ(map[key.c_str()], present ? model.values[key] : nullptr);
      return model.set(key, present ? model.values[key] : nullptr);
    case 13:
    case 14:
    case 15:
      ASSERT_EQ(map.Lookup(key.c_str(), found), present ? 1 : 0);
      ASSERT_EQ(found, present ? model.values[key] : value);
      ASSERT_EQ(map.LookupKey(key.c_str(), stored), present ? 1 : 0);
      ASSERT_EQ(stored != key.c_str(), present);
      ASSERT_EQ(stored, key);
      // The stored key itself is a good argument, too.
      ASSERT_EQ(map.RemoveKey(stored), model.remove(key) ? 1 : 0);
      return;
    case 16:
    case 17:
    case 18:
    case 19:
    case 20: ASSERT_EQ(map.RemoveKey(key.c_str()), model.remove(key) ? 1 : 0);
  }
}

TEST(Map, BehavesAsChainsWithTheNewestKeyFirst) {
  std::mt19937 random(2);
  for (const int block_size : {1, 3, 10, 1000, 0, -5}) {
    ZCMapStringToOb map(block_size);
    Model model;
    for (int step = 0; step < 3000 && !testing::Test::HasFatalFailure(); ++step) {
      operate(map, model, random);
      expect_same(map, model);
    }
  }
}

TEST(Map, HashesBytesAsUnsigned) {
  const ZCMapStringToOb map;
  EXPECT_EQ(map.HashKey(""), 0U);
  EXPECT_EQ(map.HashKey("a"), 97U);
  EXPECT_EQ(map.HashKey("ab"), 3299U);
  for (const std::string_view text : {U"словарь переводчика"_1251, U"яяяяяяяяяяяяяяя"_1251}) {
    EXPECT_EQ(map.HashKey(text.data()), slow_hash(std::string(text)));
  }
}

TEST(Map, AllocatesOnFirstInsertionAndFreesWithTheLastKey) {
  ZCMapStringToOb map;
  Record record = record_of(map);
  EXPECT_EQ(record.table_size, 17U);
  EXPECT_EQ(record.block_size, 10);
  EXPECT_EQ(map.GetStartPosition(), nullptr);
  EXPECT_EQ(map.RemoveKey("key"), 0);
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(record_of(map).table, nullptr);
    map["key"] = nullptr;
    record = record_of(map);
    EXPECT_TRUE(record.table != nullptr && record.blocks != nullptr && record.count == 1);
    EXPECT_EQ(map.RemoveKey("key"), 1);
    EXPECT_EQ(map.GetHashTableSize(), 17U);
  }
  map.InitHashTable(5, 1);
  EXPECT_NE(record_of(map).table, nullptr);
  map.InitHashTable(6, 0);
  EXPECT_EQ(record_of(map).table, nullptr);
}

TEST(Map, TakesAssociationsInBlockOrderAndReusesRemovedOnesFirst) {
  ZCMapStringToOb map(4);
  std::vector<ZCObject**> slots;
  for (const char* key : {"a", "b", "c", "d"}) slots.push_back(&map[key]);
  for (std::size_t i = 1; i < slots.size(); ++i) {
    EXPECT_EQ(slots[i] - slots[i - 1], slots[1] - slots[0]);
  }
  EXPECT_GT(slots[1], slots[0]);
  map.RemoveKey("b");
  map.RemoveKey("a");
  EXPECT_EQ(&map["x"], slots[0]);
  EXPECT_EQ(&map["y"], slots[1]);
  for (int i = 0; i < 100; ++i) map.SetAt(std::to_string(i).c_str(), nullptr);
  EXPECT_EQ(&map["c"], slots[2]);
}

TEST(Map, AnIterationEndsWhenTheMapIsEmptied) {
  ZCMapStringToOb map;
  map["a"] = map["b"] = nullptr;
  for (const int steps : {0, 1}) {
    ZCString key;
    ZCObject* value = nullptr;
    POSITION at = map.GetStartPosition();
    for (int i = 0; i < steps; ++i) map.GetNextAssoc(at, key, value);
    map.RemoveAll();
    key = "as before";
    map.GetNextAssoc(at, key, value);
    EXPECT_EQ(at, nullptr);
    EXPECT_EQ(key, "as before");
    map["a"] = map["b"] = nullptr;
  }
}

TEST(Map, ANullKeyIsTheEmptyKey) {
  const char* const null = nullptr;
  ZCMapStringToOb map;
  map.SetAt(null, &map);
  EXPECT_EQ(map[""], &map);
  const char* stored = nullptr;
  EXPECT_EQ(map.LookupKey(null, stored), 1);
  EXPECT_STREQ(stored, "");
  EXPECT_EQ(map.RemoveKey(null), 1);
  ZCObject* value = nullptr;
  EXPECT_EQ(map.Lookup(null, value), 0);
}

TEST(Map, IterationGivesKeysWithTheirLanguage) {
  ZCMapStringToOb map;
  map["word"] = nullptr;
  ZCString key;
  ZCObject* value = nullptr;
  POSITION at = map.GetStartPosition();
  map.GetNextAssoc(at, key, value);
  key.SetLanguage(1033);
  ZCString again;
  at = map.GetStartPosition();
  map.GetNextAssoc(at, again, value);
  EXPECT_EQ(again.GetLanguage(), 1033);
  EXPECT_EQ(at, nullptr);
}

}  // namespace

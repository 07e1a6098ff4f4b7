// The map: chains, blocks and iteration.
#include "kz/map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
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

// The keys in the order of an iteration, each with a blank; checks that the values are theirs.
std::string keys_of(const ZCMapStringToOb& map) {
  std::string keys;
  ZCString key;
  ZCObject* value = nullptr;
  for (POSITION at = map.GetStartPosition(); at != nullptr;) {
    map.GetNextAssoc(at, key, value);
    keys += std::string(key) + ' ';
    ZCObject* found = nullptr;
    EXPECT_EQ(map.Lookup(key, found), 1);
    EXPECT_EQ(found, value);
  }
  EXPECT_EQ(map.GetCount(), std::ranges::count(keys, ' '));
  EXPECT_EQ(map.IsEmpty(), keys.empty());
  return keys;
}

TEST(Map, ChainsHaveTheNewestKeyFirst) {
  std::array<ZCObject, 2> objects;
  for (const int block_size : {1, 3, 10, 1000, 0, -5}) {
    ZCMapStringToOb map(block_size);
    // By their hashes a, r and am are in bucket 12 of 17, b in 13, A in 14, new in 9.
    for (const char* key : {"a", "A", "r", "b", "am"}) map.SetAt(key, &objects[0]);
    map.SetAt("a", &objects[1]);
    EXPECT_EQ(map["r"], &objects[0]);
    EXPECT_EQ(keys_of(map), "am r a b A ");
    map.InitHashTable(3, 1);
    EXPECT_EQ(map.GetHashTableSize(), 17u) << "it has keys";
    ZCObject* value = nullptr;
    EXPECT_EQ(map.Lookup("a", value), 1);
    EXPECT_EQ(value, &objects[1]);
    EXPECT_EQ(map.Lookup("B", value) + map.RemoveKey("B"), 0);
    EXPECT_EQ(value, &objects[1]);
    const char* stored = nullptr;
    EXPECT_EQ(map.LookupKey("c", stored), 0);
    EXPECT_EQ(stored, nullptr);
    EXPECT_EQ(map.LookupKey("r", stored), 1);
    EXPECT_EQ(map.RemoveKey(stored), 1);  // the map's own text
    EXPECT_EQ(map["new"], nullptr);
    EXPECT_EQ(keys_of(map), "new am a b A ");
    for (const char* key : {"am", "A", "new"}) EXPECT_EQ(map.RemoveKey(key), 1);
    EXPECT_EQ(keys_of(map), "a b ");
    map.RemoveAll();
    EXPECT_EQ(keys_of(map), "");
    map.InitHashTable(0, 0);
    for (const char* key : {"x", "y"}) map.SetAt(key, nullptr);
    EXPECT_EQ(map.GetHashTableSize(), 1u);
    EXPECT_EQ(keys_of(map), "y x ");
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

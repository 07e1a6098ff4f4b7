// The map: chains, blocks and iteration.
#include "kz/map.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/literal.h"

namespace {

using kz::operator""_1251;

// The keys in the order of an iteration, each with a blank; checks that the values are theirs.
std::string keys_of(const ZCMapStringToOb& map) {
  std::string keys;
  int count = 0;
  ZCString key;
  ZCObject *value = nullptr, *found = nullptr;
  for (POSITION at = map.GetStartPosition(); at != nullptr; ++count) {
    map.GetNextAssoc(at, key, value);
    keys += std::string(key) + ' ';
    EXPECT_EQ(map.Lookup(key, found), 1);
    EXPECT_EQ(found, value);
  }
  EXPECT_EQ(map.GetCount(), count);
  EXPECT_EQ(map.IsEmpty(), count == 0);
  return keys;
}

TEST(Map, ChainsHaveTheNewestKeyFirst) {
  ZCObject object, other;
  for (const int block_size : {1, 3, 10, 1000, 0, -5}) {
    ZCMapStringToOb map(block_size);
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_EQ(map.RemoveKey("key"), 0);
    // By their hashes a, r and am are in bucket 12 of 17, b in 13, A in 14, new in 9.
    for (const char* key : {"a", "A", "r", "b", "am"}) map.SetAt(key, &object);
    map.SetAt("a", &other);
    EXPECT_EQ(map["r"], &object);
    EXPECT_EQ(keys_of(map), "am r a b A ");
    map.InitHashTable(3, 1);
    EXPECT_EQ(map.GetHashTableSize(), 17u) << "it has keys";
    ZCObject* value = nullptr;
    EXPECT_EQ(map.Lookup("a", value), 1);
    EXPECT_EQ(map.Lookup("B", value) + map.RemoveKey("B"), 0);
    EXPECT_EQ(value, &other);
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
  const std::string_view text = U"словарь переводчика"_1251;
  std::uint32_t hash = 0;
  for (const char c : text) hash = hash * 33 + static_cast<unsigned char>(c);
  EXPECT_EQ(ZCMapStringToOb().HashKey(text.data()), hash);
  EXPECT_EQ(ZCMapStringToOb().HashKey(""), 0U);
}

TEST(Map, TakesAssociationsInBlockOrderAndReusesRemovedOnesFirst) {
  ZCMapStringToOb map(4);
  std::vector<ZCObject**> slots;
  for (const char* key : {"a", "b", "c", "d"}) slots.push_back(&map[key]);
  EXPECT_GT(slots[1], slots[0]);
  for (const std::size_t i : {1u, 2u}) EXPECT_EQ(slots[i + 1] - slots[i], slots[1] - slots[0]);
  map.RemoveKey("b");
  map.RemoveKey("a");
  EXPECT_EQ(&map["x"], slots[0]);
  EXPECT_EQ(&map["y"], slots[1]);
  for (int i = 0; i < 100; ++i) map.SetAt(std::to_string(i).c_str(), nullptr);
  EXPECT_EQ(&map["c"], slots[2]);
}

TEST(Map, AnIterationGivesKeysWithTheirLanguageAndEndsWhenTheMapIsEmptied) {
  for (const int steps : {0, 1}) {
    ZCMapStringToOb map;
    map["a"] = map["b"] = nullptr;
    ZCString key, again;
    ZCObject* value = nullptr;
    POSITION first = map.GetStartPosition(), at = first;
    map.GetNextAssoc(first, key, value);
    key.SetLanguage(1033);
    for (int i = 0; i < steps; ++i) map.GetNextAssoc(at, again, value);
    EXPECT_EQ(again.GetLanguage(), steps * 1033);
    map.RemoveAll();
    key = "as before";
    map.GetNextAssoc(at, key, value);
    EXPECT_EQ(at, nullptr);
    EXPECT_EQ(key, "as before");
  }
}

TEST(Map, ANullKeyIsTheEmptyKey) {
  const char *const null = nullptr, *stored = nullptr;
  ZCObject* value = nullptr;
  ZCMapStringToOb map;
  map.SetAt(null, &map);
  EXPECT_EQ(map[""], &map);
  EXPECT_EQ(map.LookupKey(null, stored), 1);
  EXPECT_STREQ(stored, "");
  EXPECT_EQ(map.RemoveKey(null), 1);
  EXPECT_EQ(map.Lookup(null, value), 0);
}

}  // namespace

// ZCMapStringToOb: a hash map from text keys to objects.
//
// Keys are compared byte by byte, so that two keys that differ in case are two entries; a null key
// counts as the empty one. Values are not owned. The number of buckets is fixed: call InitHashTable
// with about as many buckets as keys are to come, before the first one. A map serves one thread at
// a time. A short example:
//
//   ZCMapStringToOb map;
//   ZCObArray tables;
//   map["table"] = &tables;
//   ZCString key;
//   ZCObject* value;
//   for (POSITION at = map.GetStartPosition(); at != nullptr;) {
//     map.GetNextAssoc(at, key, value);
//     puts(key);  // Output: table
//   }
#ifndef KZ_MAP_H
#define KZ_MAP_H

#include <cstdint>

#include "kz/export.h"
#include "kz/object.h"
#include "kz/string.h"

struct __POSITION;
// A place in an iteration over a map; null when no association follows.
typedef __POSITION* POSITION;

namespace kz {
struct MapCore;  // works on the chains of a map
}  // namespace kz

// A key with its value is called an association.
class KZ_API ZCMapStringToOb : public ZCObject {
 public:
  // An empty map of 17 buckets that allocates its associations ten at a time.
  ZCMapStringToOb();
  // The same with blockSize associations per allocation; a blockSize below 1 counts as 1.
  explicit ZCMapStringToOb(int blockSize);
  ZCMapStringToOb(const ZCMapStringToOb&) = delete;
  ZCMapStringToOb& operator=(const ZCMapStringToOb&) = delete;
  // Empties the map; values are never deleted.
  ~ZCMapStringToOb() override;

  // Number of associations.
  int GetCount() const;
  // 1 when there is no association, else 0.
  int IsEmpty() const;
  // Number of buckets, also while no table is allocated.
  unsigned int GetHashTableSize() const;
  // Sets the number of buckets of an empty map and allocates the table, or leaves that to the
  // first insertion when allocateNow is 0. A size of 0 counts as 1. A map with associations keeps
  // its table.
  void InitHashTable(unsigned int size, int allocateNow);
  // Hash of a key: h * 33 + byte over its bytes, from 0, in 32 bits. The bucket of a key is its
  // hash modulo the number of buckets.
  unsigned int HashKey(const char* key) const;

  // 1 and the value when the key is present; else 0, value untouched.
  int Lookup(const char* key, ZCObject*& value) const;
  // 1 and the characters of the stored key (valid until the key is removed) when it is present;
  // else 0, storedKey untouched.
  int LookupKey(const char* key, const char*& storedKey) const;
  // The value of key; an absent key is added first, with a null value. The reference is valid
  // until the key is removed. Without the memory for a new key the process ends.
  ZCObject*& operator[](const char* key);
  // Gives key this value, adding the key when it is absent.
  void SetAt(const char* key, ZCObject* value);

  // 1 when the key was present and is removed, else 0. Removing the last key frees all memory.
  int RemoveKey(const char* key);
  // Removes all keys and frees all memory; the number of buckets is kept.
  void RemoveAll();

  // The position before the first association; null when the map is empty.
  POSITION GetStartPosition() const;
  // Gives the key (a copy with its language) and the value of the next association and moves
  // position on; it becomes null with the last one. Buckets come in increasing order, within a
  // bucket the newest key first. Adding or removing keys ends an iteration. A null position, or
  // one in a map that was emptied, gives nothing and becomes null.
  void GetNextAssoc(POSITION& position, ZCString& key, ZCObject*& value) const;

 private:
  friend struct kz::MapCore;
  struct Association;  // a key and its value, linked into a chain
  struct Block;        // a row of associations allocated together

  Association** hashTable_ = nullptr;
  std::uint32_t tableSize_ = 17;
  std::int32_t count_ = 0;
  Association* freeList_ = nullptr;
  Block* blocks_ = nullptr;
  std::int32_t blockSize_ = 10;
};

#endif  // KZ_MAP_H

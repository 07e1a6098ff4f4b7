// ZCMapStringToOb: chains of associations in a hash table.
#include "foundation/map_core.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <limits>
#include <new>

struct ZCMapStringToOb::Association {
  Association* next;
  std::uint32_t bucket;
  ZCString key;  // exists while the association is in a chain, not in the free list
  ZCObject* value;
};

// Followed by the block's associations.
struct ZCMapStringToOb::Block {
  Block* previous;
};

namespace kz {

struct MapCore {
  using Map = ZCMapStringToOb;
  using Association = Map::Association;
  using Block = Map::Block;

  static std::uint32_t bucket_of(const Map& map, const char* key) {
    return map.HashKey(key) % map.tableSize_;
  }

  static Association* find(const Map& map, const char* key) {
    return map.hashTable_ == nullptr ? nullptr : find_in(map, bucket_of(map, key), key);
  }

  static Association& find_or_add(Map& map, const char* key) {
    const std::uint32_t bucket = bucket_of(map, key);
    Association* const found = map.hashTable_ != nullptr ? find_in(map, bucket, key) : nullptr;
    return found != nullptr ? *found : add(map, bucket, key);
  }

  // Adds a key that is not there.
  static Association& add(Map& map, std::uint32_t bucket, const char* key) {
    if (map.hashTable_ == nullptr) {
      map.hashTable_ = allocate_table(map.tableSize_);
      if (map.hashTable_ == nullptr) std::terminate();
    }
    if (map.freeList_ == nullptr) add_block(map);
    Association& added = *map.freeList_;
    map.freeList_ = added.next;
    new (&added.key) ZCString(key);
    added.value = nullptr;
    added.bucket = bucket;
    added.next = map.hashTable_[bucket];
    map.hashTable_[bucket] = &added;
    ++map.count_;
    return added;
  }

  static bool remove(Map& map, const char* key) {
    if (map.hashTable_ == nullptr) return false;
    Association** link = &map.hashTable_[bucket_of(map, key)];
    while (*link != nullptr && !has_key(**link, key)) link = &(*link)->next;
    if (*link == nullptr) return false;
    Association& removed = **link;
    *link = removed.next;
    removed.key.~ZCString();
    removed.next = map.freeList_;
    map.freeList_ = &removed;
    if (--map.count_ == 0) remove_all(map);
    return true;
  }

  static void remove_all(Map& map) {
    for (Association* at = head_from(map, 0); at != nullptr; at = next(map, *at)) {
      at->key.~ZCString();
    }
    std::free(map.hashTable_);
    map.hashTable_ = nullptr;
    while (map.blocks_ != nullptr) {
      Block* block = map.blocks_;
      map.blocks_ = block->previous;
      std::free(block);
    }
    map.freeList_ = nullptr;
    map.count_ = 0;
  }

  static Association** allocate_table(std::uint32_t size) {
    return static_cast<Association**>(std::calloc(size, sizeof(Association*)));
  }

  // Head of the first chain that is not empty, from this bucket on.
  static Association* head_from(const Map& map, std::uint32_t bucket) {
    if (map.hashTable_ == nullptr) return nullptr;
    Association** const end = map.hashTable_ + map.tableSize_;
    Association** const head =
        std::find_if(map.hashTable_ + bucket, end, [](Association* chain) { return chain; });
    return head == end ? nullptr : *head;
  }

  static Association* next(const Map& map, const Association& at) {
    return at.next != nullptr ? at.next : head_from(map, at.bucket + 1);
  }

  // Positions are the associations themselves, and one value that no association has.
  static constexpr std::uintptr_t kBeforeStart = ~std::uintptr_t{0};
  static POSITION before_start() { return std::bit_cast<POSITION>(kBeforeStart); }
  static bool is_before_start(POSITION position) {
    return reinterpret_cast<std::uintptr_t>(position) == kBeforeStart;
  }
  static POSITION position_of(Association* at) { return reinterpret_cast<POSITION>(at); }
  static Association* association_at(POSITION at) { return reinterpret_cast<Association*>(at); }

 private:
  static bool has_key(const Association& association, const char* key) {
    return std::strcmp(association.key, key) == 0;
  }

  static Association* find_in(const Map& map, std::uint32_t bucket, const char* key) {
    Association* at = map.hashTable_[bucket];
    while (at != nullptr && !has_key(*at, key)) at = at->next;
    return at;
  }

  // Puts the associations of a new block on the free list, the first one of the block first.
  static void add_block(Map& map) {
    const auto count = static_cast<std::uint64_t>(map.blockSize_);
    const std::uint64_t room = sizeof(Block) + count * sizeof(Association);
    if (room > std::numeric_limits<std::ptrdiff_t>::max()) std::terminate();
    auto* block = static_cast<Block*>(std::malloc(static_cast<std::size_t>(room)));
    if (block == nullptr) std::terminate();
    block->previous = map.blocks_;
    map.blocks_ = block;
    auto* const first = reinterpret_cast<Association*>(block + 1);
    for (Association* at = first + count; at-- != first;) {
      at->next = map.freeList_;
      map.freeList_ = at;
    }
  }
};

void add_new_key(ZCMapStringToOb& map, const char* key, ZCObject* value) {
  MapCore::add(map, MapCore::bucket_of(map, key), key).value = value;
}

}  // namespace kz

using kz::MapCore;

namespace {
const char* text_of(const char* key) { return key != nullptr ? key : ""; }
}  // namespace

ZCMapStringToOb::ZCMapStringToOb() = default;
ZCMapStringToOb::ZCMapStringToOb(int blockSize) : blockSize_(std::max(blockSize, 1)) {}
ZCMapStringToOb::~ZCMapStringToOb() { MapCore::remove_all(*this); }

int ZCMapStringToOb::GetCount() const { return count_; }
int ZCMapStringToOb::IsEmpty() const { return count_ == 0; }
unsigned int ZCMapStringToOb::GetHashTableSize() const { return tableSize_; }

void ZCMapStringToOb::InitHashTable(unsigned int size, int allocateNow) {
  if (count_ != 0) return;
  std::free(hashTable_);
  tableSize_ = std::max(size, 1U);
  hashTable_ = allocateNow != 0 ? MapCore::allocate_table(tableSize_) : nullptr;
}

unsigned int ZCMapStringToOb::HashKey(const char* key) const {
  std::uint32_t hash = 0;
  for (key = text_of(key); *key != '\0'; ++key) hash = hash * 33 + static_cast<unsigned char>(*key);
  return hash;
}

int ZCMapStringToOb::Lookup(const char* key, ZCObject*& value) const {
  const Association* found = MapCore::find(*this, text_of(key));
  if (found == nullptr) return 0;
  value = found->value;
  return 1;
}

int ZCMapStringToOb::LookupKey(const char* key, const char*& storedKey) const {
  const Association* found = MapCore::find(*this, text_of(key));
  if (found == nullptr) return 0;
  storedKey = found->key;
  return 1;
}

ZCObject*& ZCMapStringToOb::operator[](const char* key) {
  return MapCore::find_or_add(*this, text_of(key)).value;
}

void ZCMapStringToOb::SetAt(const char* key, ZCObject* value) { (*this)[key] = value; }

int ZCMapStringToOb::RemoveKey(const char* key) { return MapCore::remove(*this, text_of(key)); }
void ZCMapStringToOb::RemoveAll() { MapCore::remove_all(*this); }

POSITION ZCMapStringToOb::GetStartPosition() const {
  return count_ > 0 ? MapCore::before_start() : nullptr;
}

void ZCMapStringToOb::GetNextAssoc(POSITION& position, ZCString& key, ZCObject*& value) const {
  const bool at_start = MapCore::is_before_start(position);
  Association* at = at_start ? MapCore::head_from(*this, 0) : MapCore::association_at(position);
  position = nullptr;
  if (at == nullptr || count_ == 0) return;
  position = MapCore::position_of(MapCore::next(*this, *at));
  key = at->key;
  value = at->value;
}

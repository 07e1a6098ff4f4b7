// HeadwordCache: a hash from headwords to records, for exact searches.
//
// Blocks that are searched more than once put their headwords here. A search that finds its word in
// the cache needs neither the index nor the block.
#ifndef KZ_DICTIONARY_HEADWORD_CACHE_H
#define KZ_DICTIONARY_HEADWORD_CACHE_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "dictionary/shared_reference.h"

namespace kz {

class Block;

// A record in a block in memory.
struct CachedRecord {
  const Block* block = nullptr;
  const char* text = nullptr;  // decoded, not terminated; it begins with the headword
  std::int32_t next = 0;       // offset in the block after the record
  std::uint16_t length = 0;    // of the text, cut to what an entry takes
  std::uint16_t word_length = 0;
  SharedReference reference;
};

class HeadwordCache {
 public:
  // Longest headword that a search can ask for.
  static constexpr std::size_t kWordMax = 77;

  // `memory_max`: bytes that an array of the cache may take.
  explicit HeadwordCache(std::size_t memory_max) : memory_max_(memory_max) {}

  // The record of a headword, null when the cache lacks it.
  const CachedRecord* find(std::string_view word) const;

  // Adds a record unless its headword is there already. False when there is no room.
  bool add(const CachedRecord& record);

 private:
  // A hash and the number of a record, counted from 1; 0 for an empty slot.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t record = 0;
  };

  std::size_t slot_of(std::string_view word, std::uint32_t hash) const;
  bool grow();

  std::vector<Slot> slots_;  // a power of two of them, or none
  std::vector<CachedRecord> records_;
  std::size_t memory_max_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_HEADWORD_CACHE_H

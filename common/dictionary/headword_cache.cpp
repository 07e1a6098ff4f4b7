// Hash from headwords to records.
#include "dictionary/headword_cache.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace kz {
namespace {

constexpr std::size_t kFirstSlots = 256;

// Two overlapping parts of four or eight bytes hold a short text whole.
template <typename Part>
std::uint64_t ends_of(std::string_view text) {
  Part first, last;
  std::memcpy(&first, text.data(), sizeof first);
  std::memcpy(&last, text.data() + text.size() - sizeof last, sizeof last);
  return first + 0x9E3779B97F4A7C15u * last;  // 2^64 divided by the golden ratio
}

std::uint32_t hash_of(std::string_view word) {
  constexpr std::uint64_t kFactor = 0xD1B54A32D192ED03u;  // odd, with its bits well mixed
  std::uint64_t hash = word.size();
  for (; word.size() > 16; word.remove_prefix(16)) {
    hash = (hash ^ ends_of<std::uint64_t>(word.substr(0, 16))) * kFactor;
    hash ^= hash >> 32;
  }
  const std::uint64_t rest = word.size() >= 8   ? ends_of<std::uint64_t>(word)
                             : word.size() >= 4 ? ends_of<std::uint32_t>(word)
                             : word.size() >= 2 ? ends_of<std::uint16_t>(word)
                                                : ends_of<std::uint8_t>(word);
  hash = (hash ^ rest) * kFactor;
  hash = (hash ^ hash >> 32) * kFactor;
  return static_cast<std::uint32_t>(hash >> 32);
}

std::string_view headword(const CachedRecord& record) { return {record.text, record.word_length}; }

}  // namespace

std::size_t HeadwordCache::slot_of(std::string_view word, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = hash & mask;
  while (slots_[i].record != 0 &&
         (slots_[i].hash != hash || headword(records_[slots_[i].record - 1]) != word)) {
    i = (i + 1) & mask;
  }
  return i;
}

const CachedRecord* HeadwordCache::find(std::string_view word) const {
  if (slots_.empty()) return nullptr;
  const std::uint32_t number = slots_[slot_of(word, hash_of(word))].record;
  return number == 0 ? nullptr : &records_[number - 1];
}

bool HeadwordCache::add(const CachedRecord& record) {
  if ((records_.size() + 1) * 2 > slots_.size() && !grow()) return false;
  const std::uint32_t hash = hash_of(headword(record));
  Slot& slot = slots_[slot_of(headword(record), hash)];
  if (slot.record != 0) return true;
  records_.push_back(record);
  slot = {hash, static_cast<std::uint32_t>(records_.size())};
  return true;
}

// Twice the slots, and room for the records that they can take: half of them stay empty, so that a
// headword that is not there shows at once.
bool HeadwordCache::grow() {
  const std::size_t size = slots_.empty() ? kFirstSlots : slots_.size() * 2;
  const std::size_t records = size / 2;
  if (std::max(size * sizeof(Slot), records * sizeof(CachedRecord)) > memory_max_) return false;
  try {
    records_.reserve(records);
    std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(size));
    for (const Slot& slot : old) {
      if (slot.record == 0) continue;
      std::size_t i = slot.hash & (size - 1);
      while (slots_[i].record != 0) i = (i + 1) & (size - 1);
      slots_[i] = slot;
    }
  } catch (const std::bad_alloc&) {
    return false;
  }
  return true;
}

}  // namespace kz

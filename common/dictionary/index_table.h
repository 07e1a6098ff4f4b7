// The table of a CDicIndex, and how it leads to what the library keeps for an index beside it.
//
// Programs have the size of CDicIndex compiled in, as part of CDic: it has no field for a pointer
// of the library's own. So that pointer is stored before the first entry of the table.
#ifndef KZ_DICTIONARY_INDEX_TABLE_H
#define KZ_DICTIONARY_INDEX_TABLE_H

#include <cstddef>
#include <cstring>
#include <new>

namespace kz {

struct IndexState;

inline constexpr std::size_t kStateSize = sizeof(void*);

// The entries that the pointer takes the room of.
template <typename Entry>
inline constexpr std::size_t kStateEntries = (kStateSize + sizeof(Entry) - 1) / sizeof(Entry);

// A table of entries without values; null when memory runs out.
template <typename Entry>
Entry* new_table(std::size_t entries, IndexState* state) {
  auto* const block = new (std::nothrow) Entry[kStateEntries<Entry> + entries];
  if (block == nullptr) return nullptr;
  std::memcpy(block, &state, kStateSize);
  return block + kStateEntries<Entry>;
}

// Releases a table, but not the state.
template <typename Entry>
void delete_table(Entry* table) {
  if (table != nullptr) delete[](table - kStateEntries<Entry>);
}

// The state that the table was made with; null for no table.
template <typename Entry>
IndexState* state_of(const Entry* table) {
  IndexState* state = nullptr;
  if (table != nullptr) std::memcpy(&state, table - kStateEntries<Entry>, kStateSize);
  return state;
}

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_TABLE_H

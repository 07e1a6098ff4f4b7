// Which group comes next: answers about the non-empty groups of an index in constant time.
#ifndef KZ_DICTIONARY_INDEX_ORDER_H
#define KZ_DICTIONARY_INDEX_ORDER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "dictionary/block.h"
#include "dictionary/index_letters.h"

namespace kz {

// The non-empty groups, by rank. A table has up to 83,248 cells, most of them empty in a real
// dictionary, and the end of a block is the next cell with a greater position: to look for it cell
// by cell would cost more than the search itself. A bit per rank leads to the entries, and a tree
// of maxima over their positions to the first greater one, whatever order a damaged file has them
// in; in a sorted file that is nearly always the first entry asked.
class GroupOrder {
 public:
  // Starts anew with no groups among `ranks` places.
  void reset(std::size_t ranks);

  // Ranks come in ascending order, and finish() after the last one.
  void append(std::size_t rank, std::int32_t position);
  void finish();

  // Position of the first group from rank `start` on that lies after `position`.
  std::optional<std::int32_t> first_greater(std::size_t start, std::int32_t position) const;

  // Rank of the first group from rank `start` on.
  std::optional<std::size_t> next_rank(std::size_t start) const;

 private:
  std::size_t entries_before(std::size_t rank) const;

  std::vector<std::uint64_t> used_;    // a bit per rank
  std::vector<std::uint32_t> before_;  // entries before each word of used_
  std::size_t count_ = 0;
  std::vector<std::int32_t> tree_;  // until finish() the positions, then maxima: the root is 1,
                                    // 2i and 2i + 1 are under i, the positions come last
};

// What an index keeps beside its documented fields.
struct IndexState {
  IndexState(char language, const Alphabet& alphabet_of_index)
      : alphabet(alphabet_of_index), roles(prefix_roles(language, alphabet_of_index)) {}

  const Alphabet& alphabet;
  std::array<PrefixRole, 256> roles;
  GroupOrder groups;                           // all groups
  GroupOrder pair_heads;                       // depth 3: the heads of the letter pairs
  std::vector<std::unique_ptr<Block>> blocks;  // what the cells of the block cache point to
};

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_ORDER_H

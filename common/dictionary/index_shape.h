// The cells of an index table: numbering, and the order in which groups are in the file.
#ifndef KZ_DICTIONARY_INDEX_SHAPE_H
#define KZ_DICTIONARY_INDEX_SHAPE_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace kz {

// First, second and third letter slot. Slot n in the second or third place means no letter: the
// cell of the group head. A table of depth 2 has slot n in the third place.
using Slots = std::array<int, 3>;

// A table of n rows for n letters, each with n + 1 cells (depth 2) or (n + 1) * (n + 1) cells
// (depth 3). A cell number tells where a cell is stored; its rank tells when its group comes: the
// head before the letters, where the number has it after them.
struct IndexShape {
  int n;
  bool three;  // depth 3

  std::size_t pairs() const { return size(n) * size(n + 1); }
  std::size_t cells() const { return three ? pairs() * size(n + 1) : pairs(); }

  std::size_t cell(const Slots& s) const {
    const std::size_t pair = size(s[0]) * size(n + 1) + size(s[1]);
    return three ? pair * size(n + 1) + size(s[2]) : pair;
  }

  std::size_t pair_rank(const Slots& s) const { return size(s[0]) * size(n + 1) + order(s[1]); }
  std::size_t rank(const Slots& s) const {
    return three ? pair_rank(s) * size(n + 1) + order(s[2]) : pair_rank(s);
  }
  std::size_t row_rank(int row) const { return rank({row, n, n}); }

  Slots slots_of_rank(std::size_t rank) const {
    Slots s{0, 0, n};
    if (three) {
      s[2] = slot(rank % size(n + 1));
      rank /= size(n + 1);
    }
    s[1] = slot(rank % size(n + 1));
    s[0] = static_cast<int>(rank / size(n + 1));
    return s;
  }

 private:
  static std::size_t size(int i) { return static_cast<std::size_t>(i); }
  std::size_t order(int s) const { return s == n ? 0 : size(s) + 1; }
  int slot(std::size_t place) const { return place == 0 ? n : static_cast<int>(place) - 1; }
};

// The positions that a block can have: after the smallest header that there is, and not after
// the end of the record area.
inline bool inside_records(std::int64_t position, std::int32_t index_offset) {
  constexpr std::int64_t kSmallestHeader = 124;
  return position >= kSmallestHeader && position <= index_offset;
}

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_SHAPE_H

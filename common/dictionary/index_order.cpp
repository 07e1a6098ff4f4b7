// Bit set and maximum tree over the groups of an index.
#include "dictionary/index_order.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace kz {
namespace {

constexpr std::size_t kBits = 64;
constexpr std::int32_t kNowhere = std::numeric_limits<std::int32_t>::min();

}  // namespace

void GroupOrder::reset(std::size_t ranks) {
  used_.assign(ranks / kBits + 1, 0);
  before_.assign(used_.size(), 0);
  count_ = 0;
  tree_.clear();
}

void GroupOrder::append(std::size_t rank, std::int32_t position) {
  used_[rank / kBits] |= std::uint64_t{1} << rank % kBits;
  tree_.push_back(position);
  ++count_;
}

void GroupOrder::finish() {
  std::uint32_t count = 0;
  for (std::size_t i = 0; i < used_.size(); ++i) {
    before_[i] = count;
    count += static_cast<std::uint32_t>(std::popcount(used_[i]));
  }
  const std::size_t leaves = std::bit_ceil(count_);
  tree_.insert(tree_.begin(), leaves, kNowhere);
  tree_.resize(2 * leaves, kNowhere);
  for (std::size_t i = leaves - 1; i > 0; --i) tree_[i] = std::max(tree_[2 * i], tree_[2 * i + 1]);
}

std::size_t GroupOrder::entries_before(std::size_t rank) const {
  const std::uint64_t lower = used_[rank / kBits] & ((std::uint64_t{1} << rank % kBits) - 1);
  return before_[rank / kBits] + static_cast<std::size_t>(std::popcount(lower));
}

std::optional<std::int32_t> GroupOrder::first_greater(std::size_t start,
                                                      std::int32_t position) const {
  if (start / kBits >= used_.size()) return std::nullopt;
  const std::size_t entry = entries_before(start);
  if (entry == count_) return std::nullopt;

  const std::size_t leaves = tree_.size() / 2;
  std::size_t node = leaves + entry;
  while (tree_[node] <= position) {
    while (node & 1) node /= 2;  // a right child: what follows it follows its parent
    if (node == 0) return std::nullopt;
    ++node;
  }
  while (node < leaves) {
    node *= 2;
    if (tree_[node] <= position) ++node;
  }
  return tree_[node];
}

std::optional<std::size_t> GroupOrder::next_rank(std::size_t start) const {
  std::size_t word = start / kBits;
  if (word >= used_.size()) return std::nullopt;
  std::uint64_t rest = used_[word] & ~((std::uint64_t{1} << start % kBits) - 1);
  while (rest == 0) {
    if (++word == used_.size()) return std::nullopt;
    rest = used_[word];
  }
  return word * kBits + static_cast<std::size_t>(std::countr_zero(rest));
}

}  // namespace kz

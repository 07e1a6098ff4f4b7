// From a word to its block: prefix, cell, size, cached block.
#include <algorithm>
#include <cstring>
#include <new>
#include <span>

#include "dictionary/index.h"
#include "dictionary/index_key.h"
#include "dictionary/index_letters.h"
#include "dictionary/index_order.h"
#include "kz/charclass.h"
#include "kz/dictionary.h"

namespace kz {
namespace {

// Third slot of a found group that was widened.
constexpr std::int16_t kWidened = -1;

std::int32_t distance(std::int64_t from, std::int64_t to) {
  return static_cast<std::int32_t>(std::max<std::int64_t>(to - from, 0));
}

}  // namespace

bool IndexCore::read_prefix(const char* word, char (&prefix)[6]) const {
  const auto role_of = [this](char c) { return state()->roles[static_cast<std::uint8_t>(c)]; };
  const bool keys = x_.depth_ == 5;
  const std::size_t places = keys ? kKeyLength : x_.depth_ == 3 ? 3 : 2;
  std::memset(prefix, 0, sizeof prefix);
  for (std::size_t i = 0; i < places; ++i) {
    const PrefixRole role = role_of(word[i]);
    if (role == PrefixRole::kEnd) return keys || i > 0;
    if (role == PrefixRole::kOther || (role == PrefixRole::kMark && i == 0)) return false;
    // In a table only letters count; what stands for "no letter" is kept as zero.
    if (role == PrefixRole::kLetter || keys) prefix[i] = word[i];
  }
  return true;
}

bool IndexCore::set_prefix(const char* word) {
  char prefix[6];
  if (word == nullptr || state() == nullptr || !read_prefix(word, prefix)) return false;
  std::memcpy(x_.prefix_, prefix, sizeof prefix);
  return true;
}

// The cell of the prefix; a first slot of n when the table is empty.
Slots IndexCore::find_slots() const {
  const Alphabet& alphabet = state()->alphabet;
  const IndexShape shape{alphabet.size, x_.depth_ == 3};
  const int n = alphabet.size;
  Slots s{alphabet.slot(x_.prefix_[0]), n, n};
  // Words that begin with a digit are at the head of the first row that has records, whatever
  // follows the digit.
  if (x_.prefix_[0] != 0) {
    s[1] = alphabet.slot(x_.prefix_[1]);
    if (shape.three) s[2] = alphabet.slot(x_.prefix_[2]);
  }
  if (s[0] == n) {
    s[0] = 0;
    while (s[0] < n && x_.offset_table_[shape.cell({s[0], n, n})] == -1) ++s[0];
  }
  return s;
}

std::int32_t IndexCore::lookup() {
  x_.found_position_ = -1;
  if (x_.depth_ == 5) {
    x_.slots_[2] = 0;
    const std::span records(x_.key_records_, static_cast<std::size_t>(x_.record_count_));
    const std::uint32_t key = index_key(x_.prefix_);
    const auto at = std::lower_bound(
        records.begin(), records.end(), key,
        [](const KeyRecord& record, std::uint32_t wanted) { return record.key < wanted; });
    const bool found = at != records.end() && at->key == key;
    x_.found_record_ = found ? &*at : nullptr;
    if (found && inside_records(at->position, x_.index_offset_)) {
      x_.found_position_ = static_cast<std::int32_t>(at->position);
    }
    return x_.found_position_;
  }
  if (x_.offset_table_ == nullptr) return -1;
  const Slots s = find_slots();
  std::copy(s.begin(), s.end(), std::begin(x_.slots_));
  if (s[0] == x_.alphabet_size_) return -1;
  const IndexShape shape{x_.alphabet_size_, x_.depth_ == 3};
  const std::int32_t position = x_.offset_table_[shape.cell(s)];
  if (inside_records(position, x_.index_offset_)) x_.found_position_ = position;
  return x_.found_position_;
}

bool IndexCore::widen(std::int16_t search_mode) {
  if (x_.found_position_ < 0) return false;
  const bool short_of_letters =
      x_.depth_ == 3   ? search_mode == DIC_SEARCH_GROUP && x_.prefix_[2] == 0
      : x_.depth_ == 5 ? search_mode >= DIC_SEARCH_GROUP && x_.prefix_[4] == 0
                       : false;
  if (short_of_letters) x_.slots_[2] = kWidened;
  return short_of_letters;
}

bool IndexCore::widened() const { return x_.slots_[2] == kWidened; }

std::int32_t IndexCore::block_size() {
  x_.block_size_ = 0;
  if (x_.found_position_ < 0) return 0;
  if (x_.depth_ == 5) {
    const bool last = x_.found_record_ + 1 == x_.key_records_ + x_.record_count_;
    std::int64_t end = x_.index_offset_;
    if (!last && !widened()) end = std::min<std::int64_t>(end, x_.found_record_[1].position);
    x_.block_size_ = distance(x_.found_position_, end);
  } else {
    x_.block_size_ = size_at(slots(), x_.found_position_);
  }
  return x_.block_size_;
}

// The block of a cell ends at the first group after it that has a greater position. The head of a
// row of depth 3 stands for the whole row, and a widened group for all of its pair.
std::int32_t IndexCore::size_at(const Slots& s, std::int32_t position) const {
  const IndexShape shape{x_.alphabet_size_, x_.depth_ == 3};
  const bool row_head = shape.three && s[1] == shape.n && (s[2] == shape.n || s[2] == kWidened);
  std::optional<std::int32_t> next;
  if (s[2] == kWidened) {
    const std::size_t start =
        row_head ? shape.pair_rank({s[0] + 1, shape.n, shape.n}) : shape.pair_rank(s) + 1;
    next = state()->pair_heads.first_greater(start, position);
  } else {
    const std::size_t start = row_head ? shape.row_rank(s[0] + 1) : shape.rank(s) + 1;
    next = state()->groups.first_greater(start, position);
  }
  return distance(position, std::min(next.value_or(x_.index_offset_), x_.index_offset_));
}

Block** IndexCore::cache_cell() const {
  if (x_.block_cache_ == nullptr || x_.found_position_ < 0 || widened()) return nullptr;
  if (x_.depth_ == 5) return x_.block_cache_ + (x_.found_record_ - x_.key_records_);
  return x_.block_cache_ + IndexShape{x_.alphabet_size_, x_.depth_ == 3}.cell(slots());
}

Block* IndexCore::cached_block() const {
  Block** cell = cache_cell();
  return cell == nullptr ? nullptr : *cell;
}

Block* IndexCore::put_block(std::unique_ptr<Block> block) {
  Block** cell = cache_cell();
  if (cell == nullptr) return nullptr;
  try {
    state()->blocks.push_back(std::move(block));
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
  *cell = state()->blocks.back().get();
  if (x_.depth_ == 5) return *cell;

  // A head that begins at the same position and ends where the group ends has the same block. (The
  // head of a row of depth 3 usually ends later.)
  const IndexShape shape{x_.alphabet_size_, x_.depth_ == 3};
  const int n = shape.n;
  const Slots found = slots();
  for (const Slots& head : {Slots{found[0], found[1], n}, Slots{found[0], n, n}}) {
    const std::size_t at = shape.cell(head);
    if (x_.offset_table_[at] == x_.found_position_ &&
        size_at(head, x_.found_position_) == x_.block_size_) {
      x_.block_cache_[at] = *cell;
    }
  }
  return *cell;
}

}  // namespace kz

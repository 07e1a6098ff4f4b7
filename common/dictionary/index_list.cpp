// Walking and printing the groups of an index, and questions about one word.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "dictionary/index.h"
#include "dictionary/index_key.h"
#include "dictionary/index_letters.h"
#include "dictionary/index_order.h"
#include "kz/file.h"

namespace kz {

bool IndexCore::select_first() { return x_.depth_ == 5 ? select_record(0) : select_rank(0); }

bool IndexCore::select_next() {
  if (x_.depth_ == 5) {
    return select_record(static_cast<std::int32_t>(x_.found_record_ - x_.key_records_) + 1);
  }
  return select_rank(IndexShape{x_.alphabet_size_, x_.depth_ == 3}.rank(slots()) + 1);
}

bool IndexCore::select_rank(std::size_t from) {
  x_.found_position_ = -1;
  if (x_.offset_table_ == nullptr) return false;
  const IndexShape shape{x_.alphabet_size_, x_.depth_ == 3};
  while (const auto rank = state()->groups.next_rank(from)) {
    const Slots s = shape.slots_of_rank(*rank);
    const std::int32_t position = x_.offset_table_[shape.cell(s)];
    if (inside_records(position, x_.index_offset_)) {
      std::copy(s.begin(), s.end(), std::begin(x_.slots_));
      x_.found_position_ = position;
      return true;
    }
    from = *rank + 1;
  }
  return false;
}

bool IndexCore::select_record(std::int32_t from) {
  x_.found_position_ = -1;
  x_.slots_[2] = 0;
  for (; from < x_.record_count_; ++from) {
    if (!inside_records(x_.key_records_[from].position, x_.index_offset_)) continue;
    x_.found_record_ = x_.key_records_ + from;
    x_.found_position_ = static_cast<std::int32_t>(x_.found_record_->position);
    return true;
  }
  return false;
}

bool IndexCore::at_letter_group() const {
  const std::int16_t n = x_.alphabet_size_;
  return x_.depth_ == 5 || (x_.slots_[1] != n && (x_.depth_ == 2 || x_.slots_[2] != n));
}

std::size_t IndexCore::count_letter_groups() {
  std::size_t count = 0;
  for (bool found = select_first(); found; found = select_next()) count += at_letter_group();
  return count;
}

bool IndexCore::in_letter_group(const char* word) const {
  if (x_.depth_ == 5) return true;
  const Alphabet& alphabet = state()->alphabet;
  for (int i = 0; i < x_.depth_; ++i) {
    if (alphabet.slot(word[i]) == alphabet.size) return false;  // so is the end of the word
  }
  return true;
}

void IndexCore::group_letters(char (&letters)[3]) const {
  std::memset(letters, ' ', sizeof letters);
  if (x_.depth_ == 5) {
    for (std::size_t i = 0; i < 3; ++i) letters[i] = key_character(x_.found_record_->key, i);
    return;
  }
  const Alphabet& alphabet = *find_alphabet(x_.alphabet_size_);
  for (std::size_t i = 0; i < 3; ++i) {
    const int slot = x_.slots_[i];
    if (slot >= 0 && slot < alphabet.size) letters[i] = alphabet.letter(slot);
  }
}

std::int32_t IndexCore::word_position(const char* word) { return set_prefix(word) ? lookup() : -1; }

std::int32_t IndexCore::word_block_size(const char* word) {
  return word_position(word) < 0 ? -1 : block_size();
}

void IndexCore::print(ZCFile& file) {
  for_each_group([&](std::int32_t position, std::int32_t size) {
    char letters[3];
    group_letters(letters);
    char line[64];
    std::snprintf(line, sizeof line, "*%-7ld '%c%c%c' %-7ld\n", static_cast<long>(position),
                  letters[0], letters[1], letters[2], static_cast<long>(size));
    file.WriteString(line);
  });
}

}  // namespace kz

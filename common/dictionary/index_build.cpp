// CDicIndex: entering records as a dictionary is written.
#include <algorithm>

#include "dictionary/error.h"
#include "dictionary/index.h"
#include "dictionary/index_key.h"
#include "dictionary/index_letters.h"
#include "dictionary/index_shape.h"
#include "dictionary/index_table.h"
#include "kz/file.h"

namespace kz {
namespace {

constexpr std::int32_t kGrowth = 1000;

// The letter that a place of the word contributes to the index: zero for a mark, for the end of
// the word (which ends the places after it too), and for what the alphabet lacks.
struct WordLetters {
  WordLetters(const Alphabet& alphabet, const char* word) {
    for (std::size_t i = 0; i < slots.size(); ++i) slots[i] = alphabet.size;
    for (std::size_t i = 0; i < slots.size() && !ends_word(word[i]); ++i) {
      slots[i] = alphabet.slot(word[i]);
      if (slots[i] != alphabet.size) letters[i] = word[i];
    }
  }
  Slots slots;
  char letters[3] = {};
};

}  // namespace

void IndexCore::enter_in_table(std::int32_t position, const char* word) {
  const Alphabet& alphabet = *find_alphabet(x_.alphabet_size_);
  const IndexShape shape{alphabet.size, x_.depth_ == 3};
  const int n = alphabet.size;
  const WordLetters at(alphabet, word);
  const Slots& s = at.slots;
  x_.changed_ = 0;
  if (s[0] == n) return;

  // The first place whose letter is new opens the groups of all places from it on. Slots decide,
  // not bytes: letters that share a slot share its group.
  const int last = shape.three ? 2 : 1;
  int place = 0;
  if (!x_.first_record_ && s[0] == alphabet.slot(x_.prefix_[0])) {
    place = shape.three && s[1] == alphabet.slot(x_.prefix_[1]) ? 2 : 1;
    if (s[place] == alphabet.slot(x_.prefix_[place])) return;
    if (s[place] == n) {
      if (place != last) enter_late_mark(position, s);
      return;
    }
  }
  x_.first_record_ = 0;
  x_.changed_ = 1;
  for (int i = place; i <= last; ++i) {
    x_.prefix_[i] = at.letters[i];
    if (s[i] == n) continue;
    Slots group = s;
    for (int j = i + 1; j < 3; ++j) group[j] = n;
    x_.offset_table_[shape.cell(group)] = position;
  }
}

// A word of depth 3 whose second character is no letter belongs before the pairs of its row. One
// that comes after them still gets the cell that its look-up reads, if that is free, and leaves
// the current pair open.
void IndexCore::enter_late_mark(std::int32_t position, const Slots& slots) {
  const IndexShape shape{x_.alphabet_size_, true};
  std::int32_t& cell = x_.offset_table_[shape.cell(slots)];
  if (slots[2] == shape.n || cell != -1) return;
  cell = position;
  x_.changed_ = 1;
}

void IndexCore::enter_key(std::int32_t position, const char* word) {
  x_.changed_ = 0;
  const std::uint32_t old_key = index_key(x_.prefix_);
  if (!set_prefix(word)) return;
  const std::uint32_t key = index_key(x_.prefix_);
  if (!x_.first_record_ && key == old_key) return;
  if (x_.record_count_ >= x_.record_capacity_ && !grow_records()) {
    set_error(DIC_ERR_MEMORY);
    return;
  }
  x_.key_records_[x_.record_count_++] = {key, static_cast<std::uint32_t>(position)};
  x_.table_size_ = static_cast<std::uint32_t>(x_.record_count_) * sizeof(KeyRecord);
  x_.first_record_ = 0;
  x_.changed_ = 1;
}

bool IndexCore::grow_records() {
  const std::int32_t capacity = x_.record_count_ + kGrowth;
  auto* const records = new_table<KeyRecord>(static_cast<std::size_t>(capacity), state());
  if (records == nullptr) return false;
  std::copy_n(x_.key_records_, x_.record_count_, records);
  delete_table(x_.key_records_);
  x_.key_records_ = records;
  x_.found_record_ = nullptr;
  x_.record_capacity_ = capacity;
  return true;
}

}  // namespace kz

void CDicIndex::SetFileIndex(ZCFile& file, const char* word) {
  if (word == nullptr) return;
  kz::IndexCore core(*this);
  const auto position = static_cast<std::int32_t>(file.GetPosition());
  if (offset_table_ != nullptr) core.enter_in_table(position, word);
  if (key_records_ != nullptr) core.enter_key(position, word);
}

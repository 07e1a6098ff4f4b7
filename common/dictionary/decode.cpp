// From the found record to the text of its entry.
#include <algorithm>
#include <cstring>
#include <new>

#include "dictionary/error.h"
#include "dictionary/lookup.h"
#include "kz/entry.h"

namespace kz {
namespace {

constexpr std::int16_t kTextLevel = DIC_LEVEL_DECODED;
constexpr std::int16_t kSharedTextLevel = DIC_LEVEL_FULL;

}  // namespace

// Brings the entry to a level; what has been decoded already stays.
bool Lookup::decode(std::int16_t level) {
  if (!s_.packed && d_.level_ < kTextLevel) d_.level_ = kTextLevel;
  if (level >= kTextLevel && d_.level_ < kTextLevel) {
    if (s_.cached != nullptr) {
      set_entry({s_.cached->text, s_.cached->length});
    } else {
      const auto length = static_cast<std::size_t>(s_.work_length);
      std::transform(d_.work_record_, d_.work_record_ + length, d_.entry_, invert_top_bit);
      d_.entry_[length] = 0;
      d_.entry_length_ = static_cast<std::int16_t>(length);
    }
    d_.level_ = kTextLevel;
  }
  if (level >= kSharedTextLevel && d_.level_ < kSharedTextLevel) {
    if (!resolve_shared_text()) return false;
    d_.level_ = kSharedTextLevel;
  }
  return true;
}

// Puts the shared text that the entry's body names in the body's place. False when that text cannot
// be read.
bool Lookup::resolve_shared_text() {
  if (d_.shared_size_ == 0) return true;
  const std::string_view entry(d_.entry_, static_cast<std::size_t>(d_.entry_length_));
  const SharedReference reference =
      s_.cached != nullptr ? s_.cached->reference : find_shared_reference(entry, d_.shared_size_);
  if (!reference) return true;
  if (!load_shared_text()) return false;

  const char* const shared = d_.shared_block_ + reference.offset;
  const std::size_t room = std::min<std::size_t>(d_.shared_size_ - reference.offset, kEntryTextMax);
  char result[2 * kEntryTextMax];
  char* end = std::ranges::copy(entry.substr(0, reference.body), result).out;
  end = std::copy_n(shared, strnlen(shared, room), end);
  end = std::ranges::copy(entry.substr(reference.body + reference.body_length), end).out;
  set_entry({result, std::min<std::size_t>(static_cast<std::size_t>(end - result), kEntryTextMax)});
  return true;
}

bool Lookup::load_shared_text() {
  if (d_.shared_block_ != nullptr) return true;
  const auto position = static_cast<std::int32_t>(d_.shared_offset_);
  char* const block = new (std::nothrow) char[d_.shared_size_];
  if (block == nullptr) {
    set_error(DIC_ERR_MEMORY);
    return false;
  }
  if (d_.file_.Seek(position, 0) != position ||
      d_.file_.Read(block, d_.shared_size_) != d_.shared_size_) {
    delete[] block;
    set_error(DIC_ERR_FILE);
    return false;
  }
  d_.shared_block_ = block;
  return true;
}

void Lookup::set_entry(std::string_view text) {
  if (!text.empty()) std::memcpy(d_.entry_, text.data(), text.size());
  d_.entry_[text.size()] = 0;
  d_.entry_length_ = static_cast<std::int16_t>(text.size());
}

// Searches leave the entry object alone; it takes the found entry when somebody asks for it.
CDicEntry* Lookup::entry_object() {
  if (s_.entry_object_stale && s_.found) {
    decode(kTextLevel);
    d_.entry_object_->SetFullEntry(d_.entry_);
    d_.entry_object_->Split();
    s_.entry_object_stale = false;
  }
  return d_.entry_object_;
}

}  // namespace kz

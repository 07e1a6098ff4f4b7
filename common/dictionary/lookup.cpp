// Finding a word and walking the records after it.
#include "dictionary/lookup.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

#include "dictionary/error.h"

namespace kz {
namespace {

// Size of a block whose index cells do not give one.
constexpr std::int32_t kUnknownBlockSize = 2048;

}  // namespace

const char* Lookup::find(const char* word, std::int16_t search_mode, std::int16_t level) {
  set_error(DIC_OK);
  d_.search_mode_ = search_mode;
  const std::size_t length = word != nullptr ? strnlen(word, HeadwordCache::kWordMax + 1) : 0;
  const bool by_headword =
      search_mode == DIC_SEARCH_EXACT && length > 0 && !has_mode(DIC_MODE_NO_INDEX);
  if (by_headword) {
    const CachedRecord* record = s_.headwords.find({word, length});
    if (record != nullptr) return take_cached(*record, level);
  }
  const bool searchable = word == nullptr || (length > 0 && length <= HeadwordCache::kWordMax);
  // A null word has an empty key, which the first record begins with.
  d_.key_length_ = static_cast<std::int16_t>(searchable ? length : 0);
  if (word != nullptr && searchable) {
    // The word may be the text of the entry found last, which goes now.
    std::memcpy(d_.search_key_, word, length + 1);
    word = d_.search_key_;
  }
  s_.found = false;
  s_.more = false;
  s_.cached = nullptr;
  set_entry({});
  if (!searchable || (by_headword && cache_is_complete_for(word))) return nullptr;

  const Place place = place_of(word);
  if (place.size <= 0) return nullptr;
  d_.position_ = place.position;
  Block* const block = place.one_block ? this->block(place) : nullptr;
  if (block == nullptr) {
    search_in_file(place);
    return answer(find_record(), level);
  }
  search_in(*block);
  if (by_headword && key_is_headword()) {
    if (block->headwords == Block::Headwords::kCached) {
      mark_group_cached(*block);
      return nullptr;
    }
    if (cache_headwords(*block)) {
      place_of(word);  // entering has asked the index for other words
      mark_group_cached(*block);
      const CachedRecord* record = s_.headwords.find(key());
      return record != nullptr ? take_cached(*record, level) : nullptr;
    }
  }
  return answer(find_record(), level);
}

Lookup::Place Lookup::place_of(const char* word) {
  const auto rest_of = [this](std::int32_t position) {
    return Place{position, size_in_records(position, INT32_MAX)};
  };
  if (word == nullptr) {
    return d_.data_offset_ > INT32_MAX ? Place{}
                                       : rest_of(static_cast<std::int32_t>(d_.data_offset_));
  }
  IndexCore index(d_.index_);
  if (!index.set_prefix(word)) return {};
  if (has_mode(DIC_MODE_NO_INDEX)) return rest_of(d_.position_);
  const std::int32_t position = index.lookup();
  if (position < 0) return {};
  if (d_.search_mode_ == DIC_SEARCH_REST) return rest_of(position);
  const bool widened = index.widen(d_.search_mode_);
  if (Block* kept = index.cached_block()) return {position, kept->size(), true, kept};
  std::int32_t size = index.block_size();
  if (size < 1) size = kUnknownBlockSize;
  return {position, size_in_records(position, size), !widened};
}

std::int32_t Lookup::size_in_records(std::int32_t position, std::int32_t size) const {
  return std::min(size, d_.index_offset_ - position);
}

// The block in memory; null when it cannot be had there, and is to be read in steps. The index,
// which is at the group of the block, keeps it in modes 2 and 4.
Block* Lookup::block(const Place& place) {
  if (place.kept != nullptr) return place.kept;
  IndexCore index(d_.index_);
  if (!index.has_cache()) {
    Block* const kept = s_.blocks.find(place.position, place.size);
    if (kept != nullptr) return kept;
  }
  const auto size = static_cast<std::uint64_t>(place.size);
  if (size > s_.memory_left) return nullptr;
  std::unique_ptr<Block> loaded = Block::load(d_.file_, place.position, place.size);
  if (!loaded) return nullptr;
  Block* const kept =
      index.has_cache() ? index.put_block(std::move(loaded)) : s_.blocks.put(std::move(loaded));
  if (kept != nullptr) s_.memory_left -= size;
  return kept;
}

void Lookup::search_in(const Block& block) {
  s_.range.set_memory(block.bytes());
  d_.in_memory_ = 1;
  d_.current_block_ = block.bytes().data();
}

void Lookup::search_in_file(const Place& place) {
  s_.range.set_file(d_.file_, place.position, place.size, d_.search_buffer_);
  d_.in_memory_ = 0;
  d_.current_block_ = d_.search_buffer_;
}

bool Lookup::find_record() {
  const bool exact = d_.search_mode_ == DIC_SEARCH_EXACT && d_.key_length_ > 0;
  return s_.packed ? find_packed_record(exact) : find_plain_record(exact);
}

bool Lookup::find_plain_record(bool exact) {
  if (d_.key_length_ == 0) return first_plain_record();
  auto length = static_cast<std::size_t>(d_.key_length_);
  if (exact) d_.search_key_[length++] = kHeadwordEnd;
  const std::int32_t found = find_plain(s_.range, {d_.search_key_, length});
  return found >= 0 && take_plain(found);
}

// The records begin with the line feed that precedes each of them.
bool Lookup::first_plain_record() {
  const std::string_view start = s_.range.at(0, 1);
  return !start.empty() && take_plain(start[0] == '\n' ? 1 : 0);
}

bool Lookup::take_plain(std::int32_t offset) {
  PlainRecord record;
  if (!read_plain(s_.range, offset, record)) return false;
  set_entry(record.text);
  d_.record_start_ = record.text.data();
  d_.record_end_ = record.text.data() + record.text.size();
  s_.next = record.end;
  return true;
}

bool Lookup::find_packed_record(bool exact) {
  const bool whole = exact && s_.whole_words;
  char* const key = d_.search_key_;
  auto length = static_cast<std::size_t>(d_.key_length_);
  if (exact && !whole) key[length++] = kHeadwordEnd;
  std::transform(key, key + length, key, invert_top_bit);
  PackedRecord record;
  return find_packed(s_.range, {key, length}, whole, record) && take_packed({key, length}, record);
}

// Puts the record together from the text before it and its own characters.
bool Lookup::take_packed(std::string_view before, const PackedRecord& record) {
  const auto count = static_cast<std::size_t>(record.count);
  if (count > before.size()) return false;
  std::memmove(d_.work_record_, before.data(), count);
  std::ranges::copy(record.stored, d_.work_record_ + count);
  s_.work_length = static_cast<std::int32_t>(count + record.stored.size());
  d_.work_record_[s_.work_length] = 0;
  d_.record_start_ = record.stored.data();
  d_.record_end_ = record.stored.data() + record.stored.size();
  s_.next = record.end;
  set_entry({});  // until it is decoded
  return true;
}

// A walk that goes on from the record needs more: sync_cursor does that.
const char* Lookup::take_cached(const CachedRecord& record, std::int16_t level) {
  s_.cached = &record;
  s_.found = true;
  s_.more = true;
  s_.entry_object_stale = true;
  d_.level_ = 0;
  set_entry(s_.packed ? std::string_view() : std::string_view(record.text, record.length));
  return decode(level) ? d_.entry_ : nullptr;
}

void Lookup::sync_cursor() {
  const CachedRecord* const record = std::exchange(s_.cached, nullptr);
  if (record == nullptr) return;
  search_in(*record->block);
  d_.position_ = record->block->position();
  s_.next = record->next;
  if (s_.packed) {
    const std::string_view text(record->text, record->length);
    std::ranges::transform(text, d_.work_record_, invert_top_bit);
    s_.work_length = record->length;
  }
}

const char* Lookup::find_next(std::int16_t level) {
  set_error(DIC_OK);
  if (!s_.more) return nullptr;
  sync_cursor();
  bool taken = false;
  if (s_.packed) {
    PackedRecord record;
    taken = read_packed(s_.range, s_.next, record) &&
            take_packed({d_.work_record_, static_cast<std::size_t>(s_.work_length)}, record);
  } else {
    taken = s_.next < s_.range.size() && take_plain(s_.next + 1);
  }
  return answer(taken, level);
}

const char* Lookup::answer(bool found, std::int16_t level) {
  if (s_.range.failed()) set_error(DIC_ERR_FILE);
  s_.more = found && !s_.range.failed();
  if (!s_.more) return nullptr;
  s_.found = true;
  d_.cursor_ = d_.record_end_;
  d_.remaining_ = s_.range.size() - s_.next;
  d_.level_ = 0;
  s_.entry_object_stale = true;
  return decode(level) ? d_.entry_ : nullptr;
}

const char* Lookup::found(std::int16_t level) {
  if (s_.found && (level < 0 || level > d_.level_))
    decode(level < 0 ? std::int16_t{DIC_LEVEL_FULL} : level);
  return d_.entry_;
}

// Larger blocks, such as the whole rows that the row heads of depth 3 stand for, are left to the
// searches that want them.
void Lookup::load_all_blocks() {
  constexpr std::int32_t kLargestLoaded = 65531;
  if (!has_mode(DIC_MODE_CACHE_ALL)) return;
  IndexCore index(d_.index_);
  index.for_each_group([&](std::int32_t position, std::int32_t size) {
    const std::int32_t known = size_in_records(position, size < 1 ? kUnknownBlockSize : size);
    if (known > 0 && known <= kLargestLoaded) block({position, known, true, index.cached_block()});
  });
}

}  // namespace kz

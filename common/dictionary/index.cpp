// CDicIndex: making, releasing, reading and writing a letter index.
#include "dictionary/index.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <memory>
#include <new>
#include <span>

#include "dictionary/error.h"
#include "dictionary/index_letters.h"
#include "dictionary/index_order.h"
#include "dictionary/index_shape.h"
#include "dictionary/index_table.h"
#include "dictionary/little_endian.h"
#include "kz/dictionary.h"
#include "kz/file.h"

namespace kz {
namespace {

constexpr std::size_t kCellSize = 4;
constexpr std::size_t kRecordSize = 8;
static_assert(sizeof(KeyRecord) == kRecordSize);

// A depth and an alphabet that there are, and for depth 5, which alone has key records, a number of
// them whose size in bytes fits 32 bits.
bool is_known(std::int16_t depth, std::int16_t alphabet_size, std::int32_t records) {
  constexpr std::int32_t kRecordsMax = INT32_MAX / static_cast<std::int32_t>(kRecordSize);
  if (find_alphabet(alphabet_size) == nullptr) return false;
  return depth == 2 || depth == 3 || (depth == 5 && records >= 0 && records <= kRecordsMax);
}

// Cells of a table, or key records of depth 5.
std::size_t entry_count(std::int16_t depth, std::int16_t alphabet_size, std::int32_t records) {
  if (depth == 5) return static_cast<std::size_t>(records);
  return IndexShape{alphabet_size, depth == 3}.cells();
}

// Turns integers that were read as they are in the file into native ones.
void decode(std::uint32_t& value) { value = load_u32(reinterpret_cast<std::uint8_t*>(&value)); }
void decode(std::int32_t& value) { value = load_i32(reinterpret_cast<std::uint8_t*>(&value)); }

void encode(std::uint8_t* out, std::int32_t cell) {
  store_u32(out, static_cast<std::uint32_t>(cell));
}
void encode(std::uint8_t* out, const KeyRecord& record) {
  store_u32(out, record.key);
  store_u32(out + 4, record.position);
}

// Writes the entries through a small buffer; false when the file takes fewer bytes.
template <typename Entry>
bool write_entries(ZCFile& file, const Entry* entries, std::size_t count) {
  constexpr std::size_t kAtOnce = 1024;
  std::array<std::uint8_t, kAtOnce * sizeof(Entry)> buffer;
  while (count > 0) {
    const std::size_t part = std::min(count, kAtOnce);
    for (std::size_t i = 0; i < part; ++i) encode(&buffer[i * sizeof(Entry)], entries[i]);
    const auto bytes = static_cast<unsigned>(part * sizeof(Entry));
    if (file.Write(buffer.data(), bytes) != bytes) return false;
    entries += part;
    count -= part;
  }
  return true;
}

void copy_text(char* field, std::size_t size, const char* text) {
  std::memset(field, 0, size);
  for (std::size_t i = 0; text != nullptr && i + 1 < size && text[i] != 0; ++i) field[i] = text[i];
}

// Notes the non-empty groups of a table in the order in which their blocks are. The slots of the
// last place are n + 1 neighbouring cells, whose head is stored after the letters; a word of bits
// takes them all, so that empty cells cost no branch.
void note_groups(const std::int32_t* table, const IndexShape& shape, IndexState& state) {
  const auto n = static_cast<std::size_t>(shape.n);
  state.groups.reset(shape.cells());
  state.pair_heads.reset(shape.three ? shape.pairs() : 0);
  for (std::size_t rank = 0; rank < shape.cells(); rank += n + 1) {
    Slots first = shape.slots_of_rank(rank);
    first[shape.three ? 2 : 1] = 0;
    const std::int32_t* cells = table + shape.cell(first);
    if (cells[n] != -1) {
      state.groups.append(rank, cells[n]);
      if (shape.three) state.pair_heads.append(rank / (n + 1), cells[n]);
    }
    std::uint64_t used = 0;
    for (std::size_t slot = 0; slot < n; ++slot) used |= std::uint64_t{cells[slot] != -1} << slot;
    for (; used != 0; used &= used - 1) {
      const auto slot = static_cast<std::size_t>(std::countr_zero(used));
      state.groups.append(rank + 1 + slot, cells[slot]);
    }
  }
  state.groups.finish();
  state.pair_heads.finish();
}

}  // namespace

bool index_fits(std::int16_t depth, std::int16_t alphabet_size, std::int32_t record_count,
                std::int32_t index_offset, std::uint64_t file_length) {
  if (!is_known(depth, alphabet_size, record_count) || index_offset < 0) return false;
  const std::uint64_t entry_size = depth == 5 ? kRecordSize : kCellSize;
  const std::uint64_t size = entry_count(depth, alphabet_size, record_count) * entry_size;
  return static_cast<std::uint64_t>(index_offset) + size <= file_length;
}

std::uint16_t IndexCore::read(ZCFile& file) {
  void* image = x_.depth_ == 5 ? static_cast<void*>(x_.key_records_) : x_.offset_table_;
  if (file.Read(image, x_.table_size_) != x_.table_size_) return DIC_ERR_FORMAT;
  if (x_.depth_ == 5) {
    for (KeyRecord& record : std::span(x_.key_records_, x_.table_size_ / kRecordSize)) {
      decode(record.key);
      decode(record.position);
    }
    return DIC_OK;
  }
  for (std::int32_t& cell : std::span(x_.offset_table_, x_.table_size_ / kCellSize)) decode(cell);
  try {
    note_groups(x_.offset_table_, IndexShape{x_.alphabet_size_, x_.depth_ == 3}, *state());
  } catch (const std::bad_alloc&) {
    return DIC_ERR_MEMORY;
  }
  return DIC_OK;
}

IndexState* IndexCore::state() const {
  return x_.depth_ == 5 ? state_of(x_.key_records_) : state_of(x_.offset_table_);
}

void IndexCore::reset() {
  const std::size_t entries = entry_count(x_.depth_, x_.alphabet_size_, x_.record_count_);
  if (x_.offset_table_ != nullptr) std::fill_n(x_.offset_table_, entries + 1, -1);
  if (x_.access_letter_ == 'R' && x_.block_cache_ != nullptr) {
    std::fill_n(x_.block_cache_, entries, nullptr);
  }
  std::memset(x_.prefix_, 0, sizeof x_.prefix_);
  if (x_.depth_ != 5) std::memset(x_.prefix_, find_alphabet(x_.alphabet_size_)->letter(0), 3);
  std::fill(std::begin(x_.slots_), std::end(x_.slots_), std::int16_t{0});
  x_.first_record_ = 1;
  x_.record_capacity_ = 0;
  x_.changed_ = 0;
}

}  // namespace kz

CDicIndex::CDicIndex(char access_letter) : access_letter_(access_letter) {}

CDicIndex::~CDicIndex() { Free(); }

int CDicIndex::Init(std::int16_t access_mode, const char* language, const char* type,
                    std::int16_t alphabet_size, std::int16_t /*unused*/, std::int16_t depth,
                    std::uint16_t format_version, std::int32_t index_offset,
                    std::int32_t record_count) {
  Free();
  kz::copy_text(language_, sizeof language_, language);
  kz::copy_text(type_, sizeof type_, type);
  access_mode_ = access_mode;
  format_version_ = format_version;
  alphabet_size_ = alphabet_size;
  depth_ = depth;
  index_offset_ = index_offset;
  if (!kz::is_known(depth, alphabet_size, record_count)) return 0;

  const std::size_t entries = kz::entry_count(depth, alphabet_size, record_count);
  std::unique_ptr<kz::IndexState> state(
      new (std::nothrow) kz::IndexState(language_[0], *kz::find_alphabet(alphabet_size)));
  if (state == nullptr) return 0;
  if (depth == 5) {
    key_records_ = kz::new_table<kz::KeyRecord>(entries + 1, state.get());
    if (key_records_ != nullptr) std::fill_n(key_records_, entries + 1, kz::KeyRecord{});
  } else {
    offset_table_ = kz::new_table<std::int32_t>(entries + 1, state.get());
  }
  if (key_records_ == nullptr && offset_table_ == nullptr) return 0;
  state.release();  // NOLINT(bugprone-unused-return-value): the table has it
  record_count_ = record_count;
  table_size_ =
      static_cast<std::uint32_t>(entries * (depth == 5 ? kz::kRecordSize : kz::kCellSize));
  if (access_mode == DIC_MODE_CACHE_ALL || access_mode == DIC_MODE_CACHE) {
    block_cache_ = new (std::nothrow) kz::Block*[entries + 1]();
    if (block_cache_ != nullptr) {
      cache_size_ = static_cast<std::uint32_t>(entries * sizeof(kz::Block*));
    } else {
      access_mode_ = 0;
    }
  }
  kz::IndexCore(*this).reset();
  return 1;
}

void CDicIndex::Free() {
  delete kz::IndexCore(*this).state();  // with the cached blocks
  kz::delete_table(offset_table_);
  kz::delete_table(key_records_);
  delete[] block_cache_;
  offset_table_ = nullptr;
  block_cache_ = nullptr;
  key_records_ = nullptr;
  found_record_ = nullptr;
  found_position_ = -1;
  record_count_ = 0;
  record_capacity_ = 0;
  table_size_ = 0;
  cache_size_ = 0;
}

std::uint16_t CDicIndex::Write(ZCFile& file) {
  const bool made = key_records_ != nullptr || offset_table_ != nullptr;
  const bool written =
      made && (depth_ == 5 ? kz::write_entries(file, key_records_, table_size_ / kz::kRecordSize)
                           : kz::write_entries(file, offset_table_, table_size_ / kz::kCellSize));
  if (!written) return kz::set_error(DIC_ERR_FILE);
  return DIC_OK;
}

void CDicIndex::SetAccessMode(char access_letter) { access_letter_ = access_letter; }

std::uint16_t CDicIndex::IsIndexChanged() const { return changed_; }

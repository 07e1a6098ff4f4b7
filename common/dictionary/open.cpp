// Opening and closing a dictionary object.
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <new>

#include "dictionary/error.h"
#include "dictionary/lookup.h"
#include "kz/entry.h"

namespace kz {
namespace {

// Read, binary, others may read.
constexpr unsigned kOpenFlags = KZ_FILE_READ | KZ_FILE_SHARE_READ;

// Versions above this one have packed records and shared text.
constexpr std::uint16_t kLastPlainVersion = 538;

constexpr char kTranslation = 'C';
constexpr char kWordList = 'S';

bool has_packed_records(const Header& header) {
  return header.format_version > kLastPlainVersion && (header.packing == 1 || header.packing == 3);
}

bool may_have_shared_text(const Header& header) {
  return header.type[0] != kWordList && header.format_version > kLastPlainVersion &&
         (header.packing == 2 || header.packing == 3);
}

}  // namespace

std::uint16_t Lookup::open(CDic& dictionary, const char* path, std::int16_t mode) {
  errno = 0;
  set_error(DIC_OK);
  const auto fail = [&](std::uint16_t code) {
    const KeepErrno keep;
    close(dictionary);
    return set_error(code);
  };
  if (path == nullptr || !dictionary.file_.Open(path, kOpenFlags)) return fail(DIC_ERR_FILE);
  if (dictionary.path_.IsEmpty()) dictionary.path_ = path;
  // A table may take as much as the file, and a small file's a little more.
  const std::size_t memory_max =
      std::size_t{dictionary.file_.GetLength()} + RecordRange::kBufferSize;
  dictionary.search_ = new (std::nothrow) SearchState(memory_max);
  dictionary.search_buffer_ = new (std::nothrow) char[RecordRange::kBufferSize];
  if (dictionary.search_ == nullptr || dictionary.search_buffer_ == nullptr) {
    return fail(DIC_ERR_MEMORY);
  }
  const std::uint16_t code = Lookup(dictionary).read_header(mode);
  return code == DIC_OK ? code : fail(code);
}

std::uint16_t Lookup::read_header(std::int16_t mode) {
  std::array<std::uint8_t, kHeaderSize> bytes;
  const std::uint64_t file_length = d_.file_.GetLength();
  if (d_.file_.Read(bytes.data(), kHeaderSize) != kHeaderSize) return DIC_ERR_FORMAT;
  const auto header = accept_header(HeaderBytes(bytes), file_length);
  if (!header) return DIC_ERR_FORMAT;

  ZCFileStatus status;
  if (d_.file_.GetStatus(status)) {
    d_.creation_time_ = status.creation_time.GetTime();
    d_.modification_time_ = status.modification_time.GetTime();
  }
  if (d_.path_.IsEmpty()) return DIC_ERR_MEMORY;

  d_.format_version_ = header->format_version;
  d_.property_ = header->property;
  std::memcpy(d_.password_, header->password.data(), sizeof d_.password_);
  std::memcpy(d_.language_, header->language.data(), sizeof d_.language_);
  std::memcpy(d_.type_, header->type.data(), sizeof d_.type_);
  d_.entry_limit_ = d_.type_[0] == kTranslation || d_.type_[0] == 'G' ? 256 : 2048;
  d_.depth_ = header->index_depth;
  d_.alphabet_size_ = header->alphabet_size;
  d_.packing_ = header->packing;
  d_.index_offset_ = header->index_offset;
  d_.reserved_ = header->reserved2;
  d_.data_offset_ = header->data_offset;
  s_.packed = has_packed_records(*header);
  s_.whole_words = s_.packed && d_.type_[0] == kWordList;

  if (const auto code = read_index(mode, *header, file_length)) return code;
  if (const auto code = locate_shared_text(*header, file_length)) return code;
  const bool translation = d_.type_[0] == kTranslation;
  d_.entry_object_ = new (std::nothrow) CDicEntry(d_.language_, translation ? 'c' : d_.type_[0]);
  return d_.entry_object_ != nullptr ? DIC_OK : DIC_ERR_MEMORY;
}

std::uint16_t Lookup::read_index(std::int16_t mode, const Header& header,
                                 std::uint64_t file_length) {
  if (!index_fits(header.index_depth, header.alphabet_size, header.index_count, header.index_offset,
                  file_length)) {
    return DIC_ERR_FORMAT;
  }
  const auto plain_mode = static_cast<std::int16_t>(mode & kModeMask);
  IndexCore index(d_.index_);
  if (!d_.index_.Init(plain_mode, d_.language_, d_.type_, d_.alphabet_size_, 0, d_.depth_,
                      d_.format_version_, d_.index_offset_, header.index_count)) {
    return DIC_ERR_MEMORY;
  }
  const bool wants_cache = plain_mode == DIC_MODE_CACHE_ALL || plain_mode == DIC_MODE_CACHE;
  if (wants_cache && !index.has_cache()) mode = index.access_mode();
  d_.mode_ = static_cast<std::uint8_t>(mode);
  if (d_.file_.Seek(header.index_offset, 0) != header.index_offset) return DIC_ERR_FORMAT;
  if (const auto code = index.read(d_.file_)) return code;
  // Records that begin after their end are none.
  const auto end = static_cast<std::uint32_t>(header.index_offset);
  d_.position_ = static_cast<std::int32_t>(std::min(header.data_offset, end));
  d_.file_.Seek(d_.position_, 0);
  return DIC_OK;
}

// The text itself is read when an entry first refers to it: opening stays quick.
std::uint16_t Lookup::locate_shared_text(const Header& header, std::uint64_t file_length) {
  if (!may_have_shared_text(header)) return DIC_OK;
  if (header.shared_size == 0) {
    return d_.type_[0] == kTranslation ? DIC_ERR_FORMAT : DIC_OK;
  }
  const std::uint64_t end = std::uint64_t{header.shared_offset} + header.shared_size;
  if (end > file_length || header.shared_offset > INT32_MAX) return DIC_ERR_FORMAT;
  d_.shared_offset_ = header.shared_offset;
  d_.shared_size_ = header.shared_size;
  return DIC_OK;
}

void Lookup::close(CDic& dictionary) {
  dictionary.file_.Close();
  dictionary.index_.Free();
  dictionary.path_.Empty();
  delete dictionary.entry_object_;
  dictionary.entry_object_ = nullptr;
  delete[] dictionary.search_buffer_;
  dictionary.search_buffer_ = nullptr;
  delete[] dictionary.shared_block_;
  dictionary.shared_block_ = nullptr;
  delete dictionary.search_;
  dictionary.search_ = nullptr;
}

}  // namespace kz

// RecordRange: the bytes of the record area that one search covers.
//
// They are in memory (a whole block), or are read from the file through a buffer as far as the
// search gets. Offsets count from the start of the range. What is asked for beyond the end of the
// range is not there: the readers of records treat that as the end of data.
#ifndef KZ_DICTIONARY_RECORD_RANGE_H
#define KZ_DICTIONARY_RECORD_RANGE_H

#include <cstdint>
#include <string_view>

#include "kz/file.h"

namespace kz {

class RecordRange {
 public:
  // Bytes read ahead: what at() guarantees at the most, except at the end of the range.
  static constexpr std::int32_t kBufferSize = 65536;

  // An empty range at first.
  void set_memory(std::string_view bytes) {
    memory_ = bytes.data();
    size_ = static_cast<std::int32_t>(bytes.size());
    failed_ = false;
  }
  // `buffer` has room for kBufferSize bytes and serves this range alone while it is in use.
  void set_file(ZCFile& file, std::int32_t position, std::int32_t size, char* buffer);

  std::int32_t size() const { return size_; }

  // The bytes from `offset` on: at least `count` of them (at most kBufferSize), fewer only where
  // the range ends. Empty after the end and after a failed read. The view holds until the next
  // call.
  std::string_view at(std::int32_t offset, std::int32_t count);

  // A read of the file gave fewer bytes than the file had when it was opened.
  bool failed() const { return failed_; }

  // Offset of the first occurrence of a byte at or after `offset`, the size when there is none.
  std::int32_t find(char byte, std::int32_t offset);
  // Offset of the first occurrence of a text of at most kBufferSize bytes, -1 when there is none.
  std::int32_t find(std::string_view text);

 private:
  bool fill(std::int32_t offset);

  std::int32_t size_ = 0;
  const char* memory_ = nullptr;
  ZCFile* file_ = nullptr;
  std::int32_t position_ = 0;
  char* buffer_ = nullptr;
  std::int32_t buffer_offset_ = 0;
  std::int32_t buffered_ = 0;
  bool failed_ = false;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_RECORD_RANGE_H

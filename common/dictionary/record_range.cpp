// Bytes of a search range, from memory or file.
#include "dictionary/record_range.h"

#include <algorithm>
#include <cstddef>

namespace kz {

void RecordRange::set_file(ZCFile& file, std::int32_t position, std::int32_t size, char* buffer) {
  memory_ = nullptr;
  size_ = size;
  failed_ = false;
  file_ = &file;
  position_ = position;
  buffer_ = buffer;
  buffer_offset_ = 0;
  buffered_ = 0;
}

std::string_view RecordRange::at(std::int32_t offset, std::int32_t count) {
  if (offset < 0 || offset >= size_ || failed_) return {};
  if (memory_ != nullptr) {
    return {memory_ + offset, static_cast<std::size_t>(size_ - offset)};
  }
  const std::int32_t wanted = std::min(count, size_ - offset);
  const std::int32_t end = buffer_offset_ + buffered_;
  if (offset < buffer_offset_ || end - offset < wanted) {
    if (!fill(offset)) return {};
  }
  return {buffer_ + (offset - buffer_offset_),
          static_cast<std::size_t>(buffer_offset_ + buffered_ - offset)};
}

bool RecordRange::fill(std::int32_t offset) {
  const std::int32_t wanted = std::min(kBufferSize, size_ - offset);
  const bool read =
      file_->Seek(position_ + offset, 0) == position_ + offset &&
      file_->Read(buffer_, static_cast<unsigned>(wanted)) == static_cast<unsigned>(wanted);
  buffer_offset_ = offset;
  buffered_ = read ? wanted : 0;
  failed_ = !read;
  return read;
}

std::int32_t RecordRange::find(char byte, std::int32_t offset) {
  while (offset < size_) {
    const std::string_view bytes = at(offset, 1);
    if (bytes.empty()) break;
    const std::size_t found = bytes.find(byte);
    if (found != std::string_view::npos) return offset + static_cast<std::int32_t>(found);
    offset += static_cast<std::int32_t>(bytes.size());
  }
  return size_;
}

std::int32_t RecordRange::find(std::string_view text) {
  const auto length = static_cast<std::int32_t>(text.size());
  std::int32_t offset = 0;
  while (size_ - offset >= length) {
    const std::string_view bytes = at(offset, length);
    if (bytes.size() < text.size()) break;
    const std::size_t found = bytes.find(text);
    if (found != std::string_view::npos) return offset + static_cast<std::int32_t>(found);
    offset += static_cast<std::int32_t>(bytes.size()) - length + 1;
  }
  return -1;
}

}  // namespace kz

// Files of replacement buffers: read and written as a whole.
#include <cstdint>
#include <cstring>

#include "kz/dic_error.h"
#include "kz/file.h"
#include "kz/replace_buffer.h"
#include "platform/replace.h"

namespace {
constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;
}  // namespace

extern "C" {

std::int16_t LoadBuffer(const char* path, char* destination) {
  if (path == nullptr || destination == nullptr) return DIC_ERR_MEMORY;
  ZCFile file;
  if (!file.Open(path, kReadDenyingWrite)) return DIC_ERR_FILE;
  const std::uint32_t length = file.GetLength();
  if (length >= REPLACE_BUFFER_LIMIT) return DIC_ERR_FORMAT;
  if (file.Read(destination, length) != length) return DIC_ERR_FORMAT;
  if (std::memchr(destination, '\0', length) != nullptr) return DIC_ERR_FORMAT;
  destination[length] = destination[length + 1] = '\0';
  return DIC_OK;
}

std::int16_t SaveBuffer(const char* path, const char* text) {
  if (path == nullptr || text == nullptr) return DIC_ERR_MEMORY;
  return kz::platform::write_whole_file(path, text) ? DIC_OK : DIC_ERR_FILE;
}

}  // extern "C"

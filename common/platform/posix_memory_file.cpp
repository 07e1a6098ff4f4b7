// memfd_create, opened again through /proc.
#include <sys/mman.h>

#include "platform/file.h"
#include "platform/memory_file.h"

namespace kz::platform {

MemoryFile::~MemoryFile() {
  if (handle_ != kNoFile) close_file(handle_);
}

bool MemoryFile::write(std::string_view bytes) {
  handle_ = memfd_create("kz", MFD_CLOEXEC);
  return handle_ != kNoFile && write_file(handle_, bytes.data(), bytes.size()).ok;
}

bool MemoryFile::read(std::string& bytes) const {
  const Transfer done = read_at(handle_, bytes.data(), bytes.size(), 0);
  return done.ok && done.count == bytes.size();
}

std::string MemoryFile::path() const { return "/proc/self/fd/" + std::to_string(handle_); }

}  // namespace kz::platform

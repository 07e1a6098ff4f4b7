// Bytes in memory that can be opened by a name, like a file.
#ifndef KZ_PLATFORM_MEMORY_FILE_H
#define KZ_PLATFORM_MEMORY_FILE_H

#include <string>
#include <string_view>

namespace kz::platform {

// Takes memory as long as it lives, and as long as somebody has it open.
class MemoryFile {
 public:
  MemoryFile() = default;
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  // Once for each object. False on failure, with the system's error number in errno.
  bool write(std::string_view bytes);
  // The bytes from the beginning on, as many as there is room for. False when there are fewer.
  bool read(std::string& bytes) const;
  // The name, for this process.
  std::string path() const;
  int handle() const { return handle_; }

 private:
  int handle_ = -1;
};

}  // namespace kz::platform

#endif  // KZ_PLATFORM_MEMORY_FILE_H

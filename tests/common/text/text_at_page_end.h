// Memory for texts that must not be read or written past their last byte.
#ifndef KZ_TESTS_TEXT_TEXT_AT_PAGE_END_H
#define KZ_TESTS_TEXT_TEXT_AT_PAGE_END_H

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <string>

namespace kz_test {

// Readable memory followed by a page that may not be touched.
class GuardedMemory {
 public:
  explicit GuardedMemory(std::size_t size)
      : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))) {
    usable_ = (size + page_ - 1) / page_ * page_;
    void* memory =
        mmap(nullptr, usable_ + page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    start_ = static_cast<char*>(memory);
    if (mprotect(start_ + usable_, page_, PROT_NONE) != 0) throw std::bad_alloc();
  }
  GuardedMemory(const GuardedMemory&) = delete;
  GuardedMemory& operator=(const GuardedMemory&) = delete;
  ~GuardedMemory() { munmap(start_, usable_ + page_); }

  // Room for exactly `size` bytes at the end.
  char* last(std::size_t size) { return start_ + usable_ - size; }

  // The text at the end, its zero on the last byte.
  char* text(const std::string& bytes) {
    return static_cast<char*>(std::memcpy(last(bytes.size() + 1), bytes.c_str(), bytes.size() + 1));
  }

 private:
  std::size_t page_;
  std::size_t usable_;
  char* start_;
};

}  // namespace kz_test

#endif  // KZ_TESTS_TEXT_TEXT_AT_PAGE_END_H

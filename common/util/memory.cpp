// The library's allocator and its error number.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "kz/strutil.h"

void* kz_misc_malloc(size_t size) { return std::malloc(size); }

void* kz_misc_calloc(size_t count, size_t size) { return std::calloc(count, size); }

void kz_misc_free(void* block) { std::free(block); }

char* kz_misc_strdup(const char* text) {
  if (text == nullptr) return nullptr;
  const size_t room = std::strlen(text) + 1;
  auto* copy = static_cast<char*>(std::malloc(room));
  return copy == nullptr ? nullptr : static_cast<char*>(std::memcpy(copy, text, room));
}

int kz_misc_errno(void) { return errno; }

// Buffers of ZCString: one heap block each.
#include "foundation/string_data.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <new>

namespace kz::string_data {

namespace {

// Room for the header and the NUL is left, so that the size of a block is an int too.
constexpr std::size_t kMaxLength =
    std::numeric_limits<std::int32_t>::max() - sizeof(ZCStringData) - 1;

char* allocate_block(std::size_t length) {
  if (length > kMaxLength) std::terminate();
  void* const block = ::operator new(sizeof(ZCStringData) + length + 1);
  const auto stored_length = static_cast<std::int32_t>(length);
  auto* const head = ::new (block) ZCStringData{1, 0, stored_length, stored_length};
  char* const text = static_cast<char*>(static_cast<void*>(head + 1));
  text[length] = '\0';
  return text;
}

}  // namespace

constinit NoBuffer no_buffer;

char* allocate(std::size_t length) noexcept {
  return length == 0 ? none() : allocate_block(length);
}

char* allocate_empty() noexcept { return allocate_block(0); }

char* copy(std::string_view text) noexcept {
  char* const result = allocate(text.size());
  std::copy(text.begin(), text.end(), result);
  return result;
}

char* share(char* text) noexcept {
  if (text == none()) return text;
  if (is_locked(text)) return copy(view(text));
  references(text).fetch_add(1, std::memory_order_relaxed);
  return text;
}

void release(char* text) noexcept {
  if (text == none()) return;
  // A sole owner, which a locked buffer has too, need not count down.
  if (!is_shared(text) || references(text).fetch_sub(1, std::memory_order_acq_rel) <= 1) {
    ::operator delete(&header(text));
  }
}

void replace(char*& text, char* new_text) noexcept {
  char* const old_text = text;
  text = new_text;
  release(old_text);
}

void make_unique(char*& text) noexcept {
  if (is_shared(text)) replace(text, copy(view(text)));
}

void assign(char*& text, std::string_view characters) noexcept {
  if (!holds(text, characters.size())) {
    replace(text, copy(characters));
  } else if (text != none()) {
    std::memmove(text, characters.data(), characters.size());
    set_length(text, characters.size());
  }
}

}  // namespace kz::string_data

int kz::to_length(std::size_t length) noexcept {
  if (length > static_cast<std::size_t>(std::numeric_limits<int>::max())) std::terminate();
  return static_cast<int>(length);
}

// Buffers of ZCString: allocation, sharing, release.
//
// A buffer is known by the address of its first character, as a string holds it.
#ifndef KZ_FOUNDATION_STRING_DATA_H
#define KZ_FOUNDATION_STRING_DATA_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kz/string.h"

namespace kz::string_data {

// What every string without a buffer points at. It is never written to, so that threads may use
// their empty strings freely.
struct NoBuffer {
  ZCStringData header{-1, 0, 0, 0};
  char nul = 0;
};
extern NoBuffer no_buffer;

inline char* none() {
  return static_cast<char*>(static_cast<void*>(&no_buffer)) + sizeof(ZCStringData);
}

inline ZCStringData& header(char* text) {
  return reinterpret_cast<ZCStringData*>(static_cast<void*>(text))[-1];
}

inline std::atomic_ref<std::int32_t> references(char* text) {
  return std::atomic_ref(header(text).references);
}

// The tag is the one field that may change while the buffer is shared.
inline std::atomic_ref<std::int32_t> language(char* text) {
  return std::atomic_ref(header(text).language);
}

inline int length(char* text) { return header(text).length; }
inline std::string_view view(char* text) { return {text, static_cast<std::size_t>(length(text))}; }

// The acquire order makes the reads of a string that has just let go of the buffer happen before
// the writes of its last owner.
inline bool is_shared(char* text) { return references(text).load(std::memory_order_acquire) >= 2; }

inline bool is_locked(char* text) {
  return text != none() && references(text).load(std::memory_order_relaxed) < 0;
}

// True when `length` characters can be written into this buffer, or are none.
inline bool holds(char* text, std::size_t length) {
  return !is_shared(text) && length <= static_cast<std::size_t>(header(text).allocated);
}

// A new buffer of one reference, tag 0 and a NUL after `length` characters still to be written;
// none() for 0 characters. Like everything that allocates here it ends the process when there is no
// memory or `length` is more than an int can tell.
char* allocate(std::size_t length) noexcept;
// An empty buffer, for an empty string with a tag of its own.
char* allocate_empty() noexcept;
// A new buffer with these characters; none() for an empty text.
char* copy(std::string_view text) noexcept;

// One more reference to the buffer; a copy of it if it is locked.
char* share(char* text) noexcept;
void release(char* text) noexcept;

// Gives the string another buffer, then releases the old one.
void replace(char*& text, char* new_text) noexcept;
// Leaves a shared buffer to the other strings and goes on with a copy.
void make_unique(char*& text) noexcept;
// Writes the characters, which may come from the buffer itself, over the old ones: in place if the
// buffer holds them, else into a new buffer of just that size.
void assign(char*& text, std::string_view characters) noexcept;
// Ends a changed text: `length` characters and a NUL.
inline void set_length(char* text, std::size_t length) {
  if (text == none()) return;
  header(text).length = static_cast<std::int32_t>(length);
  text[length] = '\0';
}

}  // namespace kz::string_data

namespace kz {

// A text argument: up to its NUL, empty for null.
inline std::string_view text_view(const char* text) { return text == nullptr ? "" : text; }

inline std::string_view text_view(const ZCString& text) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength())};
}

// A length for the interface. One that an int cannot tell counts as exhausted memory.
int to_length(std::size_t length) noexcept;

// White space and digits are the same in every language.
constexpr bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace kz

#endif  // KZ_FOUNDATION_STRING_DATA_H

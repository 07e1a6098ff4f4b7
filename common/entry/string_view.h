// Strings of entry objects as views, and views into strings.
#ifndef KZ_ENTRY_STRING_VIEW_H
#define KZ_ENTRY_STRING_VIEW_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "kz/string.h"

namespace kz::entry {

inline std::string_view view(const ZCString& string) {
  return {static_cast<const char*>(string), static_cast<std::size_t>(string.GetLength())};
}

// Null counts as empty.
inline std::string_view view(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// Puts the text into the string's own buffer when that is large enough and not shared. The text
// must not lie in that buffer.
inline void assign(ZCString& string, std::string_view text) {
  if (text.empty()) {
    string = "";
    return;
  }
  const int size = static_cast<int>(text.size());
  std::memcpy(string.GetBuffer(size), text.data(), text.size());
  string.ReleaseBuffer(size);
}

// Copies the text and a terminating zero into the buffer, if one is given.
inline void copy_out(std::string_view text, char* buffer) {
  if (buffer == nullptr) return;
  *std::copy(text.begin(), text.end(), buffer) = '\0';
}

}  // namespace kz::entry

#endif  // KZ_ENTRY_STRING_VIEW_H

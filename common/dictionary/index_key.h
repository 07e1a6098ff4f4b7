// Keys of a depth-5 index: five characters as one number.
#ifndef KZ_DICTIONARY_INDEX_KEY_H
#define KZ_DICTIONARY_INDEX_KEY_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/literal.h"

namespace kz {

inline constexpr std::size_t kKeyLength = 5;

// Every character has six bits: the marks count from 1, the Russian letters follow, and whatever
// else there is has 0 like the places after the end of the word.
inline constexpr std::string_view kKeyMarks = " ')-./`";
inline constexpr std::uint32_t kFirstKeyLetter = 8;

constexpr std::uint32_t key_code(char c) {
  const auto byte = static_cast<std::uint8_t>(c);
  if (byte >= U'а'_1251) return byte - U'а'_1251 + kFirstKeyLetter;
  const std::size_t mark = kKeyMarks.find(c);
  return mark == std::string_view::npos ? 0 : static_cast<std::uint32_t>(mark) + 1;
}

// The character of a place of a key, a blank when the key does not tell it.
constexpr char key_character(std::uint32_t key, std::size_t place) {
  const std::uint32_t code = key >> 6 * (kKeyLength - 1 - place) & 63;
  if (code == 0 || code >= kFirstKeyLetter + 32) return ' ';
  if (code < kFirstKeyLetter) return kKeyMarks[code - 1];
  return static_cast<char>(code - kFirstKeyLetter + U'а'_1251);
}

// The key of a prefix that is padded with zero bytes.
constexpr std::uint32_t index_key(const char (&prefix)[6]) {
  std::uint32_t key = 0;
  for (std::size_t i = 0; i < kKeyLength; ++i) key = key << 6 | key_code(prefix[i]);
  return key;
}

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_KEY_H

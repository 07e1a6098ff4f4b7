// The language text that entries and meanings carry.
#ifndef KZ_ENTRY_LANGUAGE_FIELD_H
#define KZ_ENTRY_LANGUAGE_FIELD_H

#include <cstddef>

namespace kz::entry {

// Copies at most four characters; null gives an empty text.
inline void set_language(char (&field)[5], const char* language) {
  std::size_t size = 0;
  if (language != nullptr)
    for (; size < sizeof field - 1 && language[size] != '\0'; ++size) field[size] = language[size];
  for (; size < sizeof field; ++size) field[size] = '\0';
}

}  // namespace kz::entry

#endif  // KZ_ENTRY_LANGUAGE_FIELD_H

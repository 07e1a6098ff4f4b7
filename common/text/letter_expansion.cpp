// Letters that are written as others: yo, sharp s, the oe ligature.
#include <cstdint>

#include "kz/codepage.h"
#include "text/byte_map.h"
#include "text/literal.h"

namespace kz {
namespace {

consteval ByteMap yo_to_ie() {
  ByteMap map = identity_map();
  map[U'ё'_1251] = U'е'_1251;
  return map;
}

constexpr Translation kWithoutYo{yo_to_ie()};

// The code of the sharp s in IBM CP850.
constexpr unsigned char kOemSharpS = 225;
constexpr unsigned char kAnsiSharpS = U'ß'_1252;
constexpr unsigned char kAnsiOe = U'œ'_1252;

// Copies a text with each `letter` written as two others; returns how many there were.
std::uint16_t expand(const char* source, char* destination, unsigned char letter,
                     const char (&expansion)[3]) {
  std::uint16_t count = 0;
  for (; *source != '\0'; ++source) {
    if (static_cast<unsigned char>(*source) != letter) {
      *destination++ = *source;
      continue;
    }
    *destination++ = expansion[0];
    *destination++ = expansion[1];
    ++count;
  }
  *destination = '\0';
  return count;
}

}  // namespace
}  // namespace kz

char* kz_codr_ee(char* text) {
  if (text != nullptr) kz::translate_text(text, text, kz::kWithoutYo);
  return text;
}

uint16_t kz_codr_oem_ss(const char* source, char* destination) {
  return kz::expand(source, destination, kz::kOemSharpS, "ss");
}
uint16_t kz_codr_ansi_ss(const char* source, char* destination) {
  return kz::expand(source, destination, kz::kAnsiSharpS, "ss");
}
uint16_t kz_codr_ansi_oe(const char* source, char* destination) {
  return kz::expand(source, destination, kz::kAnsiOe, "oe");
}

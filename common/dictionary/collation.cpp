// Order of letters with accents, for comparing words.
#include <cstdint>

#include "kz/dic_index.h"
#include "kz/special.h"

namespace {

constexpr int kNoSlot = 43;

bool is_russian(const char* language) { return language != nullptr && language[0] == 'R'; }

std::int16_t difference(int a, int b) { return static_cast<std::int16_t>(a - b); }

}  // namespace

extern "C" {

std::int16_t kz_codr_accompare(int a, int b, const char* language) {
  a &= 0xFF;
  b &= 0xFF;
  if (is_russian(language)) return difference(a, b);
  const bool special_a = kz_codr_is_spec_char(a, language) != 0;
  const bool special_b = kz_codr_is_spec_char(b, language) != 0;
  if (special_a && special_b) {
    const int slot_a = lat_abc_index(a);
    const int slot_b = lat_abc_index(b);
    if (slot_a != kNoSlot && slot_b != kNoSlot) return difference(slot_a, slot_b);
  } else if (special_a) {
    return difference(a, 0);
  } else if (special_b) {
    return difference(0, b);
  }
  return difference(a, b);
}

std::int16_t kz_codr_taccompare(int a, int b, const char* language, std::int16_t* tie) {
  a &= 0xFF;
  b &= 0xFF;
  if (is_russian(language)) return difference(a, b);
  if (!kz_codr_is_spec_char(a, language) && !kz_codr_is_spec_char(b, language)) {
    return difference(a, b);
  }
  if (tie != nullptr && *tie == 0) *tie = difference(lat_abc_index(a), lat_abc_index(b));
  return difference(kz_codr_base_member(a, language), kz_codr_base_member(b, language));
}

}  // extern "C"

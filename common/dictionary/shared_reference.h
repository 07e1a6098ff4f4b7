// References from entries to the shared text of a dictionary.
#ifndef KZ_DICTIONARY_SHARED_REFERENCE_H
#define KZ_DICTIONARY_SHARED_REFERENCE_H

#include <cstdint>
#include <string_view>

namespace kz {

// The place of a reference to shared text in an entry: the body, when it is a number, with a lone
// source mark after it.
struct SharedReference {
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  std::uint32_t offset = kNone;   // in the shared text
  std::uint16_t body = 0;         // offset of the body in the entry
  std::uint16_t body_length = 0;  // characters that the shared text replaces

  explicit operator bool() const { return offset != kNone; }
};

// The reference in an entry of at most 65,535 characters: a body that begins with a hexadecimal
// number below `shared_size`, of at most 10 digits, which ends at the end of the body or at a
// backslash.
SharedReference find_shared_reference(std::string_view entry, std::uint32_t shared_size);

}  // namespace kz

#endif  // KZ_DICTIONARY_SHARED_REFERENCE_H

// The fields of a compact attribute record, the two words in which dictionaries and inflection
// tables keep the attributes of a word.
#ifndef KZ_GRAMMAR_COMPACT_RECORD_H
#define KZ_GRAMMAR_COMPACT_RECORD_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace kz::compact_record {

struct Field {
  std::size_t word;
  int shift;
  std::uint32_t mask;

  constexpr std::uint32_t get(const std::uint32_t* record) const {
    return record[word] >> shift & mask;
  }
  constexpr void set(std::uint32_t* record, std::uint32_t value) const {
    record[word] = (record[word] & ~(mask << shift)) | ((value & mask) << shift);
  }
};

inline constexpr std::size_t kBaseKind = 2;  // the kind of the names that are paradigm bases
inline constexpr std::array<Field, 3> kNames = {{{0, 0, 0xFF}, {0, 8, 0x3F}, {0, 16, 0xFF}}};
inline constexpr Field kValue{0, 14, 3};
inline constexpr Field kNumber{1, 0, 0xFFFF};
inline constexpr Field kLetter{1, 16, 0xFF};

// The index of the kind-1 name, which is signed.
constexpr int addition_of(const std::uint32_t* record) {
  return static_cast<int>(kNames[1].get(record) ^ 0x20) - 0x20;
}

}  // namespace kz::compact_record

#endif  // KZ_GRAMMAR_COMPACT_RECORD_H

// Fields of several bits inside the words of a GRAMINFO.
#ifndef KZ_GRAMMAR_FIELDS_H
#define KZ_GRAMMAR_FIELDS_H

#include <cstdint>

#include "kz/gram_record.h"

namespace kz {

struct Field {
  std::uint8_t word, shift, width;

  constexpr std::uint32_t mask() const { return ((std::uint32_t{1} << width) - 1) << shift; }
  constexpr std::uint32_t get(const GRAMINFO& gram) const {
    return (gram.word[word] & mask()) >> shift;
  }
  // Replaces the field by the low bits of the value.
  constexpr void set(GRAMINFO& gram, std::uint32_t value) const {
    gram.word[word] = (gram.word[word] & ~mask()) | (value << shift & mask());
  }
};

namespace field {

inline constexpr Field attribute_value{0, 1, 2};
inline constexpr Field cases{1, GRAM_CASES_SHIFT, 6};
inline constexpr Field second_cases{2, GRAM_SECOND_CASES_SHIFT, 6};
inline constexpr Field code{2, GRAM_CODE_SHIFT, 8};
inline constexpr Field attribute0{2, 16, 8};
inline constexpr Field attribute1{2, 24, 8};
inline constexpr Field paradigm_base{3, 0, 8};
inline constexpr Field paradigm_number{3, GRAM_PARADIGM_NUMBER_SHIFT, 16};
inline constexpr Field paradigm_letter{3, GRAM_PARADIGM_LETTER_SHIFT, 8};
inline constexpr Field third_cases{4, GRAM_THIRD_CASES_SHIFT, 6};
inline constexpr Field person{5, GRAM_PERSON_SHIFT, 2};
inline constexpr Field small_letter{6, 0, 8};
inline constexpr Field oblique_marks{6, 14, 5};  // genitive to prepositional
inline constexpr Field small_number{6, 19, 5};

}  // namespace field

// The paradigm number that means no paradigm.
inline constexpr std::uint32_t no_paradigm_number = 65535;

constexpr void set_paradigm(GRAMINFO& gram, std::uint32_t number, std::uint32_t base,
                            unsigned char letter) {
  field::paradigm_number.set(gram, number);
  field::paradigm_base.set(gram, base);
  field::paradigm_letter.set(gram, letter);
}

}  // namespace kz

#endif  // KZ_GRAMMAR_FIELDS_H

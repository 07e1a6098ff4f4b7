// Where the fields of several bits are in the words of a GRAMINFO.
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
  constexpr void add(GRAMINFO& gram, std::uint32_t value) const {
    gram.word[word] |= value << shift & mask();
  }
};

namespace field {

inline constexpr Field kAttributeValue{0, 1, 2};
inline constexpr Field kGender{1, 0, 2};  // masculine and feminine
inline constexpr Field kCases{1, GRAM_CASES_SHIFT, 6};
inline constexpr Field kSecondCases{2, GRAM_SECOND_CASES_SHIFT, 6};
inline constexpr Field kCode{2, GRAM_CODE_SHIFT, 8};
inline constexpr Field kAttribute0{2, 16, 8};
inline constexpr Field kAttribute1{2, 24, 8};
inline constexpr Field kParadigmBase{3, 0, 8};
inline constexpr Field kParadigmNumber{3, GRAM_PARADIGM_NUMBER_SHIFT, 16};
inline constexpr Field kParadigmLetter{3, GRAM_PARADIGM_LETTER_SHIFT, 8};
inline constexpr Field kThirdCases{4, GRAM_THIRD_CASES_SHIFT, 6};
inline constexpr Field kPerson{5, GRAM_PERSON_SHIFT, 2};
inline constexpr Field kSmallLetter{6, 0, 8};
inline constexpr Field kObliqueMarks{6, 14, 5};  // genitive to prepositional
inline constexpr Field kSmallNumber{6, 19, 5};

}  // namespace field

// The paradigm number that means no paradigm.
inline constexpr std::uint32_t kNoParadigmNumber = 65535;

constexpr void set_paradigm(GRAMINFO& gram, std::uint32_t number, std::uint32_t base,
                            unsigned char letter) {
  field::kParadigmNumber.set(gram, number);
  field::kParadigmBase.set(gram, base);
  field::kParadigmLetter.set(gram, letter);
}

}  // namespace kz

#endif  // KZ_GRAMMAR_FIELDS_H

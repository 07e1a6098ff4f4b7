// The steps that the rules of the grammar mapping are made of.
//
// A step sets one summary field of the word record from the grammar record at hand. "default_"
// steps fill a field only while it is 0.
#ifndef KZ_GRAMMAR_MAP_STEPS_H
#define KZ_GRAMMAR_MAP_STEPS_H

#include <cstdint>
#include <string_view>

#include "grammar/fields.h"
#include "kz/gram_map.h"

namespace kz {

// A bit of a GRAMINFO. Those without a meaning to the library are named by their tag letter.
struct Flag {
  std::uint8_t word;
  std::uint32_t mask;
};

namespace flag {

inline constexpr Flag singular{1, GRAM_SINGULAR};
inline constexpr Flag plural{1, GRAM_PLURAL};
inline constexpr Flag no_plural{1, GRAM_NO_PLURAL};
inline constexpr Flag no_singular{1, GRAM_NO_SINGULAR};
inline constexpr Flag perfective_mark{1, GRAM_PERFECTIVE_MARK};
inline constexpr Flag past{1, GRAM_PAST};
inline constexpr Flag verb_V{1, 1u << 11};
inline constexpr Flag imperative{1, GRAM_IMPERATIVE};
inline constexpr Flag future{1, GRAM_FUTURE};
inline constexpr Flag verb_U{1, 1u << 15};
inline constexpr Flag reflexive_mark{1, GRAM_REFLEXIVE_MARK};
inline constexpr Flag perfective{1, GRAM_PERFECTIVE};
inline constexpr Flag imperfective{1, GRAM_IMPERFECTIVE};
inline constexpr Flag reflexive{1, GRAM_REFLEXIVE};
inline constexpr Flag verb_X{1, 1u << 29};
inline constexpr Flag verb_n{2, 1u << 7};
inline constexpr Flag tag_K{4, 1u << 7};
inline constexpr Flag never_perfective{4, GRAM_NEVER_PERFECTIVE};
inline constexpr Flag verb_no_V{4, 1u << 19};
inline constexpr Flag passive{4, GRAM_PASSIVE};
inline constexpr Flag verb_O{4, 1u << 27};
inline constexpr Flag verb_p{5, 1u << 7};
inline constexpr Flag adjective_no_H{5, 1u << 24};
inline constexpr Flag tag_H{5, 1u << 31};

}  // namespace flag

struct MapSteps {
  WordRecordView record;
  GRAMINFO gram;  // a copy: the record's own stands at any address
  unsigned char code;

  bool has(Flag flag) const { return (gram.word[flag.word] & flag.mask) != 0; }
  std::uint8_t get(const Field& field) const { return static_cast<std::uint8_t>(field.get(gram)); }
  std::uint8_t gender() const { return get({1, 0, 2}); }
  std::uint8_t cases() const { return get(field::cases); }
  std::uint8_t person() const { return get(field::person); }

  // The field of the word record becomes `value` if the grammar has the flag.
  void if_has(Flag flag, std::uint8_t& field, std::uint8_t value) const {
    if (has(flag)) field = value;
  }
  static void set_default(std::uint8_t& field, std::uint8_t value) {
    if (field == 0) field = value;
  }

  void set_number() const {
    if_has(flag::singular, record.number(), 0);
    if_has(flag::plural, record.number(), 1);
  }
  void set_plural() const { if_has(flag::plural, record.number(), 1); }
  // The number of a noun, which is also told by the form it lacks. Returns whether the noun is
  // plural alone, as `plural_code` makes every noun that has not both numbers.
  bool set_noun_number(bool plural_code = false) const;

  void set_gender() const { record.gender() = gender(); }
  void set_cases() const { record.cases() = cases(); }
  void set_cases_if_any() const {
    if (cases() != 0) record.cases() = cases();
  }
  void default_case(std::uint8_t one) const { set_default(record.cases(), one); }
  void set_person() const { record.person() = person(); }
  void set_person_or_third() const { record.person() = person() != 0 ? person() : 3; }
  void default_person() const { set_default(record.person(), person()); }
  void set_past() const { if_has(flag::past, record.tense(), 1); }
  void set_future() const { if_has(flag::future, record.tense(), 2); }
  // Perfective or imperfective; a verb with both bits or none keeps the aspect it has.
  void set_aspect() const;
  void set_aspect_by_K() const { if_has(flag::tag_K, record.aspect(), 1); }
  void set_H_flag() const { if_has(flag::tag_H, record.h_flag(), 1); }
  void set_verb_flag(Flag flag, WordVerbFlag verb_flag) const;
  void clear_reflexive() const;
  void set_paradigm_number() const { record.set_paradigm_number(field::paradigm_number.get(gram)); }

  // The whole summaries of a verb.
  void er_verb() const;
  void re_verb() const;

  // Whether the word is this one, given in small letters.
  bool word_is(std::string_view small) const;
};

}  // namespace kz

#endif  // KZ_GRAMMAR_MAP_STEPS_H

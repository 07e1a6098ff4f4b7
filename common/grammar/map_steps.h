// The steps that the rules of the grammar mapping are made of.
//
// A step sets one summary field of the word record from the grammar record at hand. "default_"
// steps fill a field only while it is 0.
#ifndef KZ_GRAMMAR_MAP_STEPS_H
#define KZ_GRAMMAR_MAP_STEPS_H

#include <cstdint>
#include <string_view>

#include "grammar/fields.h"
#include "grammar/flags.h"
#include "kz/gram_map.h"

namespace kz {

struct MapSteps {
  WordRecordView record;
  GRAMINFO gram;  // a copy: the record's own is at any address
  unsigned char code;

  bool has(Flag flag) const { return flag.is_set(gram); }
  std::uint8_t get(const Field& field) const { return static_cast<std::uint8_t>(field.get(gram)); }
  std::uint8_t gender() const { return get(field::kGender); }
  std::uint8_t cases() const { return get(field::kCases); }
  std::uint8_t person() const { return get(field::kPerson); }

  // The field of the word record becomes `value` if the grammar has the flag.
  void if_has(Flag flag, std::uint8_t& field, std::uint8_t value) const {
    if (has(flag)) field = value;
  }
  static void set_default(std::uint8_t& field, std::uint8_t value) {
    if (field == 0) field = value;
  }

  void set_number() const {
    if_has(flag::kSingular, record.number(), 0);
    if_has(flag::kPlural, record.number(), 1);
  }
  void set_plural() const { if_has(flag::kPlural, record.number(), 1); }
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
  void set_past() const { if_has(flag::kPast, record.tense(), 1); }
  void set_future() const { if_has(flag::kFuture, record.tense(), 2); }
  // Perfective or imperfective; a verb with both bits or none keeps the aspect it has.
  void set_aspect() const;
  void set_aspect_by_K() const { if_has(flag::kK, record.aspect(), 1); }
  void set_H_flag() const { if_has(flag::kH, record.h_flag(), 1); }
  void set_verb_flag(Flag flag, WordVerbFlag verb_flag) const;
  void clear_reflexive() const;
  void set_paradigm_number() const { record.set_paradigm_number(field::kParadigmNumber.get(gram)); }

  // The whole summaries of a verb.
  void er_verb() const;
  void re_verb() const;

  // True when the word is this one, given in small letters.
  bool word_is(std::string_view small) const;
};

}  // namespace kz

#endif  // KZ_GRAMMAR_MAP_STEPS_H

// Mapping rules from the Russian grammar: er_set_rgram, re_set_rgram.
#include "grammar/map_rules.h"
#include "text/literal.h"

namespace kz {
namespace {

// Translation into Russian.
namespace er {

void noun(MapSteps& s) {
  s.set_noun_number();
  s.set_gender();
  s.record.person() = 3;
  s.set_paradigm_number();
}

void adjective(MapSteps& s) {
  s.set_H_flag();
  s.set_number();
  s.set_paradigm_number();
}

void set_governed_cases(MapSteps& s) {
  const std::uint8_t second = s.get(field::kSecondCases);
  if (s.cases() != 0) {
    s.set_cases();
  } else if (second != 0) {
    s.record.cases() = second;
  }
  MapSteps::set_default(s.record.second_cases(), second);
}

// With "X" a verb of marked perfective is no longer reflexive, in the record itself too; an
// imperfective one, or one whose foreign verb is never perfective, is so only by its own bit, not
// by what an earlier step found.
void set_reflexive(MapSteps& s) {
  if (s.has(flag::kReflexive) && s.has(flag::kVerbX) && s.has(flag::kPerfectiveMark)) {
    flag::kReflexive.clear(s.gram);
    s.record.set_russian_gram(s.gram);
  }
  const bool foreign_never = flag::kNeverPerfective.is_set(s.record.foreign_gram());
  if (s.has(flag::kVerbX) && (s.has(flag::kImperfective) || foreign_never)) s.clear_reflexive();
  s.set_verb_flag(flag::kReflexive, WORD_VERB_REFLEXIVE);
}

void verb(MapSteps& s) {
  s.set_H_flag();
  s.set_number();
  set_governed_cases(s);
  s.if_has(flag::kPerfectiveMark, s.record.aspect(), 1);
  s.if_has(flag::kVerbV, s.record.v_flag(), 1);
  s.if_has(flag::kVerbNoV, s.record.v_flag(), 0);
  s.if_has(flag::kVerbNoV, s.record.aspect(), 0);
  s.set_verb_flag(flag::kImperative, WORD_VERB_IMPERATIVE);
  s.set_past();
  s.set_future();
  s.set_aspect();
  s.if_has(flag::kPassive, s.record.v_flag(), 0);
  set_reflexive(s);
  s.set_paradigm_number();
}

void preposition(MapSteps& s) {
  if (s.record.context_code() == 'B' && s.record.cases() != 0) return;
  s.set_cases_if_any();
}

constexpr MapRules kRules({
    {"#Nn", noun},
    {"Aa", adjective},
    {"EFV", verb},
    {"Pf", preposition},
});

}  // namespace er

// Translation from Russian.
namespace re {

void noun(MapSteps& s) {
  s.set_noun_number();
  s.set_gender();
  s.set_cases_if_any();
  s.set_person_or_third();
}

void adjective(MapSteps& s) {
  s.set_H_flag();
  s.if_has(flag::kAdjectiveNoH, s.record.h_flag(), 0);
  s.set_number();
  s.set_gender();
  s.set_cases();
  s.set_aspect_by_K();
  if (field::kParadigmNumber.get(s.gram) != 0) s.set_paradigm_number();
}

void numeral(MapSteps& s) { s.set_plural(); }

void pronoun(MapSteps& s) {
  s.set_number();
  s.set_gender();
  s.set_cases();
  s.set_aspect_by_K();
  s.set_person_or_third();
}

void verb(MapSteps& s) {
  s.set_aspect();
  s.if_has(flag::kPerfectiveMark, s.record.aspect(), 1);
  s.if_has(flag::kNeverPerfective, s.record.aspect(), 0);
  if (s.has(flag::kVerbX)) s.clear_reflexive();
  s.set_verb_flag(flag::kReflexive, WORD_VERB_REFLEXIVE);
  // The accusative may be no more than the default.
  if (s.record.cases() == 0 || s.record.cases() == GRAM_ACCUSATIVE) s.set_cases_if_any();
  s.default_case(GRAM_ACCUSATIVE);
  if (const std::uint8_t third = s.get(field::kThirdCases); third != 0) {
    s.record.second_cases() = third;
  }
}

void verb_or_third_person(MapSteps& s) {
  s.re_verb();
  if (s.person() == 0) s.record.person() = 3;
  s.default_case(GRAM_ACCUSATIVE);
}

void verb_form(MapSteps& s) {
  verb_or_third_person(s);
  verb(s);
}

void verb_with_genitive(MapSteps& s) {
  s.re_verb();
  s.default_case(GRAM_GENITIVE);
}

void auxiliary(MapSteps& s) { s.re_verb(); }

void auxiliary_with_object(MapSteps& s) {
  s.re_verb();
  s.record.cases() = GRAM_ACCUSATIVE;
}

void preposition(MapSteps& s) {
  s.re_verb();
  s.default_case(s.cases());
}

void particle(MapSteps& s) {
  s.re_verb();
  s.set_aspect_by_K();
}

constexpr MapRules kRules({
    {"#Nin", noun},
    {U"ADadн"_1251, adjective},
    {"LMOQRSlmoqrs", pronoun},
    {"I", numeral},
    {"V", verb},
    {U"EGZegvzЭЮ"_1251, verb_form},
    {"U", verb_or_third_person},
    {"y", verb_with_genitive},
    {"Xx", auxiliary},
    {"Y", auxiliary_with_object},
    {U"PpЧдп"_1251, preposition},
    {"J", particle},
});

}  // namespace re
}  // namespace
}  // namespace kz

void er_set_rgram(std::uint8_t* record, std::int16_t code) {
  kz::er::kRules.apply(record, &WordRecordView::russian_gram, code);
}

void re_set_rgram(std::uint8_t* record, std::int16_t code) {
  kz::re::kRules.apply(record, &WordRecordView::russian_gram, code);
}

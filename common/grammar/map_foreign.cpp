// Mapping rules from the foreign grammar: er_set_egram, re_set_egram.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "grammar/map_rules.h"
#include "text/char_classes.h"
#include "text/literal.h"

namespace kz {
namespace {

// Rules that both directions share.

void adjective(MapSteps& s) { s.set_paradigm_number(); }

void adjective_mark(MapSteps& s) { s.record.adjective_mark() = 'a'; }

void numeral(MapSteps& s) { s.set_plural(); }

void pronoun(MapSteps& s) {
  s.set_number();
  s.set_gender();
  s.set_person();
  s.set_cases();
}

void pronoun_or_third_person(MapSteps& s) {
  s.set_number();
  s.set_gender();
  s.set_cases();
  s.set_aspect_by_K();
  s.set_person_or_third();
}

void verb_in_third_person(MapSteps& s) {
  s.er_verb();
  s.record.person() = 3;
  s.default_case(GRAM_ACCUSATIVE);
}

void auxiliary(MapSteps& s) { s.er_verb(); }

void auxiliary_with_object(MapSteps& s) {
  s.er_verb();
  s.record.cases() = GRAM_ACCUSATIVE;
}

void preposition(MapSteps& s) {
  s.set_future();
  s.set_cases();
}

void particle(MapSteps& s) {
  s.er_verb();
  s.set_aspect_by_K();
}

// What the code itself says of a verb.

void plain_verb(MapSteps&) {}

void past_verb_E(MapSteps& s) { s.record.tense() = 1; }

void past_verb_F(MapSteps& s) {
  s.record.tense() = 1;
  s.record.secondary_code() = 'n';
  s.record.context_code() = 'E';
  s.record.code() = 'E';
}

void past_verb_h(MapSteps& s) {
  s.record.tense() = 1;
  s.record.context_code() = 'V';
  s.record.code() = 'V';
}

// Translation into Russian.
namespace er {

void noun(MapSteps& s) {
  if (s.set_noun_number(s.code == 'n')) s.record.code() = 'n';
  s.set_gender();
  s.set_cases();
  s.record.person() = 3;
  s.set_paradigm_number();
}

void finite_verb(MapSteps& s) {
  s.default_person();
  s.set_plural();
  if (s.record.context_code() == 'z') s.record.number() = 0;
}

template <MapRule OfCode>
void verb(MapSteps& s) {
  s.default_case(GRAM_ACCUSATIVE);
  if (s.record.code() == 'G') return;
  s.set_past();
  if (s.record.context_code() == 'E') s.record.tense() = 1;
  OfCode(s);
  s.set_paradigm_number();
}

void plural_verb_in_third_person(MapSteps& s) {
  s.er_verb();
  s.record.number() = 1;
  s.record.person() = 3;
  s.default_case(GRAM_ACCUSATIVE);
}

void auxiliary_be(MapSteps& s) {
  s.er_verb();
  if (!s.word_is("be")) return;
  flag::kVerbN.set(s.gram);
  s.record.set_foreign_gram(s.gram);
}

void preposition_of(MapSteps& s) {
  if (!s.has(flag::kVerbO) && (s.word_is("of") || s.has(flag::kVerbP))) s.record.aspect() = 1;
  preposition(s);
}

void number_tense_person(MapSteps& s) {
  s.set_plural();
  s.record.tense() = s.has(flag::kPast);
  s.set_person();
}

void third_person_masculine(MapSteps& s) {
  s.record.person() = 3;
  s.record.gender() = 1;
}

constexpr MapRules kRules({
    {"#Nn", noun},
    {"A", adjective},
    {"a", adjective_mark},
    {"I", numeral},
    {U"MQRqrtм"_1251, pronoun},
    {"OS", pronoun_or_third_person},
    {U"Й"_1251, third_person_masculine},
    {"GZ", verb<plain_verb>},
    {"V", verb<finite_verb>},
    {"E", verb<past_verb_E>},
    {"F", verb<past_verb_F>},
    {"h", verb<past_verb_h>},
    {"Uv", verb_in_third_person},
    {"z", plural_verb_in_third_person},
    {"X", auxiliary_be},
    {"Y", auxiliary_with_object},
    {"x", auxiliary},
    {"P", preposition_of},
    {"Bbfp", preposition},
    {"J", particle},
    {U"БГв"_1251, number_tense_person},
});

}  // namespace er

// Translation from Russian.
namespace re {

void noun(MapSteps& s) {
  if (s.set_noun_number()) s.record.code() = 'n';
  s.record.gender() = s.gender() == 3 ? 0 : s.gender();
  s.set_cases();
  s.record.person() = 3;
  s.set_paradigm_number();
}

template <MapRule OfCode>
void verb(MapSteps& s) {
  s.default_case(GRAM_ACCUSATIVE);
  if (s.record.code() == 'G') return;
  s.set_past();
  OfCode(s);
  s.er_verb();
  s.set_paradigm_number();
}

constexpr MapRules kRules({
    {"N", noun},
    {"A", adjective},
    {"a", adjective_mark},
    {"I", numeral},
    {"MQRqrt", pronoun},
    {"OS", pronoun_or_third_person},
    {"GV", verb<plain_verb>},
    {"E", verb<past_verb_E>},
    {"F", verb<past_verb_F>},
    {"h", verb<past_verb_h>},
    {"Uv", verb_in_third_person},
    {"Xx", auxiliary},
    {"Y", auxiliary_with_object},
    {"BPbfp", preposition},
    {"J", particle},
});

}  // namespace re

// Appends the rest of a translation to a text.
void append_rest(char* text, std::string_view rest) {
  char* end = text + std::strlen(text);
  if (!rest.empty() && !is_in(rest.front(), char_class::kDigit)) *end++ = '1';
  *std::ranges::copy(rest, end).out = '\0';
}

}  // namespace
}  // namespace kz

void er_set_egram(std::uint8_t* record, std::int16_t code) {
  kz::er::kRules.apply(record, &WordRecordView::foreign_gram, code);
}

void re_set_egram(std::uint8_t* record, std::int16_t code, const char* text) {
  kz::re::kRules.apply(record, &WordRecordView::foreign_gram, code);
  if (record == nullptr || text == nullptr) return;
  const WordRecordView view(record);
  if (view.level() > 4 && view.text_buffer() != nullptr) kz::append_rest(view.text_buffer(), text);
}

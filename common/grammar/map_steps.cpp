// The longer steps of the mapping, and the verb summaries.
#include "grammar/map_steps.h"

#include <cstring>

#include "kz/charclass.h"

namespace kz {

bool MapSteps::set_noun_number(bool plural_code) const {
  if (has(flag::kSingular) && has(flag::kPlural)) {
    record.number() = 2;
  } else if (plural_code || has(flag::kPlural) || has(flag::kNoSingular)) {
    record.number() = 1;
    return true;
  } else if (has(flag::kSingular) || has(flag::kNoPlural)) {
    record.number() = 0;
  }
  return false;
}

void MapSteps::set_aspect() const {
  if (has(flag::kPerfective) != has(flag::kImperfective)) record.aspect() = has(flag::kPerfective);
}

void MapSteps::set_verb_flag(Flag flag, WordVerbFlag verb_flag) const {
  if (has(flag)) record.verb_flags() |= static_cast<std::uint8_t>(verb_flag);
}

void MapSteps::clear_reflexive() const {
  record.verb_flags() &= static_cast<std::uint8_t>(~WORD_VERB_REFLEXIVE);
}

void MapSteps::er_verb() const {
  set_H_flag();
  set_number();
  set_gender();
  default_person();
  set_cases_if_any();
  if_has(flag::kPerfectiveMark, record.aspect(), 1);
  if_has(flag::kVerbV, record.v_flag(), 1);
  set_verb_flag(flag::kReflexiveMark, WORD_VERB_REFLEXIVE);
  set_verb_flag(flag::kImperative, WORD_VERB_IMPERATIVE);
  if (has(flag::kPast)) set_default(record.tense(), 1);
  set_future();
}

void MapSteps::re_verb() const {
  set_H_flag();
  if (has(flag::kPlural)) set_default(record.number(), has(flag::kSingular) ? 2 : 1);
  set_default(record.gender(), gender());
  default_person();
  if_has(flag::kPerfectiveMark, record.aspect(), 1);
  if_has(flag::kVerbV, record.v_flag(), 1);
  set_verb_flag(flag::kReflexiveMark, WORD_VERB_REFLEXIVE);
  set_verb_flag(flag::kImperative, WORD_VERB_IMPERATIVE);
  set_verb_flag(flag::kVerbU, WORD_VERB_U);
  set_past();
  set_future();
}

bool MapSteps::word_is(std::string_view small) const {
  const char* at = record.word();
  for (const char c : small) {
    if (__tolower(*at++) != c) return false;
  }
  return *at == '\0';
}

}  // namespace kz

namespace {

void map_verb(std::uint8_t* record, const void* gram, void (kz::MapSteps::*summary)() const) {
  if (record == nullptr || gram == nullptr) return;
  kz::MapSteps steps{WordRecordView(record), {}, 0};
  std::memcpy(&steps.gram, gram, sizeof steps.gram);
  (steps.*summary)();
}

}  // namespace

void er_set_vgram(std::uint8_t* record, const void* gram) {
  map_verb(record, gram, &kz::MapSteps::er_verb);
}

void re_set_vgram(std::uint8_t* record, const void* gram) {
  map_verb(record, gram, &kz::MapSteps::re_verb);
}

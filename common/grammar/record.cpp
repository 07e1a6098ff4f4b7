// The classes that hold the grammar of a word.
#include "kz/gram_record.h"

#include "grammar/fields.h"
#include "kz/gram_attr.h"

using kz::field::cases;
using kz::field::code;
using kz::field::paradigm_base;
using kz::field::paradigm_number;
using kz::field::person;
using kz::field::third_cases;

CGramInfo::CGramInfo() : gram_{}, semantics_{} {}

CGramInfo::~CGramInfo() = default;

void CGramInfo::ClearAllGramInfo() {
  ClearGramInfo();
  ClearSemantics();
}

void CGramInfo::ClearGramInfo() { gram_ = {}; }

void CGramInfo::ClearSemantics() { semantics_ = {}; }

void CGramInfo::SetGramInfo(const GRAMINFO* gram) {
  if (gram != nullptr) gram_ = *gram;
}

void CGramInfo::SetSemantics(const SEMANTICS* semantics) {
  if (semantics != nullptr) semantics_ = *semantics;
}

GRAMINFO& CGramInfo::G() { return gram_; }

SEMANTICS& CGramInfo::S() { return semantics_; }

GRAMINFO* CGramInfo::GetGramInfo() { return &gram_; }

SEMANTICS* CGramInfo::GetSemantics() { return &semantics_; }

void CGramInfo::SetParadigmInfo(uint32_t paradigm, char letter) {
  kz::set_paradigm(gram_, paradigm, paradigm >> 16, static_cast<unsigned char>(letter));
}

void CGramInfo::SetParadigmInfo(int16_t number, int16_t base, char letter) {
  SetParadigmInfo(static_cast<uint16_t>(number) | static_cast<uint32_t>(base) << 16, letter);
}

uint32_t CGramInfo::MakeParadigm() const {
  return ::MakeParadigm(static_cast<int16_t>(paradigm_number.get(gram_)),
                        static_cast<int8_t>(paradigm_base.get(gram_)));
}

int16_t CGramInfo::GetNumber() const {
  constexpr uint32_t both = GRAM_SINGULAR | GRAM_PLURAL;
  if ((gram_.word[1] & both) == both) return 2;
  return (gram_.word[1] & (GRAM_PLURAL | GRAM_NO_SINGULAR)) != 0;
}

void CGramInfo::SetNumber(int16_t number) {
  if (number < 0 || number > 2) return;
  uint32_t& bits = gram_.word[1];
  if (number == 0) bits &= ~uint32_t{GRAM_PLURAL};
  if (number == 1) bits &= ~uint32_t{GRAM_SINGULAR};
  if (number != 0 && (bits & GRAM_NO_PLURAL) == 0) bits |= GRAM_PLURAL;
  if (number != 1 && (bits & GRAM_NO_SINGULAR) == 0) bits |= GRAM_SINGULAR;
}

void CGramInfo::SetGender(int16_t gender) {
  constexpr uint32_t bits_of[] = {GRAM_NEUTER, GRAM_MASCULINE, GRAM_FEMININE,
                                  GRAM_MASCULINE | GRAM_FEMININE};
  if (gender >= 0 && gender <= 3) gram_.word[1] |= bits_of[gender];
}

int16_t CGramInfo::GetGender() const {
  return static_cast<int16_t>(gram_.word[1] & (GRAM_MASCULINE | GRAM_FEMININE));
}

int16_t CGramInfo::GetGender1() const {
  const int16_t gender = GetGender();
  return gender == 3 ? int16_t{1} : gender;
}

char CGramInfo::GetSyn() const { return static_cast<char>(code.get(gram_)); }

int16_t CGramInfo::GetPerson() const { return static_cast<int16_t>(person.get(gram_)); }

char CGramInfo::GetCase() const { return static_cast<char>(cases.get(gram_)); }

char CGramInfo::GetCase2() const { return static_cast<char>(third_cases.get(gram_)); }

int16_t CGramInfo::GetTensePast() const { return (gram_.word[1] & GRAM_PAST) != 0; }

int16_t CGramInfo::GetTensePresent() const { return (gram_.word[1] & GRAM_PRESENT) != 0; }

int16_t CGramInfo::GetTenseFuture() const { return (gram_.word[1] & GRAM_FUTURE) != 0; }

int16_t CGramInfo::IsPerfective() const {
  if ((gram_.word[4] & GRAM_NEVER_PERFECTIVE) != 0) return 0;
  if ((gram_.word[1] & GRAM_PERFECTIVE_MARK) != 0) return 1;
  return (gram_.word[1] & (GRAM_PERFECTIVE | GRAM_IMPERFECTIVE)) == GRAM_PERFECTIVE;
}

int16_t CGramInfo::IsReflexive() const {
  return (gram_.word[1] & (GRAM_REFLEXIVE_MARK | GRAM_REFLEXIVE)) != 0;
}

CWordGram::CWordGram() = default;

CWordGram::~CWordGram() { word_.Empty(); }

ZCString& CWordGram::GetWord() { return word_; }

void CWordGram::SetWord(const ZCString& word) { word_ = word; }

void CWordGram::SetWord(const char* word) { word_ = word; }

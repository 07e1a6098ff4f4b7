// The classes that hold the grammar of a word.
#include "kz/gram_record.h"

#include "grammar/fields.h"
#include "grammar/flags.h"
#include "kz/gram_attr.h"

namespace field = kz::field;
namespace flag = kz::flag;

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
  return ::MakeParadigm(static_cast<int16_t>(field::kParadigmNumber.get(gram_)),
                        static_cast<int8_t>(field::kParadigmBase.get(gram_)));
}

int16_t CGramInfo::GetNumber() const {
  if (flag::kSingular.is_set(gram_) && flag::kPlural.is_set(gram_)) return 2;
  return flag::kPlural.is_set(gram_) || flag::kNoSingular.is_set(gram_);
}

void CGramInfo::SetNumber(int16_t number) {
  if (number < 0 || number > 2) return;
  if (number == 0) flag::kPlural.clear(gram_);
  if (number == 1) flag::kSingular.clear(gram_);
  if (number != 0 && !flag::kNoPlural.is_set(gram_)) flag::kPlural.set(gram_);
  if (number != 1 && !flag::kNoSingular.is_set(gram_)) flag::kSingular.set(gram_);
}

void CGramInfo::SetGender(int16_t gender) {
  constexpr uint32_t kBitsOf[] = {GRAM_NEUTER, GRAM_MASCULINE, GRAM_FEMININE,
                                  GRAM_MASCULINE | GRAM_FEMININE};
  if (gender >= 0 && gender <= 3) gram_.word[1] |= kBitsOf[gender];
}

int16_t CGramInfo::GetGender() const { return static_cast<int16_t>(field::kGender.get(gram_)); }

int16_t CGramInfo::GetGender1() const {
  const int16_t gender = GetGender();
  return gender == 3 ? int16_t{1} : gender;
}

char CGramInfo::GetSyn() const { return static_cast<char>(field::kCode.get(gram_)); }

int16_t CGramInfo::GetPerson() const { return static_cast<int16_t>(field::kPerson.get(gram_)); }

char CGramInfo::GetCase() const { return static_cast<char>(field::kCases.get(gram_)); }

char CGramInfo::GetCase2() const { return static_cast<char>(field::kThirdCases.get(gram_)); }

int16_t CGramInfo::GetTensePast() const { return flag::kPast.is_set(gram_); }

int16_t CGramInfo::GetTensePresent() const { return flag::kPresent.is_set(gram_); }

int16_t CGramInfo::GetTenseFuture() const { return flag::kFuture.is_set(gram_); }

int16_t CGramInfo::IsPerfective() const {
  if (flag::kNeverPerfective.is_set(gram_)) return 0;
  if (flag::kPerfectiveMark.is_set(gram_)) return 1;
  return flag::kPerfective.is_set(gram_) && !flag::kImperfective.is_set(gram_);
}

int16_t CGramInfo::IsReflexive() const {
  return flag::kReflexiveMark.is_set(gram_) || flag::kReflexive.is_set(gram_);
}

CWordGram::CWordGram() = default;

CWordGram::~CWordGram() { word_.Empty(); }

ZCString& CWordGram::GetWord() { return word_; }

void CWordGram::SetWord(const ZCString& word) { word_ = word; }

void CWordGram::SetWord(const char* word) { word_ = word; }

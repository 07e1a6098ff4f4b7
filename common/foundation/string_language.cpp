// ZCString: the operations that the language tag decides.
#include <algorithm>
#include <cstring>

#include "foundation/string_data.h"
#include "kz/charclass.h"
#include "kz/codepage.h"
#include "kz/compare.h"

using kz::text_view;
namespace data = kz::string_data;

namespace {

using InPlace = char* (*)(char*);
using Conversion = char* (*)(const char*, char*);
using Comparison = int (*)(const char*, const char*);
using CaseChange = int (*)(int);
using ClassTest = int16_t (*)(int);

template <ClassTest First, ClassTest Second>
int16_t either(int character) {
  return First(character) != 0 || Second(character) != 0;
}

bool equal_latin(const char* left, const char* right, int count) {
  return std::equal(left, left + count, right,
                    [](unsigned char a, unsigned char b) { return __tolower(a) == __tolower(b); });
}

bool equal_russian(const char* left, const char* right, int count) {
  return strruansinicmp(left, right, count) == 0 || equal_latin(left, right, count);
}

// What the languages of one group use.
struct Group {
  InPlace upper_text, lower_text;
  Conversion to_oem, to_ansi;
  Comparison compare_no_case;
  bool (*equal_no_case)(const char* left, const char* right, int count);
  CaseChange upper, lower;
  ClassTest is_alpha, is_alnum, is_upper, is_lower;
};

constexpr Group kWestern{stransiupr,  stransilwr,  stransitooem, stroemtoansi,
                         stransiicmp, equal_latin, toansiupper,  toansilower,
                         isansialpha, isansialnum, isansiupper,  isansilower};

// English is in this group too: its functions know the Latin letters as well.
constexpr Group kRussian{strruansiupr,
                         strruansilwr,
                         strruansitooem,
                         strruoemtoansi,
                         strruansiicmp,
                         equal_russian,
                         toruansiupper,
                         toruansilower,
                         either<isruansialpha, isansialpha>,
                         either<isruansialnum, isansialnum>,
                         either<isruansiupper, isansiupper>,
                         either<isruansilower, isansilower>};

constexpr Group kDefault{__strupr,      __strlwr,    strruansitooem, strruoemtoansi,
                         strruansiicmp, equal_latin, toansiupper,    toansilower,
                         isansialpha,   isansialnum, isansiupper,    isansilower};

const Group& group_of(const ZCString& text) {
  switch (text.GetLanguage()) {
    case 1031:  // German
    case 1036:  // French
      return kWestern;
    case 1033:  // English
    case 1049:  // Russian
      return kRussian;
    default: return kDefault;
  }
}

bool is_inside(const ZCString& text, int index) { return index >= 0 && index < text.GetLength(); }

int class_at(const ZCString& text, int index, ClassTest test) {
  return is_inside(text, index) && test(static_cast<unsigned char>(text[index])) != 0;
}

// Calls `change` for every zero-terminated piece of a unique buffer, so that a NUL in the string
// does not end the change.
template <typename Change>
void change_pieces(char*& text, Change change) {
  data::make_unique(text);
  char* const end = text + data::length(text);
  for (char* piece = text; piece < end; piece += std::strlen(piece) + 1) change(piece);
}

}  // namespace

void ZCString::MakeUpper() noexcept { change_pieces(text_, group_of(*this).upper_text); }

void ZCString::MakeLower() noexcept { change_pieces(text_, group_of(*this).lower_text); }

void ZCString::CharToOemA() noexcept {
  change_pieces(text_, [convert = group_of(*this).to_oem](char* piece) { convert(piece, piece); });
}

void ZCString::OemToCharA() noexcept {
  change_pieces(text_, [convert = group_of(*this).to_ansi](char* piece) { convert(piece, piece); });
}

void ZCString::ToUpper(int index) noexcept {
  if (!is_inside(*this, index)) return;
  SetAt(index, static_cast<char>(group_of(*this).upper(static_cast<unsigned char>(text_[index]))));
}

void ZCString::ToLower(int index) noexcept {
  if (!is_inside(*this, index)) return;
  SetAt(index, static_cast<char>(group_of(*this).lower(static_cast<unsigned char>(text_[index]))));
}

int ZCString::CompareNoCase(const char* text) const noexcept {
  return group_of(*this).compare_no_case(text_, text_view(text).data());
}

int ZCString::StartsWithNoCase(const char* text) const noexcept {
  const std::size_t count = text_view(text).size();
  return count <= data::view(text_).size() && IsFlexNoCase(static_cast<int>(count), text);
}

int ZCString::EndsWithNoCase(const char* text) const noexcept { return IsFlexNoCase(text); }

int ZCString::IsFlexNoCase(const char* text) const noexcept {
  return IsFlexNoCase(GetLength(), text);
}

int ZCString::IsFlexNoCase(int position, const char* text) const noexcept {
  const std::string_view ending = text_view(text);
  if (position < 0 || position > GetLength()) return 0;
  if (ending.size() > static_cast<std::size_t>(position)) return 0;
  const int count = static_cast<int>(ending.size());
  return group_of(*this).equal_no_case(text_ + position - count, ending.data(), count);
}

int ZCString::IsAlpha(int index) const noexcept {
  return class_at(*this, index, group_of(*this).is_alpha);
}

int ZCString::IsAlphaNum(int index) const noexcept {
  return class_at(*this, index, group_of(*this).is_alnum);
}

int ZCString::IsUpper(int index) const noexcept {
  return class_at(*this, index, group_of(*this).is_upper);
}

int ZCString::IsLower(int index) const noexcept {
  return class_at(*this, index, group_of(*this).is_lower);
}

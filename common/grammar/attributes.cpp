// Names and expansion of compact attributes, and paradigm values.
#include "grammar/attributes.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

#include "grammar/compact_record.h"
#include "grammar/fields.h"
#include "kz/gram_attr.h"
#include "kz/gram_codec.h"

namespace kz {
namespace {

using Names = std::span<const std::string_view>;

constexpr std::string_view name_of(const WordClass& word_class) { return word_class.name; }
constexpr std::string_view name_of(const char* name) { return name; }

template <class Row, std::size_t Size>
consteval std::array<std::string_view, Size> names_of(const Row (&rows)[Size]) {
  std::array<std::string_view, Size> names;
  for (std::size_t i = 0; i < Size; ++i) names[i] = name_of(rows[i]);
  return names;
}

constexpr auto kWordClassNames = names_of(attribute::kWordClasses);
constexpr auto kAdditionNames = names_of(attribute::kAdditions);
constexpr auto kStemChangeNames = names_of(attribute::kStemChanges);

// The names of a kind, none for a kind that does not exist.
Names names_of_kind(int16_t kind) {
  switch (kind) {
    case 0: return kWordClassNames;
    case 1: return kAdditionNames;
    case 2: return kStemChangeNames;
    default: return {};
  }
}

// Applies the class whose index, a signed number, is in the field.
void expand(GRAMINFO& gram, const Field& index_field, std::span<const WordClass> classes) {
  const auto index = static_cast<std::int8_t>(index_field.get(gram));
  if (index < 0 || static_cast<std::size_t>(index) >= classes.size()) return;
  const WordClass& word_class = classes[static_cast<std::size_t>(index)];
  for (std::size_t i = 0; i < std::size(gram.word); ++i) {
    gram.word[i] = (gram.word[i] & ~word_class.cleared.word[i]) | word_class.added.word[i];
  }
  if (word_class.code != attribute::kKept) field::kCode.set(gram, word_class.code);
}

}  // namespace
}  // namespace kz

const char* GetAttrNameStr(int16_t kind, int16_t index) {
  const kz::Names names = kz::names_of_kind(kind);
  if (index < 0 || static_cast<std::size_t>(index) >= names.size()) return nullptr;
  return names[static_cast<std::size_t>(index)].data();
}

int16_t GetAttrNameIndex(int16_t kind, const char* name) {
  const kz::Names names = kz::names_of_kind(kind);
  if (names.empty()) return 0;
  if (name == nullptr) return -1;
  const std::string_view wanted = name;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] == wanted) return static_cast<int16_t>(i);
  }
  return -1;
}

void SetGrSrcAttr(GRAMINFO* gram, const uint32_t* attributes) {
  if (gram == nullptr || attributes == nullptr) return;
  namespace record = kz::compact_record;
  kz::field::kAttributeValue.set(*gram, record::kValue.get(attributes));
  kz::field::kAttribute0.set(*gram, record::kNames[0].get(attributes));
  kz::field::kAttribute1.set(*gram, static_cast<uint32_t>(record::addition_of(attributes)));
  kz::set_paradigm(*gram, record::kNumber.get(attributes),
                   record::kNames[record::kBaseKind].get(attributes),
                   static_cast<unsigned char>(record::kLetter.get(attributes)));
  SetGrSrcAttr1(gram);
}

void SetGrSrcAttr1(GRAMINFO* gram) {
  if (gram == nullptr) return;
  kz::expand(*gram, kz::field::kAttribute0, kz::attribute::kWordClasses);
  kz::expand(*gram, kz::field::kAttribute1, kz::attribute::kAdditions);
}

uint32_t MakeParadigm(int16_t number, int16_t base) {
  if (number == -1) return 0xFFFFFFFF;
  return static_cast<uint16_t>(number) | static_cast<uint32_t>(static_cast<uint16_t>(base)) << 16;
}

int16_t GetParaNum(uint32_t paradigm) { return static_cast<int16_t>(paradigm); }

uint16_t GetParaBase(uint32_t paradigm) { return static_cast<uint16_t>(paradigm >> 16); }

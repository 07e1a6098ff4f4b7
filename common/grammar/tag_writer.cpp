// Writes grammatical records as tag strings.
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "grammar/fields.h"
#include "grammar/tags.h"
#include "kz/gram_codec.h"
#include "kz/special.h"

namespace kz {
namespace {

char* write_number(char* out, int number) { return std::to_chars(out, out + 8, number).ptr; }

char* write_cases(char* out, std::uint32_t cases) { return c_case(static_cast<int>(cases), out); }

char* write_more_cases(char* out, const GRAMINFO& gram) {
  const std::uint32_t second = field::kSecondCases.get(gram);
  const std::uint32_t third = field::kThirdCases.get(gram);
  if (second == 0 && third == 0) return out;
  *out++ = 'C';
  out = write_cases(out, second);
  if (third == 0) return out;
  *out++ = ':';
  return write_cases(out, third);
}

char* write_paradigm(char* out, const GRAMINFO& gram) {
  const std::uint32_t number = field::kParadigmNumber.get(gram);
  if (number == kNoParadigmNumber) return out;
  *out++ = '#';
  out = write_number(out, static_cast<int>(number));
  if (const std::uint32_t letter = field::kParadigmLetter.get(gram); letter != 0) {
    *out++ = static_cast<char>(letter);
  }
  const auto base = static_cast<std::int8_t>(field::kParadigmBase.get(gram));
  if (base == 0 || base == -1) return out;
  *out++ = ':';
  return write_number(out, base);
}

char* write_field(char* out, char letter, const GRAMINFO& gram, bool writes_nominative) {
  const std::uint32_t person = field::kPerson.get(gram), cases = field::kCases.get(gram);
  switch (letter) {
    case '1': return person != 0 ? write_number(out, static_cast<int>(person)) : out;
    case 'C': return write_more_cases(out, gram);
    case '#': return write_paradigm(out, gram);
    default: return cases == GRAM_NOMINATIVE && !writes_nominative ? out : write_cases(out, cases);
  }
}

char* write_common(char* out, const GRAMINFO& gram) {
  for (const CommonTag& tag : kCommonTags) {
    if (tag.flag.is_set(gram)) *out++ = tag.letter;
  }
  const std::uint32_t number = field::kSmallNumber.get(gram);
  if (number == 0) return out;
  *out++ = '&';
  return write_number(out, static_cast<int>(number));
}

// The tags of each group in the order in which they are written; a field has no flag.
struct WrittenTag {
  Flag flag{};
  char letter = 0;  // 0 after the last
  bool is_negated = false;
};
using WrittenTags = std::array<WrittenTag, 64>;

constexpr auto kWrittenTags = [] {
  std::array<WrittenTags, kGroupCount> result{};
  for (std::size_t group = 0; group < kGroupCount; ++group) {
    auto written = result[group].begin();
    for (std::string_view rest = kGroupTags[group].written; !rest.empty(); ++written) {
      const std::string_view tag = next_tag(rest);
      *written = {find_flag(static_cast<Group>(group), tag).flag, tag.back(), tag.size() == 2};
    }
  }
  return result;
}();

char* write_group(char* out, Group group, const GRAMINFO& gram) {
  if (group == Group::kNone) return out;
  for (const auto& [flag, letter, is_negated] : kWrittenTags[static_cast<std::size_t>(group)]) {
    if (letter == 0) break;
    if (flag.mask == 0) {
      out = write_field(out, letter, gram, tags_of(group).writes_nominative);
    } else if (flag.is_set(gram)) {
      if (is_negated) *out++ = '-';
      *out++ = letter;
    }
  }
  return out;
}

char* write_semantics(char* out, const SEMANTICS* semantics) {
  if (semantics == nullptr || semantics->word == 0) return out;
  const std::uint32_t flags = semantics->word;
  *out++ = '%';
  for (const char letter : kSemanticOrder) {
    if ((flags >> kSemanticLetters.find(letter) & 1) != 0) *out++ = letter;
  }
  return out;
}

}  // namespace
}  // namespace kz

char* GramToStr(int16_t code, const GRAMINFO* gram, const SEMANTICS* semantics, char* out) {
  if (out == nullptr) return nullptr;
  char* end = out;
  if (gram != nullptr) {
    const GRAMINFO words = *gram;  // a copy that no store into the text can change
    end = kz::write_common(end, words);
    end = kz::write_group(end, kz::group_of(static_cast<char>(code)), words);
    end = kz::write_semantics(end, semantics);
  }
  *end = '\0';
  return out;
}

char* set_semantics(char* out, const SEMANTICS* semantics) {
  if (out == nullptr) return nullptr;
  char* const end = kz::write_semantics(out, semantics);
  if (end != out) *end = '\0';
  return end;
}

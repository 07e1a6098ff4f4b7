// Writes grammatical records as tag strings.
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <utility>

#include "grammar/fields.h"
#include "grammar/tags.h"
#include "kz/gram_codec.h"

namespace kz {
namespace {

// All bytes of a tag are stored whether its bit is set or not, and the end moves on only when it
// is: no branch to mispredict per flag. The text grows in a buffer of the largest size, so that
// nothing is stored behind the final zero in the caller's.
constexpr std::size_t slack = 1;
using Buffer = std::array<char, GRAM_STRING_SIZE + slack>;

template <std::size_t Length>
char* write_if(bool is_set, char* out, const char (&text)[Length]) {
  std::memcpy(out, text, Length);
  return out + (is_set ? Length : 0);
}

char* write_number(char* out, int number) { return std::to_chars(out, out + 8, number).ptr; }

char* write_cases(char* out, std::uint32_t cases) {
  for (std::size_t i = 0; i < case_letters.size(); ++i) {
    out = write_if((cases >> i & 1) != 0, out, {case_letters[i]});
  }
  return out;
}

char* write_more_cases(char* out, const GRAMINFO& gram) {
  const std::uint32_t second = field::second_cases.get(gram);
  const std::uint32_t third = field::third_cases.get(gram);
  if (second == 0 && third == 0) return out;
  *out++ = 'C';
  out = write_cases(out, second);
  if (third == 0) return out;
  *out++ = ':';
  return write_cases(out, third);
}

char* write_paradigm(char* out, const GRAMINFO& gram) {
  const std::uint32_t number = field::paradigm_number.get(gram);
  if (number == no_paradigm_number) return out;
  *out++ = '#';
  out = write_number(out, static_cast<int>(number));
  if (const std::uint32_t letter = field::paradigm_letter.get(gram); letter != 0) {
    *out++ = static_cast<char>(letter);
  }
  const auto base = static_cast<std::int8_t>(field::paradigm_base.get(gram));
  if (base == 0 || base == -1) return out;
  *out++ = ':';
  return write_number(out, base);
}

char* write_field(char* out, Tag::Kind kind, const GRAMINFO& gram) {
  switch (kind) {
    case Tag::Kind::person:
      if (const std::uint32_t person = field::person.get(gram); person != 0) {
        *out++ = static_cast<char>('0' + person);
      }
      return out;
    case Tag::Kind::oblique_cases:
      if (field::cases.get(gram) == GRAM_NOMINATIVE) return out;
      [[fallthrough]];
    case Tag::Kind::cases: return write_cases(out, field::cases.get(gram));
    case Tag::Kind::more_cases: return write_more_cases(out, gram);
    case Tag::Kind::paradigm: return write_paradigm(out, gram);
    case Tag::Kind::flag: break;
  }
  return out;
}

char* write_common(char* out, const GRAMINFO& gram) {
  for (const Tag& tag : tag::common) {
    out = write_if((gram.word[tag.word] & tag.mask) != 0, out, {static_cast<char>(tag.letter())});
  }
  const std::uint32_t number = field::small_number.get(gram);
  if (number == 0) return out;
  *out++ = '&';
  return write_number(out, static_cast<int>(number));
}

template <Group group, std::size_t Index>
char* write_tag(char* out, const GRAMINFO& gram) {
  constexpr Tag tag = tags_of_group[static_cast<std::size_t>(group)][Index];
  if constexpr (!tag.is_written()) {
    return out;
  } else if constexpr (tag.kind != Tag::Kind::flag) {
    return write_field(out, tag.kind, gram);
  } else {
    const bool is_set = (gram.word[tag.word] & tag.mask) != 0;
    if constexpr (tag.is_negated()) return write_if(is_set, out, {tag.text[0], tag.text[1]});
    return write_if(is_set, out, {tag.text[0]});
  }
}

// The tags of the group one after the other, each with its word and bit as constants.
template <Group group>
char* write_group(char* out, const GRAMINFO& gram) {
  constexpr std::size_t count = tags_of_group[static_cast<std::size_t>(group)].size();
  return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    ((out = write_tag<group, Index>(out, gram)), ...);
    return out;
  }
  (std::make_index_sequence<count>());
}

char* write_group(char* out, Group group, const GRAMINFO& gram) {
  switch (group) {
    case Group::none: break;
    case Group::noun: return write_group<Group::noun>(out, gram);
    case Group::adjective: return write_group<Group::adjective>(out, gram);
    case Group::verb: return write_group<Group::verb>(out, gram);
    case Group::code_i: return write_group<Group::code_i>(out, gram);
    case Group::pronoun: return write_group<Group::pronoun>(out, gram);
  }
  return out;
}

char* write_semantics(char* out, const SEMANTICS* semantics) {
  if (semantics == nullptr || semantics->word == 0) return out;
  const std::uint32_t flags = semantics->word;
  *out++ = '%';
  for (const SemanticTag& tag : semantic_tags) {
    out = write_if((flags >> tag.bit & 1) != 0, out, {static_cast<char>(tag.letter)});
  }
  return out;
}

}  // namespace
}  // namespace kz

char* GramToStr(int16_t code, const GRAMINFO* gram, const SEMANTICS* semantics, char* out) {
  if (out == nullptr) return nullptr;
  *out = '\0';
  if (gram == nullptr) return out;
  const GRAMINFO words = *gram;  // a copy that no store into the text can change
  kz::Buffer buffer;
  char* end = kz::write_common(buffer.data(), words);
  end = kz::write_group(end, kz::group_of_code[static_cast<unsigned char>(code)], words);
  end = kz::write_semantics(end, semantics);
  *end++ = '\0';
  std::memcpy(out, buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  return out;
}

char* set_semantics(char* out, const SEMANTICS* semantics) {
  if (out == nullptr) return nullptr;
  char* const end = kz::write_semantics(out, semantics);
  if (end != out) *end = '\0';
  return end;
}

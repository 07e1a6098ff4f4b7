// Reads tag strings into grammatical records.
#include <cstddef>
#include <limits>
#include <string_view>

#include "grammar/fields.h"
#include "grammar/tags.h"
#include "kz/gram_codec.h"
#include "text/case_letters.h"
#include "text/char_classes.h"

namespace kz {
namespace {

bool ends_grammar(char c) { return c == '\0' || c == ')' || c == ']' || c == '\\'; }

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The capitals among which the letters of the second and third case set are.
bool is_case_capital(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code >= U'В'_1251 && code <= U'Т'_1251;
}

// Reads the decimal number whose first digit follows `at`, and moves to its last digit. A number
// too large for 32 bits becomes the largest.
std::uint32_t read_number(const char*& at) {
  constexpr std::uint64_t kLargest = std::numeric_limits<std::uint32_t>::max();
  std::uint64_t number = 0;
  while (is_digit(at[1])) {
    number = number * 10 + static_cast<unsigned>(*++at - '0');
    if (number > kLargest) number = kLargest;
  }
  return static_cast<std::uint32_t>(number);
}

const char* read_semantics(const char* at, SEMANTICS& semantics) {
  for (; !ends_grammar(*at); ++at) {
    const std::size_t bit = kSemanticLetters.find(*at);
    if (bit != std::string_view::npos) semantics.word |= std::uint32_t{1} << bit;
  }
  return at;
}

// All functions that read a tag start at its first character and return the position of its last.
struct TagReader {
  GRAMINFO& gram;
  SEMANTICS& semantics;
  char* code_out;
  char* latin_area;

  const char* read_all(const char* at, char code) const {
    for (; !ends_grammar(*at); ++at) {
      at = read_item(at, code);
      if (*at == '|') return at;
      if (ends_grammar(*at)) break;
    }
    return *at == '\0' ? at : at + 1;
  }

  const char* read_item(const char* at, char code) const {
    for (bool negated = false;; ++at) {
      switch (*at) {
        case '\0':
        case ')':
        case ']':
        case '\\':
        case '|': return at;
        case '-': negated = true; break;
        case '=': code = *++at; break;
        case '%': at = read_semantics(at + 1, semantics); break;
        case '&': at = read_extra(at); break;
        default:
          if (!read_common(*at)) at = read_tag(at, code, negated);
      }
      if (!negated || ends_grammar(*at)) return at;
    }
  }

  bool read_common(char letter) const {
    for (const CommonTag& tag : kCommonTags) {
      if (tag.letter != letter) continue;
      tag.flag.set(gram);
      return true;
    }
    return false;
  }

  // Clears `negated`, the "-" that waits for a letter with a negated form, at such a letter.
  // "v" of the verbs is read like "V".
  const char* read_tag(const char* at, char code, bool& negated) const {
    const Group group = group_of(code);
    if (group == Group::kNone) return at;
    *code_out = code;
    const char letter = group == Group::kVerb && *at == 'v' ? 'V' : *at;
    const bool is_negated_form = negated && find_flag(group, letter, true).flag.mask != 0;
    if (is_negated_form) negated = false;
    const TaggedFlag& known = find_flag(group, letter, is_negated_form);
    if (known.flag.mask == 0) return read_field(at, tags_of(group));
    gram.word[known.flag.word] |= known.flag.mask | known.implied;
    return at;
  }

  // A field of the group; other characters are skipped.
  const char* read_field(const char* at, const GroupTags& group) const {
    if (const unsigned one = case_of(*at); one != 0) {
      if ((group.replacing_cases & one) != 0) field::kCases.set(gram, 0);
      field::kCases.add(gram, one);
    } else if (*at >= '1' && *at <= '3' && group.reads('1')) {
      field::kPerson.set(gram, static_cast<std::uint32_t>(*at - '0'));
    } else if (*at == 'C' && group.reads('C')) {
      return read_more_cases(at);
    } else if (*at == '#' && group.reads('#')) {
      return read_paradigm(at);
    }
    return at;
  }

  const char* read_more_cases(const char* at) const {
    if (!is_case_capital(at[1])) return at;
    at = read_case_set(at, field::kSecondCases);
    return at[1] == ':' && is_case_capital(at[2]) ? read_case_set(at + 1, field::kThirdCases) : at;
  }

  // Reads the capitals that follow `at`. Each case takes the place of the one before.
  const char* read_case_set(const char* at, const Field& cases) const {
    while (is_case_capital(at[1])) {
      const unsigned one = case_of(*++at);
      if (one != 0) cases.set(gram, one);
    }
    return at;
  }

  const char* read_paradigm(const char* at) const {
    set_paradigm(gram, kNoParadigmNumber, 0, 0);
    if (!is_digit(at[1])) return at;
    const bool zero_first = at[1] == '0';
    const std::uint32_t number = read_number(at) & 0xFFFF;
    if (number != 0 || zero_first) field::kParadigmNumber.set(gram, number);
    if (is_in(at[1], char_class::kAsciiAlpha | char_class::kRuAnsiAlpha)) {
      field::kParadigmLetter.set(gram, static_cast<unsigned char>(*++at));
    }
    if (at[1] == ':' && is_digit(at[2])) field::kParadigmBase.set(gram, read_number(++at));
    return at;
  }

  // "&" with a Latin letter and a digit, or with any of a small Cyrillic letter, a capital and a
  // number, in this order.
  const char* read_extra(const char* at) const {
    if (is_in(at[1], char_class::kAsciiAlpha)) {
      latin_area[0] = *++at;
      if (is_digit(at[1])) latin_area[1] = *++at;
      return at;
    }
    if (is_in(at[1], char_class::kRuAnsiLower)) {
      field::kSmallLetter.set(gram, static_cast<unsigned char>(*++at));
    }
    if (is_in(at[1], char_class::kRuAnsiUpper)) {
      field::kObliqueMarks.add(gram, case_of(*++at) >> 1);
    }
    if (is_digit(at[1])) field::kSmallNumber.set(gram, read_number(at));
    return at;
  }
};

// Gives the reader a place for everything that the caller does not want, then runs it.
template <class Read>
const char* read_with(const char* text, char* code_out, GRAMINFO* gram, SEMANTICS* semantics,
                      char* latin_area, Read read) {
  if (text == nullptr) return nullptr;
  GRAMINFO unwanted_gram{};
  SEMANTICS unwanted_semantics{};
  char unwanted_code, unwanted_area[2];
  return read(TagReader{gram != nullptr ? *gram : unwanted_gram,
                        semantics != nullptr ? *semantics : unwanted_semantics,
                        code_out != nullptr ? code_out : &unwanted_code,
                        latin_area != nullptr ? latin_area : unwanted_area});
}

}  // namespace
}  // namespace kz

const char* StrToGram(const char* text, char* code_out, GRAMINFO* gram, SEMANTICS* semantics,
                      int code, char* latin_area) {
  return kz::read_with(text, code_out, gram, semantics, latin_area, [&](kz::TagReader reader) {
    return reader.read_all(text, static_cast<char>(code));
  });
}

const char* StrToGram1(const char* text, char* code_out, GRAMINFO* gram, SEMANTICS* semantics,
                       int code, char* latin_area) {
  return kz::read_with(text, code_out, gram, semantics, latin_area, [&](kz::TagReader reader) {
    return reader.read_item(text, static_cast<char>(code));
  });
}

const char* get_semantics(const char* text, SEMANTICS* semantics) {
  if (text == nullptr) return nullptr;
  SEMANTICS unwanted{};
  return kz::read_semantics(text, semantics != nullptr ? *semantics : unwanted);
}

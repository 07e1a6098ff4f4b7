// Reads tag strings into grammatical records.
#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "grammar/fields.h"
#include "grammar/tags.h"
#include "kz/gram_codec.h"
#include "text/char_classes.h"

namespace kz {
namespace {

// What a character does inside an item.
enum class Act : std::uint8_t {
  skip,        // a letter that the group does not know
  set,         // a tag with bits of its own
  more_cases,  // "C" of the verbs
  paradigm,    // "#"
  // The same for every code, and no mark of the group:
  common,     // "$" and ".": bits of their own
  no_letter,  // any character of a code without group
  negation,   // "-"
  code,       // "="
  semantics,  // "%"
  extra,      // "&"
  bar,        // "|"
  end,        // zero, ")", "]", "\"
};

struct Action {
  Act act = Act::skip;
  std::uint8_t word = 0, negated_word = 0;
  std::uint32_t cleared = 0;  // of the word, before the bits are set
  std::uint32_t bits = 0;
  std::uint32_t negated_bits = 0;  // 0: the letter has no negated form
};

using Actions = std::array<Action, 256>;

constexpr Action& at(Actions& actions, char c) { return actions[static_cast<unsigned char>(c)]; }

constexpr void add_flag(Actions& actions, const Tag& tag, Act act) {
  Action& action = actions[tag.letter()];
  action.act = act;
  (tag.is_negated() ? action.negated_word : action.word) = tag.word;
  (tag.is_negated() ? action.negated_bits : action.bits) = tag.mask | tag.also;
}

constexpr void add_cases(Actions& actions, std::uint32_t replacing) {
  for (std::size_t i = 0; i < case_letters.size(); ++i) {
    const std::uint32_t one = std::uint32_t{1} << i;
    at(actions, case_letters[i]) = {.act = Act::set,
                                    .word = field::cases.word,
                                    .cleared = (replacing & one) != 0 ? field::cases.mask() : 0,
                                    .bits = one << field::cases.shift};
  }
}

constexpr void add_persons(Actions& actions) {
  for (std::uint32_t person = 1; person <= 3; ++person) {
    at(actions, static_cast<char>('0' + person)) = {.act = Act::set,
                                                    .word = field::person.word,
                                                    .cleared = field::person.mask(),
                                                    .bits = person << field::person.shift};
  }
}

constexpr void add_tag(Actions& actions, const Tag& tag) {
  switch (tag.kind) {
    case Tag::Kind::flag: add_flag(actions, tag, Act::set); break;
    case Tag::Kind::person: add_persons(actions); break;
    case Tag::Kind::cases:
    case Tag::Kind::oblique_cases: add_cases(actions, tag.mask); break;
    case Tag::Kind::more_cases: at(actions, 'C').act = Act::more_cases; break;
    case Tag::Kind::paradigm: at(actions, '#').act = Act::paradigm; break;
  }
}

consteval Actions make_actions(Group group) {
  Actions actions{};
  if (group == Group::none) actions.fill({.act = Act::no_letter});
  for (const Tag& tag : tags_of_group[static_cast<std::size_t>(group)]) {
    if (tag.is_read()) add_tag(actions, tag);
  }
  for (const Tag& tag : tag::common) add_flag(actions, tag, Act::common);
  at(actions, '-').act = Act::negation;
  at(actions, '=').act = Act::code;
  at(actions, '%').act = Act::semantics;
  at(actions, '&').act = Act::extra;
  at(actions, '|').act = Act::bar;
  for (const char c : {'\0', ')', ']', '\\'}) at(actions, c).act = Act::end;
  return actions;
}

constexpr std::array<Actions, group_count> actions_of_group = {
    make_actions(Group::none), make_actions(Group::noun),   make_actions(Group::adjective),
    make_actions(Group::verb), make_actions(Group::code_i), make_actions(Group::pronoun)};

const Actions& actions_of(unsigned char code) {
  return actions_of_group[static_cast<std::size_t>(group_of_code[code])];
}

// The flag of each semantic letter, 0 for all other characters.
constexpr std::array<std::uint32_t, 256> semantic_bits = [] {
  std::array<std::uint32_t, 256> bits{};
  for (const SemanticTag& tag : semantic_tags) bits[tag.letter] = std::uint32_t{1} << tag.bit;
  return bits;
}();

// The single case of a letter, 0 for all other characters.
constexpr std::array<std::uint8_t, 256> case_of_letter = [] {
  std::array<std::uint8_t, 256> table{};
  for (std::size_t i = 0; i < case_letters.size(); ++i) {
    table[static_cast<unsigned char>(case_letters[i])] = static_cast<std::uint8_t>(1u << i);
  }
  return table;
}();

bool ends_grammar(char c) { return c == '\0' || c == ')' || c == ']' || c == '\\'; }

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The capitals among which the letters of the second and third case set stand.
bool is_case_capital(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code >= U'В'_1251 && code <= U'Т'_1251;
}

// Reads the decimal number whose first digit follows `at`, and moves to its last digit. A number
// too large for 32 bits becomes the largest.
std::uint32_t read_number(const char*& at) {
  constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
  std::uint64_t number = 0;
  while (is_digit(at[1])) {
    number = number * 10 + static_cast<unsigned>(*++at - '0');
    if (number > largest) number = largest;
  }
  return static_cast<std::uint32_t>(number);
}

const char* read_semantics(const char* at, SEMANTICS& semantics) {
  for (; !ends_grammar(*at); ++at) semantics.word |= semantic_bits[static_cast<unsigned char>(*at)];
  return at;
}

// All functions that read a tag start at its first character and return the position of its last.
struct TagReader {
  GRAMINFO& gram;
  SEMANTICS& semantics;
  char* code_out;
  char* latin_area;

  const char* read_all(const char* at, unsigned char code) const {
    const Actions& actions = actions_of(code);
    for (;; ++at) {
      // Most characters are tags without "-", items of their own.
      const Action& action = actions[static_cast<unsigned char>(*at)];
      if (action.act == Act::set) {
        *code_out = static_cast<char>(code);
        set(action, false);
        continue;
      }
      if (ends_grammar(*at)) break;
      at = read_item(at, code);
      if (*at == '|') return at;
      if (ends_grammar(*at)) break;
    }
    return *at == '\0' ? at : at + 1;
  }

  const char* read_item(const char* at, unsigned char code) const {
    const Actions* actions = &actions_of(code);
    for (bool negated = false;; ++at) {
      const Action& action = (*actions)[static_cast<unsigned char>(*at)];
      if (action.act < Act::common) *code_out = static_cast<char>(code);
      switch (action.act) {
        case Act::end:
        case Act::bar: return at;
        case Act::set:
        case Act::common: negated &= set(action, negated); break;
        case Act::skip:
        case Act::no_letter: break;
        case Act::negation: negated = true; break;
        case Act::code:
          code = static_cast<unsigned char>(*++at);
          actions = &actions_of(code);
          break;
        case Act::more_cases: at = read_more_cases(at); break;
        case Act::paradigm: at = read_paradigm(at); break;
        case Act::semantics: at = read_semantics(at + 1, semantics); break;
        case Act::extra: at = read_extra(at); break;
      }
      if (!negated || ends_grammar(*at)) return at;
    }
  }

  // Whether a "-" in front still waits for a letter with a negated form.
  bool set(const Action& action, bool negated) const {
    if (negated && action.negated_bits != 0) {
      gram.word[action.negated_word] |= action.negated_bits;
      return false;
    }
    std::uint32_t& word = gram.word[action.word];
    word = (word & ~action.cleared) | action.bits;
    return negated;
  }

  const char* read_more_cases(const char* at) const {
    if (!is_case_capital(at[1])) return at;
    at = read_case_set(at, field::second_cases);
    return at[1] == ':' && is_case_capital(at[2]) ? read_case_set(at + 1, field::third_cases) : at;
  }

  // Reads the capitals that follow `at`. Each case takes the place of the one before.
  const char* read_case_set(const char* at, const Field& cases) const {
    while (is_case_capital(at[1])) {
      const std::uint32_t one = case_of_letter[static_cast<unsigned char>(*++at)];
      if (one != 0) cases.set(gram, one);
    }
    return at;
  }

  const char* read_paradigm(const char* at) const {
    set_paradigm(gram, no_paradigm_number, 0, 0);
    if (!is_digit(at[1])) return at;
    const bool zero_first = at[1] == '0';
    const std::uint32_t number = read_number(at) & 0xFFFF;
    if (number != 0 || zero_first) field::paradigm_number.set(gram, number);
    if (is_in(at[1], char_class::ascii_alpha | char_class::ru_ansi_alpha)) {
      field::paradigm_letter.set(gram, static_cast<unsigned char>(*++at));
    }
    if (at[1] == ':' && is_digit(at[2])) field::paradigm_base.set(gram, read_number(++at));
    return at;
  }

  // "&" with a Latin letter and a digit, or with any of a small Cyrillic letter, a capital and a
  // number, in this order.
  const char* read_extra(const char* at) const {
    if (is_in(at[1], char_class::ascii_alpha)) {
      latin_area[0] = *++at;
      if (is_digit(at[1])) latin_area[1] = *++at;
      return at;
    }
    if (is_in(at[1], char_class::ru_ansi_lower)) {
      field::small_letter.set(gram, static_cast<unsigned char>(*++at));
    }
    if (is_in(at[1], char_class::ru_ansi_upper)) {
      const std::uint32_t oblique = case_of_letter[static_cast<unsigned char>(*++at)] >> 1;
      gram.word[field::oblique_marks.word] |= oblique << field::oblique_marks.shift;
    }
    if (is_digit(at[1])) field::small_number.set(gram, read_number(at));
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
    return reader.read_all(text, static_cast<unsigned char>(code));
  });
}

const char* StrToGram1(const char* text, char* code_out, GRAMINFO* gram, SEMANTICS* semantics,
                       int code, char* latin_area) {
  return kz::read_with(text, code_out, gram, semantics, latin_area, [&](kz::TagReader reader) {
    return reader.read_item(text, static_cast<unsigned char>(code));
  });
}

const char* get_semantics(const char* text, SEMANTICS* semantics) {
  if (text == nullptr) return nullptr;
  SEMANTICS unwanted{};
  return kz::read_semantics(text, semantics != nullptr ? *semantics : unwanted);
}

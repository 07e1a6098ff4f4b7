// Smart transliteration of English words: the interpreter of its rules.
#include <cstddef>
#include <string_view>

#include "kz/translit.h"
#include "text/case_maps.h"
#include "text/char_classes.h"
#include "text/translit_rules.h"

namespace kz {
namespace {

using smart::Kinds;
using smart::Place;
using smart::Rule;

Kinds kind_of(char c) { return smart::kKinds[static_cast<unsigned char>(c)]; }

bool is_capital(char c) { return is_in(c, char_class::kAsciiUpper); }

bool is_behind_vowel(const char* text, std::size_t position) {
  return position > 0 && (kind_of(text[position - 1]) & smart::kVowelOrEnd) != 0;
}

bool is_place(Place place, const char* text, std::size_t position) {
  switch (place) {
    case Place::anywhere: return true;
    case Place::start: return position == 0;
    case Place::behind_no_vowel: return !is_behind_vowel(text, position);
    case Place::fourth_on: return position >= 3;
    case Place::fourth_behind_no_vowel: return position >= 3 && !is_behind_vowel(text, position);
  }
  return false;
}

// No sign but the last of a pattern takes the end of the text, so that nothing after it is read.
bool applies(const Rule& rule, const char* text, std::size_t position) {
  for (std::size_t i = 0; i < rule.follow_size; ++i) {
    if ((kind_of(text[position + 1 + i]) & rule.follow[i]) == 0) return false;
  }
  return is_place(rule.place, text, position);
}

// The rule for the Latin letter at the position.
const Rule& rule_at(const char* text, std::size_t position) {
  const auto letter = static_cast<std::size_t>(kAsciiCase.lower[text[position]] - 'a');
  const Rule* rule = &smart::kCompiled.rules[smart::kCompiled.first[letter]];
  while (!applies(*rule, text, position)) ++rule;
  return *rule;
}

// Writes what a rule gives for a capital; the second letter and those after it are capitals only
// when the next source character is one.
char* write_capitals(const Rule& rule, char next, char* out) {
  const std::size_t capitals = is_capital(next) ? rule.out_size : 1;
  for (std::size_t i = 0; i < rule.out_size; ++i) {
    const char c = rule.out[i];
    *out++ = i < capitals ? static_cast<char>(kRuAnsiCase.upper[c]) : c;
  }
  return out;
}

}  // namespace
}  // namespace kz

char* strtransliterateenrusmart(const char* source, char* destination, int16_t smart) {
  if (source == nullptr || *source == '\0' || destination == nullptr) return destination;
  char* out = destination;
  for (std::size_t position = 0; source[position] != '\0';) {
    const char c = source[position];
    if (!kz::is_in(c, kz::char_class::kAsciiAlpha)) {
      *out++ = c;
      ++position;
      continue;
    }
    const kz::smart::Rule& rule = kz::rule_at(source, position);
    if (smart != 0 && kz::is_capital(c)) {
      out = kz::write_capitals(rule, source[position + 1], out);
    } else {
      for (std::size_t i = 0; i < rule.out_size; ++i) *out++ = rule.out[i];
    }
    position += rule.size;
  }
  *out = '\0';
  return out;
}

// Tests that tell grammar code letters from ordinary text.
//
// Entry text mixes words and one-letter grammar codes; which letters are codes depends on the
// languages: before Russian text every Latin letter is one, before English text Latin
// capitals and Russian letters are. Each test below is one row of classes, applied by table.
#ifndef KZ_ENTRY_CODE_LETTER_H
#define KZ_ENTRY_CODE_LETTER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/char_classes.h"

namespace kz::entry {

// Classes of characters that matter inside entry text, as bits.
using CharSet = std::uint8_t;
inline constexpr CharSet kNone = 0;
inline constexpr CharSet kLatinCapital = 1;
inline constexpr CharSet kLatinSmall = 2;
inline constexpr CharSet kLatin = kLatinCapital | kLatinSmall;
inline constexpr CharSet kRussianCapital = 4;
inline constexpr CharSet kRussianSmall = 8;
inline constexpr CharSet kRussian = kRussianCapital | kRussianSmall;
inline constexpr CharSet kDigit = 16;
inline constexpr CharSet kAmpersand = 32;
inline constexpr CharSet kClosingParenthesis = 64;

namespace detail {
consteval std::array<CharSet, 256> make_char_sets() {
  std::array<CharSet, 256> sets{};
  for (std::size_t c = 0; c < sets.size(); ++c) {
    const CharClass classes = char_class::kTable[c];
    if (classes & char_class::kAsciiUpper) sets[c] |= kLatinCapital;
    if (classes & char_class::kAsciiLower) sets[c] |= kLatinSmall;
    if (classes & char_class::kRuAnsiUpper) sets[c] |= kRussianCapital;
    if (classes & char_class::kRuAnsiLower) sets[c] |= kRussianSmall;
    if (classes & char_class::kDigit) sets[c] |= kDigit;
  }
  sets['&'] = kAmpersand;
  sets[')'] = kClosingParenthesis;
  return sets;
}
inline constexpr std::array<CharSet, 256> kCharSets = make_char_sets();
}  // namespace detail

constexpr bool in_set(char c, CharSet set) {
  return (detail::kCharSets[static_cast<unsigned char>(c)] & set) != 0;
}

// The character at position i, zero after the end.
constexpr char char_at(std::string_view text, std::size_t i) {
  return i < text.size() ? text[i] : '\0';
}

// A character is a code letter when it is in `letters` and not both in `unless` and followed by a
// character of `followers`.
struct CodeLetterTest {
  CharSet letters = kNone;
  CharSet unless = kNone;
  CharSet followers = kNone;

  constexpr bool holds(char c, char next) const {
    return in_set(c, letters) && !(in_set(c, unless) && in_set(next, followers));
  }
  constexpr bool holds_at(std::string_view text, std::size_t i) const {
    return i < text.size() && holds(text[i], char_at(text, i + 1));
  }
};

// First and third letter of a language or direction code ("ENRU"), zero where it is too short.
struct LanguagePair {
  char first = 0;
  char third = 0;

  constexpr explicit LanguagePair(std::string_view language)
      : first(char_at(language, 0)), third(char_at(language, 2)) {}
};

// The letter of the target language: the third of a direction, the first of a language code.
constexpr char target_letter(std::string_view language) {
  const LanguagePair pair(language);
  return pair.third != 0 ? pair.third : pair.first;
}

// Opens a new part of a synonym.
constexpr CodeLetterTest new_part_test(char target) {
  switch (target) {
    case 'R': return {kLatin | kAmpersand, kLatin, kDigit};
    case 'E': return {kLatinCapital | kRussian};
    default: return {kLatinCapital};
  }
}

// Ends a part of a synonym; no follower matters.
constexpr CodeLetterTest part_end_test(char target, bool phrase) {
  switch (target) {
    case 'R': return {kLatin};
    case 'E': return {static_cast<CharSet>(phrase ? kLatinCapital : kLatinCapital | kRussian)};
    default: return {kLatinCapital};
  }
}

// Opens a group of synonyms inside the body of an entry.
constexpr CodeLetterTest synonym_part_test(LanguagePair pair) {
  if (pair.first == 'R' && pair.third != 0) {
    if (pair.third == 'E') return {kLatinCapital | kRussianCapital, kRussianCapital, kDigit};
    return {kLatinCapital};
  }
  if (pair.third == 'R') return {kLatin, kLatin, kClosingParenthesis};
  return {};
}

// Stands among the words of a synonym.
constexpr CodeLetterTest target_code_test(LanguagePair pair) {
  if (pair.first == 'R' && pair.third != 0) return {kLatinCapital};
  if (pair.third == 'R') return {kLatin};
  return {};
}

// The part code under which synonyms are grouped: one 'V' for the verb-like codes, any other code
// stands for itself. Zero for an empty part text.
constexpr char synonym_part_code(std::string_view part_text) {
  const char code = char_at(part_text, 0);
  return code != 0 && std::string_view("EGUVXYZeghvz").find(code) != std::string_view::npos ? 'V'
                                                                                            : code;
}

}  // namespace kz::entry

#endif  // KZ_ENTRY_CODE_LETTER_H

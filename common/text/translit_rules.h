// Rules of the smart transliteration, and the pattern notation they are written in.
#ifndef KZ_TEXT_TRANSLIT_RULES_H
#define KZ_TEXT_TRANSLIT_RULES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/char_classes.h"
#include "text/literal.h"

namespace kz::smart {

// What a rule asks of the place where its letter is.
enum class Place : std::uint8_t {
  anywhere,
  start,                   // first in the text
  behind_no_vowel,         // first in the text, or after a character that is no vowel
  fourth_on,               // at least three characters before it
  fourth_behind_no_vowel,  // both of the last two, a real character before it
};

// `letter` with `follow` after it becomes `out`, which stands for `size` characters from the
// letter on; a rule may look further than these. Each sign of `follow` stands for one character:
//   a to z   the letter, small or capital
//   =r =o    the small letter only
//   [...]    one of the letters
//   #        any character but a vowel (aeiouy) and the end of the text
//   .        any character
//   _        white space or the end of the text
struct RuleText {
  char letter;
  std::string_view follow;
  std::string_view out;
  std::uint8_t size = 1;
  Place place = Place::anywhere;
};

// For each letter the first rule that applies counts.
inline constexpr RuleText kRuleTexts[] = {
    {'a', "[uw]", U"о"_1251, 2},
    {'a', "ir", U"еа"_1251, 2},
    {'a', "i", U"ей"_1251, 2},
    {'a', "lk", U"ок"_1251, 2},
    {'a', "ll", U"ол"_1251, 2},
    {'a', "y", U"ей"_1251, 2},
    {'a', "#[ey]", U"ей"_1251},
    {'a', "ble", U"ейб"_1251, 2},
    {'a', "", U"а"_1251},

    {'b', "", U"б"_1251},

    // The groups cion, cial, cian and cious have no rules: before i the letter is always this one.
    {'c', "h", U"ч"_1251, 2},
    {'c', "[eiy]", U"с"_1251},
    {'c', "k", U"к"_1251, 2},
    {'c', "", U"к"_1251},

    {'d', "ge", U"дж"_1251, 3},
    {'d', "", U"д"_1251},

    {'e', "[uw]", U"ю"_1251, 2, Place::start},
    {'e', "[uw]", U"ью"_1251, 2},
    {'e', "[ae]=r", U"иа"_1251, 2},
    {'e', "[ae]", U"и"_1251, 2},
    {'e', "i=r", U"еа"_1251, 2},
    {'e', "i", U"ей"_1251, 2},
    {'e', "y", U"ей"_1251, 2},
    {'e', "#[ey]", U"и"_1251},
    {'e', "_", "", 1, Place::fourth_behind_no_vowel},
    {'e', "s_", U"з"_1251, 2, Place::fourth_on},
    {'e', "", U"е"_1251},

    {'f', "", U"ф"_1251},

    {'g', "[eiy]", U"дж"_1251, 2},
    {'g', "h", ""},
    {'g', "", U"г"_1251},

    {'h', "", U"х"_1251},

    {'i', "#[ey]", U"ай"_1251},
    {'i', "ld", U"ай"_1251},
    {'i', "nd", U"ай"_1251},
    {'i', "", U"и"_1251},

    {'j', "", U"дж"_1251},

    {'k', "n", U"н"_1251, 2},
    {'k', "", U"к"_1251},

    {'l', "", U"л"_1251},
    {'m', "", U"м"_1251},
    {'n', "", U"н"_1251},

    {'o', "o=r", U"уа"_1251, 2},
    {'o', "o", U"у"_1251, 2},
    {'o', "a=r", U"о"_1251, 2},
    {'o', "a", U"оу"_1251, 2},
    {'o', "e", U"оу"_1251, 2},
    {'o', ".ld", U"оу"_1251, 2},
    {'o', "ught", U"о"_1251},
    {'o', "u=r", U"аа"_1251, 2},
    {'o', "u", U"ау"_1251, 2},
    {'o', "#[ey]", U"оу"_1251},
    {'o', "", U"о"_1251},

    {'p', "h", U"ф"_1251, 2},
    {'p', "", U"п"_1251},

    {'q', "", U"к"_1251},

    {'r', "ui", U"рю"_1251, 3},
    {'r', "", U"р"_1251},

    {'s', "h", U"ш"_1251, 2},
    {'s', "tion", U"счн"_1251, 5},
    {'s', "sion", U"шн"_1251, 5},
    {'s', "ion", U"шн"_1251, 4, Place::behind_no_vowel},
    {'s', "ion", U"жн"_1251, 4},
    {'s', "", U"с"_1251},

    {'t', "he_", "", 3, Place::start},  // the article at the start of a text
    {'t', "h", U"т"_1251, 2, Place::behind_no_vowel},
    {'t', "he", U"зе"_1251, 3},
    {'t', "h", U"т"_1251, 2},
    {'t', "ch", U"ч"_1251, 3},
    {'t', "ion", U"шн"_1251, 4},
    {'t', "", U"т"_1251},

    {'u', "#[ey]", U"ью"_1251},
    {'u', "", U"у"_1251},

    {'v', "", U"в"_1251},

    {'w', "r", U"р"_1251, 2},
    {'w', "a", U"уо"_1251, 2},
    {'w', "h=o", U"х"_1251, 2},
    {'w', "h", U"у"_1251, 2},
    {'w', "", U"у"_1251},

    {'x', "ion", U"кшн"_1251, 4},
    {'x', "ious", U"кшас"_1251, 5},
    {'x', "", U"кс"_1251},

    {'y', "a", U"йа"_1251, 2},
    {'y', "e", U"йе"_1251, 2},
    {'y', "i", U"йи"_1251, 2},
    {'y', "o", U"йо"_1251, 2},
    {'y', "u", U"йу"_1251, 2},
    {'y', "y", U"йы"_1251, 2},
    {'y', "#[ey]", U"ей"_1251},
    {'y', "", U"и"_1251},

    {'z', "", U"з"_1251},
};

// Each character is of one kind, and each sign of a pattern is a set of kinds.
using Kinds = std::uint32_t;

constexpr Kinds small(char letter) { return Kinds{1} << (letter - 'a'); }
inline constexpr Kinds kCapitalR = Kinds{1} << 26;
inline constexpr Kinds kCapitalO = Kinds{1} << 27;
inline constexpr Kinds kEndOfText = Kinds{1} << 28;
inline constexpr Kinds kWhiteSpace = Kinds{1} << 29;
inline constexpr Kinds kOther = Kinds{1} << 30;

constexpr Kinds letter(char c) {
  switch (c) {
    case 'r': return small('r') | kCapitalR;
    case 'o': return small('o') | kCapitalO;
    default: return small(c);
  }
}

inline constexpr Kinds kAny = ~kEndOfText;
inline constexpr Kinds kVowelOrEnd =
    letter('a') | letter('e') | letter('i') | letter('o') | letter('u') | letter('y') | kEndOfText;

consteval std::array<Kinds, 256> make_kinds() {
  std::array<Kinds, 256> kinds{};
  for (std::size_t c = 0; c < kinds.size(); ++c) {
    kinds[c] = (char_class::kTable[c] & char_class::kSpace) != 0 ? kWhiteSpace : kOther;
  }
  for (std::size_t c = 'a'; c <= 'z'; ++c) {
    kinds[c] = kinds[c - 'a' + 'A'] = small(static_cast<char>(c));
  }
  kinds['R'] = kCapitalR;
  kinds['O'] = kCapitalO;
  kinds[0] = kEndOfText;
  return kinds;
}

// A rule made ready for matching.
struct Rule {
  std::array<Kinds, 4> follow{};
  std::array<char, 4> out{};
  std::uint8_t follow_size = 0;
  std::uint8_t out_size = 0;
  std::uint8_t size = 1;
  Place place = Place::anywhere;
};

// Takes the first sign off a pattern.
consteval Kinds take_sign(std::string_view& pattern) {
  const char c = pattern.front();
  pattern.remove_prefix(1);
  switch (c) {
    case '#': return ~kVowelOrEnd;
    case '.': return kAny;
    case '_': return kWhiteSpace | kEndOfText;
    case '=': {
      const Kinds kind = small(pattern.front());
      pattern.remove_prefix(1);
      return kind;
    }
    case '[': {
      Kinds kinds = 0;
      for (; pattern.front() != ']'; pattern.remove_prefix(1)) kinds |= letter(pattern.front());
      pattern.remove_prefix(1);
      return kinds;
    }
    default: return letter(c);
  }
}

consteval Rule compile(const RuleText& text) {
  if (text.size == 0) throw "a rule that consumes nothing, at which the walk would stay";
  Rule rule{.size = text.size, .place = text.place};
  for (std::string_view pattern = text.follow; !pattern.empty();) {
    const bool behind_end =
        rule.follow_size > 0 && (rule.follow[rule.follow_size - 1u] & kEndOfText) != 0;
    if (behind_end) throw "a pattern that looks behind the end of the text";
    rule.follow[rule.follow_size++] = take_sign(pattern);
  }
  for (const char c : text.out) rule.out[rule.out_size++] = c;
  const bool consumes_end = rule.size == rule.follow_size + 1 && rule.follow_size > 0 &&
                            (rule.follow[rule.follow_size - 1u] & kEndOfText) != 0;
  if (rule.size > rule.follow_size + 1 || consumes_end)
    throw "a rule that consumes what it ignores";
  if (rule.out_size > 2 * rule.size) throw "a rule that needs more room than is promised";
  return rule;
}

struct Rules {
  std::array<Rule, std::size(kRuleTexts)> rules{};
  std::array<std::uint8_t, 26> first{};  // by letter; the last rule of each letter always applies
};

consteval Rules compile_rules() {
  Rules result;
  char previous = 'a' - 1;
  for (std::size_t i = 0; i < std::size(kRuleTexts); ++i) {
    const RuleText& text = kRuleTexts[i];
    result.rules[i] = compile(text);
    if (text.letter != previous) {
      if (text.letter != previous + 1) throw "letters out of order";
      result.first[static_cast<std::size_t>(text.letter - 'a')] = static_cast<std::uint8_t>(i);
      previous = text.letter;
    }
    const bool is_last = i + 1 == std::size(kRuleTexts) || kRuleTexts[i + 1].letter != text.letter;
    const bool applies_always = text.follow.empty() && text.place == Place::anywhere;
    if (is_last != applies_always) throw "a letter without a last rule";
  }
  if (previous != 'z') throw "letters without rules";
  return result;
}

inline constexpr std::array<Kinds, 256> kKinds = make_kinds();
inline constexpr Rules kCompiled = compile_rules();

}  // namespace kz::smart

#endif  // KZ_TEXT_TRANSLIT_RULES_H

// What the library gives a meaning to in the grammar records: names, places and forms.
#ifndef KZ_LEXICON_GRAMMAR_ENTRIES_H
#define KZ_LEXICON_GRAMMAR_ENTRIES_H

#include <array>
#include <cstdint>
#include <string_view>

namespace kz::lexicon {

enum class ValueForm {
  kBit,     // the word says that it is set
  kNumber,  // 0 for none
  kLetter,  // a character, 0 for none
  kParadigm,
  kBase  // name of a stem change, or a number without one
};

struct GrammarEntry {
  std::string_view name;
  std::string_view value;  // of a bit
  unsigned word;
  unsigned shift;
  unsigned width;
  ValueForm form;
};

constexpr GrammarEntry bit(std::string_view name, std::string_view value, unsigned word,
                           unsigned at) {
  return {name, value, word, at, 1, ValueForm::kBit};
}

// In the order of output. A word alone means its first place here.
inline constexpr std::array kGrammarEntries = {
    bit("gender", "masculine", 1, 0),
    bit("gender", "feminine", 1, 1),
    bit("gender", "neuter", 1, 2),
    bit("number", "singular", 1, 3),
    bit("number", "plural", 1, 4),
    bit("number", "no-plural", 1, 5),
    bit("number", "no-singular", 1, 6),
    bit("animacy", "animate", 1, 7),
    bit("case", "nominative", 1, 16),
    bit("case", "genitive", 1, 17),
    bit("case", "dative", 1, 18),
    bit("case", "accusative", 1, 19),
    bit("case", "instrumental", 1, 20),
    bit("case", "prepositional", 1, 21),
    bit("second-case", "nominative", 2, 0),
    bit("second-case", "genitive", 2, 1),
    bit("second-case", "dative", 2, 2),
    bit("second-case", "accusative", 2, 3),
    bit("second-case", "instrumental", 2, 4),
    bit("second-case", "prepositional", 2, 5),
    bit("third-case", "nominative", 4, 8),
    bit("third-case", "genitive", 4, 9),
    bit("third-case", "dative", 4, 10),
    bit("third-case", "accusative", 4, 11),
    bit("third-case", "instrumental", 4, 12),
    bit("third-case", "prepositional", 4, 13),
    bit("extra-case", "genitive", 6, 14),
    bit("extra-case", "dative", 6, 15),
    bit("extra-case", "accusative", 6, 16),
    bit("extra-case", "instrumental", 6, 17),
    bit("extra-case", "prepositional", 6, 18),
    GrammarEntry{"person", "", 5, 16, 2, ValueForm::kNumber},
    bit("tense", "past", 1, 10),
    bit("tense", "present", 1, 13),
    bit("tense", "future", 1, 14),
    bit("mood", "imperative", 1, 12),
    bit("aspect", "perfective", 1, 26),
    bit("aspect", "imperfective", 1, 27),
    bit("aspect", "perfective-mark", 1, 9),
    bit("aspect", "never-perfective", 4, 17),
    bit("transitivity", "transitive", 1, 8),
    bit("transitivity", "intransitive", 4, 18),
    bit("voice", "passive", 4, 20),
    bit("voice", "reflexive", 1, 28),
    bit("voice", "reflexive-mark", 1, 22),
    GrammarEntry{"paradigm", "", 3, 8, 16, ValueForm::kParadigm},
    GrammarEntry{"paradigm-letter", "", 3, 24, 8, ValueForm::kLetter},
    GrammarEntry{"paradigm-base", "", 3, 0, 8, ValueForm::kBase},
    GrammarEntry{"small-letter", "", 6, 0, 8, ValueForm::kLetter},
    GrammarEntry{"small-number", "", 6, 19, 5, ValueForm::kNumber},
};

inline constexpr int kNoParadigm = 65535;  // the number of no paradigm

constexpr std::uint32_t mask_of(const GrammarEntry& entry) { return (1u << entry.width) - 1; }

// The greatest number of a numeric entry.
constexpr int greatest(const GrammarEntry& entry) {
  return entry.form == ValueForm::kParadigm ? kNoParadigm - 1 : static_cast<int>(mask_of(entry));
}

// The bits of each word that the table names.
inline constexpr std::array<std::uint32_t, 7> kNamedBits = [] {
  std::array<std::uint32_t, 7> bits{};
  for (const GrammarEntry& entry : kGrammarEntries)
    bits.at(entry.word) |= mask_of(entry) << entry.shift;
  return bits;
}();

// True when a bit has no name here.
constexpr bool is_flag(unsigned word, unsigned at) {
  return word < 7 && at < 32 && !(kNamedBits[word] >> at & 1);
}

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_GRAMMAR_ENTRIES_H

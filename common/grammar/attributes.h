// The compact attributes: names of three kinds, and what the classes among them stand for.
#ifndef KZ_GRAMMAR_ATTRIBUTES_H
#define KZ_GRAMMAR_ATTRIBUTES_H

#include <cstdint>
#include <iterator>
#include <string_view>

#include "grammar/fields.h"
#include "grammar/tags.h"
#include "kz/gram_record.h"
#include "text/case_letters.h"
#include "text/literal.h"

namespace kz {

// What a class of words has in common.
struct WordClass {
  const char* name;
  unsigned char code = 0;  // 0: the class leaves the code alone
  GRAMINFO added{};        // bits that the class adds
  GRAMINFO cleared{};      // fields that it replaces: the case set, the person
};

namespace attribute {

inline constexpr unsigned char kKept = 0;

// A class without grammar.
consteval WordClass named(const char* name, unsigned char code = kKept) {
  return {.name = name, .code = code};
}

consteval void replace(WordClass& word_class, const Field& field, std::uint32_t value) {
  field.set(word_class.added, value);
  word_class.cleared.word[field.word] |= field.mask();
}

// A class that stands for a tag string of the group: flags (the named bit alone, without what
// reading the tag implies), one case letter, a person.
consteval WordClass tagged(const char* name, unsigned char code, Group group,
                           std::string_view tags) {
  WordClass result{.name = name, .code = code};
  while (!tags.empty()) {
    const std::string_view tag = next_tag(tags);
    const char letter = tag.front();
    if (const Flag flag = find_flag(group, tag).flag; flag.mask != 0) {
      flag.set(result.added);
    } else if (case_of(letter) != 0) {
      replace(result, field::kCases, case_of(letter));
    } else if (letter >= '1' && letter <= '3') {
      replace(result, field::kPerson, static_cast<std::uint32_t>(letter - '0'));
    } else {
      throw "a tag that the group lacks";
    }
  }
  return result;
}

consteval WordClass noun(const char* name, unsigned char code, std::string_view tags) {
  return tagged(name, code, Group::kNoun, tags);
}
consteval WordClass adjective(const char* name, unsigned char code, std::string_view tags) {
  return tagged(name, code, Group::kAdjective, tags);
}
consteval WordClass verb(const char* name, unsigned char code, std::string_view tags) {
  return tagged(name, code, Group::kVerb, tags);
}
consteval WordClass pronoun(const char* name, unsigned char code, std::string_view tags) {
  return tagged(name, code, Group::kPronoun, tags);
}

// Kind 0: the class of the word form. The index is the position, here and below.
inline constexpr WordClass kWordClasses[] = {
    named("EMPTY"),
    noun("NM", 'N', "M"),
    noun("NMa", 'N', "M@"),
    noun("NF", 'N', "F"),
    noun("NFa", 'N', "F@"),
    noun("NMF", 'N', "MF"),
    noun("NMFa", 'N', "MF@"),
    noun("N", 'N', ""),
    noun("Na", 'N', "@"),
    noun("NMS", 'N', "M-P"),
    noun("NMaS", 'N', "M@-P"),
    noun("NFS", 'N', "F-P"),
    noun("NFaS", 'N', "F@-P"),
    noun("NMFS", 'N', "MF-P"),
    noun("NMFaS", 'N', "MF@-P"),
    noun("NS", 'N', "-P"),
    noun("NP", 'N', "-S"),
    noun("NPa", 'N', "@-S"),
    noun("nSG", 'n', U"SР"_1251),
    noun("nPN", 'n', U"PИ"_1251),
    noun("nPG", 'n', U"PР"_1251),
    adjective("AqyY", 'A', "qcsy-H"),
    adjective("Aqy", 'A', "qcy-H"),
    adjective("AqY", 'A', "qsy-H"),
    adjective("AqyYF", 'A', "qcsyH"),
    adjective("AqyF", 'A', "qcyH"),
    adjective("AqYF", 'A', "qsyH"),
    adjective("AqF", 'A', "qH"),
    adjective("Ar", 'A', "r-H"),
    adjective("ac", 'a', "qc"),
    adjective("asMN", 'a', U"qsyMИ"_1251),
    adjective("aHM", 'a', "qHM"),
    adjective("aHSD", 'd', "qHS"),
    verb("V", 'V', ""),
    verb("V1", 'V', "-E"),
    verb("V1P", 'V', "E"),
    verb("V2", 'V', "E-E"),
    verb("V_R", 'V', "X"),
    verb("V1_R", 'V', "-EX"),
    verb("V1P_R", 'V', "EX"),
    verb("V2_R", 'V', "E-EX"),
    verb("VR", 'V', "R"),
    verb("V1R", 'V', "-ER"),
    verb("V1PR", 'V', "ER"),
    verb("V2R", 'V', "E-ER"),
    verb("imper", 'v', "!S"),
    verb("v1S", 'v', "1S"),
    verb("v3S", 'v', "3S"),
    verb("v3P", 'v', "3P"),
    verb("v_past_M", 'v', "<M"),
    verb("v_past_F", 'v', "<F"),
    verb("G", 'G', U"-EMSИ"_1251),
    verb("G_past", 'G', U"<MSИ"_1251),
    verb("G_passive", 'G', U"-EYMSИ"_1251),
    verb("E", 'E', U"<YMSИ"_1251),
    named("dee", U'д'_1251),
    named("Predicate", U'Я'_1251),
    named("InsWord", U'Ы'_1251),
    named("D", 'D'),
    named("H", 'I'),
    named("P", 'P'),
    named("C", 'C'),
    named("J", 'J'),
    named("op", 'w'),
    named("M", 'M'),
    named("NFP"),
};

// Kind 1: what the word adds to its class.
inline constexpr WordClass kAdditions[] = {
    named("NOTHING"),
    named("ArRel"),
    adjective("ArOrd", kKept, "o"),
    adjective("ArPos", kKept, "m"),
    verb("VImpTrans", kKept, "T"),
    verb("VImpIntr", kKept, "I"),
    verb("VPerTrans", kKept, "eT"),
    verb("VPerIntr", kKept, "eI"),
    verb("VT", kKept, "T"),
    verb("VI", kKept, "I"),
    adjective("DComp", kKept, "c"),
    named("opO"),
    named("opP"),
    pronoun("MR1S", 'R', "1S@"),
    pronoun("MR2S", 'R', "2S@"),
    pronoun("MR3SM", 'R', "3SM"),
    pronoun("MR3SF", 'R', "3SF"),
    pronoun("MR3S", 'R', "3S"),
    pronoun("MR1P", 'R', "1P@"),
    pronoun("MR2P", 'R', "2P@"),
    pronoun("MR3P", 'R', "3P"),
    pronoun("MO", 'O', "SM"),
    pronoun("MP", kKept, "ASM"),
    named("MR"),
    pronoun("MM", kKept, "?SM"),
};

// Kind 2: the change of the stem. Names alone: the index goes into the paradigm base.
// clang-format off
inline constexpr const char* kStemChanges[] = {
    "DoNothing", "D1", "D2", "D3", "D4", "D5", "D6", "D7", "D8", "C",
    "Z_C", "Z_D2", "Z_Rj", "Z_Rx", "D1_C", "D1_U", "D1_UMin", "D1_CU", "D1_Rx", "D1_D1i",
    "D1_D1x", "D1_en", "D1_er", "D1_jat", "v", "d", "zh", "n", "t", "ch",
    "D1b", "D1d", "D1e", "D1zh", "D1l", "D1m", "D1n", "D1o", "D1t", "D1ch",
    "D1x", "D1im", "D1ud", "D1jazh", "D1eml", "D1obx", "D2d", "D2zh", "D2t", "D2ch",
    "D2sh", "D2sch", "D2el", "D2er", "D2zhd", "D2jm", "D2m", "D2ov", "D2on", "D2ym",
    "D2jad", "D2obx", "D2ovx", "D2ozhzh", "D2ozhm", "D2ozhn", "D2ojm", "D2olx", "D2omn", "D2opx",
    "D2oshx", "D2bovx", "D2bopx", "D2ozxm", "D3r", "D3u", "D3sch", "D3ju", "D3el", "D3re",
    "D3shl", "D3opx", "D3ocht", "D3oshx", "D4er", "D4esch", "D4ber", "D4gon", "D4der", "D4zov",
    "D4omr", "D4opr", "D4otr", "D4ser", "D4zocht", "D5zopr", "D5zotr", "D5krad", "D5stel", "D6sstel",
    "Ca", "Rxa", "Z_U", "D2_i", "D2_x", "D3zopx", "D3zoshx", "D1a", "D1ja", "D3eml",
    "D4bopr",
};
// clang-format on

static_assert(std::size(kWordClasses) == 66 && std::size(kAdditions) == 25);
static_assert(std::size(kStemChanges) == 111);

}  // namespace attribute
}  // namespace kz

#endif  // KZ_GRAMMAR_ATTRIBUTES_H

// The tags of the grammar: which letter says which bit of a GRAMINFO, for which parts of speech.
//
// This is the one description of the tag strings: reading, writing, the classes of compact
// attributes and the flags of the mapping are derived from it. A letter is named by its
// Windows-1251 character; "-" in front makes it the negated form of the letter.
#ifndef KZ_GRAMMAR_TAGS_H
#define KZ_GRAMMAR_TAGS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "kz/gram_record.h"
#include "text/literal.h"

namespace kz {

// A bit of a GRAMINFO.
struct Flag {
  std::uint8_t word;
  std::uint32_t mask;

  constexpr bool is_set(const GRAMINFO& gram) const { return (gram.word[word] & mask) != 0; }
  constexpr void set(GRAMINFO& gram) const { gram.word[word] |= mask; }
  constexpr void clear(GRAMINFO& gram) const { gram.word[word] &= ~mask; }
};

// The parts of speech whose codes share a set of tags.
enum class Group : std::uint8_t { kNoun, kAdjective, kVerb, kCodeI, kPronoun, kNone };
inline constexpr std::size_t kGroupCount = 5;  // kNone has no tags

struct GroupTags {
  std::string_view codes;  // the parts of speech
  // The tags in the order in which they are written. A letter that is no flag of the group stands
  // for a field: "1" the person, "И" the case set, "C" the second and third case set, "#" the
  // paradigm.
  std::string_view written;
  std::string_view read_fields;   // flags are all read
  bool writes_nominative;         // when it is the only case
  std::uint32_t replacing_cases;  // the cases that, when read, replace the case set

  constexpr bool reads(char field) const { return read_fields.find(field) != read_fields.npos; }
};

inline constexpr std::array<GroupTags, kGroupCount> kGroupTags = {{
    {U"#NnДЙФ"_1251, U"MFNP-SS-PCULOADV@aнbprwT-TeJjcdixyzf-fg-g1И#"_1251, U"И#"_1251, false, 0},
    {U"ADadiПн"_1251, U"PSMFИqomreiH-HcsNayjJK@pLV><DbtTxz-Tf-f#"_1251, U"И#"_1251, false, 0},
    {U"BEFGJPUVXYZefgpuvxyzБЧЭЮвдп"_1251,
     U"PSMFn1И<^>TIeVr!UH-EE-VYXRLig-gANODb-bhwt-tf-fcadjJspoxyz?Kl@гдC#"_1251, U"1ИC#"_1251, true,
     GRAM_NOMINATIVE | GRAM_GENITIVE | GRAM_INSTRUMENTAL},
    {U"I"_1251, U"PSИ"_1251, U"И"_1251, true, GRAM_CASES >> GRAM_CASES_SHIFT},
    {U"LMOQRSTmqrtТмт"_1251, U"@RPSMFIim?KNADT-Tf-fxyz"_1251, U"1И"_1251, true, 0},
}};

constexpr const GroupTags& tags_of(Group group) {
  return kGroupTags[static_cast<std::size_t>(group)];
}

inline constexpr std::array<Group, 256> kGroupOfCode = [] {
  std::array<Group, 256> groups;
  groups.fill(Group::kNone);
  for (std::size_t i = 0; i < kGroupCount; ++i) {
    for (const char code : kGroupTags[i].codes) {
      groups[static_cast<unsigned char>(code)] = static_cast<Group>(i);
    }
  }
  return groups;
}();

constexpr Group group_of(char code) { return kGroupOfCode[static_cast<unsigned char>(code)]; }

consteval std::uint32_t bit(int number) { return std::uint32_t{1} << number; }

// A flag and its tag in each group, in the order of enum Group; empty where it has none.
struct TaggedFlag {
  Flag flag;
  std::array<std::string_view, kGroupCount> tags;
  std::uint32_t implied = 0;  // bits of the same word that reading the tag sets too
};

inline constexpr TaggedFlag kTaggedFlags[] = {
    //                noun adjective verb I pronoun
    {{1, GRAM_MASCULINE}, {"M", "M", "M", "", "M"}},
    {{1, GRAM_FEMININE}, {"F", "F", "F", "", "F"}},
    {{1, GRAM_NEUTER}, {"N", "", "", "", ""}},
    {{1, GRAM_SINGULAR}, {"S", "S", "S", "", "S"}},
    {{1, GRAM_PLURAL}, {"P", "P", "P", "P", "P"}},
    {{1, GRAM_NO_PLURAL}, {"-P", "", "", "", ""}, GRAM_SINGULAR},
    {{1, GRAM_NO_SINGULAR}, {"-S", "", "", "", ""}, GRAM_PLURAL},
    {{1, GRAM_ANIMATE}, {"@", "@", "@", "", "@"}},
    {{1, GRAM_TRANSITIVE}, {"", "", "T", "", ""}},
    {{1, GRAM_PERFECTIVE_MARK}, {"", "", "e", "", ""}},
    {{1, GRAM_PAST}, {"", "", "<", "", ""}},
    {{1, bit(11)}, {"", "", "V", "", ""}},
    {{1, GRAM_IMPERATIVE}, {"", "", "!", "", ""}},
    {{1, GRAM_PRESENT}, {"", "", "^", "", ""}},
    {{1, GRAM_FUTURE}, {"", "", ">", "", ""}},
    {{1, bit(15)}, {"", "", "U", "S", ""}},
    {{1, GRAM_REFLEXIVE_MARK}, {"", "", "r", "", "R"}},
    {{1, bit(24)}, {"T", "T", "t", "", "T"}},
    {{1, bit(25)}, {"-T", "-T", "-t", "", "-T"}},
    {{1, GRAM_PERFECTIVE}, {"", "", "E", "", ""}},
    {{1, GRAM_IMPERFECTIVE}, {"", "", "-E", "", ""}},
    {{1, GRAM_REFLEXIVE}, {"", "", "R", "", ""}},
    {{1, bit(29)}, {"", "", "X", "", ""}},
    {{1, bit(30)}, {"", "", U"г"_1251, "", ""}},
    {{1, bit(31)}, {"", "", U"д"_1251, "", ""}},
    {{2, bit(6)}, {"", "e", "", "", ""}},
    {{2, bit(7)}, {"", "", "n", "", "I"}},
    {{4, bit(0)}, {"x", "x", "x", "", "x"}},
    {{4, bit(1)}, {"y", "", "y", "", "y"}},
    {{4, bit(2)}, {"z", "z", "z", "", "z"}},
    {{4, bit(3)}, {"i", "", "", "", ""}},
    {{4, bit(4)}, {"", "", "", "", "N"}},
    {{4, bit(5)}, {"g", "", "g", "", ""}},
    {{4, bit(6)}, {"-g", "", "", "", ""}},
    {{4, bit(7)}, {"", "K", "K", "", "K"}},
    {{4, bit(15)}, {"w", "", "w", "", ""}},
    {{4, bit(16)}, {"", "?", "?", "", "?"}},
    {{4, GRAM_NEVER_PERFECTIVE}, {"", "i", "i", "", ""}},
    {{4, GRAM_INTRANSITIVE}, {"", "", "I", "", ""}},
    {{4, bit(19)}, {"", "", "-V", "", ""}},
    {{4, GRAM_PASSIVE}, {"", "", "Y", "", ""}},
    {{4, bit(21)}, {"", "", "o", "", ""}},
    {{4, bit(22)}, {"", "", "-g", "", ""}},
    {{4, bit(23)}, {"", "", "l", "", ""}},
    {{4, bit(24)}, {"A", "", "A", "", "A"}},
    {{4, bit(25)}, {"", "N", "N", "", ""}},
    {{4, bit(26)}, {"D", "D", "D", "", "D"}},
    {{4, bit(27)}, {"", "p", "O", "", ""}},
    {{4, bit(28)}, {"b", "b", "b", "", ""}},
    {{4, bit(29)}, {"", "", "-b", "", ""}},
    {{4, bit(30)}, {"", "t", "h", "", ""}},
    {{4, bit(31)}, {"", "L", "L", "", ""}},
    {{5, bit(1)}, {"c", "", "c", "", ""}},
    {{5, bit(2)}, {"j", "j", "j", "", ""}},
    {{5, bit(3)}, {"J", "J", "J", "", ""}},
    {{5, bit(4)}, {"d", "", "d", "", ""}},
    {{5, bit(5)}, {"e", "", "a", "", ""}},
    {{5, bit(6)}, {"", "", "s", "", "i"}},
    {{5, bit(7)}, {"", "", "p", "", ""}},
    {{5, bit(8)}, {"O", "", "", "", ""}},
    {{5, bit(9)}, {"a", "", "", "", ""}},
    {{5, bit(10)}, {"r", "", "", "", ""}},
    {{5, bit(11)}, {"L", "", "", "", ""}},
    {{5, bit(12)}, {"C", "", "", "", ""}},
    {{5, bit(13)}, {"U", "", "", "", ""}},
    {{5, bit(14)}, {"f", "f", "f", "", "f"}},
    {{5, bit(15)}, {"-f", "-f", "-f", "", "-f"}},
    {{5, bit(21)}, {"p", "", "", "", ""}},
    {{5, bit(22)}, {U"н"_1251, "", "", "", ""}},
    {{5, bit(23)}, {"V", "", "", "", ""}},
    {{5, bit(24)}, {"", "-H", "", "", ""}},
    {{5, bit(25)}, {"", "y", "", "", ""}},
    {{5, bit(26)}, {"", "a", "", "", ""}},
    {{5, bit(28)}, {"", "V", "", "", ""}},
    {{5, bit(29)}, {"", "<", "", "", ""}},
    {{5, bit(30)}, {"", ">", "", "", ""}},
    {{5, bit(31)}, {"", "H", "H", "", ""}},
    {{6, bit(8)}, {"", "q", "", "", ""}},
    {{6, bit(9)}, {"", "o", "", "", ""}},
    {{6, bit(10)}, {"", "m", "", "", "m"}},
    {{6, bit(11)}, {"", "r", "", "", ""}},
    {{6, bit(12)}, {"", "c", "", "", ""}},
    {{6, bit(13)}, {"", "s", "", "", ""}},
};

// The tags of every part of speech, also of one without group. The "&" with its number, Cyrillic
// letters or Latin letter belongs to every code as well.
struct CommonTag {
  char letter;
  Flag flag;
};
inline constexpr CommonTag kCommonTags[] = {{'$', {0, bit(0)}}, {'.', {0, bit(3)}}};

// Semantic flags: their letters from bit 0 on, and in the order in which they are written.
inline constexpr std::string_view kSemanticLetters = U"AWSOTPDIQNZCpMFGasd@1234LnrioВТП"_1251;
inline constexpr std::string_view kSemanticOrder = U"@NAWSOTPDIQnZCpMFGLarsd1234ioВТП"_1251;

// Takes the first tag off a sequence.
constexpr std::string_view next_tag(std::string_view& tags) {
  const std::size_t length = tags.front() == '-' ? 2 : 1;
  const std::string_view tag = tags.substr(0, length);
  tags.remove_prefix(length);
  return tag;
}

// Rows of kTaggedFlags, counted from 1, by group, by whether the letter is negated, and by letter.
inline constexpr auto kRowOfLetter = [] {
  std::array<std::array<std::array<std::uint8_t, 256>, 2>, kGroupCount> rows{};
  for (std::size_t i = 0; i < std::size(kTaggedFlags); ++i) {
    for (std::size_t group = 0; group < kGroupCount; ++group) {
      const std::string_view tag = kTaggedFlags[i].tags[group];
      if (tag.empty()) continue;
      auto& row = rows[group][tag.size() - 1][static_cast<unsigned char>(tag.back())];
      if (row != 0) throw "a tag of two flags";
      row = static_cast<std::uint8_t>(i + 1);
    }
  }
  return rows;
}();

inline constexpr TaggedFlag kNoFlag{};

// The flag that the tag says in the group, kNoFlag (with an empty mask) if it says none.
constexpr const TaggedFlag& find_flag(Group group, char letter, bool negated) {
  const std::size_t row = kRowOfLetter[static_cast<std::size_t>(group)][negated ? 1 : 0]
                                      [static_cast<unsigned char>(letter)];
  return row != 0 ? kTaggedFlags[row - 1] : kNoFlag;
}
constexpr const TaggedFlag& find_flag(Group group, std::string_view tag) {
  return find_flag(group, tag.back(), tag.size() == 2);
}

}  // namespace kz

#endif  // KZ_GRAMMAR_TAGS_H

// The tags of every group of parts of speech, in the order in which they are written.
//
// This is the one description of the tag strings: reading, writing and the classes of compact
// attributes are derived from it at compile time. A letter is named by its Windows-1251 character;
// "-" in front makes it the negated form of the letter.
#ifndef KZ_GRAMMAR_TAGS_H
#define KZ_GRAMMAR_TAGS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "kz/gram_record.h"
#include "text/literal.h"

namespace kz {

// The parts of speech whose codes share a set of tags.
enum class Group : std::uint8_t { none, noun, adjective, verb, code_i, pronoun };
inline constexpr std::size_t group_count = 6;

struct GroupCodes {
  Group group;
  std::string_view codes;
};
inline constexpr GroupCodes group_codes[] = {
    {Group::noun, U"#NnДЙФ"_1251},
    {Group::adjective, U"ADadiПн"_1251},
    {Group::verb, U"BEFGJPUVXYZefgpuvxyzБЧЭЮвдп"_1251},
    {Group::code_i, U"I"_1251},
    {Group::pronoun, U"LMOQRSTmqrtТмт"_1251},
};

inline constexpr std::array<Group, 256> group_of_code = [] {
  std::array<Group, 256> table{};
  for (const auto& [group, codes] : group_codes) {
    for (const char code : codes) table[static_cast<unsigned char>(code)] = group;
  }
  return table;
}();

// The letters of the cases, from the lowest bit of a case set on.
inline constexpr std::string_view case_letters = U"ИРДВТП"_1251;

// A case set with every case.
inline constexpr std::uint32_t all_cases = 63;

struct Tag {
  enum class Kind : std::uint8_t {
    flag,           // one letter for one bit
    person,         // the digit 1, 2 or 3
    cases,          // the letters of the case set of word 1
    oblique_cases,  // the same, but the nominative alone is not written
    more_cases,     // "C", the second case set, ":", the third case set
    paradigm,       // "#", number, letter, ":", base
  };
  enum class Use : std::uint8_t { both, read, written };

  Kind kind;
  Use use;
  std::uint8_t word;       // of the flag
  std::string_view text;   // of the flag
  std::uint32_t mask;      // of the flag; for cases, the letters that replace the set they stand in
  std::uint32_t also = 0;  // bits of the same word that reading the flag sets too

  constexpr bool is_read() const { return use != Use::written; }
  constexpr bool is_written() const { return use != Use::read; }
  constexpr bool is_negated() const { return text.size() == 2; }
  constexpr unsigned char letter() const { return static_cast<unsigned char>(text.back()); }
};

namespace tag {

consteval std::uint32_t bit(int number) { return std::uint32_t{1} << number; }

consteval Tag flag(std::string_view text, int word, std::uint32_t mask, std::uint32_t also = 0) {
  return {Tag::Kind::flag, Tag::Use::both, static_cast<std::uint8_t>(word), text, mask, also};
}
consteval Tag field(Tag::Kind kind, std::uint32_t replacing = 0) {
  return {kind, Tag::Use::both, 0, {}, replacing};
}
consteval Tag read_only(Tag tag) {
  tag.use = Tag::Use::read;
  return tag;
}
consteval Tag write_only(Tag tag) {
  tag.use = Tag::Use::written;
  return tag;
}

// In front of the tags of every code, also of one without group. The "&" with its number, Cyrillic
// letters or Latin letter belongs to every code as well.
inline constexpr Tag common[] = {
    flag("$", 0, bit(0)),
    flag(".", 0, bit(3)),
};

inline constexpr Tag noun[] = {
    flag("M", 1, GRAM_MASCULINE),
    flag("F", 1, GRAM_FEMININE),
    flag("N", 1, GRAM_NEUTER),
    flag("P", 1, GRAM_PLURAL),
    flag("-S", 1, GRAM_NO_SINGULAR, GRAM_PLURAL),
    flag("S", 1, GRAM_SINGULAR),
    flag("-P", 1, GRAM_NO_PLURAL, GRAM_SINGULAR),
    flag("C", 5, bit(12)),
    flag("U", 5, bit(13)),
    flag("L", 5, bit(11)),
    flag("O", 5, bit(8)),
    flag("A", 4, bit(24)),
    flag("D", 4, bit(26)),
    flag("V", 5, bit(23)),
    flag("@", 1, GRAM_ANIMATE),
    flag("a", 5, bit(9)),
    flag(U"н"_1251, 5, bit(22)),
    flag("b", 4, bit(28)),
    flag("p", 5, bit(21)),
    flag("r", 5, bit(10)),
    flag("w", 4, bit(15)),
    flag("T", 1, bit(24)),
    flag("-T", 1, bit(25)),
    flag("e", 5, bit(5)),
    flag("J", 5, bit(3)),
    flag("j", 5, bit(2)),
    flag("c", 5, bit(1)),
    flag("d", 5, bit(4)),
    flag("i", 4, bit(3)),
    flag("x", 4, bit(0)),
    flag("y", 4, bit(1)),
    flag("z", 4, bit(2)),
    flag("f", 5, bit(14)),
    flag("-f", 5, bit(15)),
    flag("g", 4, bit(5)),
    flag("-g", 4, bit(6)),
    write_only(field(Tag::Kind::person)),
    field(Tag::Kind::oblique_cases),
    field(Tag::Kind::paradigm),
};

inline constexpr Tag adjective[] = {
    flag("P", 1, GRAM_PLURAL),
    flag("S", 1, GRAM_SINGULAR),
    flag("M", 1, GRAM_MASCULINE),
    flag("F", 1, GRAM_FEMININE),
    field(Tag::Kind::oblique_cases),
    flag("q", 6, bit(8)),
    flag("o", 6, bit(9)),
    flag("m", 6, bit(10)),
    flag("r", 6, bit(11)),
    flag("e", 2, bit(6)),
    flag("i", 4, GRAM_NEVER_PERFECTIVE),
    flag("H", 5, bit(31)),
    flag("-H", 5, bit(24)),
    flag("c", 6, bit(12)),
    flag("s", 6, bit(13)),
    flag("N", 4, bit(25)),
    flag("a", 5, bit(26)),
    flag("y", 5, bit(25)),
    flag("j", 5, bit(2)),
    flag("J", 5, bit(3)),
    flag("K", 4, bit(7)),
    flag("@", 1, GRAM_ANIMATE),
    flag("p", 4, bit(27)),
    flag("L", 4, bit(31)),
    flag("V", 5, bit(28)),
    flag(">", 5, bit(30)),
    flag("<", 5, bit(29)),
    flag("D", 4, bit(26)),
    flag("b", 4, bit(28)),
    flag("t", 4, bit(30)),
    flag("T", 1, bit(24)),
    flag("x", 4, bit(0)),
    flag("z", 4, bit(2)),
    flag("-T", 1, bit(25)),
    flag("f", 5, bit(14)),
    flag("-f", 5, bit(15)),
    field(Tag::Kind::paradigm),
    read_only(flag("?", 4, bit(16))),
};

inline constexpr Tag verb[] = {
    flag("P", 1, GRAM_PLURAL),
    flag("S", 1, GRAM_SINGULAR),
    flag("M", 1, GRAM_MASCULINE),
    flag("F", 1, GRAM_FEMININE),
    flag("n", 2, bit(7)),
    field(Tag::Kind::person),
    field(Tag::Kind::cases, GRAM_NOMINATIVE | GRAM_GENITIVE | GRAM_INSTRUMENTAL),
    flag("<", 1, GRAM_PAST),
    flag("^", 1, GRAM_PRESENT),
    flag(">", 1, GRAM_FUTURE),
    flag("T", 1, GRAM_TRANSITIVE),
    flag("I", 4, GRAM_INTRANSITIVE),
    flag("e", 1, GRAM_PERFECTIVE_MARK),
    flag("V", 1, bit(11)),
    flag("r", 1, GRAM_REFLEXIVE_MARK),
    flag("!", 1, GRAM_IMPERATIVE),
    flag("U", 1, bit(15)),
    flag("H", 5, bit(31)),
    flag("-E", 1, GRAM_IMPERFECTIVE),
    flag("E", 1, GRAM_PERFECTIVE),
    flag("-V", 4, bit(19)),
    flag("Y", 4, GRAM_PASSIVE),
    flag("X", 1, bit(29)),
    flag("R", 1, GRAM_REFLEXIVE),
    flag("L", 4, bit(31)),
    flag("i", 4, GRAM_NEVER_PERFECTIVE),
    flag("g", 4, bit(5)),
    flag("-g", 4, bit(22)),
    flag("A", 4, bit(24)),
    flag("N", 4, bit(25)),
    flag("O", 4, bit(27)),
    flag("D", 4, bit(26)),
    flag("b", 4, bit(28)),
    flag("-b", 4, bit(29)),
    flag("h", 4, bit(30)),
    flag("w", 4, bit(15)),
    flag("t", 1, bit(24)),
    flag("-t", 1, bit(25)),
    flag("f", 5, bit(14)),
    flag("-f", 5, bit(15)),
    flag("c", 5, bit(1)),
    flag("a", 5, bit(5)),
    flag("d", 5, bit(4)),
    flag("j", 5, bit(2)),
    flag("J", 5, bit(3)),
    flag("s", 5, bit(6)),
    flag("p", 5, bit(7)),
    flag("o", 4, bit(21)),
    flag("x", 4, bit(0)),
    flag("y", 4, bit(1)),
    flag("z", 4, bit(2)),
    flag("?", 4, bit(16)),
    flag("K", 4, bit(7)),
    flag("l", 4, bit(23)),
    flag("@", 1, GRAM_ANIMATE),
    flag(U"г"_1251, 1, bit(30)),
    flag(U"д"_1251, 1, bit(31)),
    field(Tag::Kind::more_cases),
    field(Tag::Kind::paradigm),
    read_only(flag("v", 1, bit(11))),
    read_only(flag("-v", 4, bit(19))),
};

inline constexpr Tag code_i[] = {
    flag("P", 1, GRAM_PLURAL),
    flag("S", 1, bit(15)),
    field(Tag::Kind::cases, all_cases),
};

inline constexpr Tag pronoun[] = {
    flag("@", 1, GRAM_ANIMATE),
    flag("R", 1, GRAM_REFLEXIVE_MARK),
    flag("P", 1, GRAM_PLURAL),
    flag("S", 1, GRAM_SINGULAR),
    flag("M", 1, GRAM_MASCULINE),
    flag("F", 1, GRAM_FEMININE),
    flag("I", 2, bit(7)),
    flag("i", 5, bit(6)),
    flag("m", 6, bit(10)),
    flag("?", 4, bit(16)),
    flag("K", 4, bit(7)),
    flag("N", 4, bit(4)),
    flag("A", 4, bit(24)),
    flag("D", 4, bit(26)),
    flag("T", 1, bit(24)),
    flag("-T", 1, bit(25)),
    flag("f", 5, bit(14)),
    flag("-f", 5, bit(15)),
    flag("x", 4, bit(0)),
    flag("y", 4, bit(1)),
    flag("z", 4, bit(2)),
    read_only(field(Tag::Kind::person)),
    read_only(field(Tag::Kind::cases)),
};

}  // namespace tag

// The tags of each group, in the order of enum Group.
inline constexpr std::array<std::span<const Tag>, group_count> tags_of_group = {
    std::span<const Tag>{}, tag::noun, tag::adjective, tag::verb, tag::code_i, tag::pronoun};

// The letters of the semantic flags, in the order in which they are written.
struct SemanticTag {
  unsigned char letter;
  std::uint8_t bit;
};
inline constexpr SemanticTag semantic_tags[] = {
    {'@', 19}, {'N', 9},        {'A', 0},        {'W', 1},        {'S', 2},  {'O', 3},  {'T', 4},
    {'P', 5},  {'D', 6},        {'I', 7},        {'Q', 8},        {'n', 25}, {'Z', 10}, {'C', 11},
    {'p', 12}, {'M', 13},       {'F', 14},       {'G', 15},       {'L', 24}, {'a', 16}, {'r', 26},
    {'s', 17}, {'d', 18},       {'1', 20},       {'2', 21},       {'3', 22}, {'4', 23}, {'i', 27},
    {'o', 28}, {U'В'_1251, 29}, {U'Т'_1251, 30}, {U'П'_1251, 31},
};

}  // namespace kz

#endif  // KZ_GRAMMAR_TAGS_H

// The flags that the library gives a meaning to, and those that its rules ask for, by their tags.
#ifndef KZ_GRAMMAR_FLAGS_H
#define KZ_GRAMMAR_FLAGS_H

#include <string_view>

#include "grammar/tags.h"

namespace kz::flag {

consteval Flag tagged(Group group, std::string_view tag) {
  const Flag flag = find_flag(group, tag).flag;
  if (flag.mask == 0) throw "a tag that the group lacks";
  return flag;
}
consteval Flag verb(std::string_view tag) { return tagged(Group::kVerb, tag); }

inline constexpr Flag kSingular = verb("S");
inline constexpr Flag kPlural = verb("P");
inline constexpr Flag kNoPlural = tagged(Group::kNoun, "-P");
inline constexpr Flag kNoSingular = tagged(Group::kNoun, "-S");
inline constexpr Flag kPast = verb("<");
inline constexpr Flag kPresent = verb("^");
inline constexpr Flag kFuture = verb(">");
inline constexpr Flag kImperative = verb("!");
inline constexpr Flag kPerfective = verb("E");
inline constexpr Flag kImperfective = verb("-E");
inline constexpr Flag kPerfectiveMark = verb("e");
inline constexpr Flag kNeverPerfective = verb("i");
inline constexpr Flag kPassive = verb("Y");
inline constexpr Flag kReflexive = verb("R");
inline constexpr Flag kReflexiveMark = verb("r");

// Without a meaning to the library, and named by their letters.
inline constexpr Flag kH = verb("H");
inline constexpr Flag kAdjectiveNoH = tagged(Group::kAdjective, "-H");
inline constexpr Flag kK = verb("K");
inline constexpr Flag kVerbN = verb("n");
inline constexpr Flag kVerbO = verb("O");
inline constexpr Flag kVerbP = verb("p");
inline constexpr Flag kVerbU = verb("U");
inline constexpr Flag kVerbV = verb("V");
inline constexpr Flag kVerbNoV = verb("-V");
inline constexpr Flag kVerbX = verb("X");

}  // namespace kz::flag

#endif  // KZ_GRAMMAR_FLAGS_H

// Forms in which the synonyms of a meaning are kept.
#ifndef KZ_ENTRY_SYNONYM_H
#define KZ_ENTRY_SYNONYM_H

#include <array>
#include <cstddef>
#include <string_view>

#include "entry/code_letter.h"

namespace kz {

// A finished synonym of a translation entry holds no more characters.
inline constexpr std::size_t kMaxSynonym = 355;

// Room to work in: with the leading blank or ')' and the '/' that are taken off at last. Of a
// longer text the rest is not needed.
using SynonymRoom = std::array<char, kMaxSynonym + 2>;

// Reduced form: the words without their code letters. Returns the finished text, a view into
// `room`.
std::string_view reduce_synonym(std::string_view synonym, const entry::CodeLetterTest& code,
                                SynonymRoom& room);

// Spaced form: everything kept, code letters and groups set apart by blanks. As above.
std::string_view space_synonym(std::string_view synonym, const entry::CodeLetterTest& code,
                               SynonymRoom& room);

}  // namespace kz

#endif  // KZ_ENTRY_SYNONYM_H

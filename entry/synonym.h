// Forms in which the synonyms of a meaning are kept.
#ifndef KZ_ENTRY_SYNONYM_H
#define KZ_ENTRY_SYNONYM_H

#include <cstddef>
#include <string_view>

#include "entry/code_letter.h"

namespace kz {

// A finished synonym of a translation entry holds no more characters.
inline constexpr std::size_t kMaxSynonym = 355;

// Room that the forms need for a synonym of this size.
constexpr std::size_t synonym_room(std::size_t size) { return 3 * size; }

// Reduced form: the words without their code letters. Works in `room` (synonym_room characters) and
// returns the finished text, a view into it.
std::string_view reduce_synonym(std::string_view synonym, const entry::CodeLetterTest& code,
                                char* room);

// Spaced form: everything kept, code letters and groups set apart by blanks. As above.
std::string_view space_synonym(std::string_view synonym, const entry::CodeLetterTest& code,
                               char* room);

}  // namespace kz

#endif  // KZ_ENTRY_SYNONYM_H

// Bodies of entries made ready for the library's spaced form of synonyms.
//
// The spaced form parts parentheses from the words that they belong to, and takes the letters of
// another alphabet for codes, those of a reference too.
#ifndef KZ_LEXICON_ENTRY_MARKS_H
#define KZ_LEXICON_ENTRY_MARKS_H

#include <string>
#include <string_view>

namespace kz::lexicon {

// Stands where the spaced form adds a blank that the entry does not have. No entry holds it.
inline constexpr char kJoin = '\x01';

// The body with joins around parentheses, and with its references as "={word}". In an entry with
// the part code '=', what is a word of the source language is a reference too. The text is in the
// dictionary's code pages.
std::string marked_body(std::string_view body, char part_code, std::string_view language);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_MARKS_H

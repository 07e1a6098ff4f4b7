// Headwords for words that the index cannot hold at their beginning.
#ifndef KZ_LEXICON_INDEX_HEADWORD_H
#define KZ_LEXICON_INDEX_HEADWORD_H

#include <optional>
#include <string>
#include <string_view>

#include "kzlexicon/error.h"
#include "lexicon/build/sort_order.h"

namespace kz::lexicon {

// What becomes of the letters of another alphabet.
enum class ForeignLetters { kDropped, kTransliterated };

// The headword under which a word is stored that the order refuses: from its first letter or digit
// on, without the characters that an index does not hold ("'cause" under "cause", "Ångström" under
// "angstrom"). Both are in lower case and in the dictionary's code page. No value for a word that
// is no headword this way either.
std::optional<std::string> index_headword(std::string_view word, const SortOrder& order,
                                          ForeignLetters foreign);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_INDEX_HEADWORD_H

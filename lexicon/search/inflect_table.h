// Loaded inflection tables, and the endings of a word.
#ifndef KZ_LEXICON_INFLECT_TABLE_H
#define KZ_LEXICON_INFLECT_TABLE_H

#include <memory>
#include <string>
#include <vector>

#include "kz/inflection.h"

namespace kz::lexicon {

// Never makes a table. Throws Error.
std::unique_ptr<CGrSrcWordFlex> load_table(const std::string& path);

// Windows-1251 with the letter yo written as ye.
std::string fold_yo(std::string word);

// The entries of the known endings of a word in lower case, Windows-1251, longest first. An ending
// matches with yo as it is or written as ye.
std::vector<const CGrSrcWordObj*> known_endings(CGrSrcWordFlex& table, const std::string& word);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_INFLECT_TABLE_H

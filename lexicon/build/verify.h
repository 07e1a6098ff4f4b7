// Proof that a finished dictionary gives back what was put in.
#ifndef KZ_LEXICON_VERIFY_H
#define KZ_LEXICON_VERIFY_H

#include <string>
#include <vector>

#include "lexicon/build/record.h"

namespace kz::lexicon {

// Opens the dictionary, looks every headword up by exact search and walks all records from the
// first to the last; each entry has to come back unchanged. Throws Error, which names the
// dictionary so.
void verify_dictionary(const std::string& path, const std::string& name,
                       const std::vector<Record>& records);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_VERIFY_H

// Proof that a finished dictionary gives back what was put in.
#ifndef KZ_TOOLS_VERIFY_H
#define KZ_TOOLS_VERIFY_H

#include <string>
#include <vector>

#include "tools/record.h"

namespace kzdic {

// Opens the dictionary, looks every headword up by exact search and walks all records from the
// first to the last; each entry has to come back unchanged. Throws Failure.
void verify_dictionary(const std::string& path, const std::vector<Record>& records);

}  // namespace kzdic

#endif  // KZ_TOOLS_VERIFY_H

// Entries of an inflection table as text.
#ifndef KZ_MORPHOLOGY_INFLECTION_TEXT_H
#define KZ_MORPHOLOGY_INFLECTION_TEXT_H

#include <string_view>

#include "kz/inflection.h"

namespace kz {

// Reads the attributes after the ending of a line: "name name number name | name ...". False when
// there are none.
bool read_attributes(std::string_view text, CGrSrcWordObj& entry);

// Writes the ending and the attributes with a final zero.
void write_entry(const CGrSrcWordObj& entry, char* output);

}  // namespace kz

#endif  // KZ_MORPHOLOGY_INFLECTION_TEXT_H

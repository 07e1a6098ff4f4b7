// Packing of a displayed text into entry text.
#ifndef KZ_ENTRY_PACK_H
#define KZ_ENTRY_PACK_H

#include <string_view>

namespace kz {

// Writes the packed text without a terminating zero, at most as many characters as the source has,
// and returns its end. `out` may be the source's own buffer.
char* pack_entry(std::string_view source, char target_letter, char* out);

}  // namespace kz

#endif  // KZ_ENTRY_PACK_H

// Descriptors of dictionaries, and arrays of them.
#ifndef KZ_DICSET_DESCRIPTOR_H
#define KZ_DICSET_DESCRIPTOR_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kz/array.h"
#include "kz/dic_array.h"

namespace kz {

// Characters of a completed path, and of a token in a path list.
inline constexpr std::size_t kPathMax = 259;
inline constexpr std::size_t kTokenMax = 267;

ZCString joined_path(std::string_view prefix, std::string_view name);

// The descriptor at an index, null for an empty slot.
inline const CDicArray* descriptor_at(const ZCObArray& array, int index) {
  return static_cast<const CDicArray*>(array.GetAt(index));
}

// Puts a descriptor of a path, which is `prefix` and `name`, into a slot: -1 appends, a slot in use
// is replaced, one after the end makes the array longer. False for a path that is too long, and
// when memory runs out.
bool put_descriptor(ZCObArray& array, std::int16_t position, std::string_view prefix,
                    std::string_view name, std::int16_t mode);

// Destroys the descriptors of an array and empties it.
void remove_descriptors(ZCObArray& array);

}  // namespace kz

#endif  // KZ_DICSET_DESCRIPTOR_H

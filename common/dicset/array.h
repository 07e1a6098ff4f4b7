// Arrays of descriptors: putting descriptors, loading the dictionaries they name.
#ifndef KZ_DICSET_ARRAY_H
#define KZ_DICSET_ARRAY_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kz/array.h"
#include "kz/dic_array.h"

namespace kz {

// Characters of a completed path, and of a token in a path list.
inline constexpr std::size_t kPathMax = 259;
inline constexpr std::size_t kTokenMax = 267;

// The descriptor at an index, null for an empty slot.
inline const CDicArray* descriptor_at(const ZCObArray& array, int index) {
  return static_cast<const CDicArray*>(array.GetAt(index));
}

// Puts a descriptor of a path, which is `prefix` and `name`, into a slot: -1 appends, a slot in use
// is replaced, one after the end makes the array longer. False for a path that is too long, and
// when memory runs out.
bool put_descriptor(ZCObArray& array, std::int16_t position, std::string_view prefix,
                    std::string_view name, std::int16_t mode);

// Loads the dictionaries of an array into the queue; false when one could not be loaded.
bool load_array(CDicSys& set, const ZCObArray& array);

// Unloads the dictionaries of an array, and removes its descriptors.
void unload_array(CDicSys& set, ZCObArray& array);

// Appends descriptors of the dictionaries in a list of the queue.
void append_from_list(CDicSys& set, std::int16_t list, ZCObArray& array);

}  // namespace kz

#endif  // KZ_DICSET_ARRAY_H

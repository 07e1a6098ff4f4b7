// The arrays of a set: loading and unloading the dictionaries that their descriptors name.
#ifndef KZ_DICSET_ARRAY_H
#define KZ_DICSET_ARRAY_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kz/array.h"
#include "kz/dic_set.h"

namespace kz {

// Loads the dictionaries of an array into the queue; false when one could not be loaded.
bool load_array(CDicSys& set, const ZCObArray& array);

// Unloads the dictionaries of an array, and removes its descriptors.
void unload_array(CDicSys& set, ZCObArray& array);

// Appends descriptors of the dictionaries in a list of the queue.
void append_from_list(CDicSys& set, std::int16_t list, ZCObArray& array);

}  // namespace kz

#endif  // KZ_DICSET_ARRAY_H

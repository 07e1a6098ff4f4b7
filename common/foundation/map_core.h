// What the rest of the library may do with a map beyond its interface.
#ifndef KZ_FOUNDATION_MAP_CORE_H
#define KZ_FOUNDATION_MAP_CORE_H

#include "kz/map.h"

namespace kz {

// Adds a key that the map does not have, without looking for it: in a map of few buckets and many
// keys that would take long.
void add_new_key(ZCMapStringToOb& map, const char* key, ZCObject* value);

}  // namespace kz

#endif  // KZ_FOUNDATION_MAP_CORE_H

// The parts of a dictionary set, for the functions over its handle.
#ifndef KZ_DICSET_SET_H
#define KZ_DICSET_SET_H

#include <string_view>

#include "dictionary/queue.h"
#include "kz/dic_set.h"

namespace kz {

inline Queue queue_of(CDicSys& set) { return {set.queue, set.language}; }

// The array of a direction, in any case; null when there is no such direction.
ZCObArray* array_of(CDicSys& set, std::string_view direction);

// Makes the array of the set's direction the current one and returns it.
ZCObArray* select_array(CDicSys& set);

// Stores at most 4 characters of the code (null: none), and selects the array of the direction.
void set_language(CDicSys& set, const char* code);

// Destroys the descriptors of all arrays of the set.
void remove_all_descriptors(CDicSys& set);

}  // namespace kz

#endif  // KZ_DICSET_SET_H

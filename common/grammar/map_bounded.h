// The text step of the mapping, for a text buffer of known size.
#ifndef KZ_GRAMMAR_MAP_BOUNDED_H
#define KZ_GRAMMAR_MAP_BOUNDED_H

#include <cstddef>
#include <cstdint>

namespace kz {

// re_set_egram with a text buffer of `room` bytes. The summary is set in any case. Returns false,
// with the buffer as it was, when the rest of the text does not fit or the buffer holds no text.
bool re_set_egram_within(std::uint8_t* record, std::int16_t code, const char* text,
                         std::size_t room);

}  // namespace kz

#endif  // KZ_GRAMMAR_MAP_BOUNDED_H

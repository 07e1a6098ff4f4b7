// Vector code that applies a translation, where the processor has it.
#ifndef KZ_TEXT_BYTE_MAP_VECTOR_H
#define KZ_TEXT_BYTE_MAP_VECTOR_H

#include <cstddef>

#include "text/byte_map.h"

namespace kz {

// From least to best; a processor that has one has those before it too.
enum class VectorCode { none, avx2, avx512 };

// The best vector code that this processor runs.
VectorCode best_vector_code();

// Translates as many of the `size` bytes, from the first on, as the vector code takes, and returns
// their number: 0 for none. The destination may be the source or begin before it.
std::size_t translate_vectors(VectorCode code, const char* source, char* destination,
                              std::size_t size, const Translation& translation);

}  // namespace kz

#endif  // KZ_TEXT_BYTE_MAP_VECTOR_H

// Application of byte maps to texts.
#include "text/byte_map.h"

#include <cstring>

#include "text/byte_map_vector.h"

namespace kz {
namespace {

// Most texts are words: this many bytes are walked one by one before anything larger is set up.
constexpr std::size_t kWordSize = 32;

// Long texts are measured and translated piece by piece, so that the second touch of a byte finds
// it in the nearest cache.
constexpr std::size_t kPieceSize = 4096;

}  // namespace

void translate(const char* source, char* destination, std::size_t size,
               const Translation& translation) {
  std::size_t i = 0;
  if (size >= kWordSize) {
    i = translate_vectors(best_vector_code(), source, destination, size, translation);
  }
  for (; i < size; ++i) destination[i] = static_cast<char>(translation[source[i]]);
}

char* translate_text(const char* source, char* destination, const Translation& translation) {
  for (std::size_t i = 0; i < kWordSize; ++i, ++source, ++destination) {
    if (*source == '\0') {
      *destination = '\0';
      return destination;
    }
    *destination = static_cast<char>(translation[*source]);
  }
  for (;;) {
    // memchr reads no byte beyond the zero that it finds.
    const void* end = std::memchr(source, 0, kPieceSize);
    const std::size_t size = end != nullptr
                                 ? static_cast<std::size_t>(static_cast<const char*>(end) - source)
                                 : kPieceSize;
    translate(source, destination, size, translation);
    source += size;
    destination += size;
    if (end != nullptr) break;
  }
  *destination = '\0';
  return destination;
}

}  // namespace kz

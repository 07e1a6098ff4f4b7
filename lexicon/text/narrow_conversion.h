// The library's own conversions between code pages: letters, some punctuation and box drawing.
#ifndef KZ_LEXICON_NARROW_CONVERSION_H
#define KZ_LEXICON_NARROW_CONVERSION_H

#include <span>
#include <string>
#include <string_view>

#include "lexicon/text/text_encoding.h"

namespace kz::lexicon {

struct NarrowPair {
  std::string_view from;
  std::string_view to;
  char* (*convert)(const char* source, char* destination);
  std::size_t growth;  // bytes that one byte may become
};

std::span<const NarrowPair> narrow_pairs();

// Throws Error when the library does not convert this pair.
const NarrowPair& find_narrow_pair(const Encoding& from, const Encoding& to);

// Zero bytes are kept.
void append_narrowed(std::string_view text, const NarrowPair& pair, std::string& out);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_NARROW_CONVERSION_H

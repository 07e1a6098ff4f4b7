// What the filters of texts have in common.
#ifndef KZ_LEXICON_TEXT_FILTER_H
#define KZ_LEXICON_TEXT_FILTER_H

#include <cstddef>
#include <string_view>

#include "kzlexicon/text.h"

namespace kz::lexicon {

// How many bytes of a long line, from a place on, can be answered as one piece: they end with a
// character, and not inside of a character reference.
std::size_t piece_size(std::string_view line, std::size_t at);

// Calls answer() for the piece of a line that begins at a place, with its BadText told by the line.
template <typename Answer>
auto answer_piece(std::size_t at, Answer answer) {
  try {
    return answer();
  } catch (BadText& bad) {
    bad.offset += at;
    throw;
  }
}

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_TEXT_FILTER_H

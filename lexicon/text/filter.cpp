// Pieces of long lines.
#include "lexicon/text/filter.h"

namespace kz::lexicon {

std::size_t piece_size(std::string_view line, std::size_t at) {
  constexpr std::size_t kPiece = 65536;
  constexpr std::size_t kLongestReference = 10;
  const std::string_view piece = line.substr(at, kPiece);
  if (at + piece.size() == line.size()) return piece.size();
  const std::size_t reference = piece.rfind('&');
  if (reference != std::string_view::npos && reference + kLongestReference > piece.size()) {
    return reference;
  }
  const auto is_inside = [&](std::size_t place) { return (line[at + place] & 0xC0) == 0x80; };
  std::size_t size = piece.size();
  while (size > piece.size() - 4 && is_inside(size)) --size;
  return size;
}

TextFilter::~TextFilter() = default;

std::string TextFilter::apply(std::string_view text) const {
  std::string out;
  append(text, out);
  return out;
}

std::size_t TextFilter::append_piece(std::string_view line, std::size_t at,
                                     std::string& out) const {
  const std::size_t size = piece_size(line, at);
  answer_piece(at, [&] { append(line.substr(at, size), out); });
  return size;
}

}  // namespace kz::lexicon

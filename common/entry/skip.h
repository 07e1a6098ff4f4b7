// Stepping over labels, attribute blocks and parts of a synonym.
#ifndef KZ_ENTRY_SKIP_H
#define KZ_ENTRY_SKIP_H

#include <cstddef>
#include <string_view>

namespace kz {

// Length of the leading labels, "a)b)" for instance.
std::size_t labels_size(std::string_view text);

// A text is its decorations (labels and attribute block), [begin, cut), and [cut_end, end); the
// bracket group between the latter is not part of it.
struct LabelledText {
  std::size_t begin = 0;
  std::size_t cut = 0;
  std::size_t cut_end = 0;
};
LabelledText find_labelled_text(std::string_view text);

// Position of the '[' of an attribute block near the start of the text, npos when there is none.
std::size_t find_attr(std::string_view text);

// The stop that ends an inflection text which starts at 0, or the end.
std::size_t find_inflection_end(std::string_view text);

// Length of the extended synonym code at the start, npos when it is too long.
std::size_t extended_code_size(std::string_view text);

// Start of the next part at or after `position` in a zero-terminated text.
const char* find_next_part(const char* position, char target_letter, char part);

}  // namespace kz

#endif  // KZ_ENTRY_SKIP_H

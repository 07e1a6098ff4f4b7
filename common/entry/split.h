// The pieces of a full entry, as views into its text.
#ifndef KZ_ENTRY_SPLIT_H
#define KZ_ENTRY_SPLIT_H

#include <cstddef>
#include <string_view>

namespace kz {

struct EntryParts {
  std::string_view head_word;
  char part = 0;               // part code, 0 when there is none
  std::string_view part_text;  // part code and extension
  std::string_view attr_view;  // attribute block with its brackets
  std::string_view body;
  std::string_view src_ref;
  std::string_view src_word;
};

// Takes a full entry apart. The pieces are views into it.
EntryParts split_entry(std::string_view full_entry);

// Length of the full entry that the pieces make, 0 without a head word.
std::size_t joined_size(const EntryParts& parts);

// Writes the full entry, joined_size characters without a terminating zero; returns their end.
// `part` is not used, the part text holds it.
char* join_entry(const EntryParts& parts, char* out);

// An attribute view without its brackets, either of which may be missing.
std::string_view without_brackets(std::string_view attr_view);

}  // namespace kz

#endif  // KZ_ENTRY_SPLIT_H

// Groups inside entry text: "{...}", "[...]", "(...)", and literal text "#...#".
//
// Groups do not nest, but for the attribute blocks that nested_end steps over. A group without its
// closing character extends to the end of the text.
#ifndef KZ_ENTRY_GROUP_H
#define KZ_ENTRY_GROUP_H

#include <cstddef>
#include <string_view>

namespace kz::entry {

// The closing character of a group that c opens, zero when it opens none.
constexpr char closing_of(char c) {
  switch (c) {
    case '{': return '}';
    case '[': return ']';
    case '(': return ')';
    default: return 0;
  }
}

// The position after the next `closing` at or after i, or the end of the text.
constexpr std::size_t after_next(std::string_view text, char closing, std::size_t i) {
  const std::size_t found = text.find(closing, i);
  return found == std::string_view::npos ? text.size() : found + 1;
}

// The position after the group that opens at i.
constexpr std::size_t group_end(std::string_view text, std::size_t i) {
  return after_next(text, closing_of(text[i]), i + 1);
}

// The position after the literal text that opens at i, and its contents.
constexpr std::size_t literal_end(std::string_view text, std::size_t i) {
  return after_next(text, '#', i + 1);
}
constexpr std::string_view literal_contents(std::string_view text, std::size_t i) {
  const std::string_view rest = text.substr(i + 1);
  return rest.substr(0, rest.find('#'));
}

// The position after the bracket that matches the one at i.
constexpr std::size_t nested_end(std::string_view text, std::size_t i) {
  std::size_t depth = 0;
  for (; i < text.size(); ++i) {
    if (text[i] == '[') ++depth;
    if (text[i] == ']' && --depth == 0) return i + 1;
  }
  return text.size();
}

}  // namespace kz::entry

#endif  // KZ_ENTRY_GROUP_H

// Tokens of a text, for the exported lexers and the library's own readers.
#ifndef KZ_UTIL_LEXER_H
#define KZ_UTIL_LEXER_H

#include <string_view>

namespace kz {

// Takes the next token off the front of `text`: skips characters of the delimiter set, and leaves
// what follows the token, its delimiter first. Empty when there are no more tokens.
inline std::string_view next_token(std::string_view& text, std::string_view delimiters) {
  const std::size_t begin = text.find_first_not_of(delimiters);
  if (begin == std::string_view::npos) return text = {};
  const std::size_t end = text.find_first_of(delimiters, begin);
  const std::string_view token = text.substr(begin, end - begin);
  text.remove_prefix(begin + token.size());
  return token;
}

}  // namespace kz

#endif  // KZ_UTIL_LEXER_H

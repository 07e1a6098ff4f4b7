// The lines of a replacement buffer.
#ifndef KZ_UTIL_REPLACE_BUFFER_H
#define KZ_UTIL_REPLACE_BUFFER_H

#include <cstddef>
#include <optional>
#include <string_view>

namespace kz {

inline constexpr std::string_view kBufferLineEnd = "\r\n";

// What a line says. A line ends at a carriage return; a line feed before it is no part of it.
struct BufferLine {
  std::string_view word;
  std::optional<std::string_view> replacement;
};

// The line at the front of a text; nothing at the end of the text.
inline std::optional<BufferLine> read_line(std::string_view text) {
  if (text.starts_with('\n')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  const std::string_view line = text.substr(0, text.find('\r'));
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return BufferLine{line, std::nullopt};
  return BufferLine{line.substr(0, equals), line.substr(equals + 1)};
}

// Positions in the text of a buffer: of its first line, and of the line after another one.
inline std::size_t first_line(std::string_view text) {
  return text.starts_with(kBufferLineEnd) ? kBufferLineEnd.size() : 0;
}
inline std::size_t next_line(std::string_view text, std::size_t line) {
  const std::size_t end = text.find('\r', line);
  return end == std::string_view::npos ? text.size() : end + 1;
}

}  // namespace kz

#endif  // KZ_UTIL_REPLACE_BUFFER_H

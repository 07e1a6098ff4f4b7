// Removal of the blanks around markers and code letters.
#include "entry/pack.h"

#include <cstddef>

#include "entry/blank_writer.h"
#include "entry/code_letter.h"
#include "entry/group.h"

namespace kz {

using entry::char_at;

namespace {

constexpr std::string_view kTightMarkers = ";()|/\\W";

// Parentheses are markers of their own.
char segment_end(char c) {
  if (c == '#') return c;
  return c == '(' ? char{0} : entry::closing_of(c);
}

}  // namespace

char* pack_entry(std::string_view source, char target_letter, char* out_begin) {
  const entry::CodeLetterTest new_part = entry::new_part_test(target_letter);
  entry::BlankWriter out(out_begin, source.size());
  std::size_t i = 0;
  const auto skip_blank = [&] {
    if (char_at(source, i) == ' ') ++i;
  };

  if (source.size() > 1 && source[1] != '\\') skip_blank();
  while (i < source.size()) {
    const char c = source[i];
    const char closing = segment_end(c);
    const bool tight = closing != 0 || kTightMarkers.find(c) != std::string_view::npos ||
                       new_part.holds_at(source, i);
    ++i;
    if (tight) out.drop_blank();
    out.put(c);
    if (tight) skip_blank();
    if (closing == 0) continue;

    const std::size_t end = source.find(closing, i);
    out.put(source.substr(i, end == std::string_view::npos ? end : end - i));
    if (end == std::string_view::npos) break;
    out.drop_blank();
    out.put(closing);
    i = end + 1;
    skip_blank();
  }
  return out.end();
}

}  // namespace kz

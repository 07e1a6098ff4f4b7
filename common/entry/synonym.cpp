// Reduced and spaced form of a synonym.
#include "entry/synonym.h"

#include "entry/blank_writer.h"
#include "entry/group.h"

namespace kz {

using entry::BlankWriter;
using entry::char_at;
using entry::CodeLetterTest;

namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

std::string_view finish(std::string_view text, std::string_view leading) {
  if (text.ends_with('/')) text.remove_suffix(1);
  if (!text.empty() && leading.find(text.front()) != kNotFound) text.remove_prefix(1);
  return text.substr(0, kMaxSynonym);
}

}  // namespace

std::string_view reduce_synonym(std::string_view synonym, const CodeLetterTest& code,
                                SynonymRoom& room) {
  BlankWriter out(room.data(), room.size());
  std::size_t i = 0;
  if (const std::size_t phrase = synonym.find('W'); phrase != kNotFound)
    i = char_at(synonym, phrase + 1) == ')' ? phrase + 2 : phrase + 1;
  while (i < synonym.size() && !out.is_full()) {
    const char c = synonym[i];
    if (c == '#') {
      const std::string_view contents = entry::literal_contents(synonym, i);
      out.put(' ');
      out.put(contents);
      i += 1 + contents.size();
      if (i == synonym.size()) break;
      out.put_blank();
      ++i;
    } else if (c == '{') {
      const std::size_t end = entry::group_end(synonym, i);
      out.put(synonym.substr(i, end - i));
      i = end;
    } else if (code.holds_at(synonym, i)) {
      out.put_blank();
      i += char_at(synonym, i + 1) == ')' ? 2 : 1;
    } else {
      out.put(c);
      ++i;
    }
  }
  return finish(out.text(), " )");
}

std::string_view space_synonym(std::string_view synonym, const CodeLetterTest& code,
                               SynonymRoom& room) {
  BlankWriter out(room.data(), room.size());
  std::size_t i = 0;
  // Copies up to `end`, with a blank in front or after where asked and none is there yet.
  const auto copy_to = [&](std::size_t end, bool blank_before, bool blank_after) {
    if (blank_before) out.separate();
    out.put(synonym.substr(i, end - i));
    i = end;
    if (blank_after && i < synonym.size() && synonym[i] != ' ') out.put(' ');
  };
  while (i < synonym.size() && !out.is_full()) {
    switch (synonym[i]) {
      case 'W':
        out.put(' ');
        ++i;
        break;
      case '(': copy_to(i + 1, true, false); break;
      case ')': copy_to(i + 1, false, true); break;
      case '#': copy_to(entry::literal_end(synonym, i), true, true); break;
      case '{':
      case '[': copy_to(entry::group_end(synonym, i), true, true); break;
      default: {
        const bool apart = synonym[i] == '|' || code.holds_at(synonym, i);
        copy_to(i + 1, apart, apart);
      }
    }
  }
  return finish(out.text(), " ");
}

}  // namespace kz

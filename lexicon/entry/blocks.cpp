// Blocks found by the brackets around them.
#include "lexicon/entry/blocks.h"

#include <algorithm>

#include "lexicon/source/entry_layout.h"

namespace kz::lexicon {
namespace {

constexpr auto kNone = std::string_view::npos;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool is_latin(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// The position of the character that closes the group at `at`, or the end.
template <typename Char>
std::size_t close_of(std::basic_string_view<Char> text, std::size_t at) {
  const Char close = text[at] == '{' ? Char{'}'} : text[at] == '[' ? Char{']'} : Char{')'};
  return std::min(text.find(close, at), text.size());
}

template <typename Char>
bool opens_group(Char c) {
  return c == '{' || c == '[' || c == '(';
}

// After the meaning that begins at `at`.
std::size_t skip_meaning(std::string_view body, std::size_t at) {
  while (at < body.size() && body[at] != '/') {
    if (opens_group(body[at])) at = close_of(body, at);
    if (at < body.size()) ++at;
  }
  return std::min(at + 1, body.size());
}

// Length of a label "2." at `at`, 0 if there is none.
std::size_t number_length(std::string_view body, std::size_t at) {
  std::size_t end = at;
  while (end < body.size() && end < at + 2 && is_digit(body[end])) ++end;
  return end > at && end < body.size() && body[end] == '.' ? end + 1 - at : 0;
}

// Reads labels and groups at the beginning of a meaning; returns the position of its text.
std::size_t read_labels(std::string_view body, std::size_t at, MeaningBlock& block) {
  while (at < body.size()) {
    const char c = body[at];
    const std::size_t number = number_length(body, at);
    if (number > 0) {
      block.label = body.substr(at, number);
      at += number;
      // A label of several words ends with a colon or before a definition.
      if (at < body.size() && body[at] == ' ') at = body.find_first_of(":{/", at);
      at = std::min(at, body.size());
    } else if (c == '{' || c == '[') {
      const std::size_t end = close_of(body, at);
      if (c == '[' && block.tags.empty()) block.tags = body.substr(at + 1, end - at - 1);
      at = std::min(end + 1, body.size());
    } else if (c >= 'A' && c <= 'Z' && at + 1 < body.size() &&
               (body[at + 1] == '[' || body[at + 1] == '{')) {
      block.label = c;
      ++at;
    } else if (c == ':') {
      ++at;
    } else {
      break;
    }
  }
  return at;
}

}  // namespace

std::string head_block(std::string_view entry) {
  const EntryLayout at = layout_of(entry);
  const std::string_view part = entry.substr(at.part, at.body - at.part);
  const std::size_t open = part.find('[');
  if (open == kNone) return {};
  return std::string(part.substr(open + 1, close_of(part, open) - open - 1));
}

std::vector<MeaningBlock> meaning_blocks(std::string_view body) {
  std::vector<MeaningBlock> blocks;
  for (std::size_t at = 0; at < body.size();) {
    MeaningBlock block;
    at = skip_meaning(body, read_labels(body, at, block));
    if (!block.label.empty() && !block.tags.empty()) blocks.push_back(block);
  }
  return blocks;
}

InnerBlock synonym_block(std::u32string_view synonym) {
  InnerBlock block;
  for (std::size_t at = 0; at < synonym.size(); ++at) {
    const char32_t c = synonym[at];
    const bool alone =
        (at == 0 || synonym[at - 1] == ' ') && (at + 1 == synonym.size() || synonym[at + 1] == ' ');
    if (is_latin(c) && alone) block.part_code = c;
    if (!opens_group(c)) continue;
    const std::size_t end = close_of(synonym, at);
    if (c == '[') {
      block.tags = synonym.substr(at + 1, end - at - 1);
      return block;
    }
    at = end;
  }
  return {};
}

}  // namespace kz::lexicon

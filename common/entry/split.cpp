// Head split of a full entry, and its inverse.
#include "entry/split.h"

#include <algorithm>

namespace kz {

namespace {

constexpr std::size_t kNotFound = std::string_view::npos;
constexpr std::string_view kSourceWordMark = "\\\\";
constexpr char kSourceRefMark = '\\';

// The attribute view starts among the first eight characters after the part code.
constexpr std::size_t kAttrReach = 8;

std::string_view cut_before(std::string_view& rest, std::size_t mark, std::size_t mark_size) {
  const std::string_view after = rest.substr(mark + mark_size);
  rest = rest.substr(0, mark);
  return after;
}

// Moves the part extension to the part text and the attribute view out of `rest`.
void take_attr_view(std::string_view& rest, EntryParts& parts) {
  const std::size_t begin = rest.substr(0, kAttrReach).find_first_of("[ {");
  if (begin == kNotFound) return;
  const std::size_t end = rest.find(']');
  if (end == kNotFound || end < begin) return;
  parts.attr_view = rest.substr(begin, end + 1 - begin);
  parts.part_text = {parts.part_text.data(), parts.part_text.size() + begin};
  rest = rest.substr(end + 1);
}

}  // namespace

EntryParts split_entry(std::string_view full_entry) {
  EntryParts parts;
  const std::size_t star = full_entry.rfind('*');
  parts.head_word = full_entry.substr(0, star);
  if (star == kNotFound || star + 1 == full_entry.size()) return parts;

  parts.part = full_entry[star + 1];
  parts.part_text = full_entry.substr(star + 1, 1);
  std::string_view rest = full_entry.substr(star + 2);

  const std::size_t word = rest.find(kSourceWordMark);
  if (word != kNotFound && word + kSourceWordMark.size() < rest.size())
    parts.src_word = cut_before(rest, word, kSourceWordMark.size());

  if (parts.part != '$') {
    const std::size_t reference = rest.find(kSourceRefMark);
    if (reference != kNotFound) parts.src_ref = cut_before(rest, reference, 1);
    if (parts.part != 'W' && parts.part != 'w') take_attr_view(rest, parts);
  }
  parts.body = rest;
  return parts;
}

std::size_t joined_size(const EntryParts& parts) {
  if (parts.head_word.empty()) return 0;
  const auto section = [](std::string_view text, std::size_t mark_size) {
    return text.empty() ? 0 : text.size() + mark_size;
  };
  return parts.head_word.size() + 1 + parts.part_text.size() + parts.attr_view.size() +
         parts.body.size() + section(parts.src_ref, 1) +
         section(parts.src_word, kSourceWordMark.size());
}

char* join_entry(const EntryParts& parts, char* out) {
  if (parts.head_word.empty()) return out;
  const auto append = [&out](std::string_view text) {
    out = std::copy(text.begin(), text.end(), out);
  };
  append(parts.head_word);
  *out++ = '*';
  append(parts.part_text);
  append(parts.attr_view);
  append(parts.body);
  if (!parts.src_ref.empty()) {
    *out++ = kSourceRefMark;
    append(parts.src_ref);
  }
  if (!parts.src_word.empty()) {
    append(kSourceWordMark);
    append(parts.src_word);
  }
  return out;
}

std::string_view without_brackets(std::string_view attr_view) {
  if (attr_view.starts_with('[')) attr_view.remove_prefix(1);
  if (attr_view.ends_with(']')) attr_view.remove_suffix(1);
  return attr_view;
}

}  // namespace kz

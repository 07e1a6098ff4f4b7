// Steps over labels, blocks and parts.
#include "entry/skip.h"

#include <algorithm>
#include <cstring>

#include "entry/code_letter.h"
#include "entry/group.h"

namespace kz {

using entry::char_at;
using entry::CodeLetterTest;
using entry::in_set;

namespace {

constexpr std::size_t kNotFound = std::string_view::npos;
constexpr std::size_t kLabelReach = 9;
constexpr std::size_t kAttrReach = 7;
constexpr std::size_t kExtendedCodeSize = 7;

}  // namespace

std::size_t labels_size(std::string_view text) {
  std::size_t size = 0;
  for (;;) {
    const std::size_t stop = text.substr(size, kLabelReach).find_first_of(");");
    if (stop == kNotFound || text[size + stop] == ';') return size;
    size += stop + 1;
  }
}

LabelledText find_labelled_text(std::string_view text) {
  LabelledText found;
  std::size_t& i = found.begin;
  i = labels_size(text);
  if (char_at(text, i) == ' ') ++i;
  if (char_at(text, i) == '[') {
    i = entry::nested_end(text, i);
    if (char_at(text, i) == ' ') ++i;
  }
  found.cut = found.cut_end = text.size();
  const std::size_t stop = text.find_first_of("[;", i);
  if (char_at(text, stop) == '[') {
    found.cut = stop;
    found.cut_end = std::min(text.find(';', stop), text.size());
  }
  return found;
}

std::size_t find_attr(std::string_view text) {
  if (text.size() < 2) return kNotFound;
  const std::size_t stop = text.substr(0, kAttrReach).find_first_of("[{]; \\");
  return stop != kNotFound && text[stop] == '[' ? stop : kNotFound;
}

std::size_t find_inflection_end(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ']' || c == '\\' || c == '%' || (c == 'C' && char_at(text, i + 1) == ':')) return i;
  }
  return text.size();
}

std::size_t extended_code_size(std::string_view text) {
  constexpr std::string_view kStops("[{] \\\0", 6);
  for (std::size_t size = 0; size < kExtendedCodeSize; ++size) {
    const char c = char_at(text, size);
    if (kStops.find(c) != kNotFound || in_set(c, entry::kRussianSmall)) return size;
  }
  return kNotFound;
}

namespace {

const char* after_next_slash(const char* p) {
  const char* const slash = std::strchr(p, '/');
  return slash == nullptr ? p + std::strlen(p) : slash + 1;
}

const char* phrase_stops(char part) {
  switch (part) {
    case 'W': return " #\\~/;&";
    case 'w': return " #&";
    default: return "#\\";
  }
}

}  // namespace

const char* find_next_part(const char* p, char target_letter, char part) {
  const bool phrase = part == 'W' || part == 'w';
  const CodeLetterTest code = entry::part_end_test(target_letter, part == 'W');
  const char* const stops = phrase_stops(part);
  const char* const end = p + std::strlen(p);
  while (*p != 0 && std::strchr(stops, *p) == nullptr) {
    if (*p == '{' || *p == '[') {
      p += entry::group_end({p, end}, 0);
    } else if (!phrase && target_letter == 'R' && in_set(*p, entry::kLatin) &&
               in_set(p[1], entry::kDigit)) {
      // A letter, its digit and the character after them are one sign of text.
      p += p[2] == 0 ? 2 : 3;
    } else if (!phrase && *p == 'W') {
      return after_next_slash(p);
    } else if (code.holds(*p, p[1])) {
      return p;
    } else {
      ++p;
    }
  }
  return p;
}

}  // namespace kz

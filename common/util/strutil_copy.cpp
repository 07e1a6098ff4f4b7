// Copies that drop or change characters on the way.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"

namespace {

std::string_view view(const char* text) { return text == nullptr ? "" : text; }

// Copies what `keep` accepts.
template <class Predicate>
char* copy_if(char* destination, const char* source, Predicate keep) {
  const std::string_view text = view(source);
  char* const end = std::copy_if(text.begin(), text.end(), destination, keep);
  *end = '\0';
  return end;
}

char* copy_with_pairs_as(char* destination, const char* source, char replacement) {
  const std::string_view text = view(source);
  for (auto at = text.begin(); at != text.end(); ++at) {
    const bool pair = *at == '\r' && at + 1 != text.end() && at[1] == '\n';
    if (pair) ++at;
    *destination++ = pair ? replacement : *at;
  }
  *destination = '\0';
  return destination;
}

}  // namespace

char* strcatrn(char* destination, const char* source) {
  return strcat_crn(destination + std::strlen(destination), source);
}

// Only line feeds decide: each gets a carriage return of its own, and those of the source go.
char* strcat_crn(char* destination, const char* source) {
  for (const char c : view(source)) {
    if (c == '\r') continue;
    if (c == '\n') *destination++ = '\r';
    *destination++ = c;
  }
  *destination = '\0';
  return destination;
}

char* strcpy_rn(char* destination, const char* source) {
  return copy_with_pairs_as(destination, source, '\n');
}

char* strcpy_rr(char* destination, const char* source) {
  return copy_with_pairs_as(destination, source, '\r');
}

char* strcpydelcrlf(char* destination, const char* source) {
  return copy_with_pairs_as(destination, source, ' ');
}

char* strcpyleft1(char* destination, const char* source) {
  bool in_space = false;
  for (const char c : view(source)) {
    const bool space = _isspace(c) != 0;
    if (!space || !in_space) *destination++ = space ? ' ' : c;
    in_space = space;
  }
  *destination = '\0';
  return destination;
}

char* strcpydel(char* destination, const char* source, int16_t character) {
  const char dropped = static_cast<char>(character);
  return copy_if(destination, source, [=](char c) { return c != dropped; });
}

char* strcpydelm(char* destination, const char* source, const char* set) {
  std::array<bool, 256> dropped{};
  for (const char c : view(set)) dropped[static_cast<unsigned char>(c)] = true;
  return copy_if(destination, source,
                 [&](char c) { return !dropped[static_cast<unsigned char>(c)]; });
}

char* strncpy0(char* destination, const char* source, unsigned int count) {
  char* end = destination;
  if (source != nullptr) {
    for (; count != 0 && *source != '\0'; --count) *end++ = *source++;
  }
  *end = '\0';
  return destination;
}

char* insfst(char* text, const char* prefix) {
  std::array<char, 516> joined;
  const std::string_view front = view(prefix);
  const std::string_view back = view(text);
  if (text == nullptr || front.size() + back.size() >= joined.size()) return text;
  char* const end =
      std::copy(back.begin(), back.end(), std::copy(front.begin(), front.end(), joined.data()));
  *end = '\0';
  return std::strcpy(text, joined.data());
}

char* trimleft(char* text) {
  if (text == nullptr) return text;
  const char* first = text;
  while (_isspace(*first) != 0) ++first;
  if (first != text) std::memmove(text, first, std::strlen(first) + 1);
  return text;
}

char* trimright(char* text, int16_t length) {
  std::size_t end = view(text).size();
  if (length != -1) end = std::min(end, static_cast<std::size_t>(std::max<int>(length, 0)));
  std::replace_if(
      text, text + end, [](char c) { return _isspace(c) != 0; }, '\0');
  return text;
}

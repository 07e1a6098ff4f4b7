// Memory, copies of texts, word endings, numbers in text.
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"

void* kz_misc_malloc(size_t size) { return std::malloc(size); }

void* kz_misc_calloc(size_t count, size_t size) { return std::calloc(count, size); }

void kz_misc_free(void* block) { std::free(block); }

char* kz_misc_strdup(const char* text) {
  if (text == nullptr) return nullptr;
  const size_t room = std::strlen(text) + 1;
  auto* copy = static_cast<char*>(std::malloc(room));
  return copy == nullptr ? nullptr : static_cast<char*>(std::memcpy(copy, text, room));
}

int kz_misc_errno(void) { return errno; }

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

namespace {

template <class Equal>
int16_t ending_length(const char* word, int16_t length, const char* ending, Equal equal) {
  if (word == nullptr || ending == nullptr || length <= 0) return 0;
  const std::string_view tail = ending;
  const auto word_length = static_cast<std::size_t>(length);
  if (tail.size() > word_length) return 0;
  const char* const start = word + (word_length - tail.size());
  return std::equal(tail.begin(), tail.end(), start, equal) ? static_cast<int16_t>(tail.size())
                                                            : int16_t{0};
}

}  // namespace

int16_t isflex(const char* word, int16_t length, const char* ending) {
  return ending_length(word, length, ending, [](char a, char b) { return a == b; });
}

int16_t isiflex(const char* word, int16_t length, const char* ending) {
  return ending_length(word, length, ending,
                       [](char a, char b) { return __tolower(a) == __tolower(b); });
}

namespace {

void report_wrong_digits(const char* digits, bool hexadecimal) {
  for (; *digits != '\0' && _isspace(*digits) == 0; ++digits) {
    if ((hexadecimal ? _isxdigit(*digits) : _isdigit(*digits)) != 0) continue;
    std::array<char, 40> message;
    std::snprintf(message.data(), message.size(), "Error: Invalid %s digit %c.",
                  hexadecimal ? "hexadecimal" : "decimal", *digits);
    MsgBox(message.data(), 0, 1);
  }
}

// Reads as scanf does: white space, a sign, the "0x" of a hexadecimal number, digits.
std::int64_t read_number(const char* at, const char* end, bool hexadecimal) {
  while (_isspace(*at) != 0) ++at;
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  if (hexadecimal && at[0] == '0' && __tolower(at[1]) == 'x') at += 2;
  std::uint64_t value = 0;
  std::from_chars(at, end, value, hexadecimal ? 16 : 10);
  const auto number = static_cast<std::int64_t>(value);
  return negative ? -number : number;
}

// No more than 12 characters count, so that the value always fits.
std::int64_t convert(const char* text) {
  std::array<char, 13> copy;
  strncpy0(copy.data(), text, copy.size() - 1);
  const bool hexadecimal = copy[0] == '$';
  const char* const digits = copy.data() + (hexadecimal ? 1 : 0);
  report_wrong_digits(digits, hexadecimal);
  return read_number(digits, digits + std::string_view(digits).size(), hexadecimal);
}

}  // namespace

uint8_t hex_to_byte(const char* text) {
  if (text == nullptr || _isxdigit(text[0]) == 0 || _isxdigit(text[1]) == 0) return 0;
  std::uint8_t value = 0;
  std::from_chars(text, text + 2, value, 16);
  return value;
}

int16_t convert_number(const char* text) { return static_cast<int16_t>(convert(text)); }

int32_t convert_lnumber(const char* text) { return static_cast<int32_t>(convert(text)); }

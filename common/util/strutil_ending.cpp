// Tests of word endings.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"

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

// Russian letters as numeric HTML references, and back.
#include <cstddef>

#include "kz/codepage.h"
#include "text/char_classes.h"

namespace kz {
namespace {

constexpr std::size_t kReferenceSize = 6;  // "&#196;"

bool is_decimal(char c) { return is_in(c, char_class::kDigit); }

// True for a reference of three digits. Looks no further than the first character that
// breaks it, so that it never passes the final zero.
bool is_reference(const char* text) {
  return text[0] == '&' && text[1] == '#' && is_decimal(text[2]) && is_decimal(text[3]) &&
         is_decimal(text[4]) && text[5] == ';';
}

}  // namespace
}  // namespace kz

char* stransitohtml(const char* source, char* destination) {
  for (; *source != '\0'; ++source) {
    if (!kz::is_in(*source, kz::char_class::kRuAnsiAlpha)) {
      *destination++ = *source;
      continue;
    }
    const int code = static_cast<unsigned char>(*source);
    const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
    for (const char c : {'&', '#', digit(code / 100), digit(code / 10), digit(code), ';'}) {
      *destination++ = c;
    }
  }
  *destination = '\0';
  return destination;
}

char* strhtmltoansi(const char* source, char* destination) {
  while (*source != '\0') {
    if (!kz::is_reference(source)) {
      *destination++ = *source++;
      continue;
    }
    const auto value = [source](std::size_t i) { return source[i] - '0'; };
    *destination++ = static_cast<char>(value(2) * 100 + value(3) * 10 + value(4));
    source += kz::kReferenceSize;
  }
  *destination = '\0';
  return destination;
}

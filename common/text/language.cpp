// Language codes: recognising, mapping, inverting.
#include "text/language.h"

#include <cstring>

#include "kz/language.h"

using kz::is_language;
namespace code = kz::code;

int16_t kz_locl_is_ru_language(const char* text) { return is_language(text, code::ru); }
int16_t kz_locl_is_en_language(const char* text) { return is_language(text, code::en); }
int16_t kz_locl_is_fr_language(const char* text) { return is_language(text, code::fr); }
int16_t kz_locl_is_de_language(const char* text) { return is_language(text, code::de); }

const char* kz_locl_language(const char* text) {
  if (is_language(text, code::ru)) return code::ru;
  if (is_language(text, code::en)) return code::en;
  if (is_language(text, code::de)) return code::de;
  if (is_language(text, code::fr)) return code::fr;
  return nullptr;
}

const char* LanguageIdToStr(uint16_t identifier) {
  switch (identifier) {
    case 1049: return code::ru;
    case 1033: return code::en;
    case 1036: return code::fr;
    case 1031: return code::de;
    default: return nullptr;
  }
}

char* InvertLanguages(char* direction) {
  if (direction == nullptr || direction[0] == '\0' || direction[1] == '\0' ||
      direction[2] == '\0') {
    return direction;
  }
  // Copied up to its first zero: a direction of three characters has one in the middle.
  const char inverted[] = {direction[2], direction[3], direction[0], direction[1], '\0'};
  return std::strcpy(direction, inverted);
}

// Language codes: recognising, mapping, inverting.
#include "text/language.h"

#include <cstring>

#include "kz/language.h"

using kz::is_language;
namespace code = kz::code;

int16_t kz_locl_is_ru_language(const char* text) { return is_language(text, code::kRu); }
int16_t kz_locl_is_en_language(const char* text) { return is_language(text, code::kEn); }
int16_t kz_locl_is_fr_language(const char* text) { return is_language(text, code::kFr); }
int16_t kz_locl_is_de_language(const char* text) { return is_language(text, code::kDe); }

const char* kz_locl_language(const char* text) {
  if (is_language(text, code::kRu)) return code::kRu;
  if (is_language(text, code::kEn)) return code::kEn;
  if (is_language(text, code::kDe)) return code::kDe;
  if (is_language(text, code::kFr)) return code::kFr;
  return nullptr;
}

const char* LanguageIdToStr(uint16_t identifier) {
  switch (identifier) {
    case 1049: return code::kRu;
    case 1033: return code::kEn;
    case 1036: return code::kFr;
    case 1031: return code::kDe;
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

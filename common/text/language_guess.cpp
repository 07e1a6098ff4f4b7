// Telling Russian from Latin text by counting letters.
#include <cstring>
#include <string_view>

#include "kz/special.h"
#include "text/char_classes.h"
#include "text/language.h"

namespace kz {
namespace {

constexpr int kUndecided = -1;

struct LetterCount {
  int russian = 0;
  int latin = 0;

  void add(char c, CharClass latin_letters) {
    if (is_in(c, char_class::kRuAnsiAlpha)) {
      ++russian;
    } else if (is_in(c, latin_letters)) {
      ++latin;
    }
  }
};

// Between English and Russian, or when nothing is known, only plain letters are Latin ones.
CharClass latin_letters_of(const char* language) {
  const bool is_plain = language == nullptr || std::strcmp(language, code::kEnru) == 0 ||
                        std::strcmp(language, code::kRuen) == 0;
  return is_plain ? char_class::kAsciiAlpha : char_class::kAnsiAlpha;
}

}  // namespace
}  // namespace kz

int IsBufRuLanguage(const char* text, int16_t length, const char* language) {
  if (text == nullptr) return kz::kUndecided;
  const kz::CharClass latin_letters = kz::latin_letters_of(language);
  kz::LetterCount count;
  for (; length > 0 && *text != '\0'; --length, ++text) count.add(*text, latin_letters);
  if (count.russian == count.latin) return kz::kUndecided;
  return count.russian > count.latin ? count.russian : 0;
}

int IsWordRuLanguage(const char* word, const char* language) {
  if (word == nullptr) return kz::kUndecided;
  const kz::CharClass latin_letters = kz::latin_letters_of(language);
  kz::LetterCount count;
  for (; *word != '\0'; ++word) count.add(*word, latin_letters);
  if (count.latin > 0 && count.latin >= count.russian) return 0;
  return count.russian > 0 ? count.russian : kz::kUndecided;
}

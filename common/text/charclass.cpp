// Character classes and case of the five families.
#include "kz/charclass.h"

#include "text/byte_map.h"
#include "text/case_maps.h"
#include "text/char_classes.h"
#include "text/language.h"

namespace kz {
namespace {

using namespace char_class;

constexpr int kInternalCodePage = 1;

char* change_case(char* text, const Translation& translation) {
  if (text != nullptr) translate_text(text, text, translation);
  return text;
}

// The classes that the selectors choose from.
struct Selection {
  CharClass ru_oem, oem, ru_ansi, ansi, ascii;
};

constexpr Selection kAlpha{kRuOemAlpha, kOemAlpha, kRuAnsiAlpha, kAnsiAlpha, kAsciiAlpha};
constexpr Selection kUpper{kRuOemUpper, kOemUpper, kRuAnsiUpper, kAnsiUpper, kAsciiUpper};
constexpr Selection kLower{kRuOemLower, kOemLower, kRuAnsiLower, kAnsiLower, kAsciiLower};

bool is_selected(int character, const char* language, int code_page, const Selection& classes) {
  switch (code_page) {
    case 0:
      return is_in(character, is_language(language, code::kRu) ? classes.ru_oem : classes.oem);
    case 1:
      return is_in(character, is_language(language, code::kRu) ? classes.ru_ansi : classes.ansi);
    default: return is_in(character, classes.ascii);
  }
}

bool is_mark(int character, int code_page, CharClass anywhere, CharClass in_ansi) {
  return is_in(character, code_page == 1 ? anywhere | in_ansi : anywhere);
}

}  // namespace
}  // namespace kz

using namespace kz::char_class;
using kz::is_in;

int16_t _isupper(int character) { return is_in(character, kAsciiUpper); }
int16_t _islower(int character) { return is_in(character, kAsciiLower); }
int16_t _isalpha(int character) { return is_in(character, kAsciiAlpha); }
int16_t _isdigit(int character) { return is_in(character, kDigit); }
int16_t _isalnum(int character) { return is_in(character, kAsciiAlpha | kDigit); }
int16_t _isxdigit(int character) { return is_in(character, kDigit | kHexLetter); }
int16_t _isspace(int character) { return is_in(character, kSpace); }
int16_t _iscntrl(int character) { return is_in(character, kControl); }
int __toupper(int character) { return kz::kAsciiCase.upper[character]; }
int __tolower(int character) { return kz::kAsciiCase.lower[character]; }
char* __strupr(char* text) { return kz::change_case(text, kz::kAsciiCase.upper); }
char* __strlwr(char* text) { return kz::change_case(text, kz::kAsciiCase.lower); }

int16_t isruansiupper(int character) { return is_in(character, kRuAnsiUpper); }
int16_t isruansilower(int character) { return is_in(character, kRuAnsiLower); }
int16_t isruansialpha(int character) { return is_in(character, kRuAnsiAlpha); }
int16_t isruansialnum(int character) { return is_in(character, kRuAnsiAlpha | kDigit); }
int toruansiupper(int character) { return kz::kRuAnsiCase.upper[character]; }
int toruansilower(int character) { return kz::kRuAnsiCase.lower[character]; }
char* strruansiupr(char* text) { return kz::change_case(text, kz::kRuAnsiCase.upper); }
char* strruansilwr(char* text) { return kz::change_case(text, kz::kRuAnsiCase.lower); }

int16_t isruoemupper(int character) { return is_in(character, kRuOemUpper); }
int16_t isruoemlower(int character) { return is_in(character, kRuOemLower); }
int16_t isruoemalpha(int character) { return is_in(character, kRuOemAlpha); }
int16_t isruoemalnum(int character) { return is_in(character, kRuOemAlpha | kDigit); }
int toruoemupper(int character) { return kz::kRuOemCase.upper[character]; }
int toruoemlower(int character) { return kz::kRuOemCase.lower[character]; }
char* strruoemupr(char* text) { return kz::change_case(text, kz::kRuOemCase.upper); }
char* strruoemlwr(char* text) { return kz::change_case(text, kz::kRuOemCase.lower); }

int16_t isansiupper(int character) { return is_in(character, kAnsiUpper); }
int16_t isansilower(int character) { return is_in(character, kAnsiLower); }
int16_t isansialpha(int character) { return is_in(character, kAnsiAlpha); }
int16_t isansialnum(int character) { return is_in(character, kAnsiAlpha | kDigit); }
int toansiupper(int character) { return kz::kAnsiCase.upper[character]; }
int toansilower(int character) { return kz::kAnsiCase.lower[character]; }
char* stransiupr(char* text) { return kz::change_case(text, kz::kAnsiCase.upper); }
char* stransilwr(char* text) { return kz::change_case(text, kz::kAnsiCase.lower); }

int16_t isoemupper(int character) { return is_in(character, kOemUpper); }
int16_t isoemlower(int character) { return is_in(character, kOemLower); }
int16_t isoemalpha(int character) { return is_in(character, kOemAlpha); }
int16_t isoemalnum(int character) { return is_in(character, kOemAlpha | kDigit); }
int tooemupper(int character) { return kz::kOemCase.upper[character]; }
int tooemlower(int character) { return kz::kOemCase.lower[character]; }
char* stroemupr(char* text) { return kz::change_case(text, kz::kOemCase.upper); }
char* stroemlwr(char* text) { return kz::change_case(text, kz::kOemCase.lower); }

int16_t ischalpha(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::kAlpha);
}
int16_t ischupper(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::kUpper);
}
int16_t ischlower(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::kLower);
}
int16_t IsUCharAlpha(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::kAlpha);
}

int16_t ischpunct(int character, int code_page) {
  return !is_in(character, kAsciiAlpha | kDigit | (code_page == 1 ? kRuAnsiAlpha : kRuOemAlpha));
}
int16_t iscomma(int character, int code_page) {
  return kz::is_mark(character, code_page, kComma, kAnsiComma);
}
int16_t isdash(int character, int code_page) {
  return kz::is_mark(character, code_page, kDash, kAnsiDash);
}
int16_t isapostrophe(int character, int code_page) {
  return kz::is_mark(character, code_page, kApostrophe, kAnsiApostrophe);
}
int16_t isqmark(int character, int code_page) {
  return kz::is_mark(character, code_page, kQuote, kAnsiQuote);
}

int16_t IsSourcePunct(int character) { return ischpunct(character, kz::kInternalCodePage); }
int16_t IsSourceComma(int character) { return iscomma(character, kz::kInternalCodePage); }
int16_t IsSourceDash(int character) { return isdash(character, kz::kInternalCodePage); }
int16_t IsSourceApostrophe(int character) { return isapostrophe(character, kz::kInternalCodePage); }
int16_t IsSourceQmark(int character) { return isqmark(character, kz::kInternalCodePage); }

int16_t kz_codr_get_internal_code() { return kz::kInternalCodePage; }

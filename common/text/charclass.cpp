// Character classes and case of the five families.
#include "kz/charclass.h"

#include "text/byte_map.h"
#include "text/case_maps.h"
#include "text/char_classes.h"
#include "text/language.h"

namespace kz {
namespace {

using namespace char_class;

constexpr int internal_code_page = 1;

char* change_case(char* text, const Translation& translation) {
  if (text != nullptr) translate_text(text, text, translation);
  return text;
}

// The classes that the selectors choose from.
struct Selection {
  CharClass ru_oem, oem, ru_ansi, ansi, ascii;
};

constexpr Selection alpha{ru_oem_alpha, oem_alpha, ru_ansi_alpha, ansi_alpha, ascii_alpha};
constexpr Selection upper{ru_oem_upper, oem_upper, ru_ansi_upper, ansi_upper, ascii_upper};
constexpr Selection lower{ru_oem_lower, oem_lower, ru_ansi_lower, ansi_lower, ascii_lower};

bool is_selected(int character, const char* language, int code_page, const Selection& classes) {
  switch (code_page) {
    case 0: return is_in(character, is_language(language, code::ru) ? classes.ru_oem : classes.oem);
    case 1:
      return is_in(character, is_language(language, code::ru) ? classes.ru_ansi : classes.ansi);
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

int16_t _isupper(int character) { return is_in(character, ascii_upper); }
int16_t _islower(int character) { return is_in(character, ascii_lower); }
int16_t _isalpha(int character) { return is_in(character, ascii_alpha); }
int16_t _isdigit(int character) { return is_in(character, digit); }
int16_t _isalnum(int character) { return is_in(character, ascii_alpha | digit); }
int16_t _isxdigit(int character) { return is_in(character, digit | hex_letter); }
int16_t _isspace(int character) { return is_in(character, space); }
int16_t _iscntrl(int character) { return is_in(character, control); }
int __toupper(int character) { return kz::ascii_case.upper[character]; }
int __tolower(int character) { return kz::ascii_case.lower[character]; }
char* __strupr(char* text) { return kz::change_case(text, kz::ascii_case.upper); }
char* __strlwr(char* text) { return kz::change_case(text, kz::ascii_case.lower); }

int16_t isruansiupper(int character) { return is_in(character, ru_ansi_upper); }
int16_t isruansilower(int character) { return is_in(character, ru_ansi_lower); }
int16_t isruansialpha(int character) { return is_in(character, ru_ansi_alpha); }
int16_t isruansialnum(int character) { return is_in(character, ru_ansi_alpha | digit); }
int toruansiupper(int character) { return kz::ru_ansi_case.upper[character]; }
int toruansilower(int character) { return kz::ru_ansi_case.lower[character]; }
char* strruansiupr(char* text) { return kz::change_case(text, kz::ru_ansi_case.upper); }
char* strruansilwr(char* text) { return kz::change_case(text, kz::ru_ansi_case.lower); }

int16_t isruoemupper(int character) { return is_in(character, ru_oem_upper); }
int16_t isruoemlower(int character) { return is_in(character, ru_oem_lower); }
int16_t isruoemalpha(int character) { return is_in(character, ru_oem_alpha); }
int16_t isruoemalnum(int character) { return is_in(character, ru_oem_alpha | digit); }
int toruoemupper(int character) { return kz::ru_oem_case.upper[character]; }
int toruoemlower(int character) { return kz::ru_oem_case.lower[character]; }
char* strruoemupr(char* text) { return kz::change_case(text, kz::ru_oem_case.upper); }
char* strruoemlwr(char* text) { return kz::change_case(text, kz::ru_oem_case.lower); }

int16_t isansiupper(int character) { return is_in(character, ansi_upper); }
int16_t isansilower(int character) { return is_in(character, ansi_lower); }
int16_t isansialpha(int character) { return is_in(character, ansi_alpha); }
int16_t isansialnum(int character) { return is_in(character, ansi_alpha | digit); }
int toansiupper(int character) { return kz::ansi_case.upper[character]; }
int toansilower(int character) { return kz::ansi_case.lower[character]; }
char* stransiupr(char* text) { return kz::change_case(text, kz::ansi_case.upper); }
char* stransilwr(char* text) { return kz::change_case(text, kz::ansi_case.lower); }

int16_t isoemupper(int character) { return is_in(character, oem_upper); }
int16_t isoemlower(int character) { return is_in(character, oem_lower); }
int16_t isoemalpha(int character) { return is_in(character, oem_alpha); }
int16_t isoemalnum(int character) { return is_in(character, oem_alpha | digit); }
int tooemupper(int character) { return kz::oem_case.upper[character]; }
int tooemlower(int character) { return kz::oem_case.lower[character]; }
char* stroemupr(char* text) { return kz::change_case(text, kz::oem_case.upper); }
char* stroemlwr(char* text) { return kz::change_case(text, kz::oem_case.lower); }

int16_t ischalpha(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::alpha);
}
int16_t ischupper(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::upper);
}
int16_t ischlower(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::lower);
}
int16_t IsUCharAlpha(int character, const char* language, int code_page) {
  return kz::is_selected(character, language, code_page, kz::alpha);
}

int16_t ischpunct(int character, int code_page) {
  return !is_in(character, ascii_alpha | digit | (code_page == 1 ? ru_ansi_alpha : ru_oem_alpha));
}
int16_t iscomma(int character, int code_page) {
  return kz::is_mark(character, code_page, comma, ansi_comma);
}
int16_t isdash(int character, int code_page) {
  return kz::is_mark(character, code_page, dash, ansi_dash);
}
int16_t isapostrophe(int character, int code_page) {
  return kz::is_mark(character, code_page, apostrophe, ansi_apostrophe);
}
int16_t isqmark(int character, int code_page) {
  return kz::is_mark(character, code_page, quote, ansi_quote);
}

int16_t IsSourcePunct(int character) { return ischpunct(character, kz::internal_code_page); }
int16_t IsSourceComma(int character) { return iscomma(character, kz::internal_code_page); }
int16_t IsSourceDash(int character) { return isdash(character, kz::internal_code_page); }
int16_t IsSourceApostrophe(int character) {
  return isapostrophe(character, kz::internal_code_page);
}
int16_t IsSourceQmark(int character) { return isqmark(character, kz::internal_code_page); }

int16_t kz_codr_get_internal_code() { return kz::internal_code_page; }

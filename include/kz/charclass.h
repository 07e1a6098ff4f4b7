/* Character classes and case, independent of any locale.
 *
 * One family of functions per code page: plain ASCII (_isalpha), Russian ansi (Windows-1251,
 * isruansialpha), Russian oem (CP866, isruoemalpha), Western ansi (Windows-1252, isansialpha) and
 * Western oem (CP850, isoemalpha); selectors that pick a family by language and code page; the
 * punctuation classes of source text. Characters are cut to their low 8 bits; class tests return 1
 * or 0; case functions return a code of 0 to 255; string functions work in place and return their
 * argument, null for null.
 *
 *   int c = 0xC4;  // a Russian capital of Windows-1251
 *   if (ischalpha(c, "RUEN", 1)) c = toruansilower(c);
 *   printf("%X\n", c);  // the small letter
 *   // Output: E4
 */
#ifndef KZ_CHARCLASS_H
#define KZ_CHARCLASS_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Plain ASCII. No character above 127 is in a class or has a case. */
KZ_API int16_t _isupper(int character);
KZ_API int16_t _islower(int character);
KZ_API int16_t _isalpha(int character);
KZ_API int16_t _isdigit(int character);
KZ_API int16_t _isalnum(int character);
KZ_API int16_t _isxdigit(int character); /* 0-9, a-f, A-F */
KZ_API int16_t _isspace(int character);  /* 9 to 13 and the blank */
KZ_API int16_t _iscntrl(int character);  /* 0 to 31 and 127 */
KZ_API int __toupper(int character);
KZ_API int __tolower(int character);
KZ_API char* __strupr(char* text);
KZ_API char* __strlwr(char* text);

/* Russian ansi, Windows-1251. The classes hold the 66 Russian letters and no Latin ones; the case
 * functions map Latin letters too. */
KZ_API int16_t isruansiupper(int character);
KZ_API int16_t isruansilower(int character);
KZ_API int16_t isruansialpha(int character);
KZ_API int16_t isruansialnum(int character); /* Russian letters and ASCII digits */
KZ_API int toruansiupper(int character);
KZ_API int toruansilower(int character);
KZ_API char* strruansiupr(char* text);
KZ_API char* strruansilwr(char* text);

/* Russian oem, CP866. Neither classes nor case functions touch Latin letters. */
KZ_API int16_t isruoemupper(int character);
KZ_API int16_t isruoemlower(int character);
KZ_API int16_t isruoemalpha(int character);
KZ_API int16_t isruoemalnum(int character); /* Russian letters and ASCII digits */
KZ_API int toruoemupper(int character);
KZ_API int toruoemlower(int character);
KZ_API char* strruoemupr(char* text);
KZ_API char* strruoemlwr(char* text);

/* Western ansi, Windows-1252. The classes hold the ASCII letters and the German and French ones
 * (the sharp s is upper and lower at once); the case functions map all letters of Windows-1252 but
 * z with caron, so that a with acute has a capital though it is in no class. */
KZ_API int16_t isansiupper(int character);
KZ_API int16_t isansilower(int character);
KZ_API int16_t isansialpha(int character);
KZ_API int16_t isansialnum(int character);
KZ_API int toansiupper(int character);
KZ_API int toansilower(int character);
KZ_API char* stransiupr(char* text);
KZ_API char* stransilwr(char* text);

/* Western oem, CP850: ASCII letters and the German and French ones, in classes and case alike. The
 * oe ligature, which CP850 lacks, keeps its Windows-1252 codes; code 140 is thus both its capital
 * and the small i with circumflex. */
KZ_API int16_t isoemupper(int character);
KZ_API int16_t isoemlower(int character);
KZ_API int16_t isoemalpha(int character);
KZ_API int16_t isoemalnum(int character);
KZ_API int tooemupper(int character);
KZ_API int tooemlower(int character);
KZ_API char* stroemupr(char* text);
KZ_API char* stroemlwr(char* text);

/* Selectors. `code_page` 0 asks the oem family, 1 the ansi family, any other value plain ASCII. A
 * `language` that starts with "RU" in any case selects the Russian families, every other one (null
 * too) the Western ones. */
KZ_API int16_t ischalpha(int character, const char* language, int code_page);
KZ_API int16_t ischupper(int character, const char* language, int code_page);
KZ_API int16_t ischlower(int character, const char* language, int code_page);
KZ_API int16_t IsUCharAlpha(int character, const char* language, int code_page); /* ischalpha */

/* Punctuation. With `code_page` 1 the typographic forms of Windows-1251 and Windows-1252 count
 * beside the ASCII ones. */
KZ_API int16_t ischpunct(int character, int code_page);    /* no ASCII letter or digit, no Russian
                                                              letter (CP866 unless code_page is 1) */
KZ_API int16_t iscomma(int character, int code_page);      /* ',' and 130 */
KZ_API int16_t isdash(int character, int code_page);       /* '-' and 30, 150, 151, 173 */
KZ_API int16_t isapostrophe(int character, int code_page); /* '\'', '`' and 145, 146, 180 */
KZ_API int16_t isqmark(int character, int code_page);      /* '"' and 132, 147, 148, 171, 187 */

/* The same tests in the library's internal code page. */
KZ_API int16_t IsSourcePunct(int character);
KZ_API int16_t IsSourceComma(int character);
KZ_API int16_t IsSourceDash(int character);
KZ_API int16_t IsSourceApostrophe(int character);
KZ_API int16_t IsSourceQmark(int character);

/* The code page in which the library keeps text: 1, ansi. */
KZ_API int16_t kz_codr_get_internal_code(void);

#ifdef __cplusplus
}
#endif

#endif /* KZ_CHARCLASS_H */

/* Conversions between the code pages of Russian and of German and French text.
 *
 * The library keeps text in Windows code pages ("ansi"): Windows-1251 for Russian, Windows-1252 for
 * German and French. These functions bring text in from, and out to, CP866 and CP850 ("oem", the
 * console's), KOI8-R, ISO 8859-5, Mac Cyrillic and numeric HTML references. Only the letters of the
 * languages, some punctuation and the box-drawing characters are translated; every other byte
 * passes unchanged, and codes below 128 always do. There are no failures; no pointer may be null.
 *
 *   char line[] = "\xE4\xEE\xEC";             // three letters of Windows-1251
 *   char* end = strruansitooem(line, line);  // now CP866, in place; *end is the final zero
 *   printf("%d %X\n", (int)(end - line), (unsigned char)line[0]);  // Output: 3 A4
 */
#ifndef KZ_CODEPAGE_H
#define KZ_CODEPAGE_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Single characters. Each takes a code (cut to its low 8 bits) and returns the converted code, 0 to
 * 255.
 *
 * From an ansi code page, typographic punctuation becomes ASCII first: the quotes 132, 147, 148,
 * 171 and 187 become '"', 130 ',', 145 '`', 146 and 180 '\'', the dashes 150 and 151 and the soft
 * hyphen 173 '-'. Into an ansi code page, codes of the box-drawing block of CP866 and CP850 (176 to
 * 223) that are no letter of the source become '-', '=', ':' or '+'. */
KZ_API int _ruansitooem(int character); /* Windows-1251 to CP866, punctuation to ASCII */
KZ_API int _ruoemtoansi(int character); /* CP866 to Windows-1251, box drawing to ASCII */
KZ_API int _ansitooem(int character);   /* Windows-1252 to CP850, punctuation to ASCII */
KZ_API int _oemtoansi(int character);   /* CP850 to Windows-1252, box drawing to ASCII */
KZ_API int _ansitokoi8(int character);  /* Windows-1251 to KOI8-R, punctuation to ASCII */
KZ_API int _koi8toansi(int character);  /* KOI8-R to Windows-1251, codes of the block to ASCII */
KZ_API int _oemtokoi8(int character);   /* CP866 to KOI8-R */
KZ_API int _koi8tooem(int character);   /* KOI8-R to CP866 */
KZ_API int _ansitoiso(int character);   /* Windows-1251 to ISO 8859-5, punctuation to ASCII */
KZ_API int _isotoansi(int character);   /* ISO 8859-5 to Windows-1251 */
KZ_API int _oemtoiso(int character);    /* CP866 to ISO 8859-5 */
KZ_API int _isotooem(int character);    /* ISO 8859-5 to CP866 */
KZ_API int _mactooem(int character);    /* Mac Cyrillic to CP866 */
KZ_API int _oemtomac(int character);    /* CP866 to Mac Cyrillic */

/* Zero-terminated texts. Each converts `source` byte by byte with the single-character function of
 * its name into `destination`, stores a zero after the last byte and returns a pointer to that
 * zero. `destination` holds the source's length plus one byte; it may be the source itself or begin
 * before it in the same buffer. */
KZ_API char* strruansitooem(const char* source, char* destination);
KZ_API char* strruoemtoansi(const char* source, char* destination);
KZ_API char* stransitooem(const char* source, char* destination);
KZ_API char* stroemtoansi(const char* source, char* destination);
KZ_API char* stransitokoi8(const char* source, char* destination);
KZ_API char* strkoi8toansi(const char* source, char* destination);
KZ_API char* stroemtokoi8(const char* source, char* destination);
KZ_API char* strkoi8tooem(const char* source, char* destination);
KZ_API char* stransitoiso(const char* source, char* destination);
KZ_API char* strisotoansi(const char* source, char* destination);
KZ_API char* stroemtoiso(const char* source, char* destination);
KZ_API char* strisotooem(const char* source, char* destination);
KZ_API char* strmactooem(const char* source, char* destination);
KZ_API char* strrumactooem(const char* source, char* destination); /* the same as strmactooem */
KZ_API char* stroemtomac(const char* source, char* destination);
KZ_API char* strruoemtomac(const char* source, char* destination); /* the same as stroemtomac */

/* Copies Windows-1251 text, writing each Russian letter as "&#", its Windows-1251 code (not its
 * Unicode number) in three digits and ";". `destination` holds up to six times the source's length
 * plus one byte and must not overlap the source. Returns a pointer to the final zero. */
KZ_API char* stransitohtml(const char* source, char* destination);

/* Copies text, writing one byte for each "&#", exactly three digits and ";": the number's low 8
 * bits. All other text is copied unchanged. `destination` holds the source's length plus one byte
 * and may be the source itself. Returns a pointer to the final zero. A reference such as "&#000;"
 * puts a zero byte into the text before it. */
KZ_API char* strhtmltoansi(const char* source, char* destination);

/* Replaces every small yo (Windows-1251) by ie, in place; the capital stays. Returns `text`; null
 * is allowed here and returned. */
KZ_API char* kz_codr_ee(char* text);

/* Copy `source` with one letter written as two. Each returns the number of replacements (its low 16
 * bits). `destination` holds the source's length plus that number plus one byte and must not
 * overlap the source. */
KZ_API uint16_t kz_codr_oem_ss(const char* source, char* destination);  /* sharp s of CP850: ss */
KZ_API uint16_t kz_codr_ansi_ss(const char* source, char* destination); /* of Windows-1252: ss */
KZ_API uint16_t kz_codr_ansi_oe(const char* source, char* destination); /* small oe ligature of
                                                                           Windows-1252: oe */

#ifdef __cplusplus
}
#endif

#endif /* KZ_CODEPAGE_H */

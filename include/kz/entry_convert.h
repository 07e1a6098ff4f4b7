/* Conversion of dictionary entries, and of texts of two scripts, between code pages.
 *
 * The sections of an entry are in different scripts, and the same byte is a Russian letter in one
 * and an accented letter in another. These functions convert each section of an entry with the
 * table of its script, between the Windows code pages in which entries are kept ("ansi",
 * Windows-1251 and Windows-1252) and those of the console ("oem", CP866 and CP850); and a text that
 * mixes Russian words with Latin ones word by word. One byte gives one byte, and all ASCII
 * characters stay. The format of entries is described in docs/entry-format.md.
 *
 *   // A German headword and its Russian translation, each with a byte FC.
 *   char line[32];
 *   DicEntryAnsiToOem("T\xFCr*N\xE4\xE2\xE5\xF0\xFC", line, "DERU");
 *   printf("%X %X\n", (unsigned char)line[1], (unsigned char)line[9]);  // Output: 81 EC
 *
 * Destinations hold the source's length plus one byte and may be the source itself. `language` is a
 * language or direction code in capitals; source and destination may not be null. */
#ifndef KZ_ENTRY_CONVERT_H
#define KZ_ENTRY_CONVERT_H

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A full entry. Head word and source sections are in the language that the first letter of
 * `language` names (Russian for R and E, Western for any other); part code and attribute block are
 * Russian; the body is in the language of the third letter, or else of the first, and with the
 * third letter D it mixes German and Russian words. Returns `destination`. For a null language the
 * whole entry is converted as one text, without a language, and the result is a pointer to the
 * final zero. */
KZ_API char* DicEntryAnsiToOem(const char* source, char* destination, const char* language);
KZ_API char* DicEntryOemToAnsi(const char* source, char* destination, const char* language);

/* A text that mixes Russian words and words in Latin letters. `language` tells the letters that are
 * in doubt: the special letters (kz/special.h) of German or French, when its third and further
 * characters name that language, or its first ones when there is no third. Such a letter follows
 * the letters of its word before it, Russian or Latin ones, whichever are more; when they are as
 * many, it follows the letter after it; without one it is Russian, or Western if the third and
 * further characters are more than two. With any other language and null no letter is in doubt, and
 * all of the text is Russian. Returns a pointer to the final zero. */
KZ_API char* strdicansitooem(const char* source, char* destination, const char* language);
KZ_API char* strdicoemtoansi(const char* source, char* destination, const char* language);

#ifdef __cplusplus
}
#endif

#endif /* KZ_ENTRY_CONVERT_H */

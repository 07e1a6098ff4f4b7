/* Comparison of texts with case or accents ignored, character search, vowels.
 *
 * The names spell what they do: str, then the code page (ruansi Windows-1251, ruoem CP866, ansi
 * Windows-1252, oem CP850), then i (ignore case), a (ignore accents) or ai (both), n (at most n
 * characters), cmp. There is no collation by language: order is that of the folded codes, so that
 * yo is before all other Russian letters in Windows-1251 and after them in CP866.
 *
 *   const char* headword = "\xC9" "cole";  // with an accent on its first letter
 *   if (stransiaicmp("ecole", headword, "FR") == 0) puts("found");  // Output: found
 */
#ifndef KZ_COMPARE_H
#define KZ_COMPARE_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* All comparisons return the difference of two byte values, -255 to 255: negative when `a` comes
 * first, 0 when the texts compare equal. A null text counts as empty.
 *
 * The forms without n compare folded characters while both are letters of the code page; where the
 * texts differ at something that is no letter, or where one ends, the result is the difference of
 * the two bytes as they are. The forms with n fold every character, letter or not, and look at no
 * more than n of them; an n below 1 gives 0. */

/* Ignoring case. The Russian ansi form takes the Latin letters as letters too, the Russian oem
 * forms do not. */
KZ_API int stransiicmp(const char* a, const char* b);
KZ_API int strruansiicmp(const char* a, const char* b);
KZ_API int stroemicmp(const char* a, const char* b);
KZ_API int strruoemicmp(const char* a, const char* b);
KZ_API int strruansinicmp(const char* a, const char* b, int n);
KZ_API int stroemnicmp(const char* a, const char* b, int n);
KZ_API int strruoemnicmp(const char* a, const char* b, int n);

/* Ignoring accents: each character is replaced by its base letter in the language (see
 * kz_codr_base_member), which also ignores the case of the letters that carry accents there. When
 * `language` begins with a capital 'R' the text is Russian: then the comparison is exact, or, where
 * case is ignored as well, that of the Russian function of the same code page. A null language has
 * no accented letters. */
KZ_API int stransiacmp(const char* a, const char* b, const char* language);
KZ_API int stroemacmp(const char* a, const char* b, const char* language);
KZ_API int stransiaicmp(const char* a, const char* b, const char* language);
KZ_API int stroemaicmp(const char* a, const char* b, const char* language);
KZ_API int stransiancmp(const char* a, const char* b, int n, const char* language);
KZ_API int stroemancmp(const char* a, const char* b, int n, const char* language);
KZ_API int stroemanicmp(const char* a, const char* b, int n, const char* language);

/* The first, or last, byte of `text` equal to the low 8 bits of `character`; null when there is
 * none. The zero is found at the text's end. Null text gives null. */
KZ_API char* _strchr(const char* text, int character);
KZ_API char* _strrchr(const char* text, int character);

/* The position of an English vowel (the low 8 bits of `character`) in "aeiouyAEIOUY", counted from
 * 1; 13 for the zero character, 0 for anything else. */
KZ_API int16_t isvowel(int character);

/* 1 for the Russian vowels a, ie, i, o, u, yery and their capitals in Windows-1251, else 0. Yo, e,
 * yu and ya are none here. */
KZ_API int16_t isrvowel(int character);

#ifdef __cplusplus
}
#endif

#endif /* KZ_COMPARE_H */

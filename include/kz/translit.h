/* Transliteration between Latin and Russian text, and text typed with the wrong keyboard layout.
 *
 * Letter by letter, Russian becomes Latin with forms of up to three letters (SCH) and Latin becomes
 * Russian; the smart transliteration writes English words as they sound, by rules that look at the
 * neighbouring letters (docs/conversions.md lists them); the layout functions repair text typed on
 * the wrong one of the Russian and the Latin keyboard, or written with letters of the other
 * alphabet that look the same. Russian text is Windows-1251.
 *
 *   char name[32], latin[32];
 *   strtransliterateenrusmart("Washington", name, 1);
 *   puts(name);  // Output: Уошингтон
 *   xliteratr(latin, name, 0);
 *   puts(latin);  // Output: Uoshington
 */
#ifndef KZ_TRANSLIT_H
#define KZ_TRANSLIT_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Single characters (cut to their low 8 bits). Each writes up to three characters and a final zero
 * to `out`, which holds four bytes, and returns `out`. */

/* The direction is that of `language`: one that begins with the capital R is Russian to Latin, as
 * translitru; EN or ENRU in any case is Russian to Latin capitals, as translitenru. Any other one,
 * or null, is Latin to Russian: the letter whose place in the alphabet is that of the character's
 * base letter (kz_codr_base_member of kz/special.h, for null as in French), a capital for a
 * capital; a character without a base letter from a to z stays. `flags` is not used. */
KZ_API char* translit(int character, char* out, const char* language, int16_t flags);
/* A Russian letter becomes its Latin letters, all capital or all small like itself (small SCH is
 * sch); any other character stays. */
KZ_API char* translitru(int character, char* out);
/* A Russian letter, capital or small, becomes its Latin letters in capitals; ';' becomes ',', '<'
 * and '[' become '(', '>' and ']' become ')', '@' becomes "::"; any other character stays. */
KZ_API char* translitenru(int character, char* out);

/* Texts. Source and destination do not overlap, and are not null unless it is said. */

/* Writes the `translit` of each character of `source` one after the other. `destination` holds
 * three times the source's length plus one byte. Returns a pointer to the final zero. */
KZ_API char* strtransliterate(const char* source, char* destination, const char* language,
                              int16_t flags);
/* Writes English text in Russian letters as it sounds. With `smart` 0 all letters are small;
 * otherwise capitals give capitals: of the several letters that one capital gives, the first, and
 * the others only when the next source character is a capital as well. `destination` holds twice
 * the source's length plus one byte. Returns a pointer to the final zero; `destination`, with
 * nothing written, when the source is null or empty or the destination null. */
KZ_API char* strtransliterateenrusmart(const char* source, char* destination, int16_t smart);
/* Writes the `translitru` of each character of `source`; with `lower` not 0, ASCII capitals that do
 * not stand for a Russian capital become small. `destination` holds three times the source's length
 * plus one byte. Returns a pointer to the final zero; `destination`, with nothing written, when the
 * source is null or empty or the destination null. */
KZ_API char* xliteratr(char* destination, const char* source, int16_t lower);

/* Texts in place. Null gives null. */

/* Russian letters become the Latin letters that look like them; the other ones stay. The text ends
 * at its zero or before the first character equal to `stop`, when that is not 0. Returns a pointer
 * to where it ends. */
KZ_API char* strlat(char* text, int stop);
/* The reverse: Latin letters become the Russian letters that look like them. */
KZ_API char* strrus(char* text, int stop);
/* Russian letters become the characters that their keys give on a Latin keyboard (QWERTY). Returns
 * a pointer to the final zero. */
KZ_API char* strlatcase(char* text);
/* Latin letters and punctuation become the letters that their keys give on a Russian keyboard.
 * Returns a pointer to the final zero. */
KZ_API char* strruscase(char* text);

#ifdef __cplusplus
}
#endif

#endif /* KZ_TRANSLIT_H */

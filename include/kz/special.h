/* Special letters of the languages, and telling Russian from Latin text.
 *
 * Languages are named by codes (RU, EN, DE, FR) or directions (DERU: from German to Russian); the
 * first two letters, in any case, say the language of the text. The functions know the letters that
 * a language has beyond its plain alphabet, read them from ASCII notation (u" for u with
 * diaeresis), and guess a language by counting letters. Text is Windows-1251 for Russian,
 * Windows-1252 for German and French; characters are cut to their low 8 bits and returned as 0 to
 * 255.
 *
 *   char word[] = "Mu\"ller";
 *   kz_codr_create_spec_chars(word, word, "DERU");
 *   printf("%d letters\n", (int)strlen(word));  // the umlaut is one
 *   // Output: 6 letters
 */
#ifndef KZ_SPECIAL_H
#define KZ_SPECIAL_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* True when `language` is `code`: the texts are equal ignoring case, or both begin, ignoring case,
 * with the same one of EN, DE, FR, RU. Returns the first character of `language` (1 to 255) if so,
 * 0 if not and when either is null or empty. DERU is German and RUDE is Russian. */
KZ_API int16_t kz_codr_is_language(const char* language, const char* code);

/* The character when it is a special letter of the language, else 0; 0 for a null language. Special
 * are yo in Russian, the umlauts and sharp s in German, the accented letters in French. */
KZ_API int kz_codr_is_spec_char(int character, const char* language);

/* The small letter without accent on which a special letter of the language is based, and for the
 * plain letters with the same base the small letter too (German A gives a, B stays B); any other
 * character, and every character in another language or with null, unchanged. */
KZ_API int kz_codr_base_member(int character, const char* language);

/* Copies `source` with each digraph of the language's ASCII notation (German a" and Ss, French e',
 * c~, i^ ...) written as the one letter of Windows-1252. German is DE, a direction from it or RUDE;
 * French FR, a direction from it or RUFR. `destination` holds the source's length plus one byte and
 * may be the source itself. Returns a pointer to the final zero; null, with nothing written, for
 * another language or when an argument is null. */
KZ_API char* kz_codr_create_spec_chars(char* destination, const char* source, const char* language);

/* Counts the Russian letters (Windows-1251) and the Latin ones among the first `length` characters
 * of `text`, which may end before. Returns the number of Russian letters when they are more, 0 when
 * the Latin ones are more, -1 when they are as many (or none) and for null text. With the languages
 * "ENRU", "RUEN" or null only ASCII letters are Latin, with any other German and French ones too.
 */
KZ_API int IsBufRuLanguage(const char* text, int16_t length, const char* language);

/* The same for a whole word, where a tie is decided: 0 when there are Latin letters and no more
 * Russian ones than these, else the number of Russian letters; -1 when there is no letter at all
 * and for a null or empty word. */
KZ_API int IsWordRuLanguage(const char* word, const char* language);

/* Index of a grammatical case mask by its lowest bit above the nominative: 1 genitive (0x02), 2
 * dative (0x04), 3 accusative (0x08), 4 instrumental (0x10), 5 prepositional (0x20); 0 if there is
 * none. */
KZ_API int16_t x_case(unsigned mask);

/* Writes for each case of the mask, nominative (0x01) to prepositional (0x20), the initial of its
 * Russian name as a Windows-1251 capital. Returns a pointer after the last letter; writes no final
 * zero. `out` holds up to six bytes. */
KZ_API char* c_case(int mask, char* out);

#ifdef __cplusplus
}
#endif

#endif /* KZ_SPECIAL_H */

/* Language codes and the letter classes of each language.
 *
 * Languages are named by "RU", "EN", "FR", "DE", translation directions by two codes written
 * together, source first ("ENRU"). The functions recognise, map and invert these codes, and tell
 * vowels and consonants of each language. Russian letters are Windows-1251, German and French ones
 * Windows-1252; the letter classes hold small letters only.
 *
 *   char direction[] = "ENRU";
 *   if (kz_locl_is_en_language(direction)) puts(InvertLanguages(direction));  // Output: RUEN
 */
#ifndef KZ_LANGUAGE_H
#define KZ_LANGUAGE_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* 1 when the first two characters of `text` are the code, ignoring ASCII case, else 0; 0 for null.
 */
KZ_API int16_t kz_locl_is_ru_language(const char* text);
KZ_API int16_t kz_locl_is_en_language(const char* text);
KZ_API int16_t kz_locl_is_fr_language(const char* text);
KZ_API int16_t kz_locl_is_de_language(const char* text);

/* The library's own constant "RU", "EN", "DE" or "FR" that starts `text`, ignoring case; null when
 * none does and for null. Equal codes are the same pointer. */
KZ_API const char* kz_locl_language(const char* text);

/* The library's constant for a Windows language identifier: 1049 "RU", 1033 "EN", 1036 "FR", 1031
 * "DE"; null for any other. */
KZ_API const char* LanguageIdToStr(uint16_t identifier);

/* Swaps the halves of a four-character direction in place ("ENRU" becomes "RUEN"). A longer text is
 * cut to its first four characters, of one of three the last is left. Returns its argument; nothing
 * changes when that is null or has fewer than three characters. */
KZ_API char* InvertLanguages(char* direction);

/* The letters of a class, as a constant zero-terminated text of the library. */
KZ_API const char* GetRuVowel(void);
KZ_API const char* GetRuConsonant(void);
KZ_API const char* GetEnVowel(void);
KZ_API const char* GetEnConsonant(void);
KZ_API const char* GetFrVowel(void);
KZ_API const char* GetFrConsonant(void);
KZ_API const char* GetDeVowel(void);
KZ_API const char* GetDeConsonant(void);

/* The character (its low 8 bits) when it is in the class, else 0. Capitals are in no class. The
 * Russian vowels hold short i and the soft sign but not yo. */
KZ_API int16_t IsRuVowel(int character);
KZ_API int16_t IsRuConsonant(int character);
KZ_API int16_t IsRuVoicedConsonant(int character);
KZ_API int16_t IsRuVoiceLessConsonant(int character);
KZ_API int16_t IsEnVowel(int character);
KZ_API int16_t IsEnConsonant(int character);
KZ_API int16_t IsFrVowel(int character);
KZ_API int16_t IsFrConsonant(int character);
KZ_API int16_t IsDeVowel(int character);
KZ_API int16_t IsDeConsonant(int character);

/* The voiceless partner of a voiced Russian consonant, and the voiced one of a voiceless; any other
 * character (its low 8 bits) unchanged. */
KZ_API uint8_t ToRuVoiceLessConsonant(int character);
KZ_API uint8_t ToRuVoicedConsonant(int character);

#ifdef __cplusplus
}
#endif

#endif /* KZ_LANGUAGE_H */

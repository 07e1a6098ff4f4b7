/* Tag strings: the grammar of a word as dictionary entries and modules write it.
 *
 * GramToStr writes the records of a word (kz/gram_record.h) as a tag string such as "MS#12a:3%NA",
 * StrToGram reads one. What a letter means depends on the part of speech ("T" makes a verb
 * transitive, but is another flag of a noun), so both take the part-of-speech code. Reading only
 * adds: clear the records first. docs/grammar.md lists the tags. Text is Windows-1251;
 * part-of-speech codes are its characters, cut to their low 8 bits.
 *
 *   GRAMINFO gram = {{0}};
 *   SEMANTICS semantics = {0};
 *   char code = 0, area[2] = {0}, text[GRAM_STRING_SIZE];
 *   StrToGram("F@S#7%N]", &code, &gram, &semantics, 'N', area);
 *   puts(GramToStr('N', &gram, &semantics, text));  // Output: FS@#7%N
 */
#ifndef KZ_GRAM_CODEC_H
#define KZ_GRAM_CODEC_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/gram_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Room for any tag string, its final zero included. */
enum { GRAM_STRING_SIZE = 133 };

/* Writes the tag string of the records and returns `out`, which holds GRAM_STRING_SIZE bytes. For a
 * code without group (neither noun, adjective, verb, "I" nor pronoun) these are the common tags and
 * the semantics alone. Without semantics: null. A null `gram` gives the empty string, a null `out`
 * null. */
KZ_API char* GramToStr(int16_t code, const GRAMINFO* gram, const SEMANTICS* semantics, char* out);

/* Reads a tag string into the records. It ends at a final zero, ")", "]", "\" or "|". Only bits are
 * added, except that a paradigm, a person, the number and letter of "&", and the verb's case
 * letters take the place of what was there.
 *
 * `code_out` receives the code by which a letter was last read; it keeps its value when no letter
 * was, or when the code has no group. `latin_area`, two bytes, receives the tag "&" with a Latin
 * letter: the letter in the first byte, the digit after it, if there is one, in the second.
 *
 * Returns the position at the "|" or the final zero, or after the ")", "]" or "\" that ended it;
 * null for a null text. What goes to another null pointer is dropped. */
KZ_API const char* StrToGram(const char* text, char* code_out, GRAMINFO* gram, SEMANTICS* semantics,
                             int code, char* latin_area);

/* Reads one item, as StrToGram does for each: a tag with the "-" before it, "&" or "#" with
 * what belongs to it, or "%" with all semantic letters. Returns the position of the item's last
 * character, or of the final zero, ")", "]", "\" or "|" that it met; null for a null text. */
KZ_API const char* StrToGram1(const char* text, char* code_out, GRAMINFO* gram,
                              SEMANTICS* semantics, int code, char* latin_area);

/* Reads semantic letters, from after the "%" up to a final zero, ")", "]" or "\". Adds their flags
 * and returns the position of the character that ended them; null for a null text. Characters that
 * are no semantic letter are skipped. */
KZ_API const char* get_semantics(const char* text, SEMANTICS* semantics);

/* Writes "%", the letters of the flags and a final zero, and returns the position of the zero. With
 * null or without flags nothing is written, no zero either, and `out` is returned. `out` holds up
 * to 34 bytes. */
KZ_API char* set_semantics(char* out, const SEMANTICS* semantics);

/* The name of a compact attribute. `kind` is 0 for word classes (66 names), 1 for additions to the
 * class (25), 2 for stem changes (111). Null when there is no such kind or index. The name lives as
 * long as the library. */
KZ_API const char* GetAttrNameStr(int16_t kind, int16_t index);

/* The index of the attribute with exactly this name, -1 if there is none or for null; 0 when there
 * is no such kind. */
KZ_API int16_t GetAttrNameIndex(int16_t kind, const char* name);

#ifdef __cplusplus
}
#endif

#endif /* KZ_GRAM_CODEC_H */

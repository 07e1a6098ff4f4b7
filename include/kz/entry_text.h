/* Walking the text of a dictionary entry without building objects over it.
 *
 * An entry is one line of text: head word, '*', part code, attribute block, meanings with their
 * synonyms, source sections (docs/entry-format.md). These functions step over labels and blocks,
 * tell code letters from text, find the next part of a synonym, and pack a displayed text back into
 * entry text. Returned pointers point into the text passed in; no scan passes the terminating
 * zero. Russian text is Windows-1251, other text Windows-1252; all markers are ASCII.
 *
 *   puts(SkipLabels("a)b)word"));  // Output: word
 *   for (const char* part = "cabinNhutVhouse"; *part; part = GetNextPart(part + 1, "RUEN", 'N'))
 *     puts(part);
 *     // Output: cabinNhutVhouse
 *     // Output: NhutVhouse
 *     // Output: Vhouse
 */
#ifndef KZ_ENTRY_TEXT_H
#define KZ_ENTRY_TEXT_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What the library leaves in a caller's word record. Start with both fields zero; release
 * `inflection` with kz_misc_free when the record is no longer needed. */
typedef struct KzWordRecord {
  char* inflection;      /* inflection text: a heap text owned by the record, or null */
  char extended_code[8]; /* extended synonym code, zero-terminated */
} KzWordRecord;

/* Past the leading labels, each up to 8 characters closed by ')', none holding a ';':
 * "a)b)word" gives "word". Without a label the text itself. Null gives null. */
KZ_API const char* SkipLabels(const char* text);

/* Past the leading labels, one blank, a leading attribute block with its matching ']', and one more
 * blank. From there on the first '[' before the first ';' is removed from the text in place,
 * together with everything up to that ';' or, without one, to the end. Null gives null. */
KZ_API char* SkipCLabels(char* text);

/* Takes the inflection text that starts at `text` (a marker character comes first and belongs to
 * it) and ends before ']', a backslash, '%', or 'C' followed by ':'. A heap copy goes into
 * word->inflection; the previous one is released. Returns the position of the character that ended
 * it, null when that is the end of the text. `word` may be null. Null gives null. */
KZ_API char* GetInf(char* text, KzWordRecord* word);

/* Takes an extended synonym code of up to 6 characters, ended by '[', '{', ']', a blank, a
 * backslash, a small Russian letter or the end of the text, into word->extended_code; returns the
 * position after it and after one blank. A longer run leaves the code empty and gives the text
 * itself; a text whose second character is 'W' is returned with the record unchanged. Null gives
 * null. */
KZ_API const char* GetExtSyn(const char* text, KzWordRecord* word);

/* The '[' of an attribute block among the first 7 characters, before any '{', ']', ';', blank or
 * backslash; the text itself when there is none or it has fewer than two characters. Null gives
 * null. */
KZ_API const char* GetAttrBegin(const char* text);

/* The part code under which synonyms are grouped: 'V' for a part text that begins with one of
 * EGUVXYZeghvz, else its first character; 0 for an empty or null text. */
KZ_API int16_t DicEntryGetSynPartCode(const char* part_text);

/* The character at `position` (1 to 255) when it opens a new part, else 0. `language` is a language
 * or direction code; its third letter, or else its first, names the target language, and null means
 * Russian. Target Russian: '&', or a Latin letter that no digit follows. Target English: a Latin
 * capital or any Russian letter. Other targets: a Latin capital. `part` is not used. A null
 * position gives 0. */
KZ_API int16_t IsDicEntryNewPart(const char* position, const char* language, int part);

/* The start of the next part at or after `position`, or the terminating zero. `part` is the part
 * code of the entry: 'W' stops at code letters, blanks and # \ ~ / ; & ; 'w' at code letters,
 * blanks, '#' and '&'; any other at code letters, '#' and backslashes, with the part after a 'W'
 * starting after the next '/'. Brace and bracket groups are passed over. Code letters are Latin
 * ones for the target Russian; Latin capitals and, but for part 'W', Russian letters for English;
 * Latin capitals for others. For the target Russian and parts other than 'W' and 'w' a Latin letter
 * with a digit after it is none: it is passed over with the digit and one more character.
 * `language` as above. Null gives null. */
KZ_API const char* GetNextPart(const char* position, const char* language, int part);

/* Packs a displayed text into entry text: removes the blanks that display puts around markers and
 * code letters. Segments between '#' and blocks in brackets or braces are copied as they are; one
 * that is not closed ends the packing. `destination` needs the length of the source plus one and
 * may be the source itself; it is returned. `language` as above, `part` is not used. A null source
 * counts as empty; a null destination gives null. */
KZ_API char* PackEntry(const char* source, char* destination, const char* language, int part);

#ifdef __cplusplus
}
#endif

#endif /* KZ_ENTRY_TEXT_H */

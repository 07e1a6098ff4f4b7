/* String and path helpers, numbers, messages, and the library's allocator.
 *
 * Plain functions over zero-terminated single-byte text. The copying ones write into a buffer of
 * the caller and return the position of the terminating zero they wrote, so that calls chain; those
 * that work in place return their argument. Copies that never lengthen may work in place. White
 * space is blank, tab, line feed, vertical tab, form feed and carriage return, whatever the locale.
 * A null source counts as empty.
 *
 *   char line[64];
 *   char* end = strcpy_rn(line, "one\r\ntwo ");
 *   strcpydel(end, "1,000", ',');
 *   puts(line);
 *   // Output: one
 *   // Output: two 1000
 *   puts(SetExt(line, "c:\\work\\list.txt", ".bak"));  // Output: c:\work\list.bak
 */
#ifndef KZ_STRUTIL_H
#define KZ_STRUTIL_H

#include <stddef.h>
#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Copies and line ends -------------------------------------------------------------------- */

/* Appends source to destination with every line end as carriage return + line feed: a pair is kept,
 * a lone line feed gets its carriage return, a lone carriage return is dropped. At most twice the
 * source's length is added; the texts do not overlap. Returns the end. */
KZ_API char* strcatrn(char* destination, const char* source);
/* Copies with the line ends of strcatrn, from the start of destination (nothing is kept of what
 * is there). Room: twice the source's length + 1; the texts do not overlap. Returns the end. */
KZ_API char* strcat_crn(char* destination, const char* source);

/* Copies; each pair of carriage return and line feed becomes a line feed. Returns the end. */
KZ_API char* strcpy_rn(char* destination, const char* source);
/* Copies; each pair of carriage return and line feed becomes a carriage return. Returns the end. */
KZ_API char* strcpy_rr(char* destination, const char* source);
/* Copies; each pair of carriage return and line feed becomes a blank. Returns the end. */
KZ_API char* strcpydelcrlf(char* destination, const char* source);
/* Copies; each run of white space becomes one blank. Returns the end. */
KZ_API char* strcpyleft1(char* destination, const char* source);
/* Copies without the characters equal to the low 8 bits of character, so that a letter above 127
 * may be given as a signed or an unsigned char. Returns the end. */
KZ_API char* strcpydel(char* destination, const char* source, int16_t character);
/* Copies without the characters that occur in set (null: none). Returns the end. */
KZ_API char* strcpydelm(char* destination, const char* source, const char* set);

/* Copies at most count characters and terminates. Room: count + 1, or the source's length + 1 when
 * that is less. Returns destination, the start. */
KZ_API char* strncpy0(char* destination, const char* source, unsigned int count);

/* Puts prefix before text, in place; the text's buffer has room for both. A result of more
 * than 515 characters is not made: text is left as it is. Returns text. */
KZ_API char* insfst(char* text, const char* prefix);
/* Removes leading white space, in place. Returns text. */
KZ_API char* trimleft(char* text);
/* Overwrites every white-space character among the first length characters (-1: all) with a zero
 * byte, which cuts the text at the first of them. Nothing after the end of the text is touched.
 * Returns text. */
KZ_API char* trimright(char* text, int16_t length);

/* ---- Endings --------------------------------------------------------------------------------- */

/* The length of ending when the word of the given length ends with it, byte for byte; else, and for
 * an ending longer than the word, 0. The word needs no terminating zero. */
KZ_API int16_t isflex(const char* word, int16_t length, const char* ending);
/* The same with the capital and small letters a to z taken as equal. */
KZ_API int16_t isiflex(const char* word, int16_t length, const char* ending);

/* ---- File names ------------------------------------------------------------------------------ */

/* 1 if the path contains '*' or '?', else 0 (also for null). */
KZ_API int HasWildCards(const char* path);
/* The file name within path: after the last '\', in a path without one after the last '/', else
 * after the last ':', else the path itself. Null for null. */
KZ_API const char* GetFileName(const char* path);
/* The extension within path: from the last '.' of the file name on, else the terminating zero. Null
 * for null. */
KZ_API const char* GetExt(const char* path);
/* Appends '\' unless the path is empty or ends with '\' or '/'; needs room for one more character.
 * Returns path. */
KZ_API char* set_pathsep(char* path);
/* Copies source to destination with another extension. An extension that begins with '.' replaces
 * the text from the last '.' on, wherever that is; in a text without '.' it is appended. One
 * that does not begin with '.' is appended after a '.'. Room: both lengths + 2; destination may be
 * source. Returns destination. */
KZ_API char* SetExt(char* destination, const char* source, const char* extension);
/* Shortens a path that is longer than maximum, in place: the first part of its directory that is
 * long enough gives way to "\...", or the whole directory to "\" when none is; drive (a letter and
 * ':'), name and extension stay, so that the result may still be longer. Null, a maximum below 16
 * and a path without a directory are left as they are. Returns path. */
KZ_API char* get_short_path(char* path, int16_t maximum);

/* ---- Numbers --------------------------------------------------------------------------------- */

/* Value of the first two characters when both are hexadecimal digits, else 0. */
KZ_API uint8_t hex_to_byte(const char* text);
/* The number at the start of text (its first 12 characters count): hexadecimal after '$', else
 * decimal. Each character up to the first white space that is no such digit is reported with MsgBox
 * but does not stop the conversion: the result is what can be read from the start (blanks, sign,
 * "0x" of a hexadecimal number, digits), cut to 16 bits; 0 when there is no digit. */
KZ_API int16_t convert_number(const char* text);
/* The same, cut to 32 bits. */
KZ_API int32_t convert_lnumber(const char* text);

/* ---- Messages -------------------------------------------------------------------------------- */

/* Shows a message box (kz/platform.h) with text in Windows-1251 and the style flags given; its
 * title is "Message" when language is 0, else the Russian word for it. Returns the box's answer. */
KZ_API int MsgBox(const char* text, unsigned int style, unsigned int language);
/* Plays the default system sound. */
KZ_API void beep(void);
/* Makes the title line of a generated file: 72 characters and a zero byte. From the left the names
 * and extensions of the two paths in capitals (A to Z), one blank between them; second_path may be
 * null. What is before the last '\', '/' or ':' of a path is left out; a name has at most 8
 * characters counting that separator, which is written if it is a ':'. At the right the local time
 * as "Jan 02 12:34:56 2005" and a line feed; names that reach so far are overwritten by it. output
 * has room for 73 bytes. Returns the position of the terminating zero. */
KZ_API char* init_header(char* output, const char* first_path, const char* second_path);

/* ---- Memory and error state ------------------------------------------------------------------ */

/* Allocates size bytes; null on failure. */
KZ_API void* kz_misc_malloc(size_t size);
/* Allocates count * size bytes, all zero; null on failure, also when the product does not fit. */
KZ_API void* kz_misc_calloc(size_t count, size_t size);
/* Releases a block from these functions; null is allowed. */
KZ_API void kz_misc_free(void* block);
/* A copy of text, released with kz_misc_free; null for null and on failure. */
KZ_API char* kz_misc_strdup(const char* text);
/* The system error number (errno) that the last failed call left in this thread. */
KZ_API int kz_misc_errno(void);

#ifdef __cplusplus
}
#endif

#endif /* KZ_STRUTIL_H */

/* The letter index of a dictionary: which block of records the first letters of a word lead to.
 *
 * A dictionary numbers the letters of its alphabet (26 Latin, 32 Russian or 43 Western letters;
 * Index0 and its relatives). Its index is a table over the first two or three letters or a list of
 * five-character keys. CDicIndex holds it: a writer calls Init, then SetFileIndex before each
 * record, then Write; DicOpen reads it and the search asks it for blocks. The DicSizeX family
 * looks into the index of an open dictionary, and the kz_codr comparisons put letters with
 * accents in order.
 *
 *   printf("%d\n", Index0('d', "ENRU", 26));  // Output: 3
 *   CDic* dictionary = DicOpen("pets.dic", DIC_MODE_PLAIN);
 *   if (DicSizeX(dictionary, "dog") > 0) puts("in a block");  // Output: in a block
 *   if (DicSizeX(dictionary, "Dog") == -1) puts("a capital");  // Output: a capital
 *   DicClose(dictionary);
 */
#ifndef KZ_DIC_INDEX_H
#define KZ_DIC_INDEX_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* --- Letter numbering. Characters are single bytes: arguments are cut to their low 8 bits. --- */

/* Slot of a character in the 43-letter Western alphabet (Windows-1252), 43 when it has none. */
KZ_API int lat_abc_index(int character);

/* Letter of a slot of the 43-letter alphabet, 0 outside 0 to 42. */
KZ_API int lat_index_abc(int slot);

/* Slot of a Russian lower-case letter (Windows-1251), with the letter yo in the slot of ye; 32 for
 * any other character. */
KZ_API int ru_abc_index(int character);

/* Russian letter of a slot, 0 outside 0 to 31. */
KZ_API int ru_index_abc(int slot);

/* Letter of a slot in the alphabet of `size` letters (26, 32 or 43). With 26 it is 'a' + slot for
 * any slot. */
KZ_API int index_abc(int slot, int size);

/* Slot of a character in the alphabet of `size` letters. With 26 letters it is the distance from
 * 'a', which lies outside 0 to 25 for what is no letter; the others answer `size` then. The
 * language code has no influence. */
KZ_API int Index0(int character, const char* language, int size);

/* The same, but `size` for what stands for "no letter": the zero byte, '*' and every character of
 * kz_dict_is_valid_char. */
KZ_API int Index1(int character, const char* language, int size);

/* --- Character tests; each answers 1 or 0, and 0 for a null word. --- */

/* A digit, or one of the 23 characters that a headword may hold beside letters:
 * blank " # $ % & ' ( ) + , - . / : ; < = > @ [ ] ~ */
KZ_API int kz_dict_is_valid_char(int character);

/* A digit. */
KZ_API int kz_dict_is_valid_char1(int character);

/* Anything but '*' and the characters of kz_dict_is_valid_char; the zero byte passes. */
KZ_API int IsValidLetterForIndex1(int character);

/* The word begins with a Western letter (isansialpha) or a digit. */
KZ_API int kz_dict_is_valid_en_word_begin(const char* word);

/* The word begins with a Russian letter (isruansialpha) or a digit. */
KZ_API int kz_dict_is_valid_ru_word_begin(const char* word);

/* The word begins with a lower-case Western or Russian letter or a digit, followed by such a
 * letter, a character of kz_dict_is_valid_char, '*' or the end of the word. */
KZ_API int IsValidWordBegin(const char* word);

/* --- Comparison of letters with accents; negative when `a` sorts first. --- */

/* Difference of two characters in the letter order of a language: plain byte order when the code
 * begins with 'R', else special letters (kz_codr_is_spec_char) are after all plain ones, among
 * themselves in the order of the 43-letter alphabet. */
KZ_API int16_t kz_codr_accompare(int a, int b, const char* language);

/* Difference of the base letters (kz_codr_base_member) when either character is special, else of
 * the bytes. The first time an accent is met while *tie is 0, the accent order goes to *tie: a
 * caller that compares words passes the same tie for all letters, and lets it decide when all
 * results were 0. Without a special letter, and when the code begins with 'R', *tie stays as it
 * is. `tie` may be null. */
KZ_API int16_t kz_codr_taccompare(int a, int b, const char* language, int16_t* tie);

/* --- The index of an open dictionary. --- */

/* Size in bytes of the block of records that a search for `word` reads; -1 without a dictionary,
 * for a word whose beginning cannot be indexed, and for an empty group. */
KZ_API int32_t DicSizeX(CDic* dictionary, const char* word);

/* File position of that block; -1 in the same cases. */
KZ_API int32_t DicOffsetX(CDic* dictionary, const char* word);

/* Always -1: positions of single letters are not kept. */
KZ_API int32_t DicLetterOffsetX(CDic* dictionary, int letter);

/* -1 for a nonzero letter, 0 for the zero byte: letters are not counted. */
KZ_API int32_t DicLetterNumberX(CDic* dictionary, int letter);

/* Writes one line per group of the index to an open file, in index order: '*', the position, the
 * first three letters in quotes (blanks for none), the block size. */
KZ_API void PrintAllOffsets(CDic* dictionary, ZCFile* file);

#ifdef __cplusplus
} /* extern "C" */

namespace kz {
class Block;
class IndexCore;
struct KeyRecord;
}  // namespace kz

// The letter index of one dictionary. To write one: Init with access mode 0 and record count 0,
// SetFileIndex before each record in sort order, and Write after the last record.
class KZ_API CDicIndex {
 public:
  // The access letter is 'R' for reading; see SetAccessMode.
  explicit CDicIndex(char access_letter);
  CDicIndex(const CDicIndex&) = delete;
  CDicIndex& operator=(const CDicIndex&) = delete;
  virtual ~CDicIndex();

  // Makes an empty index, releasing what was held before. `access_mode` is the open mode of the
  // dictionary: 2 and 4 ask for a block cache. `language` and `type` are the header's texts.
  // `alphabet_size` is 26, 32 or 43, `depth` 2, 3 or 5; the 16-bit argument between them has no
  // effect. `index_offset` is the end of the record area, `record_count` the number of key records
  // (depth 5 only). Returns 1, or 0 when the table cannot be allocated or no such index exists;
  // when only the block cache cannot be allocated, the index works without it.
  int Init(int16_t access_mode, const char* language, const char* type, int16_t alphabet_size,
           int16_t unused, int16_t depth, uint16_t format_version, int32_t index_offset,
           int32_t record_count);

  // Releases the table and the block cache with every block in it.
  void Free();

  // Writes the index at the file's current position. Returns 0, or 195 when it cannot be written
  // in full or there is none: after a failed Init, and after Free.
  uint16_t Write(ZCFile& file);

  // Sets the access letter: while it is 'R', making the index anew also empties the block cache.
  void SetAccessMode(char access_letter);

  // Enters the record of `word` that is about to be written at the file's current position. Words
  // come in the order of the index; a word that cannot be indexed opens no group.
  void SetFileIndex(ZCFile& file, const char* word);

  // 1 when the latest SetFileIndex opened a group, else 0.
  uint16_t IsIndexChanged() const;

 private:
  friend class kz::IndexCore;

  int16_t access_mode_ = 0;
  char access_letter_;
  uint16_t format_version_ = 0;
  int32_t* offset_table_ = nullptr;
  kz::Block** block_cache_ = nullptr;
  char language_[5] = {};
  char type_[2] = {};
  int16_t alphabet_size_ = 0;
  int16_t depth_ = 0;
  char prefix_[6] = {};
  int16_t slots_[3] = {};
  int32_t found_position_ = -1;
  int32_t block_size_ = 0;
  int32_t index_offset_ = 0;
  uint8_t first_record_ = 0;
  uint16_t changed_ = 0;
  kz::KeyRecord* key_records_ = nullptr;
  kz::KeyRecord* found_record_ = nullptr;
  int32_t record_count_ = 0;
  int32_t record_capacity_ = 0;
  uint32_t table_size_ = 0;
  uint32_t cache_size_ = 0;
};
#endif

#endif /* KZ_DIC_INDEX_H */

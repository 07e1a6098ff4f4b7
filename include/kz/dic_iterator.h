/* Entry iterators: walk the records of a dictionary, with filters, and take them apart.
 *
 * DicIteratorOpen takes an open dictionary or opens one from its path; DicSysIteratorOpen uses the
 * one that is open in a set. DicIteratorGetFirstEntry and DicIteratorGetNextEntry give the records
 * of a range of first letters in file order, those of some code characters (the part of speech
 * letter after the last '*') if so asked.
 *
 *   char word[DIC_ENTRY_ROOM];
 *   CDicEntryIterator* nouns = DicIteratorOpen(0, "pets.dic", "a", "", 0, "Nn", 1);
 *   const char* record = DicIteratorGetFirstEntry(nouns, word, 0, 0, 0, DIC_SEARCH_EXACT);
 *   for (; record; record = DicIteratorGetNextEntry(nouns, word, 0, 0, 0))
 *     puts(word);
 *     // Output: cat
 *     // Output: dog
 *   DicIteratorClose(nouns);
 *
 * The position of a walk is the search state of its dictionary: a search there in between disturbs
 * it. An iterator serves one thread at a time. */
#ifndef KZ_DIC_ITERATOR_H
#define KZ_DIC_ITERATOR_H

#include <stdint.h>

#include "kz/dictionary.h"
#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
class CDicEntryIterator;
class CDicSysEntryIterator;
extern "C" {
#else
typedef struct CDicEntryIterator CDicEntryIterator;
typedef CDicEntryIterator CDicSysEntryIterator;
#endif

/* Opens an iterator. Returns it, to be given to DicIteratorClose; null when the path cannot be
 * opened (the error variable tells why), when a from word does not begin as headwords of the
 * language can (there need be none that begins so), and when memory runs out: a dictionary given by
 * the caller then stays the caller's.
 *
 * dictionary: passes to the iterator, which closes it at its end. Null: the path is opened in mode
 * 0. from, to: the range of first letters. It begins with the first letter of the from word, with
 * the alphabet when that is null or empty; it ends with the first letter of the to word, with the
 * alphabet when that is empty, with the range's first letter when it is null. Letters that differ
 * in their accent only are one (kz_codr_base_member). Letters are compared by their codes, those of
 * an alphabet of 43 letters by their places in it; what is no letter of that is before all
 * letters. value: has no effect. filter: a text of code
 * characters, null or empty for no filter; include: not 0 keeps the records whose code character is
 * in the filter, 0 those whose code character is not. */
KZ_API CDicEntryIterator* DicIteratorOpen(CDic* dictionary, const char* path, const char* from,
                                          const char* to, int16_t value, const char* filter,
                                          int16_t include);

/* The same on the dictionary that is loaded in a set under the path (ChkDicInList), which stays
 * loaded and is not to be unloaded before the iterator is closed; else on the path, as always for a
 * null set. */
KZ_API CDicSysEntryIterator* DicSysIteratorOpen(CDicSys* set, const char* path, const char* from,
                                                const char* to, int16_t value, const char* filter,
                                                int16_t include);

/* Close and destroy an iterator. The dictionary that it was given or opened is closed; one that is
 * loaded in a set is not. */
KZ_API void DicIteratorClose(CDicEntryIterator* iterator);
KZ_API void DicSysIteratorClose(CDicSysEntryIterator* iterator);

/* The first record that the range and the filter keep: its full text, decoded, which stays in the
 * dictionary until the next record or search; null when there is none, after a failed read, and for
 * a null iterator.
 *
 * DIC_SEARCH_EXACT begins with the first record of the dictionary, or with the first one under the
 * letter of the range when that is not the first of the alphabet. Another mode is one of DicFind
 * and begins where DicFind finds the text that `headword` holds (with a null or empty one, the
 * first letter of the range); the walk then ends with the records that this search covers.
 *
 * The outputs, each of which may be null, are zero-terminated copies (DIC_ENTRY_ROOM bytes are
 * always enough): headword, the text before the last '*', or, when the record has a text after a
 * double backslash, that text, the form to be shown; code, the character after the '*' (2 bytes);
 * body, the text from there to the first backslash; extra, the text from a single backslash, which
 * is included, to the next one. `extra` is left alone when the record has none. A record without
 * '*' is all headword. */
KZ_API const char* DicIteratorGetFirstEntry(CDicEntryIterator* iterator, char* headword, char* code,
                                            char* body, char* extra, int16_t search_mode);

/* The next record that the range and the filter keep; outputs and result as above. */
KZ_API const char* DicIteratorGetNextEntry(CDicEntryIterator* iterator, char* headword, char* code,
                                           char* body, char* extra);

/* The language code of the dictionary, valid as long as that; copied to the output (5 bytes) unless
 * it is null. Null without a dictionary. */
KZ_API const char* DicIteratorGetLanguage(CDicEntryIterator* iterator, char* output);

/* The number of records given since the latest DicIteratorGetFirstEntry, that one included; 0 for a
 * null iterator. */
KZ_API int32_t DicIteratorGetCounter(CDicEntryIterator* iterator);

/* The dictionary, or null. */
KZ_API CDic* DicIteratorGetDicHandler(CDicEntryIterator* iterator);

#ifdef __cplusplus
}

#include "kz/string.h"

namespace kz {
class EntryWalk;
}

/* The iterator behind DicIteratorOpen. Members do what the functions of their names do. */
class KZ_API CDicEntryIterator {
 public:
  CDicEntryIterator();
  CDicEntryIterator(const CDicEntryIterator&) = delete;
  CDicEntryIterator& operator=(const CDicEntryIterator&) = delete;
  /* CloseIterator(-1). */
  virtual ~CDicEntryIterator();

  /* Closes the iterator when it is open and opens it anew. Returns the iterator, or null. The texts
   * may belong to the dictionary that is closed. An iterator that is given its own dictionary keeps
   * it; when it cannot be opened, that dictionary is the caller's. */
  CDicEntryIterator* OpenIterator(CDic* dictionary, const char* path, const char* from,
                                  const char* to, int16_t value, const char* filter,
                                  int16_t include);
  /* Ends the walk. A value other than 0 and -1 says that the dictionary is borrowed: it is let go;
   * otherwise it is closed. */
  void CloseIterator(intptr_t borrowed);

  const char* GetFirstEntry(char* headword, char* code, char* body, char* extra,
                            int16_t search_mode);
  const char* GetNextEntry(char* headword, char* code, char* body, char* extra);
  const char* GetLanguage(char* output);
  int32_t GetCounter();
  CDic* GetDicHandler();

 private:
  friend class kz::EntryWalk;

  int16_t state_ = 0; /* 0 closed, 1 open, 2 reading from the beginning */
  CDic* dictionary_ = nullptr;
  CDic* dictionary_copy_ = nullptr;
  char from_[80] = {};
  char to_[80] = {};
  ZCString filter_;
  int16_t include_ = 0;
  char start_letter_ = 0;
  char end_letter_ = 0;
  char start_base_ = 0;
  char end_base_ = 0;
  int32_t counter_ = 0;
  const char* record_ = nullptr;
};

/* The iterator behind DicSysIteratorOpen. */
class KZ_API CDicSysEntryIterator : public CDicEntryIterator {
 public:
  CDicSysEntryIterator();
  CDicSysEntryIterator(const CDicSysEntryIterator&) = delete;
  CDicSysEntryIterator& operator=(const CDicSysEntryIterator&) = delete;
  /* CloseIterator. */
  ~CDicSysEntryIterator() override;

  CDicSysEntryIterator* OpenIterator(CDicSys* set, const char* path, const char* from,
                                     const char* to, int16_t value, const char* filter,
                                     int16_t include);
  /* Ends the walk; a dictionary that is loaded in the set stays there. */
  void CloseIterator();

  const char* GetFirstEntry(char* headword, char* code, char* body, char* extra,
                            int16_t search_mode);
  const char* GetNextEntry(char* headword, char* code, char* body, char* extra);
  const char* GetLanguage(char* output);
  int32_t GetCounter();

 private:
  CDic* found_ = nullptr; /* in the queue of the set; null when the base opened the path */
};
#endif

#endif /* KZ_DIC_ITERATOR_H */

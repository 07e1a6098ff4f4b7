/* Dictionaries: open one, look words up in it, walk the words that follow.
 *
 * DicOpen gives a handle, DicFind looks a word up and returns its entry, DicFindNext the entries
 * after it, DicClose releases everything. Words and entries are in the dictionary's own code page
 * (Windows-1251 for Russian, Windows-1252 for German and French). What went wrong is in the
 * dictionary error variable (kz/dic_error.h).
 *
 *   CDic* dictionary = DicOpen("baseenru.dic", DIC_MODE_PLAIN);
 *   const char* entry = DicFind(dictionary, "dog", DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
 *   if (entry) puts(entry);  // Output: dog*N[|F@]собака;пёс[M@]
 *   DicClose(dictionary);
 *
 * A dictionary serves one thread at a time. */
#ifndef KZ_DICTIONARY_H
#define KZ_DICTIONARY_H

#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Room that a found entry can take, its terminating zero included. */
enum { DIC_ENTRY_ROOM = 2050 };

/* Open modes: how a dictionary reads the blocks of records that the index leads to. DicOpen takes
 * the first four; both cached modes become DIC_MODE_PLAIN when there is no memory for the cache. */
enum DicMode {
  DIC_MODE_PLAIN = 0,    /* from the file, as searches need them */
  DIC_MODE_NO_INDEX = 1, /* the index is not asked: a search reads from the block searched last (at
                            first: from the first record) to the end of the records */
  DIC_MODE_CACHE_ALL =
      2,              /* blocks that were read stay in memory; LoadAllOffsets reads all of them */
  DIC_MODE_CACHE = 4, /* blocks that were read stay in memory */
  DIC_MODE_SAME = 5,  /* DicSetMode alone: the mode that the dictionary has */
  DIC_MODE_ANY = 6,   /* DicQueUnLoad alone: whatever mode the dictionary has */
  DIC_MODE_FLAG = 128 /* added to a mode by DicSetMode; no search looks at it */
};

/* Search modes: which headwords answer to a word. */
enum DicSearch {
  DIC_SEARCH_EXACT = 0,  /* the word itself */
  DIC_SEARCH_PREFIX = 1, /* the first one that begins with the word, in the block that the first
                            letters of the word lead to */
  DIC_SEARCH_GROUP = 2,  /* the same; for a word shorter than what the index distinguishes, in all
                            blocks of words that begin like it */
  DIC_SEARCH_REST = -1   /* the same, from that block to the end of the records */
};

/* Levels: how far the text of a found record is worked out. Each includes the ones before it. */
enum DicLevel {
  DIC_LEVEL_FOUND = 0,   /* not at all: the text of a packed record stays empty */
  DIC_LEVEL_DECODED = 1, /* packed records are decoded */
  DIC_LEVEL_FULL = 2, /* a reference to the shared text of the dictionary is replaced by that text:
                         the entry as kz/entry.h takes it; greater numbers mean the same */
  DIC_LEVEL_ANEW = -1 /* DicGetFound alone: DIC_LEVEL_FULL, worked out again */
};

/* Opens the dictionary file at the path; mode is an enum DicMode. Returns its handle, to be given
 * to DicClose, or null with the dictionary error variable set: 195 the file cannot be opened, 196
 * out of memory, 202 not a dictionary, or damaged. The file is kept open and closed to writers. */
KZ_API CDic* DicOpen(const char* path, int16_t mode);

/* Closes a dictionary and releases everything that it owns, its entry texts and its entry object
 * included. A null handle does nothing. */
KZ_API void DicClose(CDic* dictionary);

/* Looks a word up.
 *
 * search_mode is an enum DicSearch, level an enum DicLevel.
 *
 * A null word finds the first record of the dictionary; an empty word, one longer than 77
 * characters, or one whose beginning the index does not know (capitals, for instance) finds
 * nothing. Returns the entry, zero-terminated, at most DIC_ENTRY_ROOM bytes (a longer one is cut);
 * it lives in the dictionary until the next search or DicFindNext. Returns null when nothing was
 * found; the error variable is then 0, 195 when the file could not be read, or 196 when there is no
 * memory for the shared text. A null handle finds nothing and leaves the error variable alone. */
KZ_API const char* DicFind(CDic* dictionary, const char* word, int16_t search_mode, int16_t level);

/* The record after the one found last, decoded to the level (at level 0 the text of a packed record
 * is empty, as with DicFind); null at the end of the block that the search covered, after which the
 * record found last stays the one that DicGetFound gives.
 * Returns and errors as DicFind. */
KZ_API const char* DicFindNext(CDic* dictionary, int16_t level);

/* The entry found last, decoded to the level if that asks for more than has been decoded yet;
 * DIC_LEVEL_ANEW decodes it anew and fully. Copied to the buffer (DIC_ENTRY_ROOM bytes) unless that
 * is null. Returns the entry as DicFind does: an empty text when nothing was found, null for a null
 * handle. */
KZ_API const char* DicGetFound(CDic* dictionary, char* buffer, int16_t level);

/* Looks up the word in the buffer at DIC_LEVEL_FULL and puts its entry in its place; the buffer has
 * room for DIC_ENTRY_ROOM bytes. Returns 0, or 204 (left in the error variable too) when nothing
 * was found or the handle or the buffer is null. */
KZ_API int16_t DicGetEntry(CDic* dictionary, char* buffer, int16_t search_mode);

/* DicOpen in DIC_MODE_PLAIN, DicGetEntry, DicClose. Returns 0, the code of the failed open, or
 * 204. */
KZ_API int16_t DicOpenGetEntry(const char* path, char* buffer, int16_t search_mode);

/* The dictionary's own entry object, in the language of the dictionary. The first call after a
 * search or DicFindNext splits the entry found into the object, at the level that it has then
 * (level 0 becomes 1): ask anew after each of them. It belongs to the dictionary. Null for a null
 * handle. */
KZ_API CDicEntry* DicGetEntryHandler(CDic* dictionary);

/* The path given to DicOpen, valid until the dictionary is closed; null for a null handle. */
KZ_API const char* DicGetPath(CDic* dictionary);

/* The id of a dictionary: a number that its holder gives it, 0 at first. DicGetId returns -1 for a
 * null handle. */
KZ_API void DicSetId(CDic* dictionary, uint8_t id);
KZ_API int16_t DicGetId(CDic* dictionary);

/* The mode byte; 0 for a null handle. */
KZ_API int16_t DicGetMode(CDic* dictionary);

/* In DIC_MODE_CACHE_ALL, loads every block into the block cache; else does nothing. A block that
 * cannot be loaded is left to the searches. */
KZ_API void LoadAllOffsets(CDic* dictionary);

#ifdef __cplusplus
}

#include <memory>

#include "kz/dic_index.h"
#include "kz/file.h"
#include "kz/string.h"

namespace kz {
struct SearchState;
class Lookup;
}  // namespace kz

/* An open dictionary. Made by DicOpen and destroyed by DicClose; a default-constructed one is a
 * closed dictionary. */
class KZ_API CDic {
 public:
  CDic();
  /* Stores the path and the mode, without opening anything. */
  CDic(const char* path, int16_t mode);
  CDic(const CDic&) = delete;
  CDic& operator=(const CDic&) = delete;
  virtual ~CDic();

 private:
  friend class kz::Lookup;

  uint16_t id_ = 0;
  ZCString path_;
  uint8_t mode_ = 0;
  uint8_t property_ = 0;
  uint16_t format_version_ = 0;
  int32_t creation_time_ = 0;
  int32_t modification_time_ = 0;
  char language_[5] = {};
  char type_[2] = {};
  int16_t depth_ = 0;
  int16_t alphabet_size_ = 0;
  int32_t remaining_ = 0;
  int32_t index_offset_ = 0;
  uint32_t data_offset_ = 0;
  ZCFile file_;
  int32_t chunk_size_;
  int32_t position_ = 0;
  uint8_t packing_ = 0;
  const char* record_start_ = nullptr;
  const char* record_end_ = nullptr;
  const char* cursor_ = nullptr;
  char entry_[DIC_ENTRY_ROOM] = {};
  char work_record_[260] = {};
  int16_t entry_length_ = 0;
  char* search_buffer_ = nullptr;
  const char* current_block_ = nullptr;
  char* shared_block_ = nullptr;
  uint32_t shared_offset_ = 0;
  uint32_t shared_size_ = 0;
  CDicIndex index_;
  char search_key_[84] = {};
  int16_t search_mode_ = 0;
  int16_t key_length_ = 0;
  uint8_t in_memory_ = 0;
  uint32_t reserved_ = 0;
  uint16_t entry_limit_ = 0;
  int16_t level_ = 1;
  uint8_t password_[8] = {};
  CDicEntry* entry_object_ = nullptr;
  kz::SearchState* search_ = nullptr;
};
#endif

#endif /* KZ_DICTIONARY_H */

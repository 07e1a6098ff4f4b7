/* The dictionary set: what a translation engine opens first.
 *
 * A set has a working direction ("ENRU": from English to Russian), the directory of its dictionary
 * files, the queue of its open dictionaries (kz/dic_queue.h), for every direction an array that
 * says which dictionaries belong to it (kz/dic_array.h), and two work buffers for the engine.
 *
 *   CDicSys* set = DicSysOpen(1, "ENRU", "./");
 *   DicSysLoadCommon(set);  // the base dictionaries of the direction
 *   DicQueFirst(set, DIC_LIST_TRANSLATION, 0);
 *   const char* entry =
 *       DicQueFind(set, DIC_LIST_TRANSLATION, "bread", DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
 *   if (entry) puts(entry);  // Output: bread*N[-P|M]хлеб
 *   DicSysClose(set);
 *
 * Every function does nothing for a null set and returns what is said then. A set serves one thread
 * at a time; several sets may be used by several threads, even on the same files. */
#ifndef KZ_DIC_SET_H
#define KZ_DIC_SET_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Size of the two work buffers of a set, in bytes. */
enum { DIC_SET_BUFFER_SIZE = 8193 };

/* Opens a set. When the buffer flag (its low byte) is not 0, its work buffers are allocated. The
 * language is the working direction, in any case; at most 4 characters of it count, and null leaves
 * the set without one. The directory is the prefix of the dictionary file names, taken as it
 * is: end it with a separator. Nothing is loaded. Returns the set, to be given to DicSysClose,
 * or null when memory runs out. */
KZ_API CDicSys* DicSysOpen(int16_t buffer_flag, const char* language, const char* directory);

/* Closes a set: destroys the dictionaries of its queue, the descriptors of its arrays and its
 * buffers. */
KZ_API void DicSysClose(CDicSys* set);

/* The two work buffers, DIC_SET_BUFFER_SIZE bytes each, zeroed when the set is opened and not used
 * by the library; they live as long as the set. Null for a set without buffers and a null set. */
KZ_API char* DicGetEBuf(CDicSys* set);
KZ_API char* DicGetGBuf(CDicSys* set);

/* Changes the working direction and with it the array of the direction: at most 4 characters of the
 * code; null or an empty code leaves the set without one. Nothing is loaded or unloaded, and the
 * dictionaries of the queue stay in their lists. Directions are told from each other ignoring case,
 * but DicQueLoad compares their first letter exactly. */
KZ_API void DicSysSetLanguage(CDicSys* set, const char* language);

/* Sets the operation code of the set; while it is not 0, DicArrayUpdate leaves the array of the
 * direction empty. */
KZ_API void DicSetOperationCode(CDicSys* set, uint16_t code);

/* The password of the dictionary file at the path, from memory when a dictionary of this path
 * (ChkOemDicInList) is loaded in the set, else from the file: unscrambled, 8 bytes, without a
 * terminating zero when it is 8 characters long. Returns the buffer; null for a null set or buffer,
 * and when the header cannot be read (the error variable tells why). */
KZ_API char* DicSysGetDicPassword(CDicSys* set, const char* path, char* buffer);

/* DicHeaderSetProperties (kz/dic_header.h), but only for a file that is not open in the set: 206
 * (DIC_ERR_IN_USE) when a dictionary of this path (ChkOemDicInList) is loaded, 200
 * (DIC_ERR_ARGUMENT) for a null path, both left in the error variable too. Returns the code of
 * DicHeaderSetProperties otherwise; -1 for a null set. */
KZ_API int16_t DicSysHeaderSetProperties(CDicSys* set, const char* path, const char* title,
                                         const char* label, uint16_t property,
                                         const char* password);

#ifdef __cplusplus
}

#include "kz/array.h"
#include "kz/dic_queue.h"

/* A set. The functions over its handle keep its parts in step; what an engine may change itself are
 * lists 4 and 5 of the queue and the contents of its buffers. */
class KZ_API CDicSys {
 public:
  /* A set without language, directory and buffers; its buffer flag is 1. */
  CDicSys();
  /* A set without buffers: only DicSysOpen allocates them. */
  CDicSys(int16_t buffer_flag, const char* language, const char* directory);
  CDicSys(const CDicSys&) = delete;
  CDicSys& operator=(const CDicSys&) = delete;
  virtual ~CDicSys();

  uint8_t buffer_flag = 1;      /* not 0: DicSysOpen allocates the buffers */
  char language[5] = {};        /* the working direction */
  uint16_t operation_code = 0;  /* DicSetOperationCode */
  char* g_buffer = nullptr;     /* DicGetGBuf */
  char* e_buffer = nullptr;     /* DicGetEBuf */
  char* chunk_buffer = nullptr; /* 2,064 bytes, not used */
  char* directory = nullptr;    /* prefix of the dictionary files, kz_misc_strdup, or null */
  kz::QueueState queue;
  ZCObArray* current_array = nullptr; /* the array of the working direction, or null */
  ZCObArray directions[6];            /* of CDicArray: ENRU, RUEN, FRRU, RUFR, DERU, RUDE */
  ZCObArray spell_chain[2];           /* of CDicArray: saved list 5, saved list 4 */
  ZCObArray thesaurus_chain[2];
};
#endif

#endif /* KZ_DIC_SET_H */

/* Dictionary arrays: the configuration of a set, and its form as a text.
 *
 * An array is an ordered list of descriptors, each the path and the open mode of a dictionary file.
 * A set has one array for each translation direction, and two each for the spelling and the
 * thesaurus chain. Loading an array opens its dictionaries into the queue of the set, updating one
 * writes down what the queue holds. The parameter string keeps the arrays of a language pair as
 * text: DicArrayParmStr writes it, DicArrayAddPath reads the list of one direction.
 *
 *   CDicSys* set = DicSysOpen(1, "ENRU", "./");
 *   DicArrayAddPath(set, DIC_APPEND, "ENRU", "pets.dic:2;baseenru.dic:0");
 *   DicArrayLoad(set, DicArraySelect(set, 0), 1);
 *   printf("%d loaded\n", DicQueGetSize(set, DIC_LIST_TRANSLATION));  // Output: 2 loaded
 *   char text[256] = "";
 *   DicArrayParmStr(set, text);
 *   puts(text);
 *   // Output:
 *   // Output: -CENRU pets.dic:2;baseenru.dic:0
 *   DicSysClose(set);
 *
 * A descriptor's path that holds neither '/' nor '\' is a file name in the directory of the set,
 * which is a prefix taken as it is. A completed path has at most 259 characters and a token of
 * a path list at most 267; longer ones are refused. Every function does nothing for a null set and
 * returns what is said then. The mode of a descriptor is a byte; a position is DIC_APPEND (as any
 * negative number), or the index of the descriptor to be replaced. */
#ifndef KZ_DIC_ARRAY_H
#define KZ_DIC_ARRAY_H

#include <stdint.h>

#include "kz/dic_queue.h"
#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
class ZCObArray;
extern "C" {
#else
typedef struct ZCObArray ZCObArray; /* an array of a set, kz/array.h */
#endif

/* --- The array of the working direction ------------------------------------------------------- */

/* Sets the language of the set when one is given (not null), and returns the array of the
 * direction, valid as long as the set; null when there is no such direction, and for a null set. */
KZ_API ZCObArray* DicArraySelect(CDicSys* set, const char* language);

/* Selects the array of the direction again. Returns 1; 0 for a null set. */
KZ_API int DicArrayInit(CDicSys* set);

/* Puts a descriptor into the array of the direction: the name is taken as the path when the full
 * path flag is not 0, else completed by the directory of the set. A position at or after the end
 * makes the array longer, with empty slots in between. Returns the position as given; -1 for a null
 * set, without a direction, and for a path that is too long or null. */
KZ_API int16_t DicArraySet(CDicSys* set, int16_t position, const char* name, int16_t mode,
                           int16_t full_path);

/* Empties the array of the direction and fills it with the dictionaries of queue list 1, then of
 * list 2 when the language of the set begins with E, D, P or F, of list 3 otherwise. DIC_MODE_FLAG
 * in the mode of a dictionary is cleared on the way, unless it stands alone. With an operation code
 * (DicSetOperationCode) the array stays empty. Returns 0; -1 for a null set. */
KZ_API int DicArrayUpdate(CDicSys* set);

/* --- Any array -------------------------------------------------------------------------------- */

/* Destroys the descriptors of the array and empties it. */
KZ_API void DicArrayRemoveAll(CDicSys* set, ZCObArray* array);

/* DicArrayRemoveAll for all ten arrays of the set. */
KZ_API void DicArrayFree(CDicSys* set);

/* Loads the dictionaries of the array in order, appending them to the lists of the queue. Each is
 * tried at its path, then under its file name in the directory of the set, then under the file name
 * alone, each time as by DicQueLoad (which also gives no dictionary when it keeps a loaded one).
 * Returns 1 when the report flag is not 0 and some dictionary could not be loaded, else 0; -1 for a
 * null set or array. */
KZ_API int DicArrayLoad(CDicSys* set, ZCObArray* array, int16_t report);

/* Unloads the dictionaries of the array from the queue, by file name, and empties the array. */
KZ_API void DicArrayUnLoad(CDicSys* set, ZCObArray* array);

/* --- Parameter strings ------------------------------------------------------------------------ */

/* Appends the configuration of the working direction and of its inverse to the text in `output`,
 * which has room for it: for each of the two arrays that has descriptors a line feed, "-C", the
 * direction, a blank, and the descriptors, "path:mode" each, separated by ';'. Descriptors without
 * a path are left out. */
KZ_API void DicArrayParmStr(CDicSys* set, char* output);

/* Fills the array of a direction (its first 4 characters count) from a list of "path:mode" tokens,
 * separated by any run of the characters ; , ) blank and tab. What the array held before is
 * unloaded first. The text after the last ':' is the mode, 0 when it is no number; so a path that
 * itself has a ':' needs its mode. Each descriptor is put at the position given: with anything but
 * -1 only the last one stays. The list may be a text of what is unloaded. Returns the index of the
 * array's last descriptor, -1 when it is empty and for a direction that does not exist; 0 for a
 * null set or list. */
KZ_API int DicArrayAddPath(CDicSys* set, int16_t position, const char* direction, const char* list);

/* --- Base dictionaries and chains ------------------------------------------------------------- */

/* Empties all arrays, puts into each direction its base dictionaries, both in the directory of the
 * set and in DIC_MODE_PLAIN ("baseenru.dic" and "baseru.dig" for ENRU; the second one is the
 * general dictionary of the target language), loads those of the working direction, and numbers the
 * dictionaries of the queue. */
KZ_API void DicSysLoadCommon(CDicSys* set);

/* Makes the position of each dictionary in its list its id: for lists 4, 5, 1, 2 and 3 in turn. */
KZ_API void DicQueEnumerate(CDicSys* set);

/* The spelling and the thesaurus chain save the dictionaries of queue lists 5 and 4. There is one
 * pair of lists for both chains: loading one chain unloads the dictionaries of the other. */

/* Unloads the dictionaries of lists 4 and 5, by file name, from the whole queue; both lists are
 * empty afterwards. */
KZ_API void DicQueClearSpellDicChain(CDicSys* set);

/* Clears lists 4 and 5 as above and loads the dictionaries saved in the chain, the first array
 * before the second. As everything loaded they join lists 0 to 3; the caller puts them into lists 4
 * and 5. Returns 1 when one could not be loaded, else 0; 0 for a null set. */
KZ_API int16_t DicQueLoadSpellDicChain(CDicSys* set);
KZ_API int16_t DicQueLoadThesaurusDicChain(CDicSys* set);

/* Saves the dictionaries of list 5 in the first array of the chain and those of list 4 in the
 * second, with their modes as in DicArrayUpdate. Returns -1; 0 for a null set. */
KZ_API int16_t DicQueUpdateSpellDicChain(CDicSys* set);
KZ_API int16_t DicQueUpdateThesaurusDicChain(CDicSys* set);

#ifdef __cplusplus
}

#include "kz/object.h"
#include "kz/string.h"

/* A descriptor: what an array says about one dictionary file. */
class KZ_API CDicArray : public ZCObject {
 public:
  /* No path, mode 0, not marked as loaded. */
  CDicArray();
  /* Stores the three values, the shorts as bytes; a null path is an empty one. */
  CDicArray(const char* path, int16_t mode, int16_t loaded);
  ~CDicArray() override;

  uint8_t loaded = 0; /* 1 in every descriptor that a set makes */
  ZCString path;      /* a path, or a file name in the directory of the set */
  uint8_t mode = 0;   /* open mode, given to DicQueLoad */
};
#endif

#endif /* KZ_DIC_ARRAY_H */

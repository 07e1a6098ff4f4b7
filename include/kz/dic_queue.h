/* The queue of a set: several dictionaries open at once, searched in order.
 *
 * A set (kz/dic_set.h) holds six lists of dictionaries. DicQueLoad opens a dictionary and files it
 * into list 0 and, by its language, into one of the lists 1 to 3; DicQueFirst or DicSetCurrent
 * selects where a search begins; DicQueFind gives the first answer, DicQueNext and DicQueFindRest
 * the further ones. The set remembers for each list which dictionary answered last.
 *
 *   CDicSys* set = DicSysOpen(0, "ENRU", "");
 *   DicQueLoad(set, DIC_APPEND, "pets.dic", DIC_MODE_PLAIN);
 *   DicQueLoad(set, DIC_APPEND, "baseenru.dic", DIC_MODE_CACHE);
 *   DicQueFirst(set, DIC_LIST_TRANSLATION, 0);
 *   const char* entry =
 *       DicQueFind(set, DIC_LIST_TRANSLATION, "dog", DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
 *   while (entry) {
 *     puts(entry);
 *     // Output: dog*N[|F]собака;пёс[M]
 *     // Output: dog*N[|F@]собака;пёс[M@]
 *     if (!DicQueNext(set, DIC_LIST_TRANSLATION)) break;
 *     entry = DicQueFindRest(set, DIC_LIST_TRANSLATION, "dog", DIC_SEARCH_EXACT, DIC_LEVEL_FULL);
 *   }
 *   DicSysClose(set);
 *
 * Every function does nothing for a null set and then returns 0, null or, where said, -1. A list
 * argument is an enum DicList, another number an empty list; open modes, search modes and levels
 * are those of kz/dictionary.h. A handle is valid until its dictionary is
 * unloaded, reloaded or cleared. A set serves one thread at a time. */
#ifndef KZ_DIC_QUEUE_H
#define KZ_DIC_QUEUE_H

#include <stdint.h>

#include "kz/dictionary.h"
#include "kz/export.h"
#include "kz/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The lists of a set. */
enum DicList {
  DIC_LIST_CURRENT = -1,    /* DicQueNext alone: the list of the latest DicQueFirst or DicQueNext */
  DIC_LIST_ALL = 0,         /* every dictionary of the queue, in load order; the queue owns them */
  DIC_LIST_TRANSLATION = 1, /* translation dictionaries (type 'C') whose language begins with the
                               same letter as the direction of the set: of that direction */
  DIC_LIST_RUSSIAN = 2,     /* other dictionaries whose language begins with 'R' */
  DIC_LIST_OTHER = 3,       /* all others */
  DIC_LIST_RUSSIAN_CHAIN = 4, /* dictionaries of the Russian side of a chain (kz/dic_array.h), */
  DIC_LIST_OTHER_CHAIN = 5    /* and of the other side; the engine fills both, in C++ through
                                 CDicSys::queue */
};

/* The position after the last one. */
enum { DIC_APPEND = -1 };

/* --- Loading ---------------------------------------------------------------------------------- */

/* DicOpen(path, mode): the dictionary joins no list, and the caller closes it. */
KZ_API CDic* DicQueOpen(CDicSys* set, const char* path, int16_t mode);

/* Opens the dictionary file in an open mode (kz/dictionary.h) and files it: into its list of 1 to
 * 3, before the given position (DIC_APPEND, and a position after the end, append it), and at the
 * end of list 0. Its id becomes its position in its list.
 *
 * First a dictionary of the same file name is unloaded as by DicQueUnLoad(set, path, mode); when
 * that keeps it, the result is null, and so it is when the file cannot be opened (the error
 * variable then tells why). The path may be that of a loaded dictionary. */
KZ_API CDic* DicQueLoad(CDicSys* set, int16_t position, const char* path, int16_t mode);

/* Removes the dictionary of list 0 that has the file name of the path (ignoring ASCII case; the
 * directories do not count) from all lists and destroys it. The lists that held it, and the set,
 * have no current dictionary and index -1 afterwards. Returns 1, also when there is none. It is
 * kept, with result 0, when the mode is not DIC_MODE_PLAIN, equals its open mode (DIC_MODE_FLAG
 * aside) or is DIC_MODE_ANY, and its file has not changed: it can be asked for its modification
 * time, and that is the one of when it was opened. */
KZ_API int DicQueUnLoad(CDicSys* set, const char* path, int16_t mode);

/* Destroys all dictionaries of list 0 and empties lists 0 to 3; lists 4 and 5 keep only handles of
 * dictionaries that still exist. Every list has index 0 and no current dictionary afterwards, list
 * 0 is the current one: select a dictionary before the next search. */
KZ_API void DicQueClear(CDicSys* set);

/* Clears the queue, result 1, unless it is still good for the language: lists 0 and 1 are not
 * empty, the first dictionary of list 1 has this language (ignoring ASCII case), and no file of the
 * lists 1 to 3 has changed; then 0. A null language fits no dictionary. */
KZ_API int DicQueClearIfChanged(CDicSys* set, const char* language);

/* Opens a dictionary of the queue anew in another open mode: unloads it and loads the same path
 * with its id as the position. Returns the new handle, the old one is gone; null when that fails
 * (then the dictionary is gone too), and for a null set or dictionary. DIC_MODE_SAME reopens in the
 * present mode. The present mode itself, DIC_MODE_FLAG aside, and this flag alone reopen nothing:
 * they return the handle, and add the flag to the mode when they have it. */
KZ_API CDic* DicSetMode(CDicSys* set, CDic* dictionary, int16_t mode);

/* --- Lists and selection ---------------------------------------------------------------------- */

/* The number of dictionaries in the list. */
KZ_API int DicQueGetSize(CDicSys* set, int16_t list);

/* Makes the list and its dictionary at the index the current ones and returns the dictionary; null,
 * with index -1, for an index outside the list. */
KZ_API CDic* DicQueFirst(CDicSys* set, int16_t list, int16_t index);

/* Steps the list to the dictionary after its current index and returns it; null, with index -1,
 * after the last one, and while the index is -1. DIC_LIST_CURRENT is the current list, that of the
 * latest DicQueFirst or DicQueNext; another one becomes the current list. */
KZ_API CDic* DicQueNext(CDicSys* set, int16_t list);

/* Selects the list's dictionary at the index, for searches and DicQueNext. An index outside the
 * list selects the first dictionary; -1 selects what the stored index says. Returns the index now
 * current; -1 when there is no dictionary. For a list outside 0 to 5 nothing changes, and the
 * result is the index of the latest selection in any list. -1 for a null set. */
KZ_API int16_t DicSetCurrent(CDicSys* set, int16_t list, int16_t index);

/* The list's current index, -1 for none and for a null set. */
KZ_API int16_t DicGetCurrent(CDicSys* set, int16_t list);

/* Makes the dictionary the list's current one; the index becomes its position in the list, -1 when
 * it is not there. A null dictionary means none. */
KZ_API void DicSetCurrentHandler(CDicSys* set, int16_t list, CDic* dictionary);

/* The list's current dictionary, or null. */
KZ_API CDic* DicGetCurrentHandler(CDicSys* set, int16_t list);

/* The dictionary of list 0 that was loaded under this path, ignoring the case of Latin and (CP866)
 * Russian letters; null when there is none. The paths of the queue count as CP866 text:
 * ChkOemDicInList takes the given path as it is, ChkDicInList takes Windows-1251 and converts it
 * (strruansitooem). For ASCII paths they are the same. */
KZ_API CDic* ChkDicInList(CDicSys* set, const char* path);
KZ_API CDic* ChkOemDicInList(CDicSys* set, const char* path);

/* --- Searching -------------------------------------------------------------------------------- */

/* Looks the word up (search modes and levels of DicFind) in the dictionaries of the list: first in
 * the current one unless that is at index 0, then in the others from the first on. The one that has
 * it becomes the list's current dictionary, and its entry is returned, valid until the next search
 * in that dictionary. Null when none has it: the list has no current dictionary then, and finds
 * nothing until DicQueFirst, DicSetCurrent or DicSetCurrentHandler selects one; null also when the
 * list had none before. */
KZ_API const char* DicQueFind(CDicSys* set, int16_t list, const char* word, int16_t search_mode,
                              int16_t level);

/* The same from the list's current index to the end of the list. */
KZ_API const char* DicQueFindRest(CDicSys* set, int16_t list, const char* word, int16_t search_mode,
                                  int16_t level);

/* --- Language and type from a file name ------------------------------------------------------- */

/* The type by the extension, in any case: .dic 'C', .dis 'S', .dit 'T', .dih 'H', .dig 'G'; and the
 * language by the name: for .dic what DicDefineLang finds, for .dit that or else what
 * DicDefineSpLang finds, for the others what DicDefineSpLang finds, or an empty text. `language`
 * has room for 5 bytes, `type` for 2, both are zero-terminated; each may be null. Returns 1, or 0
 * with both empty for any other name. */
KZ_API int DicDefineLangType(const char* name, char* language, char* type);

/* The first of "ENRU.", "RUEN.", "FRRU.", "RUFR.", "DERU.", "RUDE." that is anywhere in the
 * name, in capitals, without the dot; the output (5 bytes) stays as it is when there is none. */
KZ_API void DicDefineLang(const char* name, char* language);

/* The same with "RU.", "EN.", "FR.", "DE.". */
KZ_API void DicDefineSpLang(const char* name, char* language);

#ifdef __cplusplus
}

#include "kz/array.h"

namespace kz {

/* The lists of a set and its selections, part of CDicSys. The elements of the lists are CDic. */
struct QueueState {
  int16_t current_list = 0;           /* of the latest DicQueFirst or DicQueNext */
  int16_t current_index = 0;          /* of the latest selection, -1 for none */
  CDic* list_dictionary[6] = {};      /* the current dictionary of each list, or null */
  CDic* current_dictionary = nullptr; /* of the latest selection, or null */
  ZCObArray* current_array = nullptr; /* the current list */
  ZCObArray* list_table[6] = {};      /* lists 0 to 5 */
  ZCObArray lists[6];
  int16_t list_index[6] = {}; /* the current index of each list, -1 for none */
};

} /* namespace kz */
#endif

#endif /* KZ_DIC_QUEUE_H */

/* Handle types of the plain functions, for C and C++.
 *
 * A handle is the address of the object that it names; C callers see the types as incomplete
 * structures, C++ callers may include the header of the class itself.
 *
 *   CDic* dictionary = DicOpen("pets.dic", DIC_MODE_PLAIN);
 *   puts(DicGetPath(dictionary));  // Output: pets.dic
 *   DicClose(dictionary);
 */
#ifndef KZ_TYPES_H
#define KZ_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
class CDic;
class CDicEntry;
class CDicSys;
class ZCFile;
#else
typedef struct CDic CDic;           /* an open dictionary, kz/dictionary.h */
typedef struct CDicEntry CDicEntry; /* an entry and its meanings, kz/entry.h */
typedef struct CDicSys CDicSys;     /* a set of dictionaries, kz/dic_set.h */
typedef struct ZCFile ZCFile;       /* a file, kz/file.h */
#endif

#endif /* KZ_TYPES_H */

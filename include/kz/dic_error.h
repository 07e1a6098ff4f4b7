/* Error codes of the dictionary engine.
 *
 * Every function of the engine leaves its result in one process-wide 16-bit error variable, which
 * header reads, dictionary opens and searches clear first; many return the same code directly, and
 * so do the list files, replacement buffers and inflection tables. The variable is atomic:
 * threads that use the engine at the same time, each on dictionaries or a set of its own, share
 * nothing else and are no data race. But it has no owner, so they overwrite each other's code.
 *
 *   CDic* dictionary = DicOpen("missing.dic", DIC_MODE_PLAIN);
 *   if (!dictionary && kz_dict_dic_errno() == DIC_ERR_FILE)
 *     puts(strerror(kz_dict_errno()));  // Output: No such file or directory
 */
#ifndef KZ_DIC_ERROR_H
#define KZ_DIC_ERROR_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  DIC_OK = 0,              /* no error */
  DIC_ERR_FILE = 195,      /* a file cannot be opened, read or written */
  DIC_ERR_MEMORY = 196,    /* out of memory, or a dictionary object without a path */
  DIC_ERR_ARGUMENT = 200,  /* a function of the dictionary set was given no path */
  DIC_ERR_FORMAT = 202,    /* not a dictionary, or a damaged one */
  DIC_ERR_NOT_FOUND = 204, /* an entry look-up found nothing, or was given no dictionary */
  DIC_ERR_IN_USE = 206     /* the header of a dictionary that is open in a set is not rewritten */
};

/* The dictionary error variable: DIC_OK or the code that the engine left last. */
KZ_API uint16_t kz_dict_dic_errno(void);

/* The system error number (errno) of the calling thread. After a failed open or header read it
 * names the system's reason. */
KZ_API int kz_dict_errno(void);

#ifdef __cplusplus
}
#endif

#endif /* KZ_DIC_ERROR_H */

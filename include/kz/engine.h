/* The registry through which the modules of a process share its translation engines.
 *
 * The host registers an engine and hands its handle to the other modules, which fetch the engine by
 * it. Two engines can be registered, with the handles 0 and 1. The library stores the pointers and
 * never looks behind them. Handles come from a pool of ids, which callers may use for handles of
 * their own too. Set up by one thread before others use it.
 *
 *   int engine = 0;  // whatever the modules share
 *   int16_t handle = SetKZEngine(&engine, 0);
 *   if (KZEngine((uint16_t)handle) == &engine) puts("shared");  // Output: shared
 *   FreeEngineHandler((uint16_t)handle);
 *   kz_data_free();
 */
#ifndef KZ_ENGINE_H
#define KZ_ENGINE_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus

// Ids from 0 to 255, in eight independent pools. A mask selects pools by its bits; an id is taken
// in a mask when it is taken in one of its pools.
class KZ_API CGenId {
 public:
  CGenId();  // all ids free in all pools

  // The lowest id that is free in all pools of the mask, which is then taken in all of them; -1
  // when there is none. Mask 0 takes nothing and gives 0.
  int16_t GetId(uint8_t mask);
  // Frees the id in the pools of the mask. Ids outside 0 to 255 are ignored.
  void DelId(uint8_t mask, int16_t id);

 private:
  uint8_t pools_of_id[256];  // bit set of the pools in which each id is taken
};

extern "C" {
#endif

/* Records the host's kernel block. 1; 0 for null. */
KZ_API int16_t kz_comm_init_kernel(void* kernel);
/* The matching end call; it does nothing. */
KZ_API void kz_comm_free_kernel(void);

/* Creates the table of engines, which has room for the handles 0 and 1 whatever the number of
 * entries asked for. 1 when it exists now, 0 when memory runs out. */
KZ_API int16_t kz_data_init(int16_t entries);
/* Releases the table. Ids that were taken stay taken. */
KZ_API void kz_data_free(void);

/* Takes an id of pool 1 (mask 1) and creates the table when there is none. The id, which is a
 * handle only when it is 0 or 1; -1 when all are taken or memory runs out. */
KZ_API int16_t GetNewEngineHandler(void);
/* Registers an engine under a new handle; `dtb` is 1 for an engine that KZDTBEngine may return.
 * The new id: one of 2 or more is taken, but the engine is not registered. -1 for a null engine and
 * when no id is free. */
KZ_API int16_t SetKZEngine(void* engine, uint8_t dtb);
/* The engine registered under the handle, else null. */
KZ_API void* KZEngine(uint16_t handle);
/* The engine registered under the handle when its `dtb` is 1, else null. */
KZ_API void* KZDTBEngine(uint16_t handle);
/* Removes the engine and frees the id. Does nothing without a table and for handles other than 0
 * and 1. */
KZ_API void FreeEngineHandler(uint16_t handle);

/* Ids of the library's pools, as by CGenId. Mask 1 is the pool of the engine handles. */
KZ_API int16_t GetNewHandler(uint8_t mask);
KZ_API void FreeHandler(uint8_t mask, int16_t id);

#ifdef __cplusplus
}
#endif

#endif /* KZ_ENGINE_H */

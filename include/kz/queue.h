/* Singly linked queues of elements that carry two links.
 *
 * A queue is a header of the caller; initque makes it an empty queue. Its elements are chained
 * through their main link or, with the functions named ..._back, through their second one: one
 * element can thus be in two queues at a time, each of which is handled through one link only.
 * Nothing is allocated or released but by newqueobj. No pointer may be null unless it is said.
 *
 *   KZQUE queue;
 *   initque(&queue);
 *   enque(&queue, newqueobj(5));
 *   enque(&queue, newqueobj(7));
 *   for (KZQUEOBJ* one; (one = deque(&queue)) != NULL; kz_misc_free(one))
 *     printf("%d\n", (int)one->data);
 *     // Output: 5
 *     // Output: 7
 */
#ifndef KZ_QUEUE_H
#define KZ_QUEUE_H

#include <stdint.h>

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* An element of a queue. */
typedef struct KZQUEOBJ {
  struct KZQUEOBJ* next;      /* main link: the element after this one, or null */
  struct KZQUEOBJ* next_back; /* second link */
  int16_t id;                 /* key of id_in_que */
  int16_t did;                /* key of did_in_que */
  int16_t sequence;           /* number given by enque and enque1 */
  uint8_t priority;           /* order of enque_prio; 255 asks for one to be given */
  int32_t data;               /* the caller's value */
} KZQUEOBJ;

/* A queue. */
typedef struct KZQUE {
  KZQUEOBJ* head; /* first element, or null */
  KZQUEOBJ* tail; /* last element; in an empty queue the address of the queue itself */
} KZQUE;

/* Makes an empty queue. */
KZ_API void initque(KZQUE* queue);

/* A new element with the data given and all else zero, to be released with kz_misc_free of
 * kz/strutil.h; null when memory runs out. */
KZ_API KZQUEOBJ* newqueobj(int32_t data);

/* Appends the element. Its sequence number becomes that of the last element plus one (16 bits), in
 * an empty queue 1. */
KZ_API void enque(KZQUE* queue, KZQUEOBJ* element);
/* Puts the element in front, with the sequence number that enque would give. */
KZ_API void enque1(KZQUE* queue, KZQUEOBJ* element);
/* Appends the element through the second link; the sequence number stays. */
KZ_API void enque_back(KZQUE* queue, KZQUEOBJ* element);

/* Puts the element after all those whose priority is not greater. Priority 255 appends, and
 * becomes the priority of the last element plus one (8 bits), in an empty queue 1; the id becomes
 * the same number. */
KZ_API void enque_prio(KZQUE* queue, KZQUEOBJ* element);
/* The same through the second link. */
KZ_API void enque_prio_back(KZQUE* queue, KZQUEOBJ* element);

/* Takes the first element out of the queue; null when the queue is empty. */
KZ_API KZQUEOBJ* deque(KZQUE* queue);
/* The same through the second link. */
KZ_API KZQUEOBJ* deque_back(KZQUE* queue);

/* The first element with the key; `previous` (which may be null) receives the element before it, or
 * the element itself when it is the first. Null, also in `previous`, when there is none. */
KZ_API KZQUEOBJ* id_in_que(KZQUE* queue, int16_t id, KZQUEOBJ** previous);
KZ_API KZQUEOBJ* did_in_que(KZQUE* queue, int16_t did, KZQUEOBJ** previous);

/* Takes the element out of the queue; `previous` is what id_in_que gives for it and does not matter
 * for the first element. A null element is ignored. */
KZ_API void delque(KZQUE* queue, KZQUEOBJ* element, KZQUEOBJ* previous);
/* Takes the first element with the key out of the queue and returns it; null when there is none. */
KZ_API KZQUEOBJ* del_in_que(KZQUE* queue, int16_t id);
KZ_API KZQUEOBJ* del_did_in_que(KZQUE* queue, int16_t did);

#ifdef __cplusplus
}
#endif

#endif /* KZ_QUEUE_H */

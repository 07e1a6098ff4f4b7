// Queues chained through either of two links.
#include "kz/queue.h"

#include <cstdint>

#include "kz/strutil.h"

namespace {

using Link = KZQUEOBJ* KZQUEOBJ::*;
using Key = std::int16_t KZQUEOBJ::*;

constexpr std::uint8_t kPriorityWanted = 255;

void make_empty(KZQUE& queue) { queue = {nullptr, reinterpret_cast<KZQUEOBJ*>(&queue)}; }

void append(KZQUE& queue, KZQUEOBJ& element, Link link) {
  element.*link = nullptr;
  if (queue.head == nullptr) {
    queue.head = &element;
  } else {
    queue.tail->*link = &element;
  }
  queue.tail = &element;
}

std::int16_t next_sequence(const KZQUE& queue) {
  return queue.head == nullptr ? std::int16_t{1}
                               : static_cast<std::int16_t>(queue.tail->sequence + 1);
}

void insert_by_priority(KZQUE& queue, KZQUEOBJ& element, Link link) {
  KZQUEOBJ** place = &queue.head;
  while (*place != nullptr && (*place)->priority <= element.priority) place = &((*place)->*link);
  if (*place != nullptr) {
    element.*link = *place;
    *place = &element;
    return;
  }
  if (element.priority == kPriorityWanted) {
    const int last = queue.head == nullptr ? 0 : queue.tail->priority;
    element.priority = static_cast<std::uint8_t>(last + 1);
    element.id = element.priority;
  }
  append(queue, element, link);
}

KZQUEOBJ* take_first(KZQUE& queue, Link link) {
  KZQUEOBJ* const first = queue.head;
  if (first == nullptr) return nullptr;
  queue.head = first->*link;
  if (queue.head == nullptr) make_empty(queue);
  return first;
}

KZQUEOBJ* find(const KZQUE& queue, Key key, std::int16_t value, KZQUEOBJ** previous) {
  KZQUEOBJ* before = queue.head;
  KZQUEOBJ* element = queue.head;
  while (element != nullptr && element->*key != value) {
    before = element;
    element = element->next;
  }
  if (previous != nullptr) *previous = element == nullptr ? nullptr : before;
  return element;
}

KZQUEOBJ* take(KZQUE* queue, Key key, std::int16_t value) {
  KZQUEOBJ* previous = nullptr;
  KZQUEOBJ* const element = find(*queue, key, value, &previous);
  delque(queue, element, previous);
  return element;
}

}  // namespace

void initque(KZQUE* queue) { make_empty(*queue); }

KZQUEOBJ* newqueobj(int32_t data) {
  auto* const element = static_cast<KZQUEOBJ*>(kz_misc_calloc(1, sizeof(KZQUEOBJ)));
  if (element != nullptr) element->data = data;
  return element;
}

void enque(KZQUE* queue, KZQUEOBJ* element) {
  element->sequence = next_sequence(*queue);
  append(*queue, *element, &KZQUEOBJ::next);
}

void enque1(KZQUE* queue, KZQUEOBJ* element) {
  element->sequence = next_sequence(*queue);
  element->next = queue->head;
  if (queue->head == nullptr) queue->tail = element;
  queue->head = element;
}

void enque_back(KZQUE* queue, KZQUEOBJ* element) { append(*queue, *element, &KZQUEOBJ::next_back); }

void enque_prio(KZQUE* queue, KZQUEOBJ* element) {
  insert_by_priority(*queue, *element, &KZQUEOBJ::next);
}

void enque_prio_back(KZQUE* queue, KZQUEOBJ* element) {
  insert_by_priority(*queue, *element, &KZQUEOBJ::next_back);
}

KZQUEOBJ* deque(KZQUE* queue) { return take_first(*queue, &KZQUEOBJ::next); }

KZQUEOBJ* deque_back(KZQUE* queue) { return take_first(*queue, &KZQUEOBJ::next_back); }

KZQUEOBJ* id_in_que(KZQUE* queue, int16_t id, KZQUEOBJ** previous) {
  return find(*queue, &KZQUEOBJ::id, id, previous);
}

KZQUEOBJ* did_in_que(KZQUE* queue, int16_t did, KZQUEOBJ** previous) {
  return find(*queue, &KZQUEOBJ::did, did, previous);
}

void delque(KZQUE* queue, KZQUEOBJ* element, KZQUEOBJ* previous) {
  if (element == nullptr) return;
  if (element == queue->head) {
    take_first(*queue, &KZQUEOBJ::next);
    return;
  }
  previous->next = element->next;
  if (element == queue->tail) queue->tail = previous;
}

KZQUEOBJ* del_in_que(KZQUE* queue, int16_t id) { return take(queue, &KZQUEOBJ::id, id); }

KZQUEOBJ* del_did_in_que(KZQUE* queue, int16_t did) { return take(queue, &KZQUEOBJ::did, did); }

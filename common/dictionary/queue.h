// Queue: the lists of a set's dictionaries, their selections and the search through them.
#ifndef KZ_DICTIONARY_QUEUE_H
#define KZ_DICTIONARY_QUEUE_H

#include <cstdint>

#include "kz/dic_queue.h"

namespace kz {

inline constexpr int kListCount = 6;

// Open modes without the flag, which is no part of how a dictionary was opened.
inline bool same_open_mode(int a, int b) { return (a & ~DIC_MODE_FLAG) == (b & ~DIC_MODE_FLAG); }

// The lists are arrays of objects that hold dictionaries, which are no objects.
inline CDic* dictionary_at(const ZCObArray& list, int index) {
  return reinterpret_cast<CDic*>(list.GetAt(index));
}

// What the functions of kz/dic_queue.h do, on the queue of one set. It has no state of its own.
//
// No list ever holds a dictionary that was destroyed, or an empty slot.
class Queue {
 public:
  // `language` is the working direction of the set.
  Queue(QueueState& state, const char* language) : q_(state), language_(language) {}

  // Sets up the table of lists and the selections of a new queue.
  static void init(QueueState& state);

  CDic* load(std::int16_t position, const char* path, std::int16_t mode);
  // False when the dictionary was kept.
  bool unload(const char* path, std::int16_t mode);
  void clear();
  bool clear_if_changed(const char* language);

  // The list of that number, null when there is none.
  ZCObArray* list(std::int16_t number) const { return has(number) ? &at(number) : nullptr; }
  int size(std::int16_t list) const { return has(list) ? at(list).GetSize() : 0; }
  // The dictionary of list 0 that was loaded under the path, ignoring case. Loaded paths are CP866
  // text; `to_oem` turns the characters of the given one into that.
  CDic* loaded_from(const char* path, int (*to_oem)(int character)) const;

  CDic* first(std::int16_t list, std::int16_t index);
  CDic* next(std::int16_t list);
  std::int16_t set_current(std::int16_t list, std::int16_t index);
  std::int16_t current(std::int16_t list);
  void set_current_dictionary(std::int16_t list, CDic* dictionary);
  CDic* current_dictionary(std::int16_t list) const {
    return has(list) ? q_.list_dictionary[list] : nullptr;
  }

  const char* find(std::int16_t list, const char* word, std::int16_t search_mode,
                   std::int16_t level);
  const char* find_rest(std::int16_t list, const char* word, std::int16_t search_mode,
                        std::int16_t level);

  // Takes a dictionary out of a list; no effect when the list does not hold it.
  void remove(std::int16_t list, const CDic* dictionary);
  // Makes the position of each dictionary in the list its id.
  void number(std::int16_t list);

 private:
  static bool has(std::int16_t list) { return list >= 0 && list < kListCount; }
  ZCObArray& at(std::int16_t list) const { return *q_.list_table[list]; }
  CDic* element(std::int16_t list, int index) const;
  int position(std::int16_t list, const CDic* dictionary) const;

  static void reset_selections(QueueState& state);
  CDic* named(const char* file_name) const;
  std::int16_t list_of(const CDic& dictionary) const;
  CDic* store(std::int16_t list, int index);
  CDic* select(std::int16_t list, int index);
  bool can_search(std::int16_t list) const;

  QueueState& q_;
  const char* language_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_QUEUE_H

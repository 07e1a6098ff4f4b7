// The queue: current lists and dictionaries, and the search through a list.
#include "dictionary/queue.h"
#include "kz/dictionary.h"

namespace kz {

CDic* Queue::element(std::int16_t list, int index) const {
  return index >= 0 && index < size(list) ? dictionary_at(at(list), index) : nullptr;
}

int Queue::position(std::int16_t list, const CDic* dictionary) const {
  for (int i = 0; i < size(list); ++i) {
    if (dictionary_at(at(list), i) == dictionary) return i;
  }
  return -1;
}

// Makes the dictionary at the index the current one of the list; none, with index -1, when the list
// has no such dictionary.
CDic* Queue::store(std::int16_t list, int index) {
  CDic* const dictionary = element(list, index);
  q_.list_dictionary[list] = dictionary;
  q_.list_index[list] = static_cast<std::int16_t>(dictionary != nullptr ? index : -1);
  return dictionary;
}

// The same, and of the set.
CDic* Queue::select(std::int16_t list, int index) {
  q_.current_dictionary = store(list, index);
  q_.current_index = q_.list_index[list];
  return q_.current_dictionary;
}

CDic* Queue::first(std::int16_t list, std::int16_t index) {
  if (!has(list)) return nullptr;
  q_.current_list = list;
  q_.current_array = &at(list);
  return select(list, index);
}

CDic* Queue::next(std::int16_t list) {
  if (list == -1) list = q_.current_list;
  if (!has(list)) return nullptr;
  q_.current_list = list;
  q_.current_array = &at(list);
  const int index = q_.list_index[list];
  return select(list, index >= 0 ? index + 1 : -1);
}

std::int16_t Queue::set_current(std::int16_t list, std::int16_t index) {
  if (!has(list)) return q_.current_index;
  if (index == -1) {
    index = q_.list_index[list];
  } else if (element(list, index) == nullptr) {
    index = 0;
  }
  select(list, index);
  return q_.current_index;
}

std::int16_t Queue::current(std::int16_t list) {
  if (!has(list)) return -1;
  const std::int16_t index = q_.list_index[list];
  q_.current_dictionary = element(list, index);
  q_.current_index = q_.current_dictionary != nullptr ? index : std::int16_t{-1};
  return q_.current_index;
}

void Queue::set_current_dictionary(std::int16_t list, CDic* dictionary) {
  if (!has(list)) return;
  q_.list_dictionary[list] = dictionary;
  q_.list_index[list] = static_cast<std::int16_t>(position(list, dictionary));
}

bool Queue::can_search(std::int16_t list) const {
  return has(list) && q_.list_index[list] >= 0 && q_.list_dictionary[list] != nullptr;
}

const char* Queue::find(std::int16_t list, const char* word, std::int16_t search_mode,
                        std::int16_t level) {
  if (!can_search(list)) return nullptr;
  CDic* tried = nullptr;
  if (q_.list_index[list] > 0) {
    tried = q_.list_dictionary[list];
    if (const char* entry = DicFind(tried, word, search_mode, level)) return entry;
  }
  for (int i = 0; i < size(list); ++i) {
    CDic* const dictionary = dictionary_at(at(list), i);
    if (dictionary == tried) continue;
    if (const char* entry = DicFind(dictionary, word, search_mode, level)) {
      store(list, i);
      return entry;
    }
  }
  store(list, -1);
  return nullptr;
}

const char* Queue::find_rest(std::int16_t list, const char* word, std::int16_t search_mode,
                             std::int16_t level) {
  if (!can_search(list)) return nullptr;
  for (int i = q_.list_index[list]; i < size(list); ++i) {
    if (const char* entry = DicFind(dictionary_at(at(list), i), word, search_mode, level)) {
      store(list, i);
      return entry;
    }
  }
  store(list, -1);
  return nullptr;
}

}  // namespace kz

// The queue of a set: loading, unloading, the lists, and searches in their order.
#include <algorithm>
#include <iterator>

#include "dictionary/lookup.h"
#include "dictionary/queue.h"
#include "dictionary/queue_case.h"
#include "kz/charclass.h"
#include "kz/dictionary.h"
#include "kz/strutil.h"

namespace kz {
namespace {

// Open mode of an unloading that keeps what has not changed, whatever its mode.
constexpr std::int16_t kKeepUnchanged = DIC_MODE_ANY;

constexpr char kTranslation = 'C';

ZCObject* as_element(CDic* dictionary) { return reinterpret_cast<ZCObject*>(dictionary); }

bool has_changed(CDic& dictionary) {
  ZCFileStatus status;
  return ZCFile().GetStatus(DicGetPath(&dictionary), status) == 0 ||
         status.modification_time.GetTime() != Lookup::modification_time(dictionary);
}

bool any_changed(const ZCObArray& list) {
  for (int i = 0; i < list.GetSize(); ++i) {
    if (has_changed(*dictionary_at(list, i))) return true;
  }
  return false;
}

// Small letters for the Latin and the CP866 ones, of which each function leaves the others alone.
int fold_oem(int character) { return toruoemlower(__tolower(character)); }

bool equal_paths(const char* oem_path, const char* path, int (*to_oem)(int)) {
  for (; fold_oem(*oem_path) == fold_oem(to_oem(*path)); ++oem_path, ++path) {
    if (*path == '\0') return true;
  }
  return false;
}

}  // namespace

void Queue::init(QueueState& state) {
  for (int i = 0; i < kListCount; ++i) state.list_table[i] = &state.lists[i];
  reset_selections(state);
}

void Queue::reset_selections(QueueState& state) {
  std::fill(std::begin(state.list_dictionary), std::end(state.list_dictionary), nullptr);
  std::fill(std::begin(state.list_index), std::end(state.list_index), std::int16_t{0});
  state.current_list = DIC_LIST_ALL;
  state.current_array = state.list_table[DIC_LIST_ALL];
  state.current_index = 0;
  state.current_dictionary = nullptr;
}

CDic* Queue::load(std::int16_t position, const char* path, std::int16_t mode) {
  // The path may be that of the dictionary that is about to be unloaded.
  const ZCString own_path(path);
  if (!unload(own_path, mode)) return nullptr;
  CDic* const dictionary = DicOpen(own_path, mode);
  if (dictionary == nullptr) return nullptr;
  const std::int16_t list = list_of(*dictionary);
  const int count = size(list);
  const int index = position < 0 ? count : std::min<int>(position, count);
  at(list).InsertAt(index, as_element(dictionary), 1);
  at(DIC_LIST_ALL).Add(as_element(dictionary));
  DicSetId(dictionary, static_cast<std::uint8_t>(index));
  return dictionary;
}

std::int16_t Queue::list_of(const CDic& dictionary) const {
  const char first_letter = *Lookup::language(dictionary);
  if (Lookup::type(dictionary) == kTranslation && first_letter == *language_)
    return DIC_LIST_TRANSLATION;
  return first_letter == 'R' ? DIC_LIST_RUSSIAN : DIC_LIST_OTHER;
}

bool Queue::unload(const char* path, std::int16_t mode) {
  CDic* const dictionary = named(GetFileName(path));
  if (dictionary == nullptr) return true;
  const bool may_keep =
      mode != 0 && (same_open_mode(mode, DicGetMode(dictionary)) || mode == kKeepUnchanged);
  if (may_keep && !has_changed(*dictionary)) return false;
  for (std::int16_t list = 0; list < kListCount; ++list) {
    remove(list, dictionary);
    // A list may have been given a dictionary that it does not hold.
    if (q_.list_dictionary[list] == dictionary) q_.list_dictionary[list] = nullptr;
  }
  q_.current_index = -1;
  q_.current_dictionary = nullptr;
  DicClose(dictionary);
  return true;
}

CDic* Queue::named(const char* file_name) const {
  if (file_name == nullptr) return nullptr;
  const ZCObArray& all = at(DIC_LIST_ALL);
  for (int i = 0; i < all.GetSize(); ++i) {
    CDic* const dictionary = dictionary_at(all, i);
    if (equal_ascii_case(GetFileName(DicGetPath(dictionary)), file_name)) return dictionary;
  }
  return nullptr;
}

CDic* Queue::loaded_from(const char* path, int (*to_oem)(int)) const {
  const ZCObArray& all = at(DIC_LIST_ALL);
  for (int i = 0; i < all.GetSize(); ++i) {
    CDic* const dictionary = dictionary_at(all, i);
    if (equal_paths(DicGetPath(dictionary), path, to_oem)) return dictionary;
  }
  return nullptr;
}

void Queue::remove(std::int16_t list, const CDic* dictionary) {
  bool held = false;
  for (int i = size(list); i-- > 0;) {
    if (dictionary_at(at(list), i) != dictionary) continue;
    at(list).RemoveAt(i);
    held = true;
  }
  if (!held) return;
  q_.list_index[list] = -1;
  q_.list_dictionary[list] = nullptr;
}

void Queue::clear() {
  ZCObArray& all = at(DIC_LIST_ALL);
  for (int i = 0; i < all.GetSize(); ++i) {
    CDic* const dictionary = dictionary_at(all, i);
    remove(DIC_LIST_RUSSIAN_CHAIN, dictionary);
    remove(DIC_LIST_OTHER_CHAIN, dictionary);
    DicClose(dictionary);
  }
  for (const DicList list : {DIC_LIST_ALL, DIC_LIST_TRANSLATION, DIC_LIST_RUSSIAN, DIC_LIST_OTHER})
    at(list).RemoveAll();
  reset_selections(q_);
}

bool Queue::clear_if_changed(const char* language) {
  const ZCObArray& working = at(DIC_LIST_TRANSLATION);
  const bool good = language != nullptr && size(DIC_LIST_ALL) > 0 &&
                    size(DIC_LIST_TRANSLATION) > 0 &&
                    equal_ascii_case(Lookup::language(*dictionary_at(working, 0)), language) &&
                    !any_changed(working) && !any_changed(at(DIC_LIST_RUSSIAN)) &&
                    !any_changed(at(DIC_LIST_OTHER));
  if (!good) clear();
  return !good;
}

void Queue::number(std::int16_t list) {
  for (int i = 0; i < size(list); ++i) {
    DicSetId(dictionary_at(at(list), i), static_cast<std::uint8_t>(i));
  }
}

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

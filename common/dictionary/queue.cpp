// The queue: loading dictionaries into the lists and taking them out.
#include "dictionary/queue.h"

#include <algorithm>
#include <iterator>

#include "dictionary/lookup.h"
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

}  // namespace kz

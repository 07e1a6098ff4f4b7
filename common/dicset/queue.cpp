// The queue functions over the handle of a set.
#include "kz/dic_queue.h"

#include "dicset/set.h"
#include "dictionary/lookup.h"
#include "kz/codepage.h"
#include "kz/dictionary.h"

using kz::queue_of;

CDic* DicQueOpen(CDicSys* set, const char* path, int16_t mode) {
  return set != nullptr ? DicOpen(path, mode) : nullptr;
}

CDic* DicQueLoad(CDicSys* set, int16_t position, const char* path, int16_t mode) {
  return set != nullptr ? queue_of(*set).load(position, path, mode) : nullptr;
}

int DicQueUnLoad(CDicSys* set, const char* path, int16_t mode) {
  return set != nullptr && queue_of(*set).unload(path, mode) ? 1 : 0;
}

void DicQueClear(CDicSys* set) {
  if (set != nullptr) queue_of(*set).clear();
}

int DicQueClearIfChanged(CDicSys* set, const char* language) {
  return set != nullptr && queue_of(*set).clear_if_changed(language) ? 1 : 0;
}

CDic* DicSetMode(CDicSys* set, CDic* dictionary, int16_t mode) {
  if (set == nullptr || dictionary == nullptr) return nullptr;
  const int16_t present = DicGetMode(dictionary);
  if (mode == DIC_MODE_FLAG || kz::same_open_mode(mode, present)) {
    kz::Lookup::mode(*dictionary) |= static_cast<uint8_t>(mode & DIC_MODE_FLAG);
    return dictionary;
  }
  if (mode == DIC_MODE_SAME) mode = present;
  const ZCString path = DicGetPath(dictionary);
  const int16_t id = DicGetId(dictionary);
  queue_of(*set).unload(path, 0);
  CDic* const reopened = queue_of(*set).load(id, path, mode);
  if (reopened != nullptr) kz::Lookup::mode(*reopened) = static_cast<uint8_t>(mode);
  return reopened;
}

int DicQueGetSize(CDicSys* set, int16_t list) {
  return set != nullptr ? queue_of(*set).size(list) : 0;
}

CDic* DicQueFirst(CDicSys* set, int16_t list, int16_t index) {
  return set != nullptr ? queue_of(*set).first(list, index) : nullptr;
}

CDic* DicQueNext(CDicSys* set, int16_t list) {
  return set != nullptr ? queue_of(*set).next(list) : nullptr;
}

int16_t DicSetCurrent(CDicSys* set, int16_t list, int16_t index) {
  return set != nullptr ? queue_of(*set).set_current(list, index) : int16_t{-1};
}

int16_t DicGetCurrent(CDicSys* set, int16_t list) {
  return set != nullptr ? queue_of(*set).current(list) : int16_t{-1};
}

void DicSetCurrentHandler(CDicSys* set, int16_t list, CDic* dictionary) {
  if (set != nullptr) queue_of(*set).set_current_dictionary(list, dictionary);
}

CDic* DicGetCurrentHandler(CDicSys* set, int16_t list) {
  return set != nullptr ? queue_of(*set).current_dictionary(list) : nullptr;
}

CDic* ChkOemDicInList(CDicSys* set, const char* path) {
  if (set == nullptr || path == nullptr) return nullptr;
  return queue_of(*set).loaded_from(path, [](int character) { return character; });
}

CDic* ChkDicInList(CDicSys* set, const char* path) {
  if (set == nullptr || path == nullptr) return nullptr;
  return queue_of(*set).loaded_from(path, _ruansitooem);
}

const char* DicQueFind(CDicSys* set, int16_t list, const char* word, int16_t search_mode,
                       int16_t level) {
  return set != nullptr ? queue_of(*set).find(list, word, search_mode, level) : nullptr;
}

const char* DicQueFindRest(CDicSys* set, int16_t list, const char* word, int16_t search_mode,
                           int16_t level) {
  return set != nullptr ? queue_of(*set).find_rest(list, word, search_mode, level) : nullptr;
}

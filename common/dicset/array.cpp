// The arrays of a set: loading the dictionaries that their descriptors name.
#include "dicset/array.h"

#include <span>

#include "dicset/descriptor.h"
#include "dicset/direction.h"
#include "dicset/set.h"
#include "dictionary/lookup.h"
#include "kz/dictionary.h"
#include "kz/strutil.h"

namespace kz {
namespace {

std::string_view directory_of(const CDicSys& set) {
  return set.directory != nullptr ? set.directory : "";
}

bool is_full_path(std::string_view path) {
  return path.find_first_of("/\\") != std::string_view::npos;
}

// Loads one dictionary from the first of the places where it may be. The places are fewer for a
// path that is too long for one of them.
bool load_dictionary(CDicSys& set, const CDicArray& descriptor) {
  const auto load = [&](const ZCString& path) {
    return queue_of(set).load(-1, path, descriptor.mode) != nullptr;
  };
  const std::string_view path(descriptor.path);
  const std::string_view directory = directory_of(set);
  const std::string_view name = GetFileName(descriptor.path);
  const ZCString full = joined_path(is_full_path(path) ? "" : directory, path);
  if (static_cast<std::size_t>(full.GetLength()) > kPathMax) return false;
  if (load(full)) return true;
  if (directory.size() + name.size() > kPathMax) return false;
  return load(joined_path(directory, name)) || load(joined_path("", name));
}

}  // namespace

bool load_array(CDicSys& set, const ZCObArray& array) {
  bool complete = true;
  for (int i = 0; i < array.GetSize(); ++i) {
    const CDicArray* const descriptor = descriptor_at(array, i);
    if (descriptor != nullptr && !load_dictionary(set, *descriptor)) complete = false;
  }
  return complete;
}

void unload_array(CDicSys& set, ZCObArray& array) {
  for (int i = 0; i < array.GetSize(); ++i) {
    const CDicArray* const descriptor = descriptor_at(array, i);
    if (descriptor != nullptr) queue_of(set).unload(descriptor->path, 0);
  }
  remove_descriptors(array);
}

void append_from_list(CDicSys& set, std::int16_t list, ZCObArray& array) {
  const ZCObArray& dictionaries = *queue_of(set).list(list);
  for (int i = 0; i < dictionaries.GetSize(); ++i) {
    CDic& dictionary = *dictionary_at(dictionaries, i);
    std::uint8_t& mode = Lookup::mode(dictionary);
    if ((mode & ~DIC_MODE_FLAG) != 0) mode &= static_cast<std::uint8_t>(~DIC_MODE_FLAG);
    put_descriptor(array, -1, "", DicGetPath(&dictionary), mode);
  }
}

}  // namespace kz

ZCObArray* DicArraySelect(CDicSys* set, const char* language) {
  if (set == nullptr) return nullptr;
  if (language != nullptr) kz::set_language(*set, language);
  return kz::select_array(*set);
}

int DicArrayInit(CDicSys* set) {
  if (set == nullptr) return 0;
  kz::select_array(*set);
  return 1;
}

int16_t DicArraySet(CDicSys* set, int16_t position, const char* name, int16_t mode,
                    int16_t full_path) {
  if (set == nullptr || set->current_array == nullptr || name == nullptr) return -1;
  const std::string_view prefix = full_path != 0 ? "" : kz::directory_of(*set);
  return kz::put_descriptor(*set->current_array, position, prefix, name, mode) ? position
                                                                               : int16_t{-1};
}

void DicArrayRemoveAll(CDicSys* set, ZCObArray* array) {
  if (set != nullptr && array != nullptr) kz::remove_descriptors(*array);
}

void DicArrayFree(CDicSys* set) {
  if (set != nullptr) kz::remove_all_descriptors(*set);
}

int DicArrayLoad(CDicSys* set, ZCObArray* array, int16_t report) {
  if (set == nullptr || array == nullptr) return -1;
  const bool complete = kz::load_array(*set, *array);
  return report != 0 && !complete ? 1 : 0;
}

void DicArrayUnLoad(CDicSys* set, ZCObArray* array) {
  if (set != nullptr && array != nullptr) kz::unload_array(*set, *array);
}

int DicArrayUpdate(CDicSys* set) {
  if (set == nullptr) return -1;
  ZCObArray* const array = kz::select_array(*set);
  if (array == nullptr) return 0;
  kz::remove_descriptors(*array);
  if (set->operation_code != 0) return 0;
  const bool into_russian = std::string_view("EDPF").find(*set->language) != std::string_view::npos;
  kz::append_from_list(*set, DIC_LIST_TRANSLATION, *array);
  kz::append_from_list(*set, into_russian ? DIC_LIST_RUSSIAN : DIC_LIST_OTHER, *array);
  return 0;
}

void DicSysLoadCommon(CDicSys* set) {
  if (set == nullptr) return;
  kz::remove_all_descriptors(*set);
  const std::string_view directory = kz::directory_of(*set);
  for (std::size_t i = 0; i < std::size(kz::kDirections); ++i) {
    kz::put_descriptor(set->directions[i], 0, directory, kz::kDirections[i].translation, 0);
    kz::put_descriptor(set->directions[i], 1, directory, kz::kDirections[i].general, 0);
  }
  if (const ZCObArray* const array = kz::select_array(*set)) kz::load_array(*set, *array);
  DicQueEnumerate(set);
}

void DicQueEnumerate(CDicSys* set) {
  if (set == nullptr) return;
  for (const DicList list : {DIC_LIST_RUSSIAN_CHAIN, DIC_LIST_OTHER_CHAIN, DIC_LIST_TRANSLATION,
                             DIC_LIST_RUSSIAN, DIC_LIST_OTHER}) {
    kz::queue_of(*set).number(list);
  }
}

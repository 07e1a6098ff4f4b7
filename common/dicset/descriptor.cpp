// Arrays of descriptors, without the set that they belong to.
#include "dicset/descriptor.h"

#include <memory>
#include <new>

namespace kz {

ZCString joined_path(std::string_view prefix, std::string_view name) {
  ZCString path(prefix.data(), static_cast<int>(prefix.size()));
  path += ZCString(name.data(), static_cast<int>(name.size()));
  return path;
}

bool put_descriptor(ZCObArray& array, std::int16_t position, std::string_view prefix,
                    std::string_view name, std::int16_t mode) {
  if (prefix.size() + name.size() > kPathMax) return false;
  std::unique_ptr<CDicArray> made(new (std::nothrow) CDicArray(joined_path(prefix, name), mode, 1));
  if (!made) return false;
  if (position < 0) {
    if (array.Add(made.get()) < 0) return false;
  } else {
    if (position < array.GetSize()) delete array[position];
    array.SetAtGrow(position, made.get());
    if (position >= array.GetSize()) return false;
  }
  static_cast<void>(made.release());
  return true;
}

void remove_descriptors(ZCObArray& array) {
  for (int i = 0; i < array.GetSize(); ++i) delete array[i];
  array.RemoveAll();
}

}  // namespace kz

CDicArray::CDicArray() = default;

CDicArray::CDicArray(const char* file, int16_t open_mode, int16_t is_loaded)
    : loaded(static_cast<uint8_t>(is_loaded)), path(file), mode(static_cast<uint8_t>(open_mode)) {}

CDicArray::~CDicArray() = default;

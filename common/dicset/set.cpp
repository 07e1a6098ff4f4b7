// The dictionary set: its making and end, its direction, its header services.
#include "dicset/set.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <new>

#include "dicset/descriptor.h"
#include "dicset/direction.h"
#include "dictionary/error.h"
#include "dictionary/lookup.h"
#include "dictionary/queue_case.h"
#include "kz/dic_header.h"
#include "kz/strutil.h"

namespace kz {
namespace {

constexpr std::size_t kChunkBufferSize = 2064;

char* zeroed_buffer(std::size_t size) { return static_cast<char*>(kz_misc_calloc(1, size)); }

bool allocate_buffers(CDicSys& set) {
  set.chunk_buffer = zeroed_buffer(kChunkBufferSize);
  set.g_buffer = zeroed_buffer(DIC_SET_BUFFER_SIZE);
  set.e_buffer = zeroed_buffer(DIC_SET_BUFFER_SIZE);
  return set.chunk_buffer != nullptr && set.g_buffer != nullptr && set.e_buffer != nullptr;
}

// The dictionary of the queue that was loaded from this path, written as the queue has it.
CDic* loaded_from(CDicSys& set, const char* path) {
  if (path == nullptr) return nullptr;
  return queue_of(set).loaded_from(path, [](int character) { return character; });
}

}  // namespace

ZCObArray* array_of(CDicSys& set, std::string_view direction) {
  direction = direction.substr(0, kDirectionLength);
  for (std::size_t i = 0; i < std::size(kDirections); ++i) {
    if (equal_ascii_case(direction, kDirections[i].code)) return &set.directions[i];
  }
  return nullptr;
}

ZCObArray* select_array(CDicSys& set) {
  set.current_array = array_of(set, set.language);
  return set.current_array;
}

void set_language(CDicSys& set, const char* code) {
  char language[sizeof set.language] = {};
  if (code != nullptr) std::copy_n(code, strnlen(code, kDirectionLength), language);
  std::copy(std::begin(language), std::end(language), set.language);
  select_array(set);
}

void remove_all_descriptors(CDicSys& set) {
  for (ZCObArray& array : set.directions) remove_descriptors(array);
  for (ZCObArray& array : set.spell_chain) remove_descriptors(array);
  for (ZCObArray& array : set.thesaurus_chain) remove_descriptors(array);
}

}  // namespace kz

CDicSys::CDicSys() { kz::Queue::init(queue); }

CDicSys::CDicSys(int16_t flag, const char* direction, const char* path) : CDicSys() {
  buffer_flag = static_cast<uint8_t>(flag);
  kz::set_language(*this, direction);
  directory = kz_misc_strdup(path);
}

CDicSys::~CDicSys() {
  kz::queue_of(*this).clear();
  for (char* text : {g_buffer, e_buffer, chunk_buffer, directory}) kz_misc_free(text);
  kz::remove_all_descriptors(*this);
}

CDicSys* DicSysOpen(int16_t buffer_flag, const char* language, const char* directory) {
  std::unique_ptr<CDicSys> set(new (std::nothrow) CDicSys(buffer_flag, language, directory));
  if (!set || (directory != nullptr && set->directory == nullptr)) return nullptr;
  if (set->buffer_flag != 0 && !kz::allocate_buffers(*set)) return nullptr;
  return set.release();
}

void DicSysClose(CDicSys* set) { delete set; }

char* DicGetEBuf(CDicSys* set) { return set != nullptr ? set->e_buffer : nullptr; }

char* DicGetGBuf(CDicSys* set) { return set != nullptr ? set->g_buffer : nullptr; }

void DicSysSetLanguage(CDicSys* set, const char* language) {
  if (set != nullptr) kz::set_language(*set, language);
}

void DicSetOperationCode(CDicSys* set, uint16_t code) {
  if (set != nullptr) set->operation_code = code;
}

char* DicSysGetDicPassword(CDicSys* set, const char* path, char* buffer) {
  if (set == nullptr || buffer == nullptr) return nullptr;
  if (const CDic* const loaded = kz::loaded_from(*set, path)) {
    return DicPwGet(kz::Lookup::password(*loaded), buffer);
  }
  DicHeader header;
  if (DicHeaderOpen(path, &header, nullptr) != DIC_OK) return nullptr;
  return DicPwGet(header.Password, buffer);
}

int16_t DicSysHeaderSetProperties(CDicSys* set, const char* path, const char* title,
                                  const char* label, uint16_t property, const char* password) {
  if (set == nullptr) return -1;
  const auto code = [&] {
    if (path == nullptr) return kz::set_error(DIC_ERR_ARGUMENT);
    if (kz::loaded_from(*set, path) != nullptr) return kz::set_error(DIC_ERR_IN_USE);
    return DicHeaderSetProperties(path, title, label, property, password);
  };
  return static_cast<int16_t>(code());
}

// The dictionary object and the functions over its handle.
#include "kz/dictionary.h"

#include <cstring>
#include <memory>
#include <new>

#include "dictionary/error.h"
#include "dictionary/lookup.h"

using kz::Lookup;

CDic::CDic() : chunk_size_(kz::RecordRange::kBufferSize), index_('R') {}

CDic::CDic(const char* path, int16_t mode) : CDic() {
  path_ = path;
  mode_ = static_cast<uint8_t>(mode);
}

CDic::~CDic() { Lookup::close(*this); }

CDic* DicOpen(const char* path, int16_t mode) {
  std::unique_ptr<CDic> dictionary(new (std::nothrow) CDic(path, mode));
  if (!dictionary) {
    kz::set_error(DIC_ERR_MEMORY);
    return nullptr;
  }
  if (Lookup::open(*dictionary, path, mode) == DIC_OK) return dictionary.release();
  const kz::KeepErrno keep;
  dictionary.reset();
  return nullptr;
}

void DicClose(CDic* dictionary) { delete dictionary; }

const char* DicFind(CDic* dictionary, const char* word, int16_t search_mode, int16_t level) {
  if (!Lookup::is_open(dictionary)) return nullptr;
  return Lookup(*dictionary).find(word, search_mode, level);
}

const char* DicFindNext(CDic* dictionary, int16_t level) {
  if (!Lookup::is_open(dictionary)) return nullptr;
  return Lookup(*dictionary).find_next(level);
}

const char* DicGetFound(CDic* dictionary, char* buffer, int16_t level) {
  if (!Lookup::is_open(dictionary)) return nullptr;
  const char* const entry = Lookup(*dictionary).found(level);
  if (buffer != nullptr) std::strcpy(buffer, entry);
  return entry;
}

int16_t DicGetEntry(CDic* dictionary, char* buffer, int16_t search_mode) {
  const char* const entry =
      buffer != nullptr ? DicFind(dictionary, buffer, search_mode, DIC_LEVEL_FULL) : nullptr;
  if (entry == nullptr) return static_cast<int16_t>(kz::set_error(DIC_ERR_NOT_FOUND));
  std::strcpy(buffer, entry);
  return DIC_OK;
}

int16_t DicOpenGetEntry(const char* path, char* buffer, int16_t search_mode) {
  CDic* const dictionary = DicOpen(path, DIC_MODE_PLAIN);
  if (dictionary == nullptr) return static_cast<int16_t>(kz::last_error());
  const int16_t result = DicGetEntry(dictionary, buffer, search_mode);
  const kz::KeepErrno keep;
  DicClose(dictionary);
  return result;
}

CDicEntry* DicGetEntryHandler(CDic* dictionary) {
  return Lookup::is_open(dictionary) ? Lookup(*dictionary).entry_object() : nullptr;
}

const char* DicGetPath(CDic* dictionary) {
  return dictionary != nullptr ? static_cast<const char*>(Lookup::path(*dictionary)) : nullptr;
}

void DicSetId(CDic* dictionary, uint8_t id) {
  if (dictionary != nullptr) Lookup::id(*dictionary) = id;
}

int16_t DicGetId(CDic* dictionary) {
  return dictionary != nullptr ? static_cast<int16_t>(Lookup::id(*dictionary)) : int16_t{-1};
}

int16_t DicGetMode(CDic* dictionary) {
  return dictionary != nullptr ? int16_t{Lookup::mode(*dictionary)} : int16_t{0};
}

void LoadAllOffsets(CDic* dictionary) {
  if (Lookup::is_open(dictionary)) Lookup(*dictionary).load_all_blocks();
}

int32_t DicSizeX(CDic* dictionary, const char* word) {
  if (!Lookup::is_open(dictionary) || word == nullptr) return -1;
  return kz::IndexCore(Lookup::index(*dictionary)).word_block_size(word);
}

int32_t DicOffsetX(CDic* dictionary, const char* word) {
  if (!Lookup::is_open(dictionary) || word == nullptr) return -1;
  return kz::IndexCore(Lookup::index(*dictionary)).word_position(word);
}

int32_t DicLetterOffsetX(CDic* /*dictionary*/, int /*letter*/) { return -1; }

int32_t DicLetterNumberX(CDic* /*dictionary*/, int letter) { return (letter & 0xFF) != 0 ? -1 : 0; }

void PrintAllOffsets(CDic* dictionary, ZCFile* file) {
  if (!Lookup::is_open(dictionary) || file == nullptr) return;
  kz::IndexCore(Lookup::index(*dictionary)).print(*file);
}

// The functions over the handle of an entry.
#include <cstring>
#include <new>

#include "entry/string_view.h"
#include "kz/entry.h"

using kz::entry::copy_out;
using kz::entry::view;

CDicEntry* DicEntryOpen(const char* text, int part, const char* entry, const char* srcRef,
                        const char* language, int kind) {
  auto* const handle = new (std::nothrow) CDicEntry(language, static_cast<char>(kind));
  DicEntryBuild(handle, text, part, entry, srcRef);
  return handle;
}

void DicEntryClose(CDicEntry* handle) { delete handle; }

void DicEntryBuild(CDicEntry* handle, const char* text, int part, const char* entry,
                   const char* srcRef) {
  if (handle != nullptr) handle->Build(text, static_cast<char>(part), entry, srcRef);
}

void DicEntrySplit(CDicEntry* handle) {
  if (handle != nullptr) handle->Split();
}

void DicEntryMerge(CDicEntry* handle) {
  if (handle != nullptr) handle->Merge();
}

int DicEntryGetPart(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? 0 : static_cast<unsigned char>(handle->GetPart(buffer));
}

const char* DicEntryGetInWord(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetInWord(buffer);
}

const char* DicEntryGetSrcWord(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetSrcWord(buffer);
}

const char* DicEntryGetSrcRef(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetSrcRef(buffer);
}

const char* DicEntryGetAttrView(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetAttrView(buffer);
}

const char* DicEntryGetAttr(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetAttr(buffer);
}

std::int16_t DicEntryGetMeaningsSize(CDicEntry* handle) {
  return handle == nullptr ? std::int16_t{0} : handle->GetMeaningsSize();
}

std::int16_t DicEntryGetSynonymsSize(CDicEntry* handle, std::int16_t meaning) {
  return handle == nullptr ? std::int16_t{0} : handle->GetSynonymsSize(meaning);
}

const char* DicEntryGetMeaningTag(CDicEntry* handle, std::int16_t meaning, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetMeaningTag(meaning, buffer);
}

const char* DicEntryGetMeaningDefinition(CDicEntry* handle, std::int16_t meaning, char* buffer) {
  return handle == nullptr ? nullptr : handle->GetMeaningDefinition(meaning, buffer);
}

const char* DicEntryGetSynonym(CDicEntry* handle, std::int16_t meaning, std::int16_t synonym,
                               char* buffer) {
  return handle == nullptr ? nullptr : handle->GetSynonym(meaning, synonym, buffer);
}

std::int16_t DicEntryGetSynonymValues(CDicEntry* handle, char* synonym, char* labels,
                                      char* references) {
  if (handle == nullptr || synonym == nullptr) {
    copy_out({}, labels);
    copy_out({}, references);
    return -1;
  }
  ZCString text(synonym);
  ZCString label_text;
  ZCString reference_text;
  const std::int16_t flag = handle->GetSynonymValues(text, label_text, reference_text);
  copy_out(view(text), synonym);
  copy_out(view(label_text), labels);
  copy_out(view(reference_text), references);
  return flag;
}

char* DicEntryPack(CDicEntry* handle, char* buffer) {
  return handle == nullptr ? nullptr : handle->PackEntry(buffer);
}

const char* CDicEntry::Code(const char* text, char* buffer) {
  Build(text, 0, nullptr, nullptr);
  CodeFullEntry();
  Merge();
  return GetFullEntry(buffer);
}

const char* CDicEntry::Decode(const char* text, char* buffer) {
  Decoding = 1;
  Build(text, 0, nullptr, nullptr);
  DecodeFullEntry();
  Merge();
  Decoding = 0;
  return GetFullEntry(buffer);
}

void CDicEntry::CodeFullEntry() {}
void CDicEntry::DecodeFullEntry() {}

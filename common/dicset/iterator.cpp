// The iterator over a dictionary of a set.
#include <memory>
#include <new>

#include "kz/dic_iterator.h"
#include "kz/dic_queue.h"

CDicSysEntryIterator::CDicSysEntryIterator() = default;

CDicSysEntryIterator::~CDicSysEntryIterator() { CloseIterator(); }

CDicSysEntryIterator* CDicSysEntryIterator::OpenIterator(CDicSys* set, const char* path,
                                                         const char* from, const char* to,
                                                         int16_t value, const char* filter,
                                                         int16_t include) {
  CDic* const found = ChkDicInList(set, path);
  // A dictionary of its own is left to the base, which first copies the texts: they may belong to
  // that dictionary.
  if (found_ != nullptr) CloseIterator();
  if (!CDicEntryIterator::OpenIterator(found, path, from, to, value, filter, include)) {
    return nullptr;
  }
  found_ = found;
  return this;
}

void CDicSysEntryIterator::CloseIterator() {
  CDicEntryIterator::CloseIterator(reinterpret_cast<intptr_t>(found_));
  found_ = nullptr;
}

const char* CDicSysEntryIterator::GetFirstEntry(char* headword, char* code, char* body, char* extra,
                                                int16_t search_mode) {
  return CDicEntryIterator::GetFirstEntry(headword, code, body, extra, search_mode);
}

const char* CDicSysEntryIterator::GetNextEntry(char* headword, char* code, char* body,
                                               char* extra) {
  return CDicEntryIterator::GetNextEntry(headword, code, body, extra);
}

const char* CDicSysEntryIterator::GetLanguage(char* output) {
  return CDicEntryIterator::GetLanguage(output);
}

int32_t CDicSysEntryIterator::GetCounter() { return CDicEntryIterator::GetCounter(); }

CDicSysEntryIterator* DicSysIteratorOpen(CDicSys* set, const char* path, const char* from,
                                         const char* to, int16_t value, const char* filter,
                                         int16_t include) {
  std::unique_ptr<CDicSysEntryIterator> iterator(new (std::nothrow) CDicSysEntryIterator);
  const bool open =
      iterator && iterator->OpenIterator(set, path, from, to, value, filter, include) != nullptr;
  return open ? iterator.release() : nullptr;
}

void DicSysIteratorClose(CDicSysEntryIterator* iterator) { delete iterator; }

// CListFile: pairs of words from a text file.
#include "util/list_file.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "kz/dic_error.h"
#include "kz/file.h"
#include "kz/list_file.h"
#include "util/lexer.h"

namespace {

constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;

ZCString string_of(std::string_view text) { return {text.data(), static_cast<int>(text.size())}; }

// The pair of a line. Running out of memory ends the process.
CListItem* make_item(std::string_view line) noexcept {
  const std::string_view word = kz::next_token(line, kz::kTableBlanks);
  const std::string_view replacement = kz::next_token(line, kz::kTableBlanks);
  return std::make_unique<CListItem>(string_of(word), string_of(replacement)).release();
}

}  // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface promises values.
CListItem::CListItem(ZCString word, ZCString replacement)
    : word_(word), replacement_(replacement) {}

CListItem::~CListItem() = default;

const char* CListItem::GetWordFor() const { return word_; }

const char* CListItem::GetWordTo() const { return replacement_; }

CListFile::CListFile() = default;

CListFile::~CListFile() { CListFile::FreeList(); }

std::int16_t CListFile::Load(const char* name, const char* directory) {
  const std::int16_t result = _LoadList(name);
  if (result == DIC_OK || directory == nullptr) return result;
  return _LoadList(ZCString(directory) + name);
}

std::int16_t CListFile::_LoadList(const char* path) {
  if (path == nullptr || *path == '\0') return DIC_ERR_MEMORY;
  ZCFile file;
  if (!file.Open(path, kReadDenyingWrite)) return DIC_ERR_FILE;
  const int held = items_.GetSize();
  ZCString line;
  while (const char* const text = file.ReadString(line)) {
    if (std::strlen(text) != static_cast<std::size_t>(line.GetLength())) {
      for (int i = held; i < items_.GetSize(); ++i) delete items_.GetAt(i);
      items_.SetSize(held);
      return DIC_ERR_FORMAT;
    }
    if (kz::is_table_line(text)) items_.Add(make_item(text));
  }
  return DIC_OK;
}

const char* CListFile::Find(const char* text) {
  const CListItem* const item = FindObj(text);
  return item != nullptr ? item->GetWordTo() : nullptr;
}

CListItem* CListFile::FindObj(const char* text) {
  if (text == nullptr) return nullptr;
  CListItem* item = First();
  while (item != nullptr) {
    const char* const word = item->GetWordFor();
    if (std::strncmp(text, word, std::strlen(word)) == 0) break;
    item = Next();
  }
  return item;
}

ZCObArray* CListFile::GetList() { return &items_; }

CListItem* CListFile::GetCurrentItem() {
  return current_ < items_.GetSize() ? static_cast<CListItem*>(items_.GetAt(current_)) : nullptr;
}

const char* CListFile::GetWordFor() {
  const CListItem* const item = GetCurrentItem();
  return item != nullptr ? item->GetWordFor() : nullptr;
}

const char* CListFile::GetWordTo() {
  const CListItem* const item = GetCurrentItem();
  return item != nullptr ? item->GetWordTo() : nullptr;
}

CListItem* CListFile::First() {
  current_ = 0;
  return GetCurrentItem();
}

CListItem* CListFile::Next() {
  if (current_ < items_.GetSize()) ++current_;
  return GetCurrentItem();
}

void CListFile::FreeList() {
  for (int i = 0; i < items_.GetSize(); ++i) delete items_.GetAt(i);
  items_.RemoveAll();
  current_ = 0;
}

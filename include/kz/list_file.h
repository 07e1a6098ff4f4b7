// List files: pairs of a word and what it stands for, one pair per line of a text file.
//
// CListFile loads one or more such files, in Windows-1251, into a list of CListItem objects in the
// order of the lines. Find looks up the first item whose word begins a given text; First and Next
// walk through the list. docs/tables.md describes the file.
//
//   CListFile list;
//   if (list.Load("units.txt", "./") == 0)
//     if (const char* unit = list.Find("km/h")) puts(unit);  // Output: kilometre
#ifndef KZ_LIST_FILE_H
#define KZ_LIST_FILE_H

#include <cstdint>

#include "kz/array.h"
#include "kz/export.h"
#include "kz/object.h"
#include "kz/string.h"

// A word and what it stands for.
class KZ_API CListItem : public ZCObject {
 public:
  // A pair that holds copies.
  CListItem(ZCString word, ZCString replacement);
  ~CListItem() override;

  // The word, the replacement: valid as long as the item.
  const char* GetWordFor() const;
  const char* GetWordTo() const;

 private:
  ZCString word_;
  ZCString replacement_;
};

// The pairs of one or more files, one of which is the current item; at first the first one.
class KZ_API CListFile {
 public:
  // An empty list.
  CListFile();
  CListFile(const CListFile&) = delete;
  CListFile& operator=(const CListFile&) = delete;
  // Deletes the items.
  virtual ~CListFile();

  // Appends the items of a file: of `name` or, if that fails, of `directory` followed by `name`,
  // unless the directory is null. 0 on success, else the result of the last _LoadList.
  std::int16_t Load(const char* name, const char* directory);
  // Appends the items of the file of that path. 0 on success; 195 when it cannot be opened, 196
  // for a null or empty path, 202, without any of its items, when it has a zero byte.
  std::int16_t _LoadList(const char* path);

  // The first item whose word the text begins with, exactly; an empty word begins every text. It
  // becomes the current item; when there is none, the result is null and the list is at its end.
  // Find gives its replacement, which is valid as long as the item. Null for a null text.
  const char* Find(const char* text);
  CListItem* FindObj(const char* text);

  // The items, which the list owns.
  ZCObArray* GetList();

  // The current item, its word, its replacement; null at the end of the list.
  CListItem* GetCurrentItem();
  const char* GetWordFor();
  const char* GetWordTo();
  // Makes the first item, or the one after the current one, the current item and returns it; null
  // at the end of the list, where Next stays.
  CListItem* First();
  CListItem* Next();

  // Deletes all items.
  void FreeList();

 private:
  ZCObArray items_;
  std::int32_t current_ = 0;
};

#endif  // KZ_LIST_FILE_H

// Inflection tables: the word endings of a language and the classes of words that take them.
//
// A table is a text file that people edit, one ending per line with up to four attribute records,
// and beside it a compiled ".Dat" file, which Load writes the first time and reads afterwards.
// Find gives the entry of the longest known ending of a word. docs/tables.md describes both files.
// Text is Windows-1251. The table of a language is set up by one thread before others use it.
//
//   CGrSrcWordFlex* table = GetRuSrcFlex();
//   char word[] = "cnjkfvb", text[GR_SRC_FLEX_STRING_SIZE];
//   strruscase(word);  // the keys of the word столами
//   if (table->Load("ruflex.Dat", "./", 1) == 0 && table->FindStrAttr(word, text, 0))
//     puts(text);  // Output: ами NM 1  | NF 1  | N 1  | NP 1
#ifndef KZ_INFLECTION_H
#define KZ_INFLECTION_H

#include <cstdint>

#include "kz/export.h"
#include "kz/map.h"
#include "kz/object.h"
#include "kz/string.h"

// Room for the text that GetStrAttr writes, its final zero included.
enum { GR_SRC_FLEX_STRING_SIZE = 222 };

namespace kz {
class EndingIndex;      // finds the longest ending of a word in one pass
struct InflectionCore;  // fills a table and writes it
}  // namespace kz

// An ending and its attributes. A new object is all zeros.
class KZ_API CGrSrcWordObj : public ZCObject {
 public:
  CGrSrcWordObj();
  ~CGrSrcWordObj() override;

  std::uint32_t attributes[4][2];  // compact attribute records, as SetGrSrcAttr takes them
  std::uint8_t count;              // records in use, 1 to 4; the others are zero
  char ending[80];                 // zero-terminated
  std::uint8_t length;             // of the ending, set when a ".Dat" file is written or read
};

// The entries of a language by their endings.
class KZ_API CGrSrcWordFlex : public ZCObject {
 public:
  // An empty table.
  CGrSrcWordFlex() noexcept;
  CGrSrcWordFlex(const CGrSrcWordFlex&) = delete;
  CGrSrcWordFlex& operator=(const CGrSrcWordFlex&) = delete;
  // Deletes the entries.
  ~CGrSrcWordFlex() override;

  // Loads the table of the path `directory` followed by `name`, which names the ".Dat" file (a null
  // text counts as empty). When that cannot be opened or is damaged, the text file with ".txt" in
  // place of the last ".Dat" is read, and the ".Dat" file written from it; it does not matter if
  // that fails. With flag 0, the files are only tried; the first Find or GetFirstFlex loads.
  //
  // 0 on success; 195 when neither file can be opened, or the ".Dat" file is damaged and there is
  // no text file. A table that holds entries stays as it is, result 0.
  std::int16_t Load(const char* name, const char* directory, std::int16_t flag);

  // The entry of the word or of its longest known ending, null when there is none; null for a null
  // or empty word and for one with a blank. Endings longer than any ending with the same final
  // letter that begins with a small Russian letter are not tried. The entry belongs to the table;
  // it lives until the table is destroyed. An empty table is loaded first, from the path that Load
  // was given; when that fails it is not tried again. `mode` is not used.
  CGrSrcWordObj* Find(const char* word, std::int16_t mode);

  // GetStrAttr of Find(word).
  char* FindStrAttr(const char* word, char* output, std::int16_t mode);

  // Writes the ending and the attributes of an entry in the words of the text file and returns the
  // output, which holds GR_SRC_FLEX_STRING_SIZE bytes: "ending name name number name | name ...",
  // up to the first record without a word class; nothing when that is the first one. Paradigm
  // letters are left out, an index without a name is written as "?". Null and the empty text for a
  // null entry.
  char* GetStrAttr(const CGrSrcWordObj* entry, char* output);

  // Iteration in the order of a map with 17 buckets (kz/map.h). The first entry, loading an empty
  // table as Find does; null when there is none.
  CGrSrcWordObj* GetFirstFlex();
  // The next entry; null at the end and from then on, and before the first.
  CGrSrcWordObj* GetNextFlex();

 protected:
  // Loads the table from the full path of its ".Dat" file, by the load flag; results as Load.
  std::int16_t _LoadFlex(const char* path);
  // Adds the entry of one line of the text file; the entry of an ending that is there already takes
  // what the line says. 1 when the line gave an entry; 0 for an ending of 80 characters or more or
  // without attributes.
  std::int16_t GetWord(const char* line);

 private:
  friend struct kz::InflectionCore;

  // The layout of a table is fixed up to the position. The last entry, the counts and the last
  // length are kept for it alone: the library does not go by them.
  ZCMapStringToOb entries_;
  std::int16_t longest_[32] = {};     // of the endings in each final letter
  CGrSrcWordObj* last_ = nullptr;     // the entry added last
  std::int32_t declared_count_ = 0;   // entries, by the ".Dat" file
  std::int32_t line_count_ = 0;       // lines of the text file that gave an entry
  std::int32_t last_length_ = 0;      // of the ending handled last
  ZCString path_;                     // of the ".Dat" file
  std::int16_t load_flag_ = 0;        // whether loading reads the table
  POSITION position_ = nullptr;       // of the iteration
  kz::EndingIndex* index_ = nullptr;  // of the endings in entries_
};

// The tables of source words by language, owned by the library: the Russian one, empty until it is
// loaded, and null for the others.
extern "C" {
KZ_API CGrSrcWordFlex* GetRuSrcFlex();
KZ_API CGrSrcWordFlex* GetEnSrcFlex();
KZ_API CGrSrcWordFlex* GetFrSrcFlex();
KZ_API CGrSrcWordFlex* GetDeSrcFlex();
}

#endif  // KZ_INFLECTION_H

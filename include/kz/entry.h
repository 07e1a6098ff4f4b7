/* CDicEntry: one dictionary entry as text and as pieces, with its meanings and their synonyms.
 *
 * SetFullEntry and Split take the text of an entry apart into head word, part code, attribute,
 * body and source sections; Merge joins the pieces again; Build also parses the body into meanings.
 * The functions DicEntryOpen ... DicEntryPack reach the same object through a handle, its address.
 * The text format is described in docs/entry-format.md. Russian text is Windows-1251, other text
 * Windows-1252. One entry serves one thread at a time.
 *
 *   // A noun, the Russian word for a table.
 *   const char* text = "\xF1\xF2\xEE\xEB*N1.table;desk/2.board";
 *   CDicEntry* entry = DicEntryOpen(text, DIC_PART_IN_TEXT, 0, 0, "RUEN", DIC_KIND_SPACED);
 *   for (int16_t i = 0; i < DicEntryGetMeaningsSize(entry); i++)
 *     puts(DicEntryGetSynonym(entry, i, 0, 0));
 *     // Output: table
 *     // Output: board
 *   DicEntryClose(entry);
 */
#ifndef KZ_ENTRY_H
#define KZ_ENTRY_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/types.h"

/* The kind of an entry: how it keeps synonyms. It is the type letter of the dictionary; only the
 * two kinds of translation dictionaries know the letters of part codes in a body, with which groups
 * of synonyms begin. In entries of any other kind, such as 'G', synonyms stay as they are. */
enum DicEntryKind {
  DIC_KIND_REDUCED = 'C', /* for an engine: without part codes */
  DIC_KIND_SPACED = 'c'   /* to be shown: with blanks around part codes and groups; the kind of the
                             entries that a dictionary of type 'C' gives (DicGetEntryHandler) */
};

/* The part code of an entry is the character after the '*' of its text, such as 'N' for a noun or
 * 'V' for a verb (kz/gram_codec.h); 'W' and 'w' are phrases, '$' a body of free text, '=' a
 * reference to another entry. Where an entry is built: */
enum { DIC_PART_IN_TEXT = 0 }; /* the text is a full entry, which has its part code */

/* A meaning is one numbered part of a body, or the group of synonyms after a part code: a tag (the
 * number, or the code), a definition in braces, and synonyms, which a ';' separates. Meanings and
 * the synonyms of each are counted from 0. */

#ifdef __cplusplus
#include "kz/array.h"
#include "kz/object.h"
#include "kz/string.h"

// One meaning of an entry: its tag, definition, text and synonyms.
class KZ_API CDicEntryMeaning : public ZCObject {
 public:
  // Splits `text` at every ';' into synonyms: in reduced form for kind 'C', in spaced form for kind
  // 'c' (both at most 355 characters long), as they are for any other kind. At most four
  // characters of `language` are kept; null means none.
  CDicEntryMeaning(ZCString tag, ZCString mark, ZCString definition, ZCString text,
                   const char* language, char kind);
  ~CDicEntryMeaning() override;

  CDicEntryMeaning(const CDicEntryMeaning&) = delete;
  CDicEntryMeaning& operator=(const CDicEntryMeaning&) = delete;

  // The character (1 to 255) when it is a grammar code among the words of a synonym, else 0:
  // Latin capitals when translating from Russian, Latin letters when translating into Russian.
  std::int16_t IsTargetCode(int character) const;

 private:
  friend class CDicEntry;

  void SplitSynonyms();
  void ReduceSynonym(const char* synonym, int size);  // into Work
  void SpaceSynonym(const char* synonym, int size);   // into Work

  char Language[5];
  char Kind;
  ZCString Tag;            // label: meaning number with its text, or synonym part code
  ZCString Mark;           // "=" in a reference entry
  ZCString Definition;     // brace group that opened the meaning, without braces
  ZCStringArray Synonyms;  // in text order
  ZCString Text;           // as cut from the body
  ZCString Work;           // the last synonym as stored
};

// An entry. Accessors return pointers into the object, valid until the same field changes; a buffer
// argument may be null, and otherwise receives a copy and needs room for the text and its zero.
// Null texts count as empty.
class KZ_API CDicEntry {
 public:
  // An empty entry. `language` is a language or direction code ("RU", "ENRU"), of which at most
  // four characters are kept; `kind` is an enum DicEntryKind or another type letter.
  explicit CDicEntry(const char* language = nullptr, char kind = 'c');
  virtual ~CDicEntry();

  CDicEntry(const CDicEntry&) = delete;
  CDicEntry& operator=(const CDicEntry&) = delete;

  // Fills the entry and parses its body into meanings, replacing the previous ones. Part
  // DIC_PART_IN_TEXT: `text` is a full entry and is split. Otherwise `text` becomes head word and
  // source word, and `entry` the body; the full entry stays as it was. The arguments may be texts
  // of this object.
  void Build(const char* text, char part, const char* entry, const char* srcRef);

  void Split();  // full entry into pieces; meanings stay
  void Merge();  // pieces into full entry; empty when there is no head word

  // Packs the body into `buffer` (room for the body and its zero) and returns it. See PackEntry of
  // kz/entry_text.h.
  char* PackEntry(char* buffer) const;

  // Splits a full entry, parses its meanings and joins the pieces again; returns the full entry in
  // this normal form. The text may be one of this object. Both do the same; CodeFullEntry and
  // DecodeFullEntry are their steps between split and join, and change nothing.
  const char* Code(const char* text, char* buffer);
  const char* Decode(const char* text, char* buffer);
  void CodeFullEntry();
  void DecodeFullEntry();

  void SetEntry(const char* entry);           // sets the body
  const char* GetEntry(char* buffer) const;   // the body; the buffer is left untouched
  void SetFullEntry(const char* full_entry);  // sets the text that Split takes apart
  const char* GetFullEntry(char* buffer) const;
  char GetPart(char* buffer) const;           // part code, 0 if none; the buffer gets the part text
  const char* GetInWord(char* buffer) const;  // head word
  const char* GetSrcWord(char* buffer) const;  // source word, or the head word when there is none
  const char* GetSrcRef(char* buffer) const;   // source reference
  // The attribute without and with its brackets: that of the head, or after Build the first block
  // that opens a meaning, when there is one.
  const char* GetAttr(char* buffer) const;
  const char* GetAttrView(char* buffer) const;

  std::int16_t GetMeaningsSize() const;
  std::int16_t GetSynonymsSize(std::int16_t i) const;  // 0 when i is out of range

  // Texts of meaning i, counted from 0. Null, and an emptied buffer, when the index is out of range
  // or the text is empty. The result stays valid until the next of these three calls.
  const char* GetMeaningTag(std::int16_t i, char* buffer);
  const char* GetMeaningDefinition(std::int16_t i, char* buffer);
  // Synonym j of meaning i. Unless the kind is 'c', a cross-reference (a text that begins with '=')
  // loses its mark, and gets "See: " in front when it refers to a word of the source language.
  const char* GetSynonym(std::int16_t i, std::int16_t j, char* buffer);

  // Takes the decorations off a synonym as shown to a user: leading labels and attribute block go
  // to `labels`, trailing reference numbers (digits, commas, blanks) to `references`. Returns 1
  // when the synonym is a cross-reference ("See: " in it, in English or Russian), else 0.
  std::int16_t GetSynonymValues(ZCString& synonym, ZCString& labels, ZCString& references);

  // The character at `position` (1 to 255) when it is a grammar code that opens a group of synonyms
  // in the body, else 0. Always 0 for kinds other than 'C' and 'c' and in the phrase entries 'W'
  // and 'w'. Into Russian: a Latin letter that no ')' follows. From Russian: a Latin capital, and
  // into English also a Russian capital that no digit follows.
  std::int16_t IsSynPartCode(const char* position) const;

 private:
  void MakeAttr();
  void MakeAttrView();
  void ParseMeanings();

  std::int16_t Decoding;
  char Language[5];
  char Kind;
  ZCString FullEntry;
  ZCString InWord;
  ZCString SrcWord;
  ZCString PartText;
  char Part;
  ZCString Attr;
  ZCString AttrView;
  ZCString Entry;
  ZCString SrcRef;
  ZCObArray Meanings;  // of CDicEntryMeaning, owned
  ZCString Tag;        // working values of the meaning parse
  ZCString Mark;
  ZCString Definition;
  ZCString Text;
  ZCString Result;
  ZCString SynLabels;
  ZCString SynRefs;
  ZCString HeadAttrView;  // the attribute view of the head, which Merge writes
};

extern "C" {
#endif

/* Handle functions. A handle is the address of a CDicEntry; a null handle does nothing and gives
 * the result stated. They do what the members of the same names do. */

/* A new entry, built as by DicEntryBuild, of a language or direction ("EN", "ENRU") and a kind
 * (enum DicEntryKind or another type letter); close it with DicEntryClose. Null when memory runs
 * out. A dictionary's own entry object (DicGetEntryHandler) is not to be closed. */
KZ_API CDicEntry* DicEntryOpen(const char* text, int part, const char* entry, const char* srcRef,
                               const char* language, int kind);
KZ_API void DicEntryClose(CDicEntry* handle);

/* DIC_PART_IN_TEXT: `text` is a full entry, `entry` and `srcRef` do not count. Otherwise `part` is
 * the part code, `text` the head word, `entry` the body, `srcRef` the source reference. Parses the
 * meanings. */
KZ_API void DicEntryBuild(CDicEntry* handle, const char* text, int part, const char* entry,
                          const char* srcRef);
KZ_API void DicEntrySplit(CDicEntry* handle);
KZ_API void DicEntryMerge(CDicEntry* handle);

/* The part code, 0 to 255; the buffer gets the part text. 0 for a null handle. */
KZ_API int DicEntryGetPart(CDicEntry* handle, char* buffer);

/* Texts of the entry, owned by it; the buffer, when given, gets a copy. Null for a null handle. */
KZ_API const char* DicEntryGetInWord(CDicEntry* handle, char* buffer);
KZ_API const char* DicEntryGetSrcWord(CDicEntry* handle, char* buffer);
KZ_API const char* DicEntryGetSrcRef(CDicEntry* handle, char* buffer);
KZ_API const char* DicEntryGetAttrView(CDicEntry* handle, char* buffer);
KZ_API const char* DicEntryGetAttr(CDicEntry* handle, char* buffer);

/* Numbers of meanings and of synonyms of a meaning; 0 for a null handle or no such meaning. */
KZ_API int16_t DicEntryGetMeaningsSize(CDicEntry* handle);
KZ_API int16_t DicEntryGetSynonymsSize(CDicEntry* handle, int16_t meaning);

/* Texts of a meaning, valid until the next of these three calls; the buffer, when given, gets a
 * copy. Null, and an emptied buffer, when there is none. A null handle gives null. */
KZ_API const char* DicEntryGetMeaningTag(CDicEntry* handle, int16_t meaning, char* buffer);
KZ_API const char* DicEntryGetMeaningDefinition(CDicEntry* handle, int16_t meaning, char* buffer);
KZ_API const char* DicEntryGetSynonym(CDicEntry* handle, int16_t meaning, int16_t synonym,
                                      char* buffer);

/* Takes the decorations off the synonym in the buffer `synonym`, in place; `labels` and
 * `references`, when given, need as much room. 1 for a cross-reference, else 0; -1, with both
 * emptied, when the handle or `synonym` is null. */
KZ_API int16_t DicEntryGetSynonymValues(CDicEntry* handle, char* synonym, char* labels,
                                        char* references);

/* Packs the body into the buffer (room for the body and its zero). The buffer; null for a null
 * handle. */
KZ_API char* DicEntryPack(CDicEntry* handle, char* buffer);

#ifdef __cplusplus
}
#endif

#endif /* KZ_ENTRY_H */

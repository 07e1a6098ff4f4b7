// Entries as people and programs see them: UTF-8, without the marks of the entry format.
//
// An entry has a headword, a part of speech, an attribute block and meanings; a meaning has a
// number or a part of speech of its own, a definition and synonyms, which are the translations in a
// translation dictionary. docs/entry-format.md describes the text that these pieces come from.
//
//     using namespace kz::lexicon;
//     const EntryView entry = view_entry("table*N1.{мебель}стол;столик/2.таблица", "ENRU");
//     std::cout << entry.spelling << ", " << entry.part_of_speech << ": "
//               << entry.meanings[0].synonyms[1] << '\n';
//     // Output: table, noun: столик
#ifndef KZLEXICON_ENTRY_H
#define KZLEXICON_ENTRY_H

#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/export.h"
#include "kzlexicon/grammar.h"

namespace kz::lexicon {

// The views are values of UTF-8 texts; a piece that the entry does not have is empty.

// An attribute block that follows a synonym.
struct SynonymBlock {
  std::string synonym;    // as in MeaningView::synonyms
  std::string part_code;  // of the synonym, where it has its own
  std::string tags;       // of the block, without brackets
};

// One of the meanings of an entry.
struct MeaningView {
  std::string number;          // "1.", with the text of its label: "2. mus."
  std::string part_of_speech;  // of a meaning that is another part of speech than the entry: "verb"
  std::string part_code;       // its code: "V"
  std::string definition;      // without braces
  std::vector<std::string> synonyms;
  std::string block;  // attribute block at the beginning of its text, without brackets
  std::vector<SynonymBlock> synonym_blocks;
};

// An entry, taken apart.
struct EntryView {
  std::string headword;        // as it is indexed
  std::string spelling;        // as written: the source word, or the headword
  std::string part_code;       // "N"
  std::string part_of_speech;  // a name for the part code, "noun"; empty for one without a name
  std::string attribute;       // the block after the part code, without brackets
  std::string reference;       // the source reference
  std::vector<MeaningView> meanings;
  std::string text;      // the entry as the dictionary has it
  std::string language;  // of the dictionary, "ENRU"
};

// The English name of a part code, "noun" for "N"; empty for one without a name.
KZL_API std::string part_name(std::string_view code);

// Takes an entry apart. `language` is that of the dictionary, "ENRU". Throws BadUtf8, and
// Unmappable for characters that the code pages of the language lack. Text that is no entry is not
// an error: it has few pieces or none.
KZL_API EntryView view_entry(std::string_view text, std::string_view language);

// What the attribute blocks of an entry say of its headword, its translation or one synonym.
struct WordGrammar {
  enum class Side { kSource, kTarget, kSynonym };
  Side side = Side::kSource;
  std::string synonym;  // of kSynonym; else empty
  Decoded grammar;
};

// The grammar of the entry as a whole, and of one of its meanings. Tags that set nothing are left
// out.
KZL_API std::vector<WordGrammar> entry_grammar(const EntryView& entry);
KZL_API std::vector<WordGrammar> meaning_grammar(const EntryView& entry,
                                                 const MeaningView& meaning);

// "English: no-plural; Russian: feminine", with the synonym in place of a language for kSynonym.
// `language` is that of the dictionary.
KZL_API std::string describe(const std::vector<WordGrammar>& words, const std::string& language);

}  // namespace kz::lexicon

#endif  // KZLEXICON_ENTRY_H

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

// An attribute block that follows a synonym.
struct SynonymBlock {
  std::string synonym;
  std::string part_code;  // of the synonym, where it has its own
  std::string tags;
};

struct MeaningView {
  std::string number;          // "1.", with the text of its label: "2. mus."
  std::string part_of_speech;  // of a meaning that is another part of speech than the entry
  std::string part_code;       // its code
  std::string definition;
  std::vector<std::string> synonyms;
  std::string block;  // attribute block at the beginning of its text
  std::vector<SynonymBlock> synonym_blocks;
};

struct EntryView {
  std::string headword;
  std::string spelling;  // as written: the source word, or the headword
  std::string part_code;
  std::string part_of_speech;  // a name for the part code, empty for one without a name
  std::string attribute;       // the block after the part code
  std::string reference;       // the source reference
  std::vector<MeaningView> meanings;
  std::string text;  // the entry as the dictionary has it
  std::string language;
};

// The name of a part code, "noun"; empty for one without a name.
KZL_API std::string part_name(std::string_view code);

// Takes an entry apart. `text` is UTF-8; `language` is that of the dictionary, "ENRU". Throws Error
// for text that is not UTF-8 or that the code pages of the language lack.
KZL_API EntryView view_entry(std::string_view text, std::string_view language);

// What the attribute blocks of an entry say of its headword, its translation or one synonym.
struct WordGrammar {
  enum class Side { kSource, kTarget, kSynonym };
  Side side = Side::kSource;
  std::string synonym;  // of kSynonym
  Decoded grammar;
};

// Of the entry as a whole, and of one of its meanings. Tags that set nothing are left out.
KZL_API std::vector<WordGrammar> entry_grammar(const EntryView& entry);
KZL_API std::vector<WordGrammar> meaning_grammar(const EntryView& entry,
                                                 const MeaningView& meaning);

// "English: no-plural; Russian: feminine", or the synonym in place of the language.
KZL_API std::string describe(const std::vector<WordGrammar>& words, const std::string& language);

}  // namespace kz::lexicon

#endif  // KZLEXICON_ENTRY_H

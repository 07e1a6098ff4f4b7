// An entry taken apart for people and programs: UTF-8, without the marks of the entry format.
#ifndef KZ_LEXICON_ENTRY_VIEW_H
#define KZ_LEXICON_ENTRY_VIEW_H

#include <string>
#include <string_view>
#include <vector>

namespace kz::lexicon {

// An attribute block behind a synonym.
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
  std::string block;  // attribute block in front of its text
  std::vector<SynonymBlock> synonym_blocks;
};

struct EntryView {
  std::string headword;
  std::string spelling;  // as written: the source word, or the headword
  std::string part_code;
  std::string part_of_speech;  // a name for the part code, empty for one without a name
  std::string attribute;       // the block behind the part code
  std::string reference;       // the source reference
  std::vector<MeaningView> meanings;
  std::string text;  // the entry as it stands
  std::string language;
};

// The name of a part code, "noun"; empty for one without a name.
std::string part_name(std::string_view code);

EntryView view_entry(const std::string& entry, const std::string& language);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_VIEW_H

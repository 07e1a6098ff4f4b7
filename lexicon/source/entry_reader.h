// Turns a line of source text into the record that a dictionary stores.
#ifndef KZ_LEXICON_ENTRY_READER_H
#define KZ_LEXICON_ENTRY_READER_H

#include <string>
#include <string_view>

#include "lexicon/build/record.h"
#include "lexicon/build/sort_order.h"

namespace kz::lexicon {

class EntryReader {
 public:
  struct Options {
    std::string language;
    bool word_list = false;  // dictionary type 'S'
    bool packed = false;
    bool fold_yo = false;  // store the Russian letter yo of headwords as ye
    int depth = 2;         // of the letter index
  };

  explicit EntryReader(Options options)
      : options_(std::move(options)), order_(options_.language, options_.depth) {}

  // The record of an entry, with headword and text set: the headword in lower case, from its first
  // letter on where the index cannot hold it otherwise, and its spelling as written in the source
  // word section when that differs. Throws Error, without a place in
  // its message, for a line that is no entry or holds a character that the code page lacks.
  Record read(std::string_view utf8) const;

 private:
  std::string star_checked(std::string_view utf8) const;
  std::string folded(std::string text) const;
  bool can_add_spelling(const std::string& text) const;
  void add_spelling(Record& record, const std::string& spelling) const;

  Options options_;
  SortOrder order_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_READER_H

// Turns what a dictionary holds back into lines of source text.
#ifndef KZ_LEXICON_SOURCE_WRITER_H
#define KZ_LEXICON_SOURCE_WRITER_H

#include <string>
#include <string_view>

#include "lexicon/search/file_header.h"
#include "lexicon/source/entry_reader.h"

namespace kz::lexicon {

class SourceWriter {
 public:
  explicit SourceWriter(const FileHeader& header);

  // The lines that state the properties of the dictionary.
  std::string directives() const;

  struct Line {
    std::string text;   // UTF-8
    bool exact = true;  // reads as the record again
  };
  // The source line of a record. A headword that was stored in lower case has its spelling again.
  Line line(const std::string& record) const;

 private:
  bool reads_as(const std::string& line, const std::string& record) const;

  const FileHeader header_;
  const EntryReader reader_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SOURCE_WRITER_H

// Writes a dictionary file: header, record area, letter index, shared-text block.
#ifndef KZ_LEXICON_DICTIONARY_WRITER_H
#define KZ_LEXICON_DICTIONARY_WRITER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "lexicon/build/record.h"
#include "lexicon/build/sort_order.h"

namespace kz::lexicon {

// What the header states. Texts are in the dictionary's code page and fit their fields.
struct HeaderText {
  std::string language;
  std::string type;
  std::string title;
  std::string label;
  std::string password;
  std::int32_t time_stamp = 0;
};

struct Written {
  std::size_t groups = 0;
  std::size_t record_bytes = 0;
  std::size_t index_bytes = 0;
  std::size_t file_bytes = 0;
};

// Writes the records, sorted by group and headword, to an empty open file. The same arguments give
// the same bytes. Throws Error, which names the file so.
Written write_dictionary(int handle, const std::string& name, const HeaderText& text,
                         const SortOrder& order, const std::vector<Record>& records, bool packed,
                         const std::string& shared_block);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DICTIONARY_WRITER_H

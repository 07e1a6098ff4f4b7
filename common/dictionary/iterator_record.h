// The parts of a record that an iterator hands out.
#ifndef KZ_DICTIONARY_ITERATOR_RECORD_H
#define KZ_DICTIONARY_ITERATOR_RECORD_H

#include <optional>
#include <string_view>

namespace kz {

// Where a caller wants the parts of a record; each may be null.
struct RecordOutputs {
  char* headword;
  char* code;
  char* body;
  char* extra;
};

// Views of the parts of a record, which outlives them.
struct RecordParts {
  explicit RecordParts(std::string_view record);
  void copy_to(const RecordOutputs& outputs) const;

  std::string_view headword;  // the form to be shown, when the record has one
  char code = 0;              // the character after the last '*', 0 when there is none
  std::string_view body;
  std::optional<std::string_view> extra;  // with its backslash
};

}  // namespace kz

#endif  // KZ_DICTIONARY_ITERATOR_RECORD_H

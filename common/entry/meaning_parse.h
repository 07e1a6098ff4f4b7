// Walk over the meanings in the body of an entry, as views into its text.
#ifndef KZ_ENTRY_MEANING_PARSE_H
#define KZ_ENTRY_MEANING_PARSE_H

#include <cstddef>
#include <string_view>

#include "entry/code_letter.h"

namespace kz {

struct MeaningParts {
  std::string_view tag;         // label: meaning number with its text, or synonym part code
  std::string_view definition;  // contents of the brace group that opened the meaning
  std::string_view text;        // the synonyms
};

// What the parse needs to know of the entry around the body.
struct MeaningContext {
  std::string_view language;
  std::string_view part_text;
  char part = 0;
  char kind = 0;
};

// True when a character of a body opens a group of synonyms. Never, except in translation entries
// that are not phrases.
entry::CodeLetterTest synonym_part_test(const MeaningContext& context);

// Produces one meaning after the other. Views given out point into the body or into the parser.
class MeaningParser {
 public:
  MeaningParser(std::string_view body, const MeaningContext& context);
  MeaningParser(const MeaningParser&) = delete;
  MeaningParser& operator=(const MeaningParser&) = delete;

  // The next meaning; false when there is none.
  bool next(MeaningParts& meaning);

  // The first attribute block that stood at the start of a meaning so far, without its brackets;
  // empty blocks do not count.
  std::string_view attr() const { return attr_; }

 private:
  std::string_view take_group();
  std::string_view take_number_label();
  std::string_view take_code_label();
  void step_over_colon();
  std::string_view take_text(bool phrases);
  std::size_t end_of_phrase_run(std::size_t i) const;
  bool phrase_starts(std::size_t i) const;

  std::string_view body_;
  std::size_t pos_ = 0;
  std::string_view attr_;
  entry::CodeLetterTest code_;
  bool tag_codes_;  // a code label becomes the tag
  char first_tag_;  // tag of a first meaning without a label, 0 for none
};

}  // namespace kz

#endif  // KZ_ENTRY_MEANING_PARSE_H

// Writes free text as the body of an entry, so that nothing in it reads as a mark of the format.
#ifndef KZ_LEXICON_BODY_WRITER_H
#define KZ_LEXICON_BODY_WRITER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/source.h"

namespace kz::lexicon {

// A meaning in plain Unicode text.
struct MeaningDraft {
  int number = 0;  // 0: without a number
  std::u32string definition;
  std::vector<std::u32string> synonyms;
};

struct EntryDraft {
  std::u32string headword;
  std::u32string spelling;  // where the headword cannot be what it is written as
  char part = 'W';
  std::string attribute;  // tags without brackets
  std::vector<MeaningDraft> meanings;
};

class BodyWriter {
 public:
  explicit BodyWriter(std::string language);

  // The entry as source lines, UTF-8: several with the same headword when it does not fit one, none
  // when no meaning is left of it.
  std::vector<std::string> lines(const EntryDraft& entry);

  const Losses& losses() const { return losses_; }

 private:
  std::u32string storable(std::u32string_view text);
  std::u32string protect(std::u32string_view text) const;
  bool is_code_letter(char32_t c) const;
  bool needs_braces(std::u32string_view word) const;
  std::vector<std::u32string> meaning_texts(const MeaningDraft& meaning);

  std::string language_;
  Losses losses_;
};

// Splits at any of the separators, outside parentheses; the pieces are trimmed and not empty.
std::vector<std::u32string> split_outside_parentheses(std::u32string_view text,
                                                      std::u32string_view separators);
std::u32string trimmed(std::u32string_view text);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_BODY_WRITER_H

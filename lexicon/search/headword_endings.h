// How headwords end: by class and paradigm number of an inflection table.
#ifndef KZ_LEXICON_HEADWORD_ENDINGS_H
#define KZ_LEXICON_HEADWORD_ENDINGS_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "kzlexicon/inflector.h"

namespace kz::lexicon {

// In the text '~' stands for the first letter that was taken off the form. The stem must end in one
// of the letters `after`, the letters taken off begin with one of `from`; empty for any.
struct HeadwordEnding {
  WordGroup group;
  std::int16_t number;  // of the paradigm
  std::u32string_view text;
  std::u32string_view after{};
  std::u32string_view from{};
};

// The endings that headwords of a group and paradigm number may have; with number 0, or one that is
// not known, all of the group.
std::vector<HeadwordEnding> headword_endings(WordGroup group, std::int16_t number);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_HEADWORD_ENDINGS_H

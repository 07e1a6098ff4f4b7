// One record of a dictionary that is being built.
#ifndef KZ_LEXICON_RECORD_H
#define KZ_LEXICON_RECORD_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace kz::lexicon {

// All texts are in the dictionary's code pages.
struct Record {
  std::string headword;
  bool shortened = false;   // the index cannot hold the headword as it is written
  std::string text;         // the full entry, as a look-up gives it back
  std::string stored;       // what the record area holds: the body may be a shared-text number
  std::size_t line = 0;     // index of its source line
  std::uint32_t group = 0;  // SortOrder::group of the headword
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_RECORD_H

// kzdic lookup: words to entries.
#ifndef KZ_TOOLS_LOOKUP_COMMAND_H
#define KZ_TOOLS_LOOKUP_COMMAND_H

#include <cstddef>
#include <string>
#include <vector>

#include "kzlexicon/dictionary_set.h"
#include "tools/status.h"

namespace kzdic {

struct LookupOptions {
  std::vector<std::string> dictionaries;
  SetOptions set;                  // instead of dictionaries
  std::vector<std::string> words;  // "-" stands for the lines of standard input
  bool first = false;              // the answer of the first dictionary that has one, only
  bool prefix = false;
  std::size_t next = 0;
  std::string inflected;  // inflection table for words that are not found as they are
  bool raw = false;
  bool json = false;
  bool grammar = false;  // also what attribute blocks say, in words
};

// Splits "FILE... WORD..." in place: the first argument is a dictionary, and so are those after it
// up to the first without the name extension of a dictionary. All are words when dictionaries or a
// set were named by option.
void split_arguments(std::vector<std::string> arguments, LookupOptions& options);

// kNotFound when some word is in none of the dictionaries.
Status lookup(const LookupOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_LOOKUP_COMMAND_H

// kzdic dump: dictionary file to source text.
#ifndef KZ_TOOLS_DUMP_COMMAND_H
#define KZ_TOOLS_DUMP_COMMAND_H

#include <string>

#include "kzlexicon/dictionary.h"
#include "tools/status.h"

namespace kzdic {

struct DumpOptions {
  std::string dictionary;
  WalkRange range;
};

// Writes the directives and the entries, in the order of the dictionary, to standard output. Built
// with the options of the first time, the source gives the same dictionary. Throws Failure; entries
// that no source line stands for are reported and end the command with their status when everything
// has been written.
void dump(const DumpOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_DUMP_COMMAND_H

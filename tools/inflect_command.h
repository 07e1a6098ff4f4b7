// kzdic inflect: the known endings of words.
#ifndef KZ_TOOLS_INFLECT_COMMAND_H
#define KZ_TOOLS_INFLECT_COMMAND_H

#include <string>
#include <vector>

#include "tools/status.h"

namespace kzdic {

struct InflectOptions {
  std::string table;
  std::string source;              // text in UTF-8 from which the table is made first, or empty
  std::vector<std::string> words;  // "-" stands for the lines of standard input
  bool all = false;                // shorter endings too
  bool json = false;
};

// kNotFound when some word has no known ending.
Status inflect(const InflectOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_INFLECT_COMMAND_H

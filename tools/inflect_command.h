// kzdic inflect: the known endings of words.
#ifndef KZ_TOOLS_INFLECT_COMMAND_H
#define KZ_TOOLS_INFLECT_COMMAND_H

#include <string>
#include <vector>

#include "kzlexicon/inflector.h"
#include "tools/status.h"

namespace kzdic {

// Opens an inflection table. Throws Error, which names the command that makes a table.
Inflector open_table(const std::string& path);

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

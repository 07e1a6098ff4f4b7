// kzdic import: a database of another dictionary program to source text.
#ifndef KZ_TOOLS_IMPORT_COMMAND_H
#define KZ_TOOLS_IMPORT_COMMAND_H

#include <string>

namespace kzdic {

struct ImportOptions {
  std::string from;      // kind of the database: "dictd" is the only one
  std::string base;      // path of the database without its name extension
  std::string output;    // "-" is standard output
  std::string language;  // empty: told from the name of the database or from its words
  bool quiet = false;
};

// Reads a dictd database; the name of one of its files will do for `base`. What does not fit is
// counted and reported on standard error. Throws Failure.
void import_database(const ImportOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_IMPORT_COMMAND_H

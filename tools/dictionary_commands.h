// The commands on whole dictionaries. They throw Error, and print on standard output what they have
// to say.
#ifndef KZ_TOOLS_DICTIONARY_COMMANDS_H
#define KZ_TOOLS_DICTIONARY_COMMANDS_H

#include <string>
#include <vector>

#include "kzlexicon/builder.h"
#include "kzlexicon/dictionary.h"
#include "tools/status.h"

namespace kzdic {

struct BuildOptions {
  std::vector<std::string> sources;  // "-" is standard input
  std::string output;
  Properties properties;  // these win over directives
  kz::lexicon::BuildOptions form;
  bool quiet = false;
};

// Source text to dictionary file. The output appears under its name only when every word in it can
// be found.
void build(const BuildOptions& options);

struct ImportOptions {
  std::string from;      // kind of the database: "dictd" is the only one
  std::string base;      // path of the database without its name extension
  std::string output;    // "-" is standard output
  std::string language;  // empty: told from the name of the database or from its words
  bool quiet = false;
};

// A dictd database to source text; the name of one of its files will do for `base`. What does not
// fit is counted and reported on standard error.
void import_database(const ImportOptions& options);

struct DumpOptions {
  std::string dictionary;
  WalkRange range;
};

// A dictionary as source text: the directives and the entries, in the order of the dictionary.
// Built with the options of the first time, the source gives the same dictionary. Entries that no
// source line stands for are reported and end the command with their status when everything has
// been written.
void dump(const DumpOptions& options);

// Header, index and record statistics.
void info(const std::string& path);

}  // namespace kzdic

#endif  // KZ_TOOLS_DICTIONARY_COMMANDS_H

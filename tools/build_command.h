// kzdic build: source text to dictionary file.
#ifndef KZ_TOOLS_BUILD_COMMAND_H
#define KZ_TOOLS_BUILD_COMMAND_H

#include <string>
#include <vector>

#include "kzlexicon/builder.h"
#include "tools/status.h"

namespace kzdic {

struct BuildOptions {
  std::vector<std::string> sources;  // "-" is standard input
  std::string output;
  Properties properties;  // these win over directives
  kz::lexicon::BuildOptions form;
  bool quiet = false;
};

// Throws Error; the output appears under its name only when every word in it can be found.
void build(const BuildOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_BUILD_COMMAND_H

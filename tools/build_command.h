// kzdic build: source text to dictionary file.
#ifndef KZ_TOOLS_BUILD_COMMAND_H
#define KZ_TOOLS_BUILD_COMMAND_H

#include <cstdint>
#include <string>
#include <vector>

#include "lexicon/source/source_text.h"
#include "tools/status.h"

namespace kzdic {

struct BuildOptions {
  std::vector<std::string> sources;
  std::string output;
  Properties properties;  // these win over directives
  std::string password;
  bool packed = false;
  bool shared = false;     // equal bodies stand once; packed dictionaries do so in any case,
  bool no_shared = false;  // unless this forbids it
  int depth = 0;           // 0: chosen from the size of the dictionary
  bool skip_bad = false;
  bool fold_yo = false;
  std::int32_t time_stamp = 0;
  bool quiet = false;
};

// Throws Failure; the output appears under its name only when every word in it can be found.
void build(const BuildOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_BUILD_COMMAND_H

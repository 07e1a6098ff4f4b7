// kzdic replace: text with the words of a replacement buffer replaced.
#ifndef KZ_TOOLS_REPLACE_COMMAND_H
#define KZ_TOOLS_REPLACE_COMMAND_H

#include <string>

#include "tools/line_filter.h"

namespace kzdic {

struct ReplaceOptions {
  FilterOptions filter;
  std::string buffer;  // file
};

void replace(const ReplaceOptions& options);

}  // namespace kzdic

#endif  // KZ_TOOLS_REPLACE_COMMAND_H

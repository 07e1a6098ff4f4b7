// kzdic convert: text from one code page to another.
#ifndef KZ_TOOLS_CONVERT_COMMAND_H
#define KZ_TOOLS_CONVERT_COMMAND_H

#include <optional>
#include <string>

#include "tools/line_filter.h"
#include "tools/status.h"

namespace kzdic {

struct ConvertOptions {
  FilterOptions filter;
  std::string from;
  std::string to;
  bool narrow = false;                 // by the library's functions
  bool check = false;                  // report what the target lacks, convert nothing
  std::optional<std::string> replace;  // what stands for characters that the target lacks, UTF-8
};

// kNotFound when a check found something.
Status convert(const ConvertOptions& options);

// Prints the names of the code pages, and the pairs that there are narrow conversions for.
void list_code_pages();

}  // namespace kzdic

#endif  // KZ_TOOLS_CONVERT_COMMAND_H

// kzdic info: what a dictionary file holds.
#ifndef KZ_TOOLS_INFO_COMMAND_H
#define KZ_TOOLS_INFO_COMMAND_H

#include <string>

namespace kzdic {

// Prints header, index and record statistics on standard output. Throws Failure.
void info(const std::string& path);

}  // namespace kzdic

#endif  // KZ_TOOLS_INFO_COMMAND_H

// Lines of standard input for commands that take words.
#ifndef KZ_TOOLS_INPUT_LINES_H
#define KZ_TOOLS_INPUT_LINES_H

#include <functional>
#include <string>

namespace kzdic {

// Calls answer(line) for each line, without its line end.
void for_each_line(const std::function<void(const std::string&)>& answer);

}  // namespace kzdic

#endif  // KZ_TOOLS_INPUT_LINES_H

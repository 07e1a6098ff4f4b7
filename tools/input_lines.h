// Lines of standard input for commands that take words.
#ifndef KZ_TOOLS_INPUT_LINES_H
#define KZ_TOOLS_INPUT_LINES_H

#include <functional>
#include <string>
#include <vector>

namespace kzdic {

// Calls answer(line) for each line, without its line end.
void for_each_line(const std::function<void(const std::string&)>& answer);

// Calls answer(word, false) for each word; for "-", answer(line, true) for each line instead.
// Throws Failure when the answers could not be written.
void for_each_word(const std::vector<std::string>& words,
                   const std::function<void(const std::string&, bool)>& answer);

}  // namespace kzdic

#endif  // KZ_TOOLS_INPUT_LINES_H

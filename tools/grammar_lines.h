// Commands that answer every line of standard input at once.
#ifndef KZ_TOOLS_GRAMMAR_LINES_H
#define KZ_TOOLS_GRAMMAR_LINES_H

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <utility>

#include "tools/status.h"

namespace kzdic {

// Calls answer(line) for each line of standard input; it prints one line of JSON, or text that an
// empty line is added to. A failure becomes the answer; the status of the first one is returned.
Status answer_lines(bool json, const std::function<Status(const std::string&)>& answer);

// One JSON object, on a line.
void print_json(const nlohmann::ordered_json& object);

// The first word of a line, and the rest behind its blanks.
std::pair<std::string, std::string> first_word(const std::string& line);

}  // namespace kzdic

#endif  // KZ_TOOLS_GRAMMAR_LINES_H

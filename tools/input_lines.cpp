// Standard input by lines.
#include "tools/input_lines.h"

#include <iostream>

#include "tools/status.h"

namespace kzdic {

void for_each_line(const std::function<void(const std::string&)>& answer) {
  for (std::string line; std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    answer(line);
  }
}

void for_each_word(const std::vector<std::string>& words,
                   const std::function<void(const std::string&, bool)>& answer) {
  for (const std::string& word : words) {
    if (word == "-") {
      for_each_line([&answer](const std::string& line) { answer(line, true); });
    } else {
      answer(word, false);
    }
  }
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
}

}  // namespace kzdic

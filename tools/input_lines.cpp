// Standard input by lines.
#include "tools/input_lines.h"

#include <iostream>

namespace kzdic {

void for_each_line(const std::function<void(const std::string&)>& answer) {
  for (std::string line; std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    answer(line);
  }
}

}  // namespace kzdic

// Lines of standard input, one answer each.
#include "tools/grammar_lines.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "tools/input_lines.h"

namespace kzdic {

void print_json(const nlohmann::ordered_json& object) {
  std::cout << object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
            << '\n';
}

std::pair<std::string, std::string> first_word(const std::string& line) {
  constexpr const char* kBlanks = " \t";
  const std::size_t begin = std::min(line.find_first_not_of(kBlanks), line.size());
  const std::size_t end = std::min(line.find_first_of(kBlanks, begin), line.size());
  const std::size_t rest = std::min(line.find_first_not_of(kBlanks, end), line.size());
  return {line.substr(begin, end - begin), line.substr(rest)};
}

Status answer_lines(bool json, const std::function<Status(const std::string&)>& answer) {
  Status status = Status::kOk;
  for_each_line([&](const std::string& line) {
    Status one = Status::kOk;
    try {
      one = answer(line);
    } catch (const Error& error) {
      one = status_of(error);
      if (json) {
        print_json({{"query", line}, {"error", error.what()}});
      } else {
        std::cout << line << ": " << error.what() << '\n';
      }
    }
    if (!json) std::cout << '\n';
    std::cout.flush();
    if (status == Status::kOk) status = one;
  });
  return status;
}

}  // namespace kzdic

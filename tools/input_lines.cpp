// Standard input by lines.
#include "tools/input_lines.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "tools/status.h"

namespace kzdic {

void check_standard_input() {
  // The stream takes an error for the end.
  if (std::cin.bad() || std::ferror(stdin) != 0) {
    throw Failure(Status::kFile,
                  std::string("(standard input): cannot read: ") + std::strerror(errno));
  }
}

void for_each_line(const std::function<void(const std::string&)>& answer) {
  bool first = true;
  for (std::string line; std::getline(std::cin, line);) {
    if (first) line.erase(0, byte_order_mark(line));
    first = false;
    if (line.ends_with('\r')) line.pop_back();
    answer(line);
  }
  check_standard_input();
}

Status for_each_word(const std::vector<std::string>& words, const WordAnswers& answers) {
  Status status = Status::kOk;
  const auto take = [&](const std::string& word, bool line) {
    try {
      answers.answer(word, line);
    } catch (const BadUtf8& bad) {
      answers.refuse(word, "byte " + std::to_string(bad.offset + 1) + ' ' + bad.what(), line);
      status = Status::kDamaged;
    }
  };
  for (const std::string& word : words) {
    if (word == "-") {
      for_each_line([&take](const std::string& line) { take(line, true); });
    } else {
      take(word, false);
    }
  }
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
  return status;
}

}  // namespace kzdic

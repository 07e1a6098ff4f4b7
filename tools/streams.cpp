// Words and lines, one answer each.
#include "tools/streams.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <nlohmann/json.hpp>

namespace kzdic {
namespace {

// Calls answer(line) for each line, without its line end. Throws Failure.
template <typename Answer>
void for_each_line(Answer answer) {
  bool first = true;
  for (std::string line; std::getline(std::cin, line);) {
    if (first) line.erase(0, byte_order_mark(line));
    first = false;
    if (line.ends_with('\r')) line.pop_back();
    answer(line);
  }
  check_standard_input();
}

}  // namespace

void finish_output() {
  if (!std::cout.flush()) throw Failure(Status::kFile, "cannot write to standard output");
}

void print_json(const nlohmann::ordered_json& object) {
  std::cout << object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
            << '\n';
}

void check_standard_input() {
  // The stream takes an error for the end.
  if (std::cin.bad() || std::ferror(stdin) != 0) {
    throw Failure(Status::kFile,
                  std::string("(standard input): cannot read: ") + std::strerror(errno));
  }
}

Status answer_words(const std::vector<std::string>& words, WordSession& session) {
  bool all_found = true;
  bool all_read = true;
  const auto take = [&](const std::string& word, bool line) {
    try {
      all_found = session.answer(word, line) && all_found;
    } catch (const BadUtf8& bad) {
      session.refuse(word, "byte " + std::to_string(bad.offset + 1) + ' ' + bad.what(), line);
      all_read = false;
    }
    std::cout.flush();
  };
  for (const std::string& word : words) {
    if (word == "-") {
      for_each_line([&take](const std::string& line) { take(line, true); });
    } else {
      take(word, false);
    }
  }
  finish_output();
  if (!all_read) return Status::kDamaged;
  return all_found ? Status::kOk : Status::kNotFound;
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

std::pair<std::string, std::string> first_word(const std::string& line) {
  constexpr const char* kBlanks = " \t";
  const std::size_t begin = std::min(line.find_first_not_of(kBlanks), line.size());
  const std::size_t end = std::min(line.find_first_of(kBlanks, begin), line.size());
  const std::size_t rest = std::min(line.find_first_not_of(kBlanks, end), line.size());
  return {line.substr(begin, end - begin), line.substr(rest)};
}

}  // namespace kzdic

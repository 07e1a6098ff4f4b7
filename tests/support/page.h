// Examples of the documentation that tests check.
#ifndef KZ_TESTS_PAGE_H
#define KZ_TESTS_PAGE_H

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "tests/support/source_tree.h"

namespace kz::test {

// The lines, in UTF-8, of all blocks of a page in docs/ whose fence has this name.
inline std::vector<std::string> examples(const std::string& page, const std::string& fence) {
  std::ifstream in(source_tree() / "docs" / page);
  std::vector<std::string> lines;
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("```")) {
      inside = line == "```" + fence;
    } else if (inside) {
      lines.push_back(line);
    }
  }
  EXPECT_FALSE(lines.empty()) << page << " has no block " << fence;
  return lines;
}

// The fields of a line, two blanks or more apart. An empty one is written as "".
inline std::vector<std::string> fields_of(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t end;
  for (std::size_t at = 0; at < line.size(); at = line.find_first_not_of(' ', end)) {
    end = line.find("  ", at);
    fields.push_back(line.substr(at, end - at));
    if (fields.back() == "\"\"") fields.back().clear();
  }
  return fields;
}

}  // namespace kz::test

#endif  // KZ_TESTS_PAGE_H

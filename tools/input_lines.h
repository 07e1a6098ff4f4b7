// Standard input for commands that take words, and what all readers of text have in common.
#ifndef KZ_TOOLS_INPUT_LINES_H
#define KZ_TOOLS_INPUT_LINES_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/code_page.h"
#include "tools/status.h"

namespace kzdic {

// Throws Failure when reading standard input did not end at its end.
void check_standard_input();

// Calls answer(line) for each line, without its line end. Throws Failure.
void for_each_line(const std::function<void(const std::string&)>& answer);

struct WordAnswers {
  // The answer to a word; `line` is true for a line of standard input. Throws BadUtf8.
  std::function<void(const std::string& word, bool line)> answer;
  // What is said instead of a word that is not UTF-8.
  std::function<void(const std::string& word, const std::string& message, bool line)> refuse;
};

// Answers each word, and for "-" each line of standard input instead. kDamaged when a word was
// refused. Throws Failure, also when the answers could not be written.
Status for_each_word(const std::vector<std::string>& words, const WordAnswers& answers);

}  // namespace kzdic

#endif  // KZ_TOOLS_INPUT_LINES_H

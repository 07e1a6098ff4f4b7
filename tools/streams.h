// Standard input and output of the commands.
#ifndef KZ_TOOLS_STREAMS_H
#define KZ_TOOLS_STREAMS_H

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <utility>
#include <vector>

#include "kzlexicon/code_page.h"
#include "tools/status.h"

namespace kzdic {

// Throws Failure when what was printed could not be written.
void finish_output();

// Prints one JSON object, on a line.
void print_json(const nlohmann::ordered_json& object);

// Throws Failure when reading standard input did not end at its end.
void check_standard_input();

// A command that answers words one by one.
class WordSession {
 public:
  virtual ~WordSession() = default;
  // Prints the answer to a word; `line` means that it is a line of standard input. Returns whether
  // there is one. Throws BadUtf8.
  virtual bool answer(const std::string& word, bool line) = 0;
  // Says why a word cannot be answered.
  virtual void refuse(const std::string& word, const std::string& message, bool line) = 0;
};

// Answers each word, and for "-" each line of standard input instead. kDamaged when a word was
// refused, kNotFound when one has no answer. Throws Failure.
Status answer_words(const std::vector<std::string>& words, WordSession& session);

// Calls answer(line) for each line of standard input; it prints one line of JSON, or text that an
// empty line is added to. A failure becomes the answer; the status of the first one is returned.
Status answer_lines(bool json, const std::function<Status(const std::string&)>& answer);

// The first word of a line, and the rest after its blanks.
std::pair<std::string, std::string> first_word(const std::string& line);

}  // namespace kzdic

#endif  // KZ_TOOLS_STREAMS_H

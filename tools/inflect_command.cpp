// Endings of words and the records of the table for them.
#include "tools/inflect_command.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "kzlexicon/inflector.h"
#include "kzlexicon/output.h"
#include "tools/input_lines.h"
#include "tools/status.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;

std::string in_words(const InflectionReading& reading) {
  std::string text;
  for (const std::string& word : reading.grammar) text += (text.empty() ? "" : ", ") + word;
  if (reading.paradigm != 0) {
    text += ", paradigm " + std::to_string(reading.paradigm) + reading.letter;
  }
  if (!reading.stem_change.empty()) text += ", stem change " + reading.stem_change;
  return text;
}

Json as_json(const InflectionReading& reading) {
  return {{"class", reading.word_class},        {"addition", reading.addition},
          {"paradigm", reading.paradigm},       {"letter", reading.letter},
          {"stem_change", reading.stem_change}, {"grammar", reading.grammar}};
}

class Inflection {
 public:
  explicit Inflection(const InflectOptions& options) : options_(options), table_(options.table) {}

  // Answers one word; `line` means that it is a line of standard input.
  void answer(const std::string& word, bool line) {
    std::vector<Ending> endings = table_.endings(word);
    if (!options_.all && endings.size() > 1) endings.resize(1);
    all_known_ = all_known_ && !endings.empty();
    if (options_.json) {
      print_json(word, endings);
    } else {
      print_text(word, endings, line);
    }
    std::cout.flush();
  }

  // Says why a word cannot be taken apart.
  void refuse(const std::string& word, const std::string& message, bool line) {
    if (options_.json) {
      print({{"word", word}, {"error", message}});
    } else {
      (line ? std::cout : std::cerr << "kzdic: ")
          << word << ": " << message << (line ? "\n\n" : "\n");
    }
    std::cout.flush();
  }

  bool all_known() const { return all_known_; }

 private:
  static void print_text(const std::string& word, const std::vector<Ending>& endings, bool line) {
    for (const Ending& ending : endings) {
      std::cout << word << "  " << ending.attributes << '\n';
      for (const InflectionReading& reading : ending.readings) {
        std::cout << "    " << in_words(reading) << '\n';
      }
    }
    if (endings.empty()) (line ? std::cout : std::cerr) << word << ": no known ending\n";
    if (line) std::cout << '\n';
  }

  static void print_json(const std::string& word, const std::vector<Ending>& endings) {
    Json answer = {{"word", word}, {"found", !endings.empty()}, {"endings", Json::array()}};
    for (const Ending& ending : endings) {
      Json records = Json::array();
      for (const InflectionReading& reading : ending.readings) records.push_back(as_json(reading));
      answer["endings"].push_back({{"ending", ending.ending},
                                   {"rest", ending.rest},
                                   {"attributes", ending.attributes},
                                   {"records", records}});
    }
    print(answer);
  }

  static void print(const Json& answer) {
    std::cout << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
  }

  const InflectOptions& options_;
  Inflector table_;
  bool all_known_ = true;
};

void compile(const InflectOptions& options) {
  if (options.source != "-") return Inflector::compile_file(options.source, options.table);
  refuse_inputs_as_output(options.table, {"-"});
  refuse_inputs_as_output(Inflector::text_path(options.table), {"-"});
  Inflector::compile(std::cin, "(standard input)", options.table);
}

}  // namespace

Status inflect(const InflectOptions& options) {
  if (options.source.empty() && options.words.empty()) {
    throw Failure(Status::kUsage, "no word is given");
  }
  if (!options.source.empty()) compile(options);
  if (options.words.empty()) return Status::kOk;
  Inflection session(options);
  const Status status =
      for_each_word(options.words,
                    {[&session](const std::string& word, bool line) { session.answer(word, line); },
                     [&session](const std::string& word, const std::string& message, bool line) {
                       session.refuse(word, message, line);
                     }});
  if (status != Status::kOk) return status;
  return session.all_known() ? Status::kOk : Status::kNotFound;
}

}  // namespace kzdic

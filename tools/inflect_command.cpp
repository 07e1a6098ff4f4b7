// Endings of words and the records of the table for them.
#include "tools/inflect_command.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "kzlexicon/inflector.h"
#include "kzlexicon/output.h"
#include "tools/status.h"
#include "tools/streams.h"

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

class Inflection : public WordSession {
 public:
  explicit Inflection(const InflectOptions& options)
      : options_(options), table_(open_table(options.table)) {}

  bool answer(const std::string& word, bool line) override {
    std::vector<Ending> endings = table_.endings(word);
    if (!options_.all && endings.size() > 1) endings.resize(1);
    if (options_.json) {
      print_object(word, endings);
    } else {
      print_text(word, endings, line);
    }
    return !endings.empty();
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    if (options_.json) {
      print_json({{"word", word}, {"error", message}});
    } else {
      (line ? std::cout : std::cerr << "kzdic: ")
          << word << ": " << message << (line ? "\n\n" : "\n");
    }
  }

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

  static void print_object(const std::string& word, const std::vector<Ending>& endings) {
    Json answer = {{"word", word}, {"found", !endings.empty()}, {"endings", Json::array()}};
    for (const Ending& ending : endings) {
      Json records = Json::array();
      for (const InflectionReading& reading : ending.readings) records.push_back(as_json(reading));
      answer["endings"].push_back({{"ending", ending.ending},
                                   {"rest", ending.rest},
                                   {"attributes", ending.attributes},
                                   {"records", records}});
    }
    print_json(answer);
  }

  const InflectOptions& options_;
  Inflector table_;
};

void compile(const InflectOptions& options) {
  if (options.source != "-") return Inflector::compile_file(options.source, options.table);
  refuse_inputs_as_output(options.table, {"-"});
  refuse_inputs_as_output(Inflector::text_path(options.table), {"-"});
  Inflector::compile(std::cin, "(standard input)", options.table);
}

}  // namespace

Inflector open_table(const std::string& path) {
  try {
    return Inflector(path);
  } catch (const Error& error) {
    if (error.code() == ErrorCode::kArgument) throw;
    throw Failure(status_of(error),
                  std::string(error.what()) + " (kzdic inflect --build makes a table)");
  }
}

Status inflect(const InflectOptions& options) {
  if (options.source.empty() && options.words.empty()) {
    throw Failure(Status::kUsage, "no word is given");
  }
  if (!options.source.empty()) compile(options);
  if (options.words.empty()) return Status::kOk;
  Inflection session(options);
  return answer_words(options.words, session);
}

}  // namespace kzdic

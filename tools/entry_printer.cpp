// Printers of look-up answers.
#include "tools/entry_printer.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <string_view>

#include "kzlexicon/entry.h"
#include "tools/grammar_output.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

std::string join(const std::vector<std::string>& texts, std::string_view separator) {
  std::string result;
  for (const std::string& text : texts) {
    if (!result.empty()) result += separator;
    result += text;
  }
  return result;
}

// The readable form: one paragraph per entry.
class TextPrinter : public Printer {
 public:
  explicit TextPrinter(bool grammar) : grammar_(grammar) {}

  void print(const std::string& word, const std::vector<Found>& found, bool line) override {
    for (const Found& one : found) {
      std::cout << word << "  (" << one.path << ", " << describe_step(one.answer) << ")\n";
      for (const Entry& entry : one.answer.entries) print_entry(entry.view());
    }
    if (found.empty()) (line ? std::cout : std::cerr) << word << ": not found\n";
    if (line) std::cout << '\n';
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    (line ? std::cout : std::cerr << "kzdic: ")
        << word << ": " << message << (line ? "\n\n" : "\n");
  }

 private:
  void print_entry(const EntryView& entry) {
    std::cout << "  " << entry.spelling;
    if (!entry.part_code.empty()) {
      std::cout << ", " << (entry.part_of_speech.empty() ? entry.part_code : entry.part_of_speech);
    }
    if (!entry.attribute.empty()) std::cout << " [" << entry.attribute << ']';
    std::cout << '\n';
    if (grammar_) print_grammar("    ", entry_grammar(entry), entry.language);
    for (const MeaningView& meaning : entry.meanings) {
      print_meaning(meaning);
      if (grammar_) print_grammar("       ", meaning_grammar(entry, meaning), entry.language);
    }
    if (!entry.reference.empty()) std::cout << "    (" << entry.reference << ")\n";
  }

  void print_grammar(const char* indent, const std::vector<WordGrammar>& words,
                     const std::string& language) {
    if (!words.empty()) std::cout << indent << describe(words, language) << '\n';
  }

  void print_meaning(const MeaningView& meaning) {
    std::vector<std::string> pieces;
    if (!meaning.number.empty()) pieces.push_back(meaning.number);
    if (!meaning.part_of_speech.empty()) pieces.push_back(meaning.part_of_speech + ":");
    if (!meaning.definition.empty()) pieces.push_back("{" + meaning.definition + "}");
    std::vector<std::string> synonyms;
    for (const std::string& synonym : meaning.synonyms) {
      synonyms.push_back(synonym.size() > 1 && synonym[0] == '=' ? "see " + synonym.substr(1)
                                                                 : synonym);
    }
    if (!synonyms.empty()) pieces.push_back(join(synonyms, "; "));
    std::cout << "    " << join(pieces, " ") << '\n';
  }

  bool grammar_;
};

// Entries as they are, one per line.
class RawPrinter : public Printer {
 public:
  void print(const std::string& word, const std::vector<Found>& found, bool line) override {
    for (const Found& one : found) {
      for (const Entry& entry : one.answer.entries) std::cout << entry.text() << '\n';
    }
    if (line) {
      std::cout << '\n';
    } else if (found.empty()) {
      std::cerr << word << ": not found\n";
    }
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    std::cerr << "kzdic: " << word << ": " << message << '\n';
    if (line) std::cout << '\n';
  }
};

// One object per word.
class JsonPrinter : public Printer {
 public:
  explicit JsonPrinter(bool grammar) : grammar_(grammar) {}

  void print(const std::string& word, const std::vector<Found>& found, bool) override {
    Json answer = {{"query", word}, {"found", !found.empty()}, {"entries", Json::array()}};
    for (const Found& one : found) {
      const std::string step = describe_step(one.answer);
      for (const Entry& entry : one.answer.entries) {
        answer["entries"].push_back(entry_object(entry.view(), one.path, step));
      }
    }
    print_json(answer);
  }

  void refuse(const std::string& word, const std::string& message, bool) override {
    print_json({{"query", word}, {"error", message}});
  }

 private:
  using Json = nlohmann::ordered_json;

  Json entry_object(const EntryView& entry, const std::string& path,
                    const std::string& step) const {
    Json meanings = Json::array();
    for (const MeaningView& meaning : entry.meanings) {
      meanings.push_back({{"number", meaning.number},
                          {"part_of_speech", meaning.part_of_speech},
                          {"definition", meaning.definition},
                          {"synonyms", meaning.synonyms}});
      if (grammar_) meanings.back()["grammar"] = grammar_json(meaning_grammar(entry, meaning));
    }
    Json object = {{"dictionary", path},           {"step", step},
                   {"headword", entry.headword},   {"spelling", entry.spelling},
                   {"part_code", entry.part_code}, {"part_of_speech", entry.part_of_speech},
                   {"attribute", entry.attribute}, {"meanings", meanings},
                   {"reference", entry.reference}, {"entry", entry.text}};
    if (grammar_) object["grammar"] = grammar_json(entry_grammar(entry));
    return object;
  }

  bool grammar_;
};

}  // namespace

std::unique_ptr<Printer> make_printer(bool raw, bool json, bool grammar) {
  if (json) return std::make_unique<JsonPrinter>(grammar);
  if (raw) return std::make_unique<RawPrinter>();
  return std::make_unique<TextPrinter>(grammar);
}

}  // namespace kzdic

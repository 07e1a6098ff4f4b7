// Printers of look-up answers.
#include "tools/entry_printer.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <string_view>

#include "kzlexicon/entry.h"
#include "tools/grammar_output.h"
#include "tools/status.h"

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
  TextPrinter(bool grammar, std::ostream& out) : grammar_(grammar), out_(out) {}

  void print(const std::string& word, const std::vector<Found>& found, bool line) override {
    for (const Found& one : found) {
      out_ << word << "  (" << one.path << ", " << describe_step(one.answer) << ")\n";
      for (const Entry& entry : one.answer.entries) print_entry(entry.view());
    }
    if (found.empty()) (line ? out_ : std::cerr) << word << ": not found\n";
    if (line) out_ << '\n';
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    (line ? out_ : std::cerr << "kzdic: ") << word << ": " << message << (line ? "\n\n" : "\n");
  }

 private:
  void print_entry(const EntryView& entry) {
    out_ << "  " << entry.spelling;
    if (!entry.part_code.empty()) {
      out_ << ", " << (entry.part_of_speech.empty() ? entry.part_code : entry.part_of_speech);
    }
    if (!entry.attribute.empty()) out_ << " [" << entry.attribute << ']';
    out_ << '\n';
    if (grammar_) print_grammar("    ", entry_grammar(entry), entry.language);
    for (const MeaningView& meaning : entry.meanings) {
      print_meaning(meaning);
      if (grammar_) print_grammar("       ", meaning_grammar(entry, meaning), entry.language);
    }
    if (!entry.reference.empty()) out_ << "    (" << entry.reference << ")\n";
  }

  void print_grammar(const char* indent, const std::vector<WordGrammar>& words,
                     const std::string& language) {
    if (!words.empty()) out_ << indent << describe(words, language) << '\n';
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
    out_ << "    " << join(pieces, " ") << '\n';
  }

  bool grammar_;
  std::ostream& out_;
};

// Entries as they stand, one per line.
class RawPrinter : public Printer {
 public:
  explicit RawPrinter(std::ostream& out) : out_(out) {}

  void print(const std::string& word, const std::vector<Found>& found, bool line) override {
    for (const Found& one : found) {
      for (const Entry& entry : one.answer.entries) out_ << entry.text() << '\n';
    }
    if (line) {
      out_ << '\n';
    } else if (found.empty()) {
      std::cerr << word << ": not found\n";
    }
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    std::cerr << "kzdic: " << word << ": " << message << '\n';
    if (line) out_ << '\n';
  }

 private:
  std::ostream& out_;
};

// One object per word.
class JsonPrinter : public Printer {
 public:
  JsonPrinter(bool grammar, std::ostream& out) : grammar_(grammar), out_(out) {}

  void print(const std::string& word, const std::vector<Found>& found, bool) override {
    Json answer = {{"query", word}, {"found", !found.empty()}, {"entries", Json::array()}};
    for (const Found& one : found) {
      const std::string step = describe_step(one.answer);
      for (const Entry& entry : one.answer.entries) {
        answer["entries"].push_back(entry_object(entry.view(), one.path, step));
      }
    }
    write(answer);
  }

  void refuse(const std::string& word, const std::string& message, bool) override {
    write({{"query", word}, {"error", message}});
  }

 private:
  using Json = nlohmann::ordered_json;

  void write(const Json& answer) {
    out_ << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
  }

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
  std::ostream& out_;
};

}  // namespace

std::unique_ptr<Printer> make_printer(bool raw, bool json, bool grammar, std::ostream& out) {
  if (json) return std::make_unique<JsonPrinter>(grammar, out);
  if (raw) return std::make_unique<RawPrinter>(out);
  return std::make_unique<TextPrinter>(grammar, out);
}

}  // namespace kzdic

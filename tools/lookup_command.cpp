// Look-up of words given as arguments or on standard input.
#include "tools/lookup_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

#include "kzlexicon/dictionary.h"
#include "kzlexicon/inflector.h"
#include "tools/entry_printer.h"
#include "tools/inflect_command.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

bool names_dictionary(const std::string& argument) {
  std::string extension = std::filesystem::path(argument).extension().string();
  for (char& c : extension) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  constexpr std::array<std::string_view, 5> kExtensions = {".dic", ".dis", ".dit", ".dih", ".dig"};
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

class Lookup : public WordSession {
 public:
  explicit Lookup(const LookupOptions& options)
      : options_(options), printer_(make_printer(options.raw, options.json, options.grammar)) {
    if (!options.inflected.empty()) table_ = open_table(options.inflected);
    for (const std::string& path : options.dictionaries) opened_.emplace_back(path);
    for (Dictionary& dictionary : opened_) dictionaries_.push_back(&dictionary);
    if (!options.set.directory.empty()) open_set();
  }

  bool answer(const std::string& word, bool line) override {
    std::vector<Found> found;
    for (Dictionary* const dictionary : dictionaries_) {
      Answer answer =
          options_.prefix ? dictionary->find_prefix(word) : dictionary->find(word, options_.next);
      if (!answer) continue;
      found.push_back({dictionary->path(), dictionary->language(), std::move(answer)});
      if (options_.first) break;
    }
    if (found.empty() && table_) found = inflected(word);
    printer_->print(word, found, line);
    return !found.empty();
  }

  void refuse(const std::string& word, const std::string& message, bool line) override {
    printer_->refuse(word, message, line);
  }

 private:
  void open_set() {
    if (options_.set.direction.empty() && options_.set.config.empty()) {
      throw Failure(Status::kUsage, "no direction: use --direction ENRU");
    }
    set_.emplace(options_.set);
    for (const auto& [path, loaded] : set_->missing()) {
      std::cerr << "kzdic: " << path << ": cannot be loaded, "
                << (loaded.empty() ? "left out" : loaded + " is taken for it") << '\n';
    }
    for (Dictionary& dictionary : set_->dictionaries()) dictionaries_.push_back(&dictionary);
  }

  std::vector<Found> inflected(const std::string& word) {
    std::vector<Found> found;
    for (Dictionary* const dictionary : dictionaries_) {
      for (Answer& answer : dictionary->find_inflected(word, *table_)) {
        found.push_back({dictionary->path(), dictionary->language(), std::move(answer)});
      }
      if (options_.first && !found.empty()) break;
    }
    return found;
  }

  const LookupOptions& options_;
  std::unique_ptr<Printer> printer_;
  std::optional<DictionarySet> set_;
  std::optional<Inflector> table_;
  std::vector<Dictionary> opened_;
  std::vector<Dictionary*> dictionaries_;  // in the order of the search
};

}  // namespace

void split_arguments(std::vector<std::string> arguments, LookupOptions& options) {
  auto word = arguments.begin();
  if (options.dictionaries.empty() && options.set.directory.empty() && word != arguments.end()) {
    word = std::find_if_not(word + 1, arguments.end(), names_dictionary);
    options.dictionaries.assign(arguments.begin(), word);
  }
  options.words.assign(word, arguments.end());
}

Status lookup(const LookupOptions& options) {
  if (options.dictionaries.empty() && options.set.directory.empty()) {
    throw Failure(Status::kUsage, "no dictionary is given");
  }
  if (options.words.empty()) throw Failure(Status::kUsage, "no word is given");
  Lookup session(options);
  return answer_words(options.words, session);
}

}  // namespace kzdic

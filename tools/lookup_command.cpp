// Look-up of words given as arguments or on standard input.
#include "tools/lookup_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

#include "lexicon/search/inflect_table.h"
#include "lexicon/search/search.h"
#include "tools/entry_printer.h"
#include "tools/input_lines.h"
#include "tools/status.h"

namespace kzdic {
namespace {

bool names_dictionary(const std::string& argument) {
  std::string extension = std::filesystem::path(argument).extension().string();
  for (char& c : extension) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  constexpr std::array<std::string_view, 5> kExtensions = {".dic", ".dis", ".dit", ".dih", ".dig"};
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

class Lookup {
 public:
  explicit Lookup(const LookupOptions& options)
      : options_(options),
        printer_(make_printer(options.raw, options.json, options.grammar, std::cout)) {
    if (!options.inflected.empty()) table_ = load_table(options.inflected);
    for (const std::string& path : options.dictionaries) {
      searchers_.push_back(std::make_unique<Searcher>(path));
    }
    if (options.set.directory.empty()) return;
    set_.emplace(options.set);
    for (const auto& [path, loaded] : set_->missing()) {
      std::cerr << "kzdic: " << path << ": cannot be loaded, "
                << (loaded.empty() ? "left out" : loaded + " is taken for it") << '\n';
    }
    for (CDic* const dictionary : set_->dictionaries()) {
      searchers_.push_back(std::make_unique<Searcher>(dictionary));
    }
  }

  // Answers one word; `line` tells that it is a line of standard input.
  void answer(const std::string& word, bool line) {
    std::vector<Found> found;
    for (const auto& searcher : searchers_) {
      Answer answer = searcher->find({word, options_.prefix, options_.next});
      if (answer.step == Step::kNone) continue;
      found.push_back(
          {searcher->path(), searcher->language(), answer.step, std::move(answer.entries), {}});
      if (options_.first) break;
    }
    if (found.empty() && table_) found = inflected(word);
    all_found_ = all_found_ && !found.empty();
    printer_->print(word, found, line);
    std::cout.flush();
  }

  // Says why a word cannot be looked up.
  void refuse(const std::string& word, const std::string& message, bool line) {
    printer_->refuse(word, message, line);
    std::cout.flush();
  }

  bool all_found() const { return all_found_; }

 private:
  std::vector<Found> inflected(const std::string& word) {
    std::vector<Found> found;
    for (const auto& searcher : searchers_) {
      for (Answer& answer : searcher->find_inflected(word, *table_)) {
        found.push_back({searcher->path(), searcher->language(), answer.step,
                         std::move(answer.entries), std::move(answer.ending)});
      }
      if (options_.first && !found.empty()) break;
    }
    return found;
  }

  const LookupOptions& options_;
  std::unique_ptr<Printer> printer_;
  std::optional<DictionarySet> set_;
  std::unique_ptr<CGrSrcWordFlex> table_;
  std::vector<std::unique_ptr<Searcher>> searchers_;
  bool all_found_ = true;
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
  const Status status =
      for_each_word(options.words,
                    {[&session](const std::string& word, bool line) { session.answer(word, line); },
                     [&session](const std::string& word, const std::string& message, bool line) {
                       session.refuse(word, message, line);
                     }});
  if (status != Status::kOk) return status;
  return session.all_found() ? Status::kOk : Status::kNotFound;
}

}  // namespace kzdic

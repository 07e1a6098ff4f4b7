// Exact search, search for beginnings, and the records that follow.
#include "tools/search.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tools/code_page.h"
#include "tools/entry_layout.h"

namespace kzdic {
namespace {

constexpr std::int16_t kExact = 0;
constexpr std::int16_t kToTheEnd = -1;  // beginnings, to the end of the records
constexpr std::int16_t kResolve = 2;

std::string_view headword_of(std::string_view entry) { return entry.substr(0, entry.find('*')); }

}  // namespace

Searcher::Searcher(const std::string& path) : Searcher(open_dictionary(path, 0)) {}

Searcher::Searcher(Dictionary dictionary) : Searcher(dictionary.get()) {
  own_ = std::move(dictionary);
}

Searcher::Searcher(CDic* dictionary)
    : path_(DicGetPath(dictionary)),
      dictionary_(dictionary),
      header_(read_file_header(path_)),
      order_(header_.language.empty() ? "EN" : header_.language, header_.depth) {}

// The query in the dictionary's code page: none when it has characters that the page lacks.
std::vector<std::string> Searcher::forms(const std::string& word) const {
  std::string typed;
  try {
    typed = encode(from_utf8(word), source_page(header_.language));
  } catch (const std::runtime_error&) {
    return {};
  }
  // '*' ends headwords and the line feed ends records: neither is in a word.
  if (typed.find_first_of(std::string_view("*\n\0", 3)) != std::string::npos) return {};
  const std::string lower = lower_case(typed, header_.language);
  std::string folded = lower;
  if (header_.language.starts_with("RU")) {
    const std::string yo = encode(U"ё", CodePage::kRussian);
    std::replace(folded.begin(), folded.end(), yo[0], encode(U"е", CodePage::kRussian)[0]);
  }
  return {typed, lower, folded};
}

std::vector<std::string> Searcher::exact(const std::string& word, std::size_t next) {
  std::vector<std::string> entries;
  CDic* const dictionary = dictionary_;
  const char* entry = DicFind(dictionary, word.c_str(), kExact, kResolve);
  if (entry == nullptr) return entries;
  // The exact headword stands first among those that begin with it; searched this way, what
  // follows does not end with the block.
  if (next > 0) entry = DicFind(dictionary, word.c_str(), kToTheEnd, kResolve);
  for (; entry != nullptr && headword_of(entry) == word;
       entry = DicFindNext(dictionary, kResolve)) {
    entries.emplace_back(entry);
  }
  for (; entry != nullptr && next > 0; --next, entry = DicFindNext(dictionary, kResolve)) {
    entries.emplace_back(entry);
  }
  return entries;
}

std::vector<std::string> Searcher::beginning_with(const std::string& prefix) {
  std::vector<std::string> entries;
  if (prefix.empty()) return entries;
  CDic* const dictionary = dictionary_;
  // The key list of depth 5 does not find beginnings of fewer than five characters, nor keep the
  // words of one beginning together: all records are looked at.
  const bool keys = header_.depth == 5;
  const char* entry = DicFind(dictionary, keys ? nullptr : prefix.c_str(), kToTheEnd, kResolve);
  for (; entry != nullptr; entry = DicFindNext(dictionary, kResolve)) {
    const std::string_view headword = headword_of(entry);
    if (!keys && !order_.same_beginning(prefix, headword)) break;
    if (headword.starts_with(prefix)) entries.emplace_back(entry);
  }
  return entries;
}

Answer Searcher::find(const Query& query) {
  constexpr std::array<Step, 3> kSteps = {Step::kTyped, Step::kLowerCase, Step::kFolded};
  const std::vector<std::string> words = forms(query.word);
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0 && words[i] == words[i - 1]) continue;
    std::vector<std::string> entries =
        query.prefix ? beginning_with(words[i]) : exact(words[i], query.next);
    if (!entries.empty()) return {kSteps.at(i), std::move(entries)};
  }
  return {};
}

}  // namespace kzdic

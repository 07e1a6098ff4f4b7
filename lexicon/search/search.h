// Searches of one dictionary, in UTF-8.
#ifndef KZ_LEXICON_SEARCH_H
#define KZ_LEXICON_SEARCH_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kz/inflection.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/search/file_header.h"
#include "lexicon/search/open_dictionary.h"

namespace kz::lexicon {

// The forms in which a query is tried, in this order.
enum class Step {
  kNone,
  kTyped,
  kLowerCase,  // lower-cased by the dictionary's language
  kFolded,     // lower-cased, and the Russian letter yo written as ye
  kPlain,      // in plain letters or punctuation that the dictionary has for others
  kInflected,  // the headword of a Russian form
};

struct Answer {
  Step step = Step::kNone;           // the form that was found
  std::vector<std::string> entries;  // full entries, in the dictionary's code pages
  std::string ending;                // "-ами (NF 1)": how an inflected form was understood
};

struct Query {
  std::string word;      // UTF-8
  bool prefix = false;   // all headwords that begin with the word
  std::size_t next = 0;  // entries of this many records behind the word
};

class Searcher {
 public:
  // Opens the dictionary. Throws Error.
  explicit Searcher(const std::string& path);
  // Searches a dictionary that is open and outlives the searcher. Throws Error.
  explicit Searcher(CDic* dictionary);

  const std::string& path() const { return path_; }
  const std::string& language() const { return header_.language; }

  Answer find(const Query& query);
  // Answers for all headwords that the word may be a form of, the most likely first. Only Russian
  // dictionaries have any.
  std::vector<Answer> find_inflected(const std::string& word, CGrSrcWordFlex& table);

 private:
  explicit Searcher(Dictionary dictionary);

  // The forms of a query as the dictionary would spell them.
  struct Forms {
    std::string typed;
    std::string lower;
    std::string folded;
    bool plain = false;  // the page lacks a character of the query
  };
  std::optional<Forms> forms(std::u32string_view word) const;
  Answer find_form(const Query& query, const Forms& forms);
  Answer find_spelled(const Query& query, const Forms& forms);
  std::vector<std::string> exact(const std::string& word, std::size_t next);
  std::vector<std::string> beginning_with(const std::string& prefix);

  std::string path_;
  Dictionary own_;  // empty for a dictionary that was given
  CDic* dictionary_;
  FileHeader header_;
  SortOrder order_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SEARCH_H

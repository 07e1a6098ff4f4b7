// An open dictionary with what searching it needs.
#ifndef KZ_LEXICON_DICTIONARY_IMPL_H
#define KZ_LEXICON_DICTIONARY_IMPL_H

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/dictionary.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/search/file_header.h"
#include "lexicon/search/open_dictionary.h"
#include "platform/memory_file.h"

namespace kz::lexicon {

struct Dictionary::Impl {
  // Opens the file of that path; `memory` is the file when it is one in memory.
  Impl(const std::string& path, const std::string& shown,
       std::shared_ptr<const platform::MemoryFile> memory);
  // For a dictionary that is open and outlives this.
  explicit Impl(CDic* dictionary);

  // The forms of a query as the dictionary would spell them, in its code page.
  struct Forms {
    std::string typed;
    std::string lower;
    std::string folded;
    bool plain = false;  // the page lacks a character of the query
  };
  struct Query {
    std::string_view word{};  // UTF-8
    bool prefix = false;      // all headwords that begin with the word
    std::size_t next = 0;     // entries of this many records after the word
  };

  // No value when the query has characters that cannot be written in the code page.
  std::optional<Forms> forms(std::u32string_view word) const;
  Answer find(const Query& query);
  // Entries of a headword in the code page of the dictionary, and of headwords that begin with it.
  std::vector<Entry> exact(const std::string& word, std::size_t next);
  std::vector<Entry> beginning_with(const std::string& prefix);

  std::shared_ptr<const platform::MemoryFile> memory;
  DictionaryHandle own;  // empty for a dictionary that was given
  CDic* handle;
  std::string path;   // that can be opened
  std::string shown;  // in messages
  FileHeader header;
  SortOrder order;

 private:
  Answer find_form(const Query& query, const Forms& forms);
  Answer find_spelled(const Query& query, const Forms& forms);
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DICTIONARY_IMPL_H

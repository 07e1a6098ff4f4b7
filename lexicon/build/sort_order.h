// The order in which a dictionary keeps its headwords, and what can be a headword.
//
// Words are in the order of the letter index: by the slots of their first letters, "no letter"
// before all letters, then by bytes. Words that share all slots form a group; each group is a block
// of the record area. In a letter table (depth 2 or 3) words that begin with a digit are first
// and belong to the first group; in a key list (depth 5) the order is that of the keys.
#ifndef KZ_LEXICON_SORT_ORDER_H
#define KZ_LEXICON_SORT_ORDER_H

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kz::lexicon {

// Longest word that a search takes.
inline constexpr std::size_t kHeadwordMax = 77;

class SortOrder {
 public:
  // depth is 2, 3 or 5.
  SortOrder(std::string_view language, int depth);

  int depth() const { return depth_; }
  int alphabet_size() const { return alphabet_size_; }
  const std::string& language() const { return language_; }

  // True for a small letter of the dictionary's language.
  bool is_letter(char c) const;

  // Why the word (lower case, in the dictionary's code page) cannot be a headword; nothing when
  // it can.
  std::optional<std::string> refusal(std::string_view word) const;

  // Number of the word's group: groups are in the order of their numbers. Words with a leading
  // digit have group 0 in a letter table; that is no group of its own there.
  std::uint32_t group(std::string_view word) const;

  // True when the letters of the index cannot tell the word from one that begins with the prefix.
  // In a letter table all words with this prefix are within such a run of words.
  bool same_beginning(std::string_view prefix, std::string_view word) const;

 private:
  std::uint32_t slot(std::string_view word, std::size_t position) const;
  std::uint32_t key(std::string_view word) const;

  std::string language_;
  int depth_;
  int alphabet_size_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SORT_ORDER_H

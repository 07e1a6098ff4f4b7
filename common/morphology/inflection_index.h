// The endings of an inflection table, read from the end of the word.
#ifndef KZ_MORPHOLOGY_INFLECTION_INDEX_H
#define KZ_MORPHOLOGY_INFLECTION_INDEX_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "kz/inflection.h"
#include "morphology/byte_trie.h"

namespace kz {

// A trie over the reversed endings: one walk from the last character of a word passes all its
// endings, the shortest first, and stops where no ending goes on.
class EndingIndex {
 public:
  // The place of the entry of an ending, null when it has none yet. Valid until the next call.
  CGrSrcWordObj*& at(std::string_view ending) {
    ByteTrie::Node node = ByteTrie::kRoot;
    for (std::size_t i = ending.size(); i-- > 0;) {
      node = trie_.add_child(node, static_cast<unsigned char>(ending[i]));
    }
    entries_.resize(trie_.size());
    return entries_[node];
  }

  // The entry of the whole word, or else of its longest ending of at most `longest` characters.
  CGrSrcWordObj* find(std::string_view word, std::size_t longest) const {
    CGrSrcWordObj* found = nullptr;
    ByteTrie::Node node = ByteTrie::kRoot;
    for (std::size_t length = 1; length <= word.size(); ++length) {
      node = trie_.child(node, static_cast<unsigned char>(word[word.size() - length]));
      if (node == ByteTrie::kRoot) break;
      CGrSrcWordObj* const entry = entries_[node];
      if (entry != nullptr && (length <= longest || length == word.size())) found = entry;
    }
    return found;
  }

 private:
  ByteTrie trie_;
  std::vector<CGrSrcWordObj*> entries_;  // by node; null where no ending ends
};

}  // namespace kz

#endif  // KZ_MORPHOLOGY_INFLECTION_INDEX_H

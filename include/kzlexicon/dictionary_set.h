// The dictionaries of a direction, opened together as a translation engine opens them.
//
//     using namespace kz::lexicon;
//     DictionarySet set({.directory = ".", .direction = "ENRU"});
//     for (Dictionary& dictionary : set.dictionaries())
//       if (const Answer answer = dictionary.find("table"))
//         std::cout << dictionary.path() << ": " << answer.entries.size() << '\n';
//     // Output: ./baseenru.dic: 1
//
// A set serves one thread at a time, together with its dictionaries.
#ifndef KZLEXICON_DICTIONARY_SET_H
#define KZLEXICON_DICTIONARY_SET_H

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "kzlexicon/dictionary.h"
#include "kzlexicon/export.h"

namespace kz::lexicon {

// A dictionary of a set that cannot be loaded from where it should be, and the file of the same
// name that was loaded for it; empty for none.
struct MissingDictionary {
  std::string path;
  std::string loaded;
};

struct SetOptions {
  std::string directory;    // where the base dictionaries and relative paths are
  std::string direction{};  // "ENRU"; may be empty when `config` names one
  std::string config{};     // a parameter string (docs/sets.md); empty for the base dictionaries
};

class KZL_API DictionarySet {
 public:
  // Opens the set. Throws Error: kArgument for a direction or configuration that is none, kFile
  // when the directory is none or no dictionary can be loaded. Dictionaries that are not there
  // while others are is no error; missing() has them.
  explicit DictionarySet(const SetOptions& options);
  ~DictionarySet();
  DictionarySet(DictionarySet&& other) noexcept;
  DictionarySet& operator=(DictionarySet&& other) noexcept;

  // In the order of a search. They belong to the set and live as long as it; do not move from them.
  std::span<Dictionary> dictionaries();
  // What was not found where it should be; as long as the set.
  const std::vector<MissingDictionary>& missing() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_DICTIONARY_SET_H

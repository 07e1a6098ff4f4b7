// The dictionaries of a direction, opened together as a translation engine does.
#ifndef KZ_LEXICON_DICTIONARY_SET_H
#define KZ_LEXICON_DICTIONARY_SET_H

#include <memory>
#include <string>
#include <vector>

#include "kz/dic_set.h"

namespace kz::lexicon {

struct SetOptions {
  std::string directory;  // empty: no set is asked for
  std::string direction;
  std::string config;  // a parameter string; empty for the base dictionaries
};

// A dictionary of the set that cannot be loaded from where it should be, and the file of the same
// name that was loaded for it; empty for none.
struct MissingDictionary {
  std::string path;
  std::string loaded;
};

class DictionarySet {
 public:
  // Opens the set. Throws Error when no dictionary can be loaded.
  explicit DictionarySet(const SetOptions& options);

  // In the order of a search; they live as long as the set.
  std::vector<CDic*> dictionaries() const;
  const std::vector<MissingDictionary>& missing() const { return missing_; }

 private:
  struct Close {
    void operator()(CDicSys* set) const { DicSysClose(set); }
  };
  std::unique_ptr<CDicSys, Close> set_;
  std::vector<MissingDictionary> missing_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DICTIONARY_SET_H

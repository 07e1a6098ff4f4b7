// The dictionaries of a direction, opened together as a translation engine does.
#ifndef KZ_TOOLS_DICTIONARY_SET_H
#define KZ_TOOLS_DICTIONARY_SET_H

#include <memory>
#include <string>
#include <vector>

#include "kz/dic_set.h"

namespace kzdic {

struct SetOptions {
  std::string directory;  // empty: no set is asked for
  std::string direction;
  std::string config;  // a parameter string; empty for the base dictionaries
};

class DictionarySet {
 public:
  // Opens the set. What cannot be loaded is reported; throws Failure when nothing can.
  explicit DictionarySet(const SetOptions& options);

  // In the order of a search; they live as long as the set.
  std::vector<CDic*> dictionaries() const;

 private:
  struct Close {
    void operator()(CDicSys* set) const { DicSysClose(set); }
  };
  std::unique_ptr<CDicSys, Close> set_;
};

}  // namespace kzdic

#endif  // KZ_TOOLS_DICTIONARY_SET_H

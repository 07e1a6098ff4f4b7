// A set over a directory of small dictionaries.
#ifndef KZ_TESTS_SET_FIXTURE_H
#define KZ_TESTS_SET_FIXTURE_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kz/dic_array.h"
#include "kz/dic_queue.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"
#include "tests/common/dictionary/dictionary_file.h"
#include "tests/support/temp_dir.h"

namespace kz::test {

inline const char* const kDirections[] = {"ENRU", "RUEN", "FRRU", "RUFR", "DERU", "RUDE"};

inline std::string lower_case(std::string direction) {
  for (char& c : direction) c = static_cast<char>(c | 0x20);
  return direction;
}

class SetTest : public testing::Test {
 protected:
  ~SetTest() override { DicSysClose(set_); }

  // Opens the set anew.
  CDicSys* open(const char* language) {
    DicSysClose(set_);
    return set_ = DicSysOpen(0, language, directory_.c_str());
  }

  // Writes a dictionary with one word into the directory and returns its path.
  std::string write(const std::string& name, const std::string& language = "ENRU",
                    char type = 'C') {
    DictionaryFile file;
    file.language = language;
    file.type = type;
    file.records = {{"cat", "N" + name}};
    file.write(directory_ + name);
    return directory_ + name;
  }

  // "path:mode" of each descriptor, "-" for an empty slot.
  static std::vector<std::string> descriptors(const ZCObArray& array) {
    std::vector<std::string> all;
    for (int i = 0; i < array.GetSize(); ++i) {
      const auto* const item = static_cast<const CDicArray*>(array[i]);
      all.push_back(item == nullptr ? "-"
                                    : std::string(item->path) + ":" + std::to_string(item->mode));
    }
    return all;
  }

  // File names of the dictionaries in a list of the queue.
  std::vector<std::string> loaded(int list = 0) const {
    const ZCObArray& all = set_->queue.lists[list];
    std::vector<std::string> names;
    for (int i = 0; i < all.GetSize(); ++i) {
      const std::string path = DicGetPath(reinterpret_cast<CDic*>(all[i]));
      names.push_back(path.substr(path.rfind('/') + 1));
    }
    return names;
  }

  std::string parameters() const {
    char text[4096] = "start";
    DicArrayParmStr(set_, text);
    return text;
  }

  TempDir dir_;
  const std::string directory_ = dir_.file("");
  CDicSys* set_ = DicSysOpen(0, "ENRU", directory_.c_str());
};

using Names = std::vector<std::string>;

}  // namespace kz::test

#endif  // KZ_TESTS_SET_FIXTURE_H

// Set of a direction: base dictionaries, or those of a parameter string.
#include "kzlexicon/dictionary_set.h"

#include <filesystem>
#include <sstream>
#include <string_view>
#include <utility>

#include "kz/dic_array.h"
#include "kz/dic_set.h"
#include "kzlexicon/error.h"
#include "lexicon/search/dictionary_impl.h"
#include "lexicon/source/entry_layout.h"

namespace kz::lexicon {
namespace {

constexpr std::string_view kHeader = "-C";

std::string direction_of(std::string text) {
  for (char& c : text) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
  if (text.size() == 4 && is_language(text)) return text;
  throw Error(ErrorCode::kArgument,
              "no such direction: " + text + " (ENRU, RUEN, DERU, RUDE, FRRU, RUFR)");
}

struct PathList {
  std::string direction;
  std::string paths;
};

// "-CENRU path:mode;path:mode -CRUEN ...", on one line or several; paths before the first header
// are those of the working direction.
std::vector<PathList> parse_config(const std::string& config, const std::string& direction) {
  std::vector<PathList> lists;
  std::istringstream in(config);
  for (std::string word; in >> word;) {
    if (word.starts_with(kHeader)) {
      lists.push_back({direction_of(word.substr(kHeader.size())), {}});
      continue;
    }
    if (lists.empty()) lists.push_back({direction_of(direction), {}});
    lists.back().paths += word + ';';
  }
  if (lists.empty()) throw Error(ErrorCode::kArgument, "the configuration names no dictionaries");
  return lists;
}

std::string file_name(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

// Where the dictionary was loaded from, empty if it was not: from the path itself, or from another
// file of the same name.
std::string loaded_path(const std::vector<CDic*>& dictionaries, const std::string& path) {
  std::string other;
  for (CDic* const dictionary : dictionaries) {
    std::string loaded = DicGetPath(dictionary);
    if (loaded == path) return loaded;
    if (file_name(loaded) == file_name(path)) other = std::move(loaded);
  }
  return other;
}

// A file that is not where it should be is also looked for in the set's directory and in the
// working directory.
std::vector<MissingDictionary> missing_of(const ZCObArray& array,
                                          const std::vector<CDic*>& dictionaries,
                                          const std::string& directory) {
  std::vector<MissingDictionary> missing;
  for (int i = 0; i < array.GetSize(); ++i) {
    const auto* const descriptor = static_cast<const CDicArray*>(array[i]);
    if (descriptor == nullptr) continue;
    std::string path(descriptor->path);
    if (path == file_name(path)) path.insert(0, directory);
    const std::string found = loaded_path(dictionaries, path);
    if (found != path) missing.push_back({path, found});
  }
  return missing;
}

struct CloseSet {
  void operator()(CDicSys* set) const { DicSysClose(set); }
};

// In the order of a search.
std::vector<CDic*> dictionaries_of(CDicSys* set) {
  std::vector<CDic*> all;
  CDic* dictionary = DicQueFirst(set, DIC_LIST_ALL, 0);
  for (; dictionary != nullptr; dictionary = DicQueNext(set, DIC_LIST_ALL)) {
    all.push_back(dictionary);
  }
  return all;
}

}  // namespace

struct DictionarySet::Impl {
  std::unique_ptr<CDicSys, CloseSet> set;
  std::vector<Dictionary> dictionaries;
  std::vector<MissingDictionary> missing;
};

DictionarySet::DictionarySet(const SetOptions& options) : impl_(std::make_unique<Impl>()) {
  std::vector<PathList> lists;
  if (!options.config.empty()) lists = parse_config(options.config, options.direction);
  if (options.direction.empty() && lists.empty()) {
    throw Error(ErrorCode::kArgument, "a set needs a direction");
  }
  const std::string direction =
      options.direction.empty() ? lists[0].direction : direction_of(options.direction);

  // The directory is a prefix of file names.
  std::string directory = options.directory;
  if (!directory.ends_with('/')) directory += '/';
  std::error_code ignored;
  if (!std::filesystem::is_directory(directory, ignored)) {
    throw Error(ErrorCode::kFile, "not a directory", {directory});
  }
  impl_->set.reset(DicSysOpen(0, direction.c_str(), directory.c_str()));
  CDicSys* const set = impl_->set.get();
  if (set == nullptr) throw Error(ErrorCode::kFile, "not enough memory for the set");
  if (lists.empty()) {
    DicSysLoadCommon(set);
  } else {
    for (const PathList& list : lists) {
      DicArrayAddPath(set, -1, list.direction.c_str(), list.paths.c_str());
    }
    DicArrayLoad(set, DicArraySelect(set, nullptr), 0);
  }
  const std::vector<CDic*> loaded = dictionaries_of(set);
  impl_->missing = missing_of(*DicArraySelect(set, nullptr), loaded, directory);
  if (loaded.empty()) {
    throw Error(ErrorCode::kFile, "no dictionary of " + direction + " can be loaded", {directory});
  }
  for (CDic* const dictionary : loaded) {
    impl_->dictionaries.push_back(Dictionary(std::make_unique<Dictionary::Impl>(dictionary)));
  }
}

DictionarySet::~DictionarySet() = default;
DictionarySet::DictionarySet(DictionarySet&& other) noexcept = default;
DictionarySet& DictionarySet::operator=(DictionarySet&& other) noexcept = default;

std::span<Dictionary> DictionarySet::dictionaries() { return impl_->dictionaries; }
const std::vector<MissingDictionary>& DictionarySet::missing() const { return impl_->missing; }

}  // namespace kz::lexicon

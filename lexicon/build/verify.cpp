// Search for everything that a new dictionary holds.
#include "lexicon/build/verify.h"

#include <cstddef>

#include "kz/dictionary.h"
#include "kzlexicon/error.h"
#include "lexicon/search/open_dictionary.h"

namespace kz::lexicon {
namespace {

void expect(const std::string& name, const char* found, const Record& record) {
  if (found != nullptr && record.text == found) return;
  throw Error(ErrorCode::kData,
              "the finished dictionary cannot be searched: '" + record.headword +
                  (found == nullptr ? "' is not found" : "' reads otherwise"),
              {name});
}

}  // namespace

void verify_dictionary(const std::string& path, const std::string& name,
                       const std::vector<Record>& records) {
  const DictionaryHandle dictionary = open_dictionary(path, DIC_MODE_PLAIN);
  const char* found = nullptr;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const bool again = i > 0 && records[i].headword == records[i - 1].headword;
    found = again ? DicFindNext(dictionary.get(), DIC_LEVEL_FULL)
                  : DicFind(dictionary.get(), records[i].headword.c_str(), DIC_SEARCH_EXACT,
                            DIC_LEVEL_FULL);
    expect(name, found, records[i]);
  }
  for (std::size_t i = 0; i < records.size(); ++i) {
    found = i > 0 ? DicFindNext(dictionary.get(), DIC_LEVEL_FULL)
                  : DicFind(dictionary.get(), nullptr, DIC_SEARCH_REST, DIC_LEVEL_FULL);
    expect(name, found, records[i]);
  }
  if (DicFindNext(dictionary.get(), DIC_LEVEL_FULL) != nullptr) {
    throw Error(ErrorCode::kData, "the finished dictionary has records too many", {name});
  }
}

}  // namespace kz::lexicon

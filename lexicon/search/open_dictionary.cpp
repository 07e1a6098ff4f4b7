// Opening of dictionaries, with a reason when it fails.
#include "lexicon/search/open_dictionary.h"

#include <cstring>

#include "kz/dic_error.h"
#include "kzlexicon/error.h"

namespace kz::lexicon {

DictionaryHandle open_dictionary(const std::string& path, std::int16_t mode) {
  DictionaryHandle dictionary(DicOpen(path.c_str(), mode));
  if (dictionary) return dictionary;
  const std::uint16_t code = kz_dict_dic_errno();
  const int reason = kz_dict_errno();
  if (code == DIC_ERR_FORMAT) {
    throw Error(ErrorCode::kData, "not a dictionary, or a damaged one", {path, 0, 0, 0});
  }
  if (code == DIC_ERR_MEMORY) throw Error(ErrorCode::kFile, "not enough memory", {path});
  throw Error(
      ErrorCode::kFile,
      std::string("cannot open: ") + (reason != 0 ? std::strerror(reason) : "not a regular file"),
      {path});
}

}  // namespace kz::lexicon

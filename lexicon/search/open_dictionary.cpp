// Opening of dictionaries, with a reason when it fails.
#include "lexicon/search/open_dictionary.h"

#include <cstring>

#include "kz/dic_error.h"
#include "kz/file.h"
#include "kzlexicon/error.h"

namespace kz::lexicon {

DictionaryHandle open_dictionary(const std::string& path, std::int16_t mode) {
  constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;
  DictionaryHandle dictionary(DicOpen(path.c_str(), mode));
  if (dictionary) return dictionary;
  const int reason = kz_dict_errno();
  if (kz_dict_dic_errno() == DIC_ERR_MEMORY) {
    throw Error(ErrorCode::kFile, "not enough memory", {path});
  }
  // The error variable is one for the process, and another thread may have set it: the file itself
  // shows what is wrong.
  ZCFile file;
  if (file.Open(path.c_str(), kReadDenyingWrite) != 0) {
    throw Error(ErrorCode::kData, "not a dictionary, or a damaged one", {path, 0, 0, 0});
  }
  throw Error(
      ErrorCode::kFile,
      std::string("cannot open: ") + (reason != 0 ? std::strerror(reason) : "not a regular file"),
      {path});
}

}  // namespace kz::lexicon

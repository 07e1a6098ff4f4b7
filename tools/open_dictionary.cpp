// Opening of dictionaries, with a reason when it fails.
#include "tools/open_dictionary.h"

#include <cstring>

#include "kz/dic_error.h"
#include "tools/status.h"

namespace kzdic {

Dictionary open_dictionary(const std::string& path, std::int16_t mode) {
  Dictionary dictionary(DicOpen(path.c_str(), mode));
  if (dictionary) return dictionary;
  const std::uint16_t code = kz_dict_dic_errno();
  const int reason = kz_dict_errno();
  if (code == DIC_ERR_FORMAT) {
    throw Failure(Status::kDamaged, path + ": offset 0: not a dictionary, or a damaged one");
  }
  if (code == DIC_ERR_MEMORY) throw Failure(Status::kFile, path + ": not enough memory");
  throw Failure(Status::kFile, path + ": cannot open: " +
                                   (reason != 0 ? std::strerror(reason) : "not a regular file"));
}

}  // namespace kzdic

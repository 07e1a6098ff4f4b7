// The process-wide dictionary error variable.
#ifndef KZ_DICTIONARY_ERROR_H
#define KZ_DICTIONARY_ERROR_H

#include <cstdint>

#include "kz/dic_error.h"

namespace kz {

// Leaves `code` in the error variable and returns it, so that a function can end with
// `return set_error(DIC_ERR_FILE);`.
std::uint16_t set_error(std::uint16_t code);

std::uint16_t last_error();

// Keeps errno as it is over the clean-up after a failure: closing a file must not hide the reason
// that kz_dict_errno reports.
class KeepErrno {
 public:
  KeepErrno();
  KeepErrno(const KeepErrno&) = delete;
  KeepErrno& operator=(const KeepErrno&) = delete;
  ~KeepErrno();

 private:
  int saved_;
};

}  // namespace kz

#endif  // KZ_DICTIONARY_ERROR_H

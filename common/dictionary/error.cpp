// The dictionary error variable and errno.
#include "dictionary/error.h"

#include <atomic>
#include <cerrno>

namespace kz {
namespace {

// Atomic so that concurrent users of the engine, who overwrite each other's code, do no worse.
std::atomic<std::uint16_t> error_variable{DIC_OK};

}  // namespace

std::uint16_t set_error(std::uint16_t code) {
  error_variable.store(code, std::memory_order_relaxed);
  return code;
}

std::uint16_t last_error() { return error_variable.load(std::memory_order_relaxed); }

KeepErrno::KeepErrno() : saved_(errno) {}

KeepErrno::~KeepErrno() { errno = saved_; }

}  // namespace kz

extern "C" {

std::uint16_t kz_dict_dic_errno() { return kz::last_error(); }

int kz_dict_errno() { return errno; }

}  // extern "C"

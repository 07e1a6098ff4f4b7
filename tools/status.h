// Exit statuses of kzdic and the exception that ends a command with one.
#ifndef KZ_TOOLS_STATUS_H
#define KZ_TOOLS_STATUS_H

#include <string>

#include "kzlexicon/error.h"

namespace kzdic {

enum class Status {
  kOk = 0,
  kNotFound = 1,  // a word or name that was looked up is not there
  kUsage = 2,
  kFile = 3,      // a file cannot be opened, read or written
  kDamaged = 4,   // input that is not what it should be, or that the format cannot hold
  kCodePage = 5,  // a character that the code page lacks
};

// The tool speaks the names of the library that it is a face of.
using namespace kz::lexicon;

inline Status status_of(const Error& error) { return static_cast<Status>(error.code()); }

// Ends the command, as errors of the library do.
struct Failure : Error {
  Failure(Status status, const std::string& message)
      : Error(static_cast<ErrorCode>(status), message) {}
};

}  // namespace kzdic

#endif  // KZ_TOOLS_STATUS_H

// Source lines that a dictionary cannot take: collected, counted and reported together.
#ifndef KZ_TOOLS_REFUSALS_H
#define KZ_TOOLS_REFUSALS_H

#include <cstddef>
#include <string>

#include "tools/status.h"

namespace kzdic {

class Refusals {
 public:
  // With `skip` refused lines are left out and counted; without it they end the build.
  explicit Refusals(bool skip) : skip_(skip) {}

  // Reports one line on standard error; after the first few they are only counted.
  void add(Status status, const std::string& message);

  // Throws when lines were refused and are not to be skipped. The status is that of the first.
  void check() const;

  std::size_t count() const { return count_; }

 private:
  bool skip_;
  std::size_t count_ = 0;
  Status first_ = Status::kOk;
};

}  // namespace kzdic

#endif  // KZ_TOOLS_REFUSALS_H

// Report of refused source lines.
#include "tools/refusals.h"

#include <iostream>

namespace kzdic {
namespace {

constexpr std::size_t kShown = 20;

}  // namespace

void Refusals::add(Status status, const std::string& message) {
  if (count_ == 0) first_ = status;
  ++count_;
  if (count_ <= kShown) {
    std::cerr << "kzdic: " << message << '\n';
  } else if (count_ == kShown + 1) {
    std::cerr << "kzdic: more lines like these are only counted\n";
  }
}

void Refusals::check() const {
  if (skip_ || count_ == 0) return;
  throw Failure(first_, std::to_string(count_) +
                            (count_ == 1 ? " entry cannot" : " entries cannot") +
                            " be stored (--skip-bad leaves such entries out)");
}

}  // namespace kzdic

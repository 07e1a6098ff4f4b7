// What several options of kzdic have in common.
#ifndef KZ_TOOLS_OPTION_CHECKS_H
#define KZ_TOOLS_OPTION_CHECKS_H

#include <CLI/CLI.hpp>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace kzdic {

// A number from 0 to the greatest that 32 bits with a sign hold. The parser reads numbers into
// narrower types without looking at their range.
inline CLI::Validator whole_number() {
  return CLI::Range(std::int64_t{0}, std::int64_t{std::numeric_limits<std::int32_t>::max()})
      .description("");
}

// One of the words, which the type name lists.
inline CLI::Validator one_of(const std::vector<std::string>& words) {
  return CLI::IsMember(words).description("");
}

}  // namespace kzdic

#endif  // KZ_TOOLS_OPTION_CHECKS_H

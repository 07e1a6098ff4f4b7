// Cutting of moments to the range that a ZCTime can hold.
#ifndef KZ_FOUNDATION_TIME_RANGE_H
#define KZ_FOUNDATION_TIME_RANGE_H

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kz {

// The nearest value of 32 signed bits.
constexpr std::int32_t saturated(std::int64_t seconds) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(seconds, Limits::min(), Limits::max()));
}

// Sum and difference in 32-bit arithmetic that wraps around.
constexpr std::int32_t wrapped_sum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
constexpr std::int32_t wrapped_difference(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

}  // namespace kz

#endif  // KZ_FOUNDATION_TIME_RANGE_H

// ZCTimeSpan: parts, arithmetic and formatting.
#include <array>
#include <cstdio>
#include <string_view>

#include "foundation/time_range.h"
#include "kz/time.h"

namespace {

// Seconds modulo 2 to the 32, whatever the parts are.
std::int32_t total_seconds(std::int32_t days, int hours, int minutes, int seconds) {
  const auto bits = [](std::int32_t value) { return static_cast<std::uint32_t>(value); };
  return static_cast<std::int32_t>(bits(seconds) +
                                   60 * (bits(minutes) + 60 * (bits(hours) + 24 * bits(days))));
}

// The text of a span while it is put together: what does not fit is cut off.
class SpanText {
 public:
  void add(char ch) {
    if (size_ < text_.size()) text_[size_++] = ch;
  }
  // The number with its sign, filled up with zeros to `width` characters.
  void add(std::int32_t number, int width) {
    std::array<char, 16> digits;
    std::snprintf(digits.data(), digits.size(), "%0*d", width, static_cast<int>(number));
    for (const char* digit = digits.data(); *digit != '\0'; ++digit) add(*digit);
  }
  ZCString string() const { return {text_.data(), static_cast<int>(size_)}; }

 private:
  std::array<char, 127> text_;
  std::size_t size_ = 0;
};

}  // namespace

// The value stays unset by design.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
ZCTimeSpan::ZCTimeSpan() {}

ZCTimeSpan::ZCTimeSpan(std::int32_t seconds) : seconds_(seconds) {}

ZCTimeSpan::ZCTimeSpan(std::int32_t days, int hours, int minutes, int seconds)
    : seconds_(total_seconds(days, hours, minutes, seconds)) {}

ZCTimeSpan::ZCTimeSpan(const ZCTimeSpan& other) = default;

ZCTimeSpan& ZCTimeSpan::operator=(const ZCTimeSpan& other) = default;

std::int32_t ZCTimeSpan::GetDays() const { return seconds_ / 86400; }

std::int32_t ZCTimeSpan::GetTotalHours() const { return seconds_ / 3600; }

std::int32_t ZCTimeSpan::GetTotalMinutes() const { return seconds_ / 60; }

std::int32_t ZCTimeSpan::GetTotalSeconds() const { return seconds_; }

int ZCTimeSpan::GetHours() const { return GetTotalHours() - 24 * GetDays(); }

int ZCTimeSpan::GetMinutes() const { return GetTotalMinutes() - 60 * GetTotalHours(); }

int ZCTimeSpan::GetSeconds() const { return seconds_ - 60 * GetTotalMinutes(); }

ZCTimeSpan ZCTimeSpan::operator+(const ZCTimeSpan& other) const {
  return {kz::wrapped_sum(seconds_, other.seconds_)};
}

ZCTimeSpan ZCTimeSpan::operator-(const ZCTimeSpan& other) const {
  return {kz::wrapped_difference(seconds_, other.seconds_)};
}

ZCTimeSpan& ZCTimeSpan::operator+=(const ZCTimeSpan& other) { return *this = *this + other; }

ZCTimeSpan& ZCTimeSpan::operator-=(const ZCTimeSpan& other) { return *this = *this - other; }

bool ZCTimeSpan::operator==(const ZCTimeSpan& other) const { return seconds_ == other.seconds_; }

bool ZCTimeSpan::operator!=(const ZCTimeSpan& other) const { return seconds_ != other.seconds_; }

bool ZCTimeSpan::operator<(const ZCTimeSpan& other) const { return seconds_ < other.seconds_; }

bool ZCTimeSpan::operator>(const ZCTimeSpan& other) const { return seconds_ > other.seconds_; }

bool ZCTimeSpan::operator<=(const ZCTimeSpan& other) const { return seconds_ <= other.seconds_; }

bool ZCTimeSpan::operator>=(const ZCTimeSpan& other) const { return seconds_ >= other.seconds_; }

ZCString ZCTimeSpan::Format(const char* format) const {
  SpanText text;
  const std::string_view pattern = format != nullptr ? format : "";
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != '%') {
      text.add(pattern[i]);
      continue;
    }
    if (++i == pattern.size()) break;
    switch (pattern[i]) {
      case 'D': text.add(GetDays(), 1); break;
      case 'H': text.add(GetHours(), 2); break;
      case 'M': text.add(GetMinutes(), 2); break;
      case 'S': text.add(GetSeconds(), 2); break;
      default: text.add(pattern[i]);
    }
  }
  return text.string();
}

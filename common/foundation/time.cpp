// ZCTime: calendar conversions, arithmetic and formatting.
#include "kz/time.h"

#include <array>
#include <limits>

#include "foundation/time_range.h"
#include "platform/calendar.h"

using kz::saturated;
using kz::platform::CalendarTime;
using kz::platform::Zone;

namespace {

constexpr int kFirstYear = 1900;

std::int32_t count_of(const CalendarTime& local, int daylight_saving) {
  if (const auto moment = kz::platform::moment(local, daylight_saving)) return saturated(*moment);
  return local.year < kFirstYear ? std::numeric_limits<std::int32_t>::min()
                                 : std::numeric_limits<std::int32_t>::max();
}

std::int32_t count_of_record(const CalendarTime& local, int daylight_saving) {
  return local.year < kFirstYear ? 0 : count_of(local, daylight_saving);
}

// A file time in seconds since 1970, fractions dropped.
std::int64_t seconds_of(const FILETIME& time) {
  constexpr std::uint64_t kTicksPerSecond = 10'000'000;
  constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;
  const std::uint64_t ticks = std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
  return static_cast<std::int64_t>(ticks / kTicksPerSecond) - kFrom1601To1970;
}

std::int32_t count_of_file_time(const FILETIME& time, int daylight_saving) {
  constexpr std::uint32_t kInvalid = 0x80000000;
  if ((time.dwHighDateTime & kInvalid) != 0) return 0;
  const std::int64_t seconds = seconds_of(time);
  const auto local = kz::platform::calendar(seconds, Zone::local);
  if (!local || local->year < kFirstYear) return 0;
  // The hour that the end of daylight saving repeats has two moments for each of its readings;
  // where the time zone decides, the moment is known without asking the calendar back.
  return daylight_saving < 0 ? saturated(seconds) : count_of(*local, daylight_saving);
}

CalendarTime local_fields(std::int32_t time) {
  return kz::platform::calendar(time, Zone::local).value_or(CalendarTime{});
}

ZCString formatted(const char* format, std::int32_t time, Zone zone) {
  std::array<char, 128> text;
  if (format == nullptr ||
      kz::platform::format_moment(text.data(), text.size(), format, time, zone) == 0)
    return {};
  return ZCString(text.data());
}

}  // namespace

// The value stays unset by design.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
ZCTime::ZCTime() {}

ZCTime::ZCTime(std::int32_t time) : time_(time) {}

ZCTime::ZCTime(int year, int month, int day, int hour, int minute, int second, int nDST)
    : time_(count_of({year, month, day, hour, minute, second, 0}, nDST)) {}

ZCTime::ZCTime(std::uint16_t dosDate, std::uint16_t dosTime, int nDST)
    : ZCTime(1980 + (dosDate >> 9), (dosDate >> 5) & 0x0F, dosDate & 0x1F, dosTime >> 11,
             (dosTime >> 5) & 0x3F, 2 * (dosTime & 0x1F), nDST) {}

ZCTime::ZCTime(const SYSTEMTIME& time, int nDST)
    : time_(count_of_record(
          {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, 0}, nDST)) {}

ZCTime::ZCTime(const FILETIME& time, int nDST) : time_(count_of_file_time(time, nDST)) {}

ZCTime::ZCTime(const ZCTime& other) = default;

ZCTime& ZCTime::operator=(const ZCTime& other) = default;

ZCTime& ZCTime::operator=(std::int32_t time) {
  time_ = time;
  return *this;
}

ZCTime ZCTime::GetTickCount() { return {saturated(kz::platform::now())}; }

std::int32_t ZCTime::GetTime() const { return time_; }

int ZCTime::GetYear() const { return local_fields(time_).year; }

int ZCTime::GetMonth() const { return local_fields(time_).month; }

int ZCTime::GetDay() const { return local_fields(time_).day; }

int ZCTime::GetHour() const { return local_fields(time_).hour; }

int ZCTime::GetMinute() const { return local_fields(time_).minute; }

int ZCTime::GetSecond() const { return local_fields(time_).second; }

int ZCTime::GetDayOfWeek() const { return local_fields(time_).weekday + 1; }

ZCTimeSpan ZCTime::operator-(const ZCTime& other) const {
  return {kz::wrapped_difference(time_, other.time_)};
}

ZCTime ZCTime::operator+(const ZCTimeSpan& span) const {
  return {kz::wrapped_sum(time_, span.GetTotalSeconds())};
}

ZCTime ZCTime::operator-(const ZCTimeSpan& span) const {
  return {kz::wrapped_difference(time_, span.GetTotalSeconds())};
}

ZCTime& ZCTime::operator+=(const ZCTimeSpan& span) { return *this = *this + span; }

ZCTime& ZCTime::operator-=(const ZCTimeSpan& span) { return *this = *this - span; }

bool ZCTime::operator==(const ZCTime& other) const { return time_ == other.time_; }

bool ZCTime::operator!=(const ZCTime& other) const { return time_ != other.time_; }

bool ZCTime::operator<(const ZCTime& other) const { return time_ < other.time_; }

bool ZCTime::operator>(const ZCTime& other) const { return time_ > other.time_; }

bool ZCTime::operator<=(const ZCTime& other) const { return time_ <= other.time_; }

bool ZCTime::operator>=(const ZCTime& other) const { return time_ >= other.time_; }

ZCString ZCTime::Format(const char* format) const { return formatted(format, time_, Zone::local); }

ZCString ZCTime::FormatGmt(const char* format) const { return formatted(format, time_, Zone::utc); }

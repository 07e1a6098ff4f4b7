// The clock, and calendar fields of moments by the time zone of the process.
//
// Moments are seconds since 1970-01-01 00:00:00 UTC.
#ifndef KZ_PLATFORM_CALENDAR_H
#define KZ_PLATFORM_CALENDAR_H

#include <cstddef>
#include <cstdint>
#include <optional>

namespace kz::platform {

struct CalendarTime {
  int year;   // in full
  int month;  // 1 to 12
  int day;    // 1 to 31
  int hour;
  int minute;
  int second;
  int weekday;  // 0 for Sunday; ignored where a moment is computed
};

enum class Zone { local, utc };

std::int64_t now();

// Nothing when the year does not fit an int.
std::optional<CalendarTime> calendar(std::int64_t moment, Zone zone);

// The moment of local calendar fields, which may lie outside their ranges and are carried over
// then. daylight_saving: above 0 in force, 0 not in force, below 0 the time zone decides. Nothing
// when the moment cannot be represented.
std::optional<std::int64_t> moment(const CalendarTime& local, int daylight_saving);

// strftime by the "C" locale: the length of the text written to a buffer of `room` bytes (with its
// terminating zero), 0 when it does not fit.
std::size_t format_moment(char* buffer, std::size_t room, const char* format, std::int64_t moment,
                          Zone zone);

}  // namespace kz::platform

#endif  // KZ_PLATFORM_CALENDAR_H

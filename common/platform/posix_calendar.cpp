// The clock and the calendar on POSIX systems.
#include "platform/calendar.h"

#include <time.h>

#include <limits>

#include "platform/posix_locale.h"

namespace kz::platform {
namespace {

bool break_down(std::int64_t moment, Zone zone, struct tm& fields) {
  const time_t seconds = moment;
  if (zone == Zone::utc) return gmtime_r(&seconds, &fields) != nullptr;
  tzset();  // the reentrant function need not look whether TZ has changed
  return localtime_r(&seconds, &fields) != nullptr;
}

}  // namespace

std::int64_t now() { return time(nullptr); }

std::optional<CalendarTime> calendar(std::int64_t moment, Zone zone) {
  struct tm fields;
  if (!break_down(moment, zone, fields)) return std::nullopt;
  if (fields.tm_year > std::numeric_limits<int>::max() - 1900) return std::nullopt;
  return CalendarTime{fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour,
                      fields.tm_min,         fields.tm_sec,     fields.tm_wday};
}

std::optional<std::int64_t> moment(const CalendarTime& local, int daylight_saving) {
  // Months are carried here, so that no field can overflow on its way into the record.
  const std::int64_t months = (std::int64_t{local.year} - 1900) * 12 + local.month - 1;
  const std::int64_t year = (months >= 0 ? months : months - 11) / 12;
  if (year < std::numeric_limits<int>::min() || year > std::numeric_limits<int>::max())
    return std::nullopt;
  struct tm fields {};
  fields.tm_year = static_cast<int>(year);
  fields.tm_mon = static_cast<int>(months - year * 12);
  fields.tm_mday = local.day;
  fields.tm_hour = local.hour;
  fields.tm_min = local.minute;
  fields.tm_sec = local.second;
  fields.tm_isdst = daylight_saving;
  fields.tm_wday = -1;  // a result of -1 is a moment like any other; a failure leaves this
  const time_t result = mktime(&fields);
  if (fields.tm_wday < 0) return std::nullopt;
  return result;
}

std::size_t format_moment(char* buffer, std::size_t room, const char* format, std::int64_t moment,
                          Zone zone) {
  struct tm fields;
  if (!break_down(moment, zone, fields)) return 0;
  return strftime_l(buffer, room, format, &fields, c_locale());
}

}  // namespace kz::platform

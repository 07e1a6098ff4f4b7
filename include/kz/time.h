// ZCTime and ZCTimeSpan: points in time and their differences, in whole seconds.
//
// A ZCTime counts seconds since 1970-01-01 00:00:00 UTC in 32 signed bits, whatever the width of
// the host's own time type. Calendar fields are local time by the time zone of the process. File
// times (ZCFileStatus in kz/file.h) are ZCTime values, where 0 stands for a missing time.
//
//   ZCTime start(2000, 1, 1, 0, 0, 0, -1);
//   ZCTimeSpan age = ZCTime(2000, 1, 3, 12, 0, 0, -1) - start;
//   puts(age.Format("%D days %H:%M:%S"));  // Output: 2 days 12:00:00
//
// Range: a moment before 1901-12-13 or after 2038-01-19 (UTC) does not fit the count. Conversions
// from a calendar or file time give the nearest end of the range then; adding and subtracting
// wraps around like any 32-bit arithmetic.
#ifndef KZ_TIME_H
#define KZ_TIME_H

#include <cstdint>

#include "kz/export.h"
#include "kz/string.h"

// A host whose own headers define the two records below, with these struct tags and this layout,
// defines KZ_HOST_TIME_RECORDS before including this header.
#ifndef KZ_HOST_TIME_RECORDS

// A calendar record of the platform: eight 16-bit fields.
struct SYSTEMTIME {
  std::uint16_t wYear;       // in full, 1601 and later
  std::uint16_t wMonth;      // 1 to 12
  std::uint16_t wDayOfWeek;  // 0 for Sunday to 6 for Saturday
  std::uint16_t wDay;        // 1 to 31
  std::uint16_t wHour;
  std::uint16_t wMinute;
  std::uint16_t wSecond;
  std::uint16_t wMilliseconds;
};

// A file time of the platform: the number of 100-nanosecond ticks since 1601-01-01 00:00:00 UTC,
// low half first.
struct FILETIME {
  std::uint32_t dwLowDateTime;
  std::uint32_t dwHighDateTime;
};

#endif  // KZ_HOST_TIME_RECORDS

// A signed number of seconds. Every division truncates toward zero, so all parts of a negative
// span are negative or zero: -90 seconds are -1 minute and -30 seconds.
class KZ_API ZCTimeSpan {
 public:
  // Leaves the value unset: assign before reading.
  ZCTimeSpan();
  ZCTimeSpan(std::int32_t seconds);
  // The sum of the parts, which need not lie in their ranges.
  ZCTimeSpan(std::int32_t days, int hours, int minutes, int seconds);
  ZCTimeSpan(const ZCTimeSpan& other);
  ZCTimeSpan& operator=(const ZCTimeSpan& other);

  // The whole span in days, hours, minutes or seconds.
  std::int32_t GetDays() const;
  std::int32_t GetTotalHours() const;
  std::int32_t GetTotalMinutes() const;
  std::int32_t GetTotalSeconds() const;

  // What is left over below the next larger unit: hours up to 23, minutes and seconds up to 59.
  int GetHours() const;
  int GetMinutes() const;
  int GetSeconds() const;

  // Sum and difference of the seconds.
  ZCTimeSpan operator+(const ZCTimeSpan& other) const;
  ZCTimeSpan operator-(const ZCTimeSpan& other) const;
  ZCTimeSpan& operator+=(const ZCTimeSpan& other);
  ZCTimeSpan& operator-=(const ZCTimeSpan& other);

  // By the signed number of seconds.
  bool operator==(const ZCTimeSpan& other) const;
  bool operator!=(const ZCTimeSpan& other) const;
  bool operator<(const ZCTimeSpan& other) const;
  bool operator>(const ZCTimeSpan& other) const;
  bool operator<=(const ZCTimeSpan& other) const;
  bool operator>=(const ZCTimeSpan& other) const;

  // A copy of format in which %D is replaced by the days, and %H, %M, %S by the hours, minutes
  // and seconds parts (two digits at least). '%' and any other character give that character; a
  // '%' that ends the format gives nothing. The result is cut after 127 characters. A null format
  // counts as empty.
  ZCString Format(const char* format) const;

 private:
  std::int32_t seconds_;
};

// A point in time.
class KZ_API ZCTime {
 public:
  // Leaves the value unset: assign before reading.
  ZCTime();
  // Seconds since 1970-01-01 00:00:00 UTC.
  ZCTime(std::int32_t time);
  // Local calendar time: the year in full (from 1900), month 1 to 12, day 1 to 31. Fields outside
  // their range are carried over (day 0 is the last day of the month before). nDST: 1 daylight
  // saving is in force, 0 it is not, -1 the time zone decides.
  ZCTime(int year, int month, int day, int hour, int minute, int second, int nDST = -1);
  // MS-DOS packed local date (day, month, year - 1980 from the low bits up: 5, 4 and 7 bits) and
  // time (second / 2, minute, hour: 5, 6 and 5 bits).
  ZCTime(std::uint16_t dosDate, std::uint16_t dosTime, int nDST = -1);
  // A local calendar record, without its milliseconds; 0 when its year lies before 1900.
  ZCTime(const SYSTEMTIME& time, int nDST = -1);
  // A file time; 0 when it lies before 1900 or cannot be converted (highest bit set).
  ZCTime(const FILETIME& time, int nDST = -1);
  ZCTime(const ZCTime& other);
  ZCTime& operator=(const ZCTime& other);
  ZCTime& operator=(std::int32_t time);

  // The current time, in seconds since 1970 like every ZCTime (not a counter of clock ticks).
  static ZCTime GetTickCount();

  // Seconds since 1970-01-01 00:00:00 UTC.
  std::int32_t GetTime() const;

  // Local calendar fields: the year in full, month 1 to 12, day 1 to 31, hour 0 to 23.
  int GetYear() const;
  int GetMonth() const;
  int GetDay() const;
  int GetHour() const;
  int GetMinute() const;
  int GetSecond() const;
  // 1 for Sunday to 7 for Saturday.
  int GetDayOfWeek() const;

  // The span between two points in time, and the point in time at that distance.
  ZCTimeSpan operator-(const ZCTime& other) const;
  ZCTime operator+(const ZCTimeSpan& span) const;
  ZCTime operator-(const ZCTimeSpan& span) const;
  ZCTime& operator+=(const ZCTimeSpan& span);
  ZCTime& operator-=(const ZCTimeSpan& span);

  // By the signed counts.
  bool operator==(const ZCTime& other) const;
  bool operator!=(const ZCTime& other) const;
  bool operator<(const ZCTime& other) const;
  bool operator>(const ZCTime& other) const;
  bool operator<=(const ZCTime& other) const;
  bool operator>=(const ZCTime& other) const;

  // The local time (Format) or UTC time (FormatGmt) by the conversions of the C function strftime,
  // with English names whatever the locale of the process is. At most 127 characters: a result
  // that is longer is given as an empty string, as is a null format.
  ZCString Format(const char* format) const;
  ZCString FormatGmt(const char* format) const;

 private:
  std::int32_t time_;
};

#endif  // KZ_TIME_H

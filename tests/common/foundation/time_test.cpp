// ZCTime and ZCTimeSpan: calendar conversions under several time zones, arithmetic, formatting.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>

#include "kz/time.h"

namespace {

constexpr std::int32_t first_count = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t last_count = std::numeric_limits<std::int32_t>::max();

constexpr const char* utc = "UTC0";
constexpr const char* nepal = "NPT-5:45";
constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr const char* new_york = "EST5EDT,M3.2.0,M11.1.0";

// The time zone of the process, until the end of the block.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* const old = std::getenv("TZ")) old_ = old;
    setenv("TZ", zone, 1);
  }
  ~TimeZone() { old_.empty() ? unsetenv("TZ") : setenv("TZ", old_.c_str(), 1); }

 private:
  std::string old_;
};

FILETIME file_time(std::int64_t count, std::uint32_t ticks = 0) {
  const std::uint64_t value =
      static_cast<std::uint64_t>(count + 11'644'473'600) * 10'000'000 + ticks;
  return {static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)};
}

TEST(Time, FieldsAreThoseOfTheCalendarAndLeadBack) {
  using namespace std::chrono;
  std::mt19937 random(3);
  for (const auto& [name, offset] : {std::pair{utc, 0}, {nepal, 5 * 3600 + 45 * 60}}) {
    const TimeZone zone(name);
    for (int round = 0; round < 2000; ++round) {
      const ZCTime time(static_cast<std::int32_t>(random()));
      const sys_seconds local{seconds{std::int64_t{time.GetTime()} + offset}};
      const sys_days day = floor<days>(local);
      EXPECT_EQ(day, sys_days(year{time.GetYear()} / time.GetMonth() / time.GetDay()));
      EXPECT_EQ(local - day,
                hours{time.GetHour()} + minutes{time.GetMinute()} + seconds{time.GetSecond()});
      EXPECT_TRUE(time.GetMinute() < 60 && time.GetSecond() < 60);
      EXPECT_EQ(time.GetDayOfWeek(), static_cast<int>(weekday{day}.c_encoding()) + 1);
      ASSERT_EQ(ZCTime(time.GetYear(), time.GetMonth(), time.GetDay(), time.GetHour(),
                       time.GetMinute(), time.GetSecond(), -1),
                time);
    }
  }
}

TEST(Time, DaylightSavingFollowsTheZoneOrTheCaller) {
  const struct {
    const char* zone;
    std::uint16_t month, day, hour;  // of 2021
    int nDST;
    std::int32_t count;
  } cases[] = {{berlin, 1, 15, 12, -1, 1610708400},    {berlin, 7, 15, 12, -1, 1626343200},
               {berlin, 7, 15, 12, 1, 1626343200},     {berlin, 7, 15, 12, 0, 1626346800},
               {berlin, 1, 15, 12, 1, 1610704800},     {new_york, 7, 15, 12, -1, 1626364800},
               {new_york, 12, 15, 12, -1, 1639587600},  // the hour from 2 to 3 comes twice:
               {berlin, 10, 31, 2, 1, 1635638400},     {berlin, 10, 31, 2, 0, 1635642000}};
  for (const auto& c : cases) {
    const TimeZone zone(c.zone);
    const SYSTEMTIME record = {2021, c.month, 9, c.day, c.hour, 0, 0, 999};
    const auto dos_date = static_cast<std::uint16_t>((2021 - 1980) << 9 | c.month << 5 | c.day);
    const auto dos_time = static_cast<std::uint16_t>(c.hour << 11);
    EXPECT_EQ(ZCTime(2021, c.month, c.day, c.hour, 0, 0, c.nDST).GetTime(), c.count);
    EXPECT_EQ(ZCTime(record, c.nDST).GetTime(), c.count);
    EXPECT_EQ(ZCTime(dos_date, dos_time, c.nDST).GetTime(), c.count);
  }
}

TEST(Time, FileTimesKeepTheirMomentThroughTheRepeatedHour) {
  for (const char* const name : {utc, berlin, new_york}) {
    const TimeZone zone(name);
    // Across both ends of daylight saving of 2021 in Berlin and in New York.
    for (std::int64_t day : {1616889600, 1635638400, 1615680000, 1636243200})
      for (std::int64_t count = day - 86400; count < day + 86400; count += 1800)
        EXPECT_EQ(ZCTime(file_time(count, 9'999'999), -1).GetTime(), count);
  }
  const TimeZone zone(berlin);
  EXPECT_EQ(ZCTime(file_time(1626343200), 0).GetTime(), 1626346800)
      << "12:00 read as standard time";
}

TEST(Time, FieldsAreCarriedAndMomentsCut) {
  const TimeZone zone(utc);
  constexpr int least = first_count, most = last_count;
  const ZCTime y2000(2000, 1, 1, 0, 0, 0, -1), first(first_count), last(last_count), zero(0);
  const std::pair<ZCTime, ZCTime> equal[] = {
      {{2000, 3, 0, 0, 0, 0, -1}, {2000, 2, 29, 0, 0, 0, -1}},
      {{1999, 14, 1, 25, 61, -1, -1}, {2000, 2, 2, 2, 0, 59, -1}},
      {{2001, -11, 1, 0, 0, 0, -1}, y2000},
      {{1969, 12, 31, 23, 59, 59, -1}, -1},
      {{0x2821, 0x0000, -1}, y2000},
      {{0xFF9F, 0xBF7D, -1}, last},  // 31 December 2107
      {{2038, 1, 19, 3, 14, 8, -1}, last},
      {{1900, 1, 1, 0, 0, 0, -1}, first},
      {{most, most, most, most, most, most, -1}, last},
      {{least, least, least, least, least, least, -1}, first},
      {{file_time(4'000'000'000), -1}, last},
      {{file_time(-2'208'988'800), -1}, first},  // 1 January 1900
      {{file_time(-2'208'988'801), -1}, zero},
      {{FILETIME{0, 0}, -1}, zero},
      {{FILETIME{0xFFFFFFFF, 0x7FFFFFFF}, -1}, last},
      {{FILETIME{0, 0x80000000}, -1}, zero},
      {{SYSTEMTIME{1899, 12, 0, 31, 0, 0, 0, 0}, -1}, zero},
      {{SYSTEMTIME{1900, 1, 0, 1, 0, 0, 0, 0}, -1}, first}};
  for (const auto& [a, b] : equal) EXPECT_EQ(a.GetTime(), b.GetTime());
}

TEST(Time, ArithmeticAndComparison) {
  ZCTime time(100);
  ZCTimeSpan span(30);
  EXPECT_EQ((time + span).GetTime(), 130);
  EXPECT_EQ((time - span).GetTime(), 70);
  EXPECT_EQ((ZCTime(10) - time).GetTotalSeconds(), -90);
  EXPECT_EQ(time += span, ZCTime(130));
  EXPECT_EQ(time -= span, ZCTime(100));
  EXPECT_TRUE(time <= ZCTime(100) && time >= ZCTime(100) && ZCTime(-1) < time && time != 101);
  EXPECT_FALSE(time > ZCTime(100) || time < ZCTime(100) || time == 99);
  EXPECT_EQ((ZCTime(last_count) + ZCTimeSpan(1)).GetTime(), first_count);
  EXPECT_EQ((ZCTime(first_count) - ZCTime(1)).GetTotalSeconds(), last_count);
  const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  EXPECT_NEAR(ZCTime::GetTickCount().GetTime(), static_cast<double>(now), 5);

  EXPECT_EQ((span - ZCTimeSpan(40)).GetTotalSeconds(), -10);
  EXPECT_EQ((span + span).GetTotalSeconds(), 60);
  EXPECT_EQ((span += ZCTimeSpan(5)).GetTotalSeconds(), 35);
  EXPECT_EQ((span -= ZCTimeSpan(36)).GetTotalSeconds(), -1);
  EXPECT_TRUE(span < ZCTimeSpan(0) && span <= -1 && span >= -1 && span == -1 && span != 1);
  EXPECT_FALSE(span > ZCTimeSpan(-1));
}

TEST(Time, FormatIsLocalAndFormatGmtIsNot) {
  const TimeZone zone(berlin);
  const ZCTime time(1626343200);
  EXPECT_STREQ(time.Format("%Y-%m-%d %H:%M:%S %Z %A"), "2021-07-15 12:00:00 CEST Thursday");
  EXPECT_STREQ(time.FormatGmt("%d.%m.%y %H:%M %%"), "15.07.21 10:00 %");
  EXPECT_STREQ(time.Format(nullptr), "");
  const std::string fits(127, 'x');
  EXPECT_STREQ(time.Format(fits.c_str()), fits.c_str());
  EXPECT_STREQ(time.Format((fits + 'x').c_str()), "");
}

TEST(TimeSpan, PartsTruncateTowardZero) {
  for (const int sign : {1, -1}) {
    const ZCTimeSpan span(sign * 1, sign * 2, sign * 3, sign * 4);
    EXPECT_EQ(span.GetTotalSeconds(), sign * 93784);
    EXPECT_EQ(span.GetTotalMinutes(), sign * 1563);
    EXPECT_EQ(span.GetTotalHours(), sign * 26);
    EXPECT_TRUE(span.GetDays() == sign * 1 && span.GetHours() == sign * 2);
    EXPECT_TRUE(span.GetMinutes() == sign * 3 && span.GetSeconds() == sign * 4);
  }
}

TEST(TimeSpan, FormatReplacesItsFourConversions) {
  const ZCTimeSpan span(1, 2, 3, 4);
  EXPECT_STREQ(span.Format("%D days %H:%M:%S"), "1 days 02:03:04");
  EXPECT_STREQ(span.Format("%%%x%"), "%x");
  EXPECT_STREQ(span.Format(nullptr), "");
  EXPECT_STREQ(ZCTimeSpan(-90).Format("%D %H %M %S"), "0 00 -1 -30");
  EXPECT_STREQ(ZCTimeSpan(first_count).Format("%D"), "-24855");
  const std::string almost(126, 'x');
  EXPECT_STREQ(span.Format((almost + "%H").c_str()), (almost + '0').c_str());
}

}  // namespace

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <tuple>

#include "quarn_util.h"

static bool operator==(const quarn_time_fields &a, const quarn_time_fields &b) {
  return a.year == b.year && a.month == b.month && a.day == b.day && a.hour == b.hour &&
         a.minute == b.minute && a.second == b.second && a.nanoseconds == b.nanoseconds;
}

namespace quarn::test {
namespace {

using Fields = quarn_time_fields;

TEST(Time, accepts_calendar_dates_and_times_of_day_only) {
  const Fields good[] = {{1582, 1, 1, 0, 0, 0, 0}, {9999, 12, 31, 23, 59, 60, 999'999'999}};
  const Fields bad[] = {{1581, 12, 31, 0, 0, 0, 0}, {10000, 1, 1, 0, 0, 0, 0},
                        {2024, 257, 1, 0, 0, 0, 0}, {2024, 1, 257, 0, 0, 0, 0},
                        {1900, 2, 29, 0, 0, 0, 0},  {2024, 1, 1, -1, 0, 0, 0},
                        {67560, 1, 1, 0, 0, 0, 0},  {2024, 1, 1, 0, 0, 0, 1'000'000'000}};
  for (const Fields &f : good) EXPECT_EQ(quarn_time_fields_valid(&f), 1) << f.month;
  for (const Fields &f : bad) EXPECT_EQ(quarn_time_fields_valid(&f), 0) << f.month;
}

// Days between dates are python's.
TEST(Time, days_and_minutes_move_along_the_calendar_both_ways_and_keep_the_second) {
  const std::tuple<Fields, int64_t, Fields> cases[] = {
      {{1582, 1, 1, 23, 59, 60, 7}, int64_t{1440} * 3074610, {9999, 12, 31, 23, 59, 60, 7}},
      {{2017, 1, 1, 0, 59, 60, 5}, 1501, {2017, 1, 2, 2, 0, 60, 5}},
  };
  for (const auto &[from, minutes, to] : cases) {
    Fields f = from;
    EXPECT_EQ(quarn_time_fields_addminutes(&f, minutes), 1);
    EXPECT_EQ(f, to);
    EXPECT_EQ(quarn_time_fields_addminutes(&f, -minutes), 1);
    EXPECT_EQ(f, from);
    if (minutes % 1440 != 0) continue;
    EXPECT_EQ(quarn_time_fields_adddays(&f, minutes / 1440), 1);
    EXPECT_EQ(f, to);
  }
}

TEST(Time, leaving_the_years_fails_and_changes_nothing) {
  const Fields first{1582, 1, 1, 0, 0, 0, 0};
  const Fields last{9999, 12, 31, 23, 59, 0, 0};
  for (const int64_t n : {int64_t{1}, int64_t{1} << 40, INT64_MAX}) {
    for (const auto &[from, by] : {std::pair{last, n}, {first, -n}, {first, -n - 1}}) {
      Fields f = from;
      EXPECT_EQ(quarn_time_fields_addminutes(&f, by), 0);
      EXPECT_EQ(quarn_time_fields_adddays(&f, by), 0);
      EXPECT_EQ(f, from);
    }
  }
}

TEST(LocalTime, becomes_utc_by_the_zone_in_force_if_that_is_within_the_years) {
  const std::tuple<std::string, Fields, Fields> cases[] = {
      // From python's zoneinfo; the gap and -1 second to the epoch included.
      {"Europe/Berlin", {2024, 7, 1, 12, 0, 0, 9}, {2024, 7, 1, 10, 0, 0, 9}},
      {"Europe/Berlin", {2024, 3, 31, 2, 30, 0, 0}, {2024, 3, 31, 1, 30, 0, 0}},
      {"Europe/Berlin", {1970, 1, 1, 0, 59, 59, 0}, {1969, 12, 31, 23, 59, 59, 0}},
      {"Asia/Shanghai", {2017, 1, 1, 7, 59, 60, 1}, {2016, 12, 31, 23, 59, 60, 1}},
      {"Asia/Shanghai", {1582, 1, 2, 0, 0, 60, 0}, {1582, 1, 1, 15, 55, 17, 0}},
      // Its time_t counts leap seconds.
      {"right/Europe/Berlin", {2024, 7, 1, 12, 0, 0, 0}, {2024, 7, 1, 10, 0, 0, 0}},
      {"XYZ-8", {1582, 1, 1, 7, 59, 59, 0}, {}},
      {"XYZ8", {9999, 12, 31, 16, 0, 0, 0}, {}},
  };
  for (const auto &[zone, local, utc] : cases) {
    if (zone[0] != 'X' && !std::ifstream("/usr/share/zoneinfo/" + zone)) continue;
    setenv("TZ", zone.c_str(), 1);
    Fields f = local;
    const int expected = utc.year > 0 ? 1 : 0;
    EXPECT_EQ(quarn_time_fields_localtoutc(&f), expected) << zone;
    EXPECT_EQ(f, expected == 1 ? utc : local) << zone;
  }
  unsetenv("TZ");
  tzset();
}

TEST(LeapSecond, days_are_those_that_had_one) {
  std::string found;
  for (Fields f{1582, 1, 1, 23, 59, 60, 0}; quarn_time_fields_adddays(&f, 1) == 1;) {
    if (quarn_time_fields_isleapsecond(&f) != 1) continue;
    EXPECT_EQ(f.day, f.month == 6 ? 30 : 31);
    found += std::to_string(f.year % 100) + (f.month == 6 ? "June " : " ");
  }
  EXPECT_EQ(found,
            "72June 72 73 74 75 76 77 78 79 81June 82June 83June 85June 87 89 90 92June 93June "
            "94June 95 97June 98 5 8 12June 15June 16 ");
}

}  // namespace
}  // namespace quarn::test

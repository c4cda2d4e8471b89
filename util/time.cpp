// Calendar times: fields, and instants in UTC made of them.
//
// Days are counted by std::chrono in the proleptic Gregorian calendar; no time zone database is
// used but the C library's own, for local time.
//
// A second of 60 rides along: moving a time by minutes or days leaves the seconds alone, so
// 23:59:60 stays a second of 60 whatever minute it lands in.
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <compare>
#include <ctime>
#include <iterator>

#include "quarn_util.h"
#include "util/memory.h"

struct quarn_time {
  quarn_time_fields fields;  // valid, in UTC
};

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 1582;
constexpr int kLastYear = 9999;
constexpr int64_t kMinutesPerDay = 1440;

struct Date {
  int year;
  int month;
  int day;
  friend auto operator<=>(const Date &, const Date &) = default;
};

// The days that ended with 23:59:60, in order.
constexpr Date kLeapSecondDays[] = {
#include "util/gen/leap_seconds.inc"
};
static_assert(std::is_sorted(std::begin(kLeapSecondDays), std::end(kLeapSecondDays)));

constexpr year_month_day date_of(const quarn_time_fields &f) {
  return std::chrono::year(f.year) / std::chrono::month(static_cast<unsigned>(f.month)) /
         std::chrono::day(static_cast<unsigned>(f.day));
}

constexpr bool within(int value, int least, int most) {
  return value >= least && value <= most;
}

// The range tests come before the calendar's types see the numbers, which keep few bits of them.
constexpr bool valid(const quarn_time_fields &f) {
  return within(f.year, kFirstYear, kLastYear) && within(f.month, 1, 12) && within(f.day, 1, 31) &&
         date_of(f).ok() && within(f.hour, 0, 23) && within(f.minute, 0, 59) &&
         within(f.second, 0, 60) && within(f.nanoseconds, 0, 999'999'999);
}

constexpr int64_t day_number(year_month_day date) {
  return sys_days(date).time_since_epoch().count();
}

constexpr int64_t kFirstDay = day_number(std::chrono::year(kFirstYear) / 1 / 1);
constexpr int64_t kLastDay = day_number(std::chrono::year(kLastYear) / 12 / 31);

// Gives the fields the date with this number, counted from 1970-01-01. Fails outside the years.
int set_date(quarn_time_fields *f, int64_t number) {
  if (number < kFirstDay || number > kLastDay) return 0;
  const year_month_day date{sys_days(days(number))};
  f->year = static_cast<int>(date.year());
  f->month = static_cast<int>(static_cast<unsigned>(date.month()));
  f->day = static_cast<int>(static_cast<unsigned>(date.day()));
  return 1;
}

// mktime() and gmtime_r() on fields with a second below 60.
int local_to_utc(const quarn_time_fields &local, std::tm *utc) {
  std::tm tm{};
  tm.tm_year = local.year - 1900;
  tm.tm_mon = local.month - 1;
  tm.tm_mday = local.day;
  tm.tm_hour = local.hour;
  tm.tm_min = local.minute;
  tm.tm_sec = local.second;
  tm.tm_isdst = -1;
  // -1 is an instant like any other; only a weekday that was filled in tells success.
  tm.tm_wday = -1;
  const int saved_errno = errno;
  const std::time_t instant = std::mktime(&tm);
  const bool converted = tm.tm_wday >= 0 && gmtime_r(&instant, utc) != nullptr;
  errno = saved_errno;
  return converted ? 1 : 0;
}

}  // namespace

int quarn_time_fields_valid(const quarn_time_fields *fields) {
  return fields != nullptr && valid(*fields) ? 1 : 0;
}

int quarn_time_fields_addminutes(quarn_time_fields *fields, int64_t minutes) {
  if (quarn_time_fields_valid(fields) != 1) return 0;
  int64_t total =
      day_number(date_of(*fields)) * kMinutesPerDay + int64_t{fields->hour} * 60 + fields->minute;
  if (__builtin_add_overflow(total, minutes, &total)) return 0;
  const auto day = std::chrono::floor<days>(std::chrono::minutes(total));
  if (set_date(fields, day.count()) != 1) return 0;
  const auto rest = static_cast<int>(total - day.count() * kMinutesPerDay);
  fields->hour = rest / 60;
  fields->minute = rest % 60;
  return 1;
}

int quarn_time_fields_adddays(quarn_time_fields *fields, int64_t days) {
  if (quarn_time_fields_valid(fields) != 1) return 0;
  int64_t number = day_number(date_of(*fields));
  if (__builtin_add_overflow(number, days, &number)) return 0;
  return set_date(fields, number);
}

int quarn_time_fields_localtoutc(quarn_time_fields *fields) {
  if (quarn_time_fields_valid(fields) != 1) return 0;
  // mktime() would carry a second of 60 into the minute; it is the second after 59 instead, which
  // is 60 again wherever the zone's offset is whole minutes.
  quarn_time_fields local = *fields;
  local.second = std::min(local.second, 59);
  std::tm utc{};
  if (local_to_utc(local, &utc) != 1) return 0;
  const quarn_time_fields result{.year = utc.tm_year + 1900,
                                 .month = utc.tm_mon + 1,
                                 .day = utc.tm_mday,
                                 .hour = utc.tm_hour,
                                 .minute = utc.tm_min,
                                 .second = utc.tm_sec + (fields->second - local.second),
                                 .nanoseconds = fields->nanoseconds};
  if (!valid(result)) return 0;
  *fields = result;
  return 1;
}

int quarn_time_fields_isleapsecond(const quarn_time_fields *fields) {
  if (quarn_time_fields_valid(fields) != 1) return 0;
  if (fields->hour != 23 || fields->minute != 59 || fields->second != 60) return 0;
  const Date date{fields->year, fields->month, fields->day};
  return std::binary_search(std::begin(kLeapSecondDays), std::end(kLeapSecondDays), date) ? 1 : 0;
}

static quarn_time *new_time(const quarn_time_fields &fields) {
  auto *t = quarn::util::allocate<quarn_time>();
  if (t != nullptr) t->fields = fields;
  return t;
}

quarn_time *quarn_time_newutctime(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds) {
  const quarn_time_fields fields{year, month, day, hour, minute, second, nanoseconds};
  return valid(fields) ? new_time(fields) : nullptr;
}

quarn_time *quarn_time_newlocaltime(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds) {
  quarn_time_fields fields{year, month, day, hour, minute, second, nanoseconds};
  return quarn_time_fields_localtoutc(&fields) == 1 ? new_time(fields) : nullptr;
}

quarn_time *quarn_time_dup(const quarn_time *t) {
  return t == nullptr ? nullptr : new_time(t->fields);
}

void quarn_time_free(quarn_time *t) {
  quarn_free(t);
}

int quarn_time_getyear(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.year;
}

int quarn_time_getmonth(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.month;
}

int quarn_time_getday(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.day;
}

int quarn_time_gethour(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.hour;
}

int quarn_time_getminute(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.minute;
}

int quarn_time_getsecond(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.second;
}

int quarn_time_getns(const quarn_time *t) {
  return t == nullptr ? 0 : t->fields.nanoseconds;
}

int quarn_time_isutctime(const quarn_time *t) {
  return t == nullptr ? 0 : 1;
}

int quarn_time_isleapsecond(const quarn_time *t) {
  return t == nullptr ? 0 : quarn_time_fields_isleapsecond(&t->fields);
}

int quarn_time_addday(quarn_time *t, int64_t days) {
  return t == nullptr ? 0 : quarn_time_fields_adddays(&t->fields, days);
}

int quarn_time_addminute(quarn_time *t, int64_t minutes) {
  return t == nullptr ? 0 : quarn_time_fields_addminutes(&t->fields, minutes);
}

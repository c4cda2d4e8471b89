// UTCTime, GeneralizedTime and Time values: text to instants and back.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <regex>
#include <string>
#include <tuple>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/time.h"

namespace quarn::test {
namespace {

using asn1::kGentime;
using asn1::kUtctime;

using Time = Value<quarn_asn1_time, QUARN_ASN1_TIME>;
using Instant = std::unique_ptr<quarn_time, decltype([](quarn_time *t) { quarn_time_free(t); })>;

// The instant that a text names, or "refused".
std::string instant_of(std::uint64_t kind, const std::string &text) {
  quarn_time_fields f{};
  if (!asn1::read_time_text(kind, text.data(), text.size(), f)) return "refused";
  char made[80];
  std::snprintf(made, sizeof made, "%04d-%02d-%02d %02d:%02d:%02d.%d", f.year, f.month, f.day,
                f.hour, f.minute, f.second, f.nanoseconds);
  return made;
}

// Kind and text: "23 240102030405Z".
std::string text_of(const Time &v) {
  return v == nullptr ? "null" : std::to_string(v->kind) + " " + v->text();
}

// Fractions of hours and minutes weigh ten times as much as the standard says: by the scale that
// peers use.
TEST(Time, text_names_an_instant) {
  const std::tuple<std::uint64_t, const char *, const char *> cases[] = {
      {kUtctime, "4912312359Z", "2049-12-31 23:59:00.0"},
      {kUtctime, "500101000000Z", "1950-01-01 00:00:00.0"},
      {kUtctime, "2401011200-0130", "2024-01-01 13:30:00.0"},
      {kUtctime, "2403010059+0100", "2024-02-29 23:59:00.0"},
      {kUtctime, "991231235959-2359", "2000-01-01 23:58:59.0"},
      {kGentime, "20241231240000.5Z", "2025-01-01 00:00:00.500000000"},
      {kGentime, "2024022824+0030", "2024-02-28 23:30:00.0"},
      {kGentime, "20240101120000.123456789123Z", "2024-01-01 12:00:00.123456789"},
      {kGentime, "20170101085960.5+0900", "2016-12-31 23:59:60.500000000"},
      {kGentime, "15820101000000Z", "1582-01-01 00:00:00.0"},
      {kGentime, "15820101000000+0001", "refused"},
      {kUtctime, "2401011200+0060", "refused"},
      {kGentime, "202401011200.05Z", "2024-01-01 12:00:30.0"},
      {kGentime, "202401011200.09999Z", "2024-01-01 12:00:59.0"},
      {kGentime, "2024010112.05Z", "2024-01-01 12:30:00.0"},
      {kGentime, "2024010112.01234Z", "2024-01-01 12:07:24.0"},
      {kGentime, "2024010112.5Z", "refused"},
  };
  for (const auto &[kind, text, instant] : cases) EXPECT_EQ(instant_of(kind, text), instant);
}

TEST(Time, text_without_a_zone_is_local_time) {
  const char *before = std::getenv("TZ");
  const std::string kept = before == nullptr ? "" : before;
  setenv("TZ", "XYZ-2", 1);
  tzset();
  EXPECT_EQ(instant_of(kGentime, "20240101010203"), "2023-12-31 23:02:03.0");
  EXPECT_EQ(instant_of(kGentime, "20240101120000.25"), "2024-01-01 10:00:00.250000000");
  EXPECT_EQ(instant_of(kGentime, "20170101015960"), "2016-12-31 23:59:60.0");
  before == nullptr ? unsetenv("TZ") : setenv("TZ", kept.c_str(), 1);
  tzset();
}

// The same grammar written another way. Ranges are in the patterns, dates are checked by the
// calendar of the standard library. None of the texts is a leap second.
bool accepted(std::uint64_t kind, const std::string &text) {
  static const std::string zone = "(Z|[+-]([01][0-9]|2[0-3])[0-5][0-9])";
  static const std::string hour = "([01][0-9]|2[0-3])";
  static const std::string sixty = "[0-5][0-9]";
  static const std::string tenth = "([.,]0[0-9]*)?";  // of an hour or a minute
  static const std::regex utctime("[0-9]{6}" + hour + sixty + "(" + sixty + ")?" + zone);
  static const std::regex gentime("[0-9]{8}(" + hour + "(" + tenth + "|" + sixty + tenth + "|" +
                                  sixty + sixty + "([.,][0-9]+)?)|24(0000([.,][0-9]+)?|00)?)" +
                                  zone + "?");
  if (!std::regex_match(text, kind == kUtctime ? utctime : gentime)) return false;
  const std::size_t digits = kind == kUtctime ? 2 : 4;
  int year = std::stoi(text.substr(0, digits));
  if (kind == kUtctime) year += year < 50 ? 2000 : 1900;
  const auto pair_at = [&text](std::size_t at) {
    return static_cast<unsigned>(std::stoi(text.substr(at, 2)));
  };
  const std::chrono::year_month_day date(std::chrono::year(year),
                                         std::chrono::month(pair_at(digits)),
                                         std::chrono::day(pair_at(digits + 2)));
  return year >= 1582 && date.ok();
}

void expect_judged(std::uint64_t kind, const std::string &text) {
  EXPECT_EQ(instant_of(kind, text) != "refused", accepted(kind, text)) << kind << " " << text;
}

TEST(Time, every_edit_of_one_character_is_judged_by_the_grammar) {
  const std::string characters = std::string("0123456789Z+-., z/:") + '\0' + '\xB2';
  for (const auto &[kind, good] : {std::pair{kUtctime, std::string("2402291230Z")},
                                   {kUtctime, "000229195859+0945"},
                                   {kUtctime, "2312311200-2359"},
                                   {kGentime, "20240229230000.25Z"},
                                   {kGentime, "202312312359+1045"},
                                   {kGentime, "2000022912.025Z"},
                                   {kGentime, "19991231200000"}}) {
    EXPECT_NE(instant_of(kind, good), "refused") << good;
    for (std::size_t at = 0; at <= good.size(); at++) {
      expect_judged(kind, good.substr(0, at));
      if (at < good.size()) expect_judged(kind, std::string(good).erase(at, 1));
      for (const char c : characters) {
        expect_judged(kind, std::string(good).insert(at, 1, c));
        if (at < good.size()) expect_judged(kind, std::string(good).replace(at, 1, 1, c));
      }
    }
  }
}

TEST(Time, constructors_choose_form_and_text) {
  const auto utctime = quarn_asn1_utctime_new;
  const auto gentime = quarn_asn1_gentime_new;
  const auto either = quarn_asn1_time_new;
  const std::pair<quarn_asn1_time *, const char *> cases[] = {
      {utctime(2005, 1, 2, 3, 4, 60), "23 050102030459Z"},
      {utctime(1949, 12, 31, 0, 0, 0), "null"},
      {utctime(2050, 1, 1, 0, 0, 0), "null"},
      {gentime(2024, 2, 29, 12, 0, 0, 0), "24 20240229120000Z"},
      {gentime(2024, 2, 29, 12, 0, 0, 1), "24 20240229120000.000000001Z"},
      {gentime(1582, 1, 1, 0, 0, 60, 120300), "24 15820101000060.0001203Z"},
      {gentime(10000, 1, 1, 0, 0, 0, 0), "null"},
      {either(1950, 1, 1, 0, 0, 0, 5), "23 500101000000Z"},
      {either(2049, 12, 31, 23, 59, 59, 0), "23 491231235959Z"},
      {either(1949, 1, 1, 0, 0, 0, 0), "24 19490101000000Z"}};
  for (const auto &[value, text] : cases) EXPECT_EQ(text_of(Time(value)), text);
}

TEST(Time, the_instant_is_the_callers_whatever_allocation_fails) {
  fail_each_allocation([](Allocation &allocation) {
    const Time v(quarn_asn1_gentime_new(2024, 2, 29, 12, 30, 15, 5));
    const Instant t(v == nullptr ? nullptr : quarn_asn1_time_getutctime(v.get()));
    const Time back(quarn_asn1_time_newutctime(t.get(), 0x11));
    EXPECT_EQ(text_of(back), allocation.failed() ? "null" : "24 20240229123015.000000005Z");
  });
}

TEST(Time, flags_choose_the_form_of_a_time_object) {
  const Instant early(quarn_time_newutctime(2024, 5, 6, 7, 8, 9, 250000000));
  const Instant late(quarn_time_newutctime(2060, 5, 6, 7, 8, 9, 250000000));
  const auto text = [](const Instant &t, std::uint32_t flags) {
    return text_of(Time(quarn_asn1_time_newutctime(t.get(), flags)));
  };
  EXPECT_EQ(text(early, 0), "23 240506070809Z");
  EXPECT_EQ(text(early, 1), "24 20240506070809Z");
  EXPECT_EQ(text(early, 0x11), "24 20240506070809.25Z");
  EXPECT_EQ(text(late, 0x12), "24 20600506070809.25Z");
  EXPECT_EQ(text(late, 0xFFFFFFE2), "24 20600506070809Z") << "further bits mean nothing";
  EXPECT_EQ(text(late, 0), "null");
  EXPECT_EQ(text(early, 3), "null");
}

TEST(Time, encoders_of_one_form_refuse_the_other) {
  const Time utctime(quarn_asn1_utctime_new(2024, 1, 1, 0, 0, 0));
  const Time gentime(quarn_asn1_gentime_new(2024, 1, 1, 0, 0, 0, 0));
  SlowSink sink;
  const Stream stream = sink.stream();
  const Context ctx(quarn_err_ctx_new());
  quarn_stream *s = stream.get();
  EXPECT_EQ(quarn_asn1_encode_utctime(s, gentime.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_asn1_encode_gentime(s, utctime.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_asn1_encode_utctime_content(s, gentime.get(), 15, nullptr, ctx.get()), 0);
  void *value = nullptr;
  const Stream in = memory_stream({'2'});
  EXPECT_EQ(quarn_asn1_decode_content(in.get(), QUARN_ASN1_TIME, &value, 1, 1, nullptr, ctx.get()),
            0)
      << "content alone does not tell the form";
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10208, 0x10208, 0x10002, 0x1026d}));
  EXPECT_EQ(sink.calls(), 0);
  EXPECT_EQ(quarn_asn1_encode_time_content(s, utctime.get(), 13, nullptr, ctx.get()), 1);
  EXPECT_EQ(quarn_asn1_encode_utctime(s, utctime.get(), nullptr, ctx.get()), 1);
  EXPECT_EQ(sink.octets(), hex(R"("240101000000Z" 17 0D "240101000000Z")"));
}

}  // namespace
}  // namespace quarn::test

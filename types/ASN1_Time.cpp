// UTCTime, GeneralizedTime (X.680, 46 and 47) and Time, the choice of the two of RFC 5280.
//
//     UTCTime          YYMMDDhhmm[ss](Z|+hhmm|-hhmm)
//     GeneralizedTime  YYYYMMDDhh[mm[ss]][(.|,)digits][Z|+hhmm|-hhmm]
//
// A value keeps its text, which is written as it was received, and the instant in UTC. Years 00 to
// 49 of a UTCTime are 2000 to 2049. A GeneralizedTime without a zone is local time.
#include "types/time.h"

#include <cstring>

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/content.h"
#include "types/string.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Time"};

constexpr int kFirstUtctimeYear = 1950;
constexpr int kLastUtctimeYear = 2049;

// ---- Reading text

// Walks a text. Each step is false, or fails to apply, when something else stands there.
class TextCursor {
 public:
  TextCursor(const char *text, std::size_t length) : next_(text), end_(text + length) {}

  bool at_end() const { return next_ == end_; }
  bool at_digit() const { return !at_end() && *next_ >= '0' && *next_ <= '9'; }

  bool skip(char c) {
    if (at_end() || *next_ != c) return false;
    next_++;
    return true;
  }

  // Exactly count digits.
  bool number(int count, int &out) {
    out = 0;
    for (; count > 0; count--) {
      if (!at_digit()) return false;
      out = out * 10 + digit();
    }
    return true;
  }

  // Two digits where a digit stands, else 0.
  bool optional_number(bool &present, int &out) {
    present = at_digit();
    out = 0;
    return !present || number(2, out);
  }

  // At least one digit after the point; the first few as a number of that many places, the rest
  // skipped.
  bool fraction(int places, int &out) {
    out = 0;
    if (!at_digit()) return false;
    for (; at_digit(); places--) {
      const int value = digit();
      if (places > 0) out = out * 10 + value;
    }
    for (; places > 0; places--) out *= 10;
    return true;
  }

 private:
  int digit() { return *next_++ - '0'; }

  const char *next_;
  const char *end_;
};

// The zone at the end of a text: Z, or the local time's distance from UTC, which is taken off.
bool take_zone(TextCursor &in, quarn_time_fields &time) {
  if (in.skip('Z')) return in.at_end();
  const bool east = in.skip('+');
  if (!east && !in.skip('-')) return false;
  int hours = 0;
  int minutes = 0;
  if (!in.number(2, hours) || !in.number(2, minutes) || !in.at_end()) return false;
  if (hours > 23 || minutes > 59) return false;
  const int offset = hours * 60 + minutes;
  return quarn_time_fields_addminutes(&time, east ? -offset : offset) == 1;
}

bool take_month_to_hour(TextCursor &in, quarn_time_fields &time) {
  return in.number(2, time.month) && in.number(2, time.day) && in.number(2, time.hour);
}

// Leap seconds are refused in a UTCTime.
bool read_utctime(TextCursor in, quarn_time_fields &time) {
  bool seconds = false;
  if (!in.number(2, time.year) || !take_month_to_hour(in, time) || !in.number(2, time.minute) ||
      !in.optional_number(seconds, time.second) || time.second > 59) {
    return false;
  }
  time.year += time.year < 50 ? 2000 : 1900;
  return quarn_time_fields_valid(&time) == 1 && take_zone(in, time);
}

// The fields from minutes on. A fraction belongs to the last field that is there. Fractions of
// hours and minutes are scaled by ten thousand while their first place weighs as much: ".05" of a
// minute is 30 seconds and ".5" is 300, which no time has. Peers read and write times by this
// scale.
bool take_minute_to_fraction(TextCursor &in, quarn_time_fields &time) {
  bool minutes = false;
  bool seconds = false;
  if (!in.optional_number(minutes, time.minute)) return false;
  if (minutes && !in.optional_number(seconds, time.second)) return false;
  if (!in.skip('.') && !in.skip(',')) return true;
  if (seconds) return in.fraction(9, time.nanoseconds);
  int fraction = 0;
  if (!in.fraction(5, fraction)) return false;
  if (minutes) {
    time.second = fraction * 60 / 10000;
  } else {
    time.minute = fraction * 60 / 10000;
    time.second = fraction * 60 % 10000 * 60 / 10000;
  }
  return true;
}

bool read_gentime(TextCursor in, quarn_time_fields &time) {
  if (!in.number(4, time.year) || !take_month_to_hour(in, time) ||
      !take_minute_to_fraction(in, time)) {
    return false;
  }
  const bool midnight = time.hour == 24;
  if (midnight) {
    if (time.minute != 0 || time.second != 0) return false;
    time.hour = 0;
  }
  if (quarn_time_fields_valid(&time) != 1) return false;
  if (midnight && quarn_time_fields_adddays(&time, 1) != 1) return false;
  const bool zoned = in.at_end() ? quarn_time_fields_localtoutc(&time) == 1 : take_zone(in, time);
  return zoned && (time.second != 60 || quarn_time_fields_isleapsecond(&time) == 1);
}

// ---- Writing text

// The longest text made here: 14 digits, a point, 9 digits, Z.
constexpr std::size_t kLongestText = 25;

char *put_pair(int number, char *out) {
  *out++ = static_cast<char>('0' + number / 10);
  *out++ = static_cast<char>('0' + number % 10);
  return out;
}

char *put_month_to_minute(const quarn_time_fields &time, char *out) {
  out = put_pair(time.month, out);
  out = put_pair(time.day, out);
  out = put_pair(time.hour, out);
  return put_pair(time.minute, out);
}

// A UTCTime has no second 60, which readers refuse.
char *put_utctime(const quarn_time_fields &time, char *out) {
  out = put_pair(time.year % 100, out);
  out = put_month_to_minute(time, out);
  out = put_pair(time.second == 60 ? 59 : time.second, out);
  *out++ = 'Z';
  return out;
}

char *put_gentime(const quarn_time_fields &time, char *out) {
  out = put_pair(time.year / 100, out);
  out = put_pair(time.year % 100, out);
  out = put_month_to_minute(time, out);
  out = put_pair(time.second, out);
  if (time.nanoseconds != 0) *out++ = '.';
  constexpr int kTenth = 100'000'000;
  for (int left = time.nanoseconds; left != 0; left = left % kTenth * 10) {
    *out++ = static_cast<char>('0' + left / kTenth);
  }
  *out++ = 'Z';
  return out;
}

// ---- Values

quarn_asn1_time *new_time(std::uint64_t kind,
                          const char *text,
                          std::size_t length,
                          const quarn_time_fields &fields) {
  std::size_t extra = length;
  if (!add_to<std::size_t>(extra, 1)) return nullptr;
  auto *value = util::allocate<quarn_asn1_time>(extra);
  if (value == nullptr) return nullptr;
  value->kind = kind;
  value->text_length = static_cast<std::int64_t>(length);
  value->fields = fields;
  std::memcpy(value->text(), text, length);
  value->text()[length] = '\0';
  return value;
}

bool has_utctime(int year) {
  return year >= kFirstUtctimeYear && year <= kLastUtctimeYear;
}

quarn_asn1_time *make_time(std::uint64_t kind, quarn_time_fields fields) {
  if (kind == kUtctime) fields.nanoseconds = 0;
  if (quarn_time_fields_valid(&fields) != 1) return nullptr;
  if (kind == kUtctime && !has_utctime(fields.year)) return nullptr;
  char text[kLongestText];
  const char *end = kind == kUtctime ? put_utctime(fields, text) : put_gentime(fields, text);
  return new_time(kind, text, static_cast<std::size_t>(end - text), fields);
}

// RFC 5280, 4.1.2.5.
std::uint64_t kind_for(int year) {
  return has_utctime(year) ? kUtctime : kGentime;
}

void free_time(const Type & /*type*/, void *value) {
  quarn_free(value);
}

std::int64_t time_length(const Type & /*type*/, const void *value) {
  return value == nullptr ? kNoLength : static_cast<const quarn_asn1_time *>(value)->text_length;
}

bool is_kind(const void *value, std::uint64_t kind) {
  return static_cast<const quarn_asn1_time *>(value)->kind == kind;
}

// ---- Encoding

Status write_text(Writer &out, const quarn_asn1_time &value) {
  return out.octets(value.text(), static_cast<std::uint64_t>(value.text_length));
}

// Identifier and length have codes of their own here, not the ones that other types use.
Status encode_time(const Type & /*type*/, Writer &out, void *value) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  const auto &time = *static_cast<quarn_asn1_time *>(value);
  Status status = write_identifier(out, kUniversal, true, static_cast<std::int64_t>(time.kind));
  if (!status) return kUnit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_IDENTIFIER);
  status = write_length(out, time.text_length);
  if (!status) return kUnit.pass_on(status, out.ctx(), type_of(QUARN_ASN1_TIME).encode_error());
  status = write_text(out, time);
  if (!status) return kUnit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_LENGTH);
  return status;
}

template <std::uint64_t kKind>
Status encode_one_kind(const Type &type, Writer &out, void *value) {
  if (value != nullptr && !out.is_null() && !is_kind(value, kKind)) {
    return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_TIME_TYPE, out.offset());
  }
  return encode_time(type, out, value);
}

Status encode_time_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  const Status status = expect_length(out, value, length, time_length(type, value), kUnit);
  if (!status) return status;
  return write_text(out, *static_cast<quarn_asn1_time *>(value));
}

template <std::uint64_t kKind>
Status encode_one_kind_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  if (value != nullptr && !is_kind(value, kKind)) {
    return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT, out.offset());
  }
  return encode_time_content(type, out, value, length);
}

// ---- Decoding

// The value of content text. Text that its form's rules refuse is answered with the form's code.
Status take_text(
    Reader &in, void **value, std::uint64_t kind, const std::uint8_t *octets, std::size_t count) {
  const char *text = reinterpret_cast<const char *>(octets);
  quarn_time_fields fields{};
  if (!read_time_text(kind, text, count, fields)) {
    const int code =
        kind == kUtctime ? QUARN_ASN1_ERROR_UTCTIME_TEXT : QUARN_ASN1_ERROR_GENTIME_TEXT;
    return kUnit.fail(in.ctx(), code, in.offset());
  }
  *value = new_time(kind, text, count, fields);
  if (*value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  return Status::success();
}

Status take_content(
    Reader &in, void **value, std::uint64_t kind, bool primitive, std::int64_t length) {
  if (primitive && length >= 0) [[likely]] {
    Content content;
    const Status status = content.read(in, static_cast<std::uint64_t>(length), kUnit);
    return status ? take_text(in, value, kind, content.data(), content.size()) : status;
  }
  Buffer content;
  const Status status = gather_octets(in, primitive, length, content);
  return status ? take_text(in, value, kind, content.data(), content.size()) : status;
}

template <std::uint64_t kKind>
Status decode_one_kind_content(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  return take_content(in, value, kKind, primitive, length);
}

bool time_matches(const Type & /*type*/, const Identifier &identifier) {
  return identifier.is(kUniversal, kUtctime) || identifier.is(kUniversal, kGentime);
}

Status decode_time_rest(const Type &type, Reader &in, const Identifier &identifier, void **value) {
  if (!time_matches(type, identifier)) {
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TIME_TYPE, in.offset());
  }
  std::int64_t length = 0;
  const Status status = read_length(in, length);
  if (!status) return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
  return take_content(in, value, identifier.number, identifier.primitive, length);
}

Status decode_time(const Type &type, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  Identifier identifier{};
  const Status status = read_identifier(in, identifier);
  if (!status) {
    return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
  }
  return decode_time_rest(type, in, identifier, value);
}

// The other alternative is refused after it has been read, and its own faults come first.
template <std::uint64_t kKind>
Status decode_one_kind(const Type &type, Reader &in, void **value) {
  const Status status = decode_time(type, in, value);
  if (!status || is_kind(*value, kKind)) return status;
  quarn_free(*value);
  *value = nullptr;
  return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TIME_TYPE, in.offset());
}

}  // namespace

bool read_time_text(std::uint64_t kind,
                    const char *text,
                    std::size_t length,
                    quarn_time_fields &out) {
  out = {};
  const TextCursor in(text, length);
  return kind == kUtctime ? read_utctime(in, out) : read_gentime(in, out);
}

// Time has no tag of its own, so that content alone does not tell the alternative.
const Codec kTimeCodec = {free_time,           time_length,           nullptr,
                          encode_time_content, cannot_decode_content, encode_time,
                          decode_time,         time_matches,          decode_time_rest};
const Codec kUtctimeCodec = {free_time,
                             time_length,
                             nullptr,
                             encode_one_kind_content<kUtctime>,
                             decode_one_kind_content<kUtctime>,
                             encode_one_kind<kUtctime>,
                             decode_one_kind<kUtctime>};
const Codec kGentimeCodec = {free_time,
                             time_length,
                             nullptr,
                             encode_one_kind_content<kGentime>,
                             decode_one_kind_content<kGentime>,
                             encode_one_kind<kGentime>,
                             decode_one_kind<kGentime>};

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_time *quarn_asn1_utctime_new(
    int year, int month, int day, int hour, int minute, int second) {
  return make_time(kUtctime, {year, month, day, hour, minute, second, 0});
}

quarn_asn1_time *quarn_asn1_gentime_new(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds) {
  return make_time(kGentime, {year, month, day, hour, minute, second, nanoseconds});
}

quarn_asn1_time *quarn_asn1_time_new(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds) {
  return make_time(kind_for(year), {year, month, day, hour, minute, second, nanoseconds});
}

quarn_asn1_time *quarn_asn1_time_newutctime(const quarn_time *t, uint32_t flags) {
  if (quarn_time_isutctime(t) != 1) return nullptr;
  const quarn_time_fields fields{.year = quarn_time_getyear(t),
                                 .month = quarn_time_getmonth(t),
                                 .day = quarn_time_getday(t),
                                 .hour = quarn_time_gethour(t),
                                 .minute = quarn_time_getminute(t),
                                 .second = quarn_time_getsecond(t),
                                 .nanoseconds = (flags & 0x10u) != 0 ? quarn_time_getns(t) : 0};
  switch (flags & 0x0Fu) {
    case 0:
      return make_time(kUtctime, fields);
    case 1:
      return make_time(kGentime, fields);
    case 2:
      return make_time(kind_for(fields.year), fields);
    default:
      return nullptr;
  }
}

quarn_time *quarn_asn1_time_getutctime(const quarn_asn1_time *v) {
  if (v == nullptr) return nullptr;
  const quarn_time_fields &f = v->fields;
  return quarn_time_newutctime(f.year, f.month, f.day, f.hour, f.minute, f.second, f.nanoseconds);
}

int quarn_asn1_encode_time(quarn_stream *s, void *value, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode(s, QUARN_ASN1_TIME, value, written, ctx);
}

int quarn_asn1_encode_utctime(quarn_stream *s, void *value, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode(s, QUARN_ASN1_UTCTIME, value, written, ctx);
}

int quarn_asn1_encode_gentime(quarn_stream *s, void *value, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode(s, QUARN_ASN1_GENTIME, value, written, ctx);
}

int quarn_asn1_decode_time(quarn_stream *s, void **value, uint64_t *consumed, quarn_err_ctx *ctx) {
  return quarn_asn1_decode(s, QUARN_ASN1_TIME, value, consumed, ctx);
}

int quarn_asn1_decode_utctime(quarn_stream *s,
                              void **value,
                              uint64_t *consumed,
                              quarn_err_ctx *ctx) {
  return quarn_asn1_decode(s, QUARN_ASN1_UTCTIME, value, consumed, ctx);
}

int quarn_asn1_decode_gentime(quarn_stream *s,
                              void **value,
                              uint64_t *consumed,
                              quarn_err_ctx *ctx) {
  return quarn_asn1_decode(s, QUARN_ASN1_GENTIME, value, consumed, ctx);
}

int quarn_asn1_encode_time_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode_content(s, QUARN_ASN1_TIME, value, content_length, written, ctx);
}

int quarn_asn1_encode_utctime_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode_content(s, QUARN_ASN1_UTCTIME, value, content_length, written, ctx);
}

int quarn_asn1_encode_gentime_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode_content(s, QUARN_ASN1_GENTIME, value, content_length, written, ctx);
}

int quarn_asn1_decode_utctime_content(quarn_stream *s,
                                      void **value,
                                      int32_t primitive,
                                      int64_t length,
                                      uint64_t *consumed,
                                      quarn_err_ctx *ctx) {
  return quarn_asn1_decode_content(s, QUARN_ASN1_UTCTIME, value, primitive, length, consumed, ctx);
}

int quarn_asn1_decode_gentime_content(quarn_stream *s,
                                      void **value,
                                      int32_t primitive,
                                      int64_t length,
                                      uint64_t *consumed,
                                      quarn_err_ctx *ctx) {
  return quarn_asn1_decode_content(s, QUARN_ASN1_GENTIME, value, primitive, length, consumed, ctx);
}

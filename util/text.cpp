// Hexadecimal and base64 text.
#include "util/text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "util/error.h"
#include "util/memory.h"

namespace {

using quarn::util::allocate_array;
using quarn::util::Base64Result;
using quarn::util::Base64Rule;

constexpr quarn::util::Unit kUnit{"QUARN_Text"};

constexpr char kUpperDigits[] = "0123456789ABCDEF";
constexpr char kLowerDigits[] = "0123456789abcdef";
constexpr char kBase64[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// What a character stands for: a value below 64, or one of these.
constexpr uint8_t kPad = 64;
constexpr uint8_t kBlank = 65;
constexpr uint8_t kBad = 255;
constexpr uint8_t kNoValue = 0xC0;  // bits that no value has

using Values = std::array<uint8_t, 256>;

constexpr Values hex_values() {
  Values values{};
  values.fill(kBad);
  for (uint8_t i = 0; i < 16; i++) {
    values[static_cast<uint8_t>(kUpperDigits[i])] = i;
    values[static_cast<uint8_t>(kLowerDigits[i])] = i;
  }
  return values;
}

constexpr Values base64_values() {
  Values values{};
  values.fill(kBad);
  for (uint8_t i = 0; i < 64; i++) values[static_cast<uint8_t>(kBase64[i])] = i;
  values['='] = kPad;
  for (const char c : {' ', '\t', '\r', '\n'}) values[static_cast<uint8_t>(c)] = kBlank;
  return values;
}

constexpr Values kHexValues = hex_values();
constexpr Values kBase64Values = base64_values();

bool readable(const void *p, int64_t count) {
  return count >= 0 && (p != nullptr || count == 0);
}

// Clears the results, so that a failure leaves null and 0; false when there is nowhere to put them.
template <typename T>
bool clear(T **result, int64_t *count) {
  if (count != nullptr) *count = 0;
  if (result != nullptr) *result = nullptr;
  return result != nullptr;
}

template <typename T>
int give(T *made, int64_t made_count, T **result, int64_t *count) {
  *result = made;
  if (count != nullptr) *count = made_count;
  return 1;
}

// Reads base64 by groups of four characters, which give three octets.
class Base64Reader {
 public:
  Base64Reader(Base64Rule rule, const char *text, int64_t length, uint8_t *out)
      : rule_(rule),
        text_(reinterpret_cast<const uint8_t *>(text)),
        length_(length),
        begin_(out),
        out_(out) {}

  // Whether the text is well formed; if not, offset() tells where it stops being so.
  bool read() {
    while (at_ < length_) {
      if (have_ == 0) read_groups();
      if (at_ < length_ && !read_character()) return false;
    }
    return finish();
  }

  int64_t offset() const { return at_; }
  int64_t count() const { return out_ - begin_; }

 private:
  // Whole groups without anything between.
  void read_groups() {
    while (length_ - at_ >= 4) {
      const uint8_t *group = text_ + at_;
      const uint32_t a = kBase64Values[group[0]];
      const uint32_t b = kBase64Values[group[1]];
      const uint32_t c = kBase64Values[group[2]];
      const uint32_t d = kBase64Values[group[3]];
      if (((a | b | c | d) & kNoValue) != 0) return;
      put(a << 18 | b << 12 | c << 6 | d, 3);
      at_ += 4;
    }
  }

  bool read_character() {
    const uint8_t value = kBase64Values[text_[at_]];
    if (value < kPad) {
      if (pads_ > 0) return false;
      bits_ = bits_ << 6 | value;
      if (++have_ == 4) {
        put(bits_, 3);
        have_ = 0;
      }
    } else if (value == kPad) {
      if (have_ < 2 || have_ + pads_ == 4) return false;
      pads_++;
    } else if (value != kBlank || rule_ == Base64Rule::strict) {
      return false;
    }
    at_++;
    return true;
  }

  // Two characters left over carry one octet, three carry two.
  bool finish() {
    if (have_ == 0) return true;
    if (have_ == 1) return false;
    bits_ <<= 6 * (4 - have_);
    if (rule_ == Base64Rule::strict) {
      if (have_ + pads_ != 4) return false;
      const uint32_t unused = have_ == 2 ? 0xFFFF : 0xFF;
      if ((bits_ & unused) != 0) {
        at_ -= pads_ + 1;
        return false;
      }
    }
    put(bits_, have_ - 1);
    return true;
  }

  // The first octets of the 24 bits.
  void put(uint32_t bits, int octets) {
    *out_++ = static_cast<uint8_t>(bits >> 16);
    if (octets > 1) *out_++ = static_cast<uint8_t>(bits >> 8);
    if (octets > 2) *out_++ = static_cast<uint8_t>(bits);
  }

  Base64Rule rule_;
  const uint8_t *text_;
  int64_t length_;
  int64_t at_ = 0;
  uint8_t *begin_;
  uint8_t *out_;
  uint32_t bits_ = 0;
  int have_ = 0;  // characters of an unfinished group
  int pads_ = 0;
};

// Moves text that stands at the end of its room to the front, with a line end after each line but
// the last.
void break_lines(char *room, const char *text, int64_t length, int64_t line_length) {
  while (length > line_length) {
    std::memmove(room, text, static_cast<std::size_t>(line_length));
    room += line_length;
    *room++ = '\n';
    text += line_length;
    length -= line_length;
  }
  std::memmove(room, text, static_cast<std::size_t>(length));
}

}  // namespace

namespace quarn::util {

Base64Result base64_decode(Base64Rule rule, const char *text, int64_t length) {
  auto *octets = allocate_array<uint8_t>(static_cast<std::size_t>(length / 4 * 3 + 3));
  if (octets == nullptr) return {QUARN_ERROR_NO_MEMORY, -1, nullptr, 0};
  Base64Reader reader(rule, text, length, octets);
  if (reader.read()) return {0, -1, octets, reader.count()};
  quarn_free(octets);
  return {QUARN_ERROR_FORMAT, reader.offset(), nullptr, 0};
}

char *base64_encode(const uint8_t *octets, int64_t count, char *out) {
  for (; count >= 3; count -= 3, octets += 3, out += 4) {
    const uint32_t bits = uint32_t{octets[0]} << 16 | uint32_t{octets[1]} << 8 | octets[2];
    out[0] = kBase64[bits >> 18];
    out[1] = kBase64[bits >> 12 & 63];
    out[2] = kBase64[bits >> 6 & 63];
    out[3] = kBase64[bits & 63];
  }
  if (count == 0) return out;
  const uint32_t second = count == 2 ? octets[1] : 0;
  const uint32_t bits = uint32_t{octets[0]} << 16 | second << 8;
  out[0] = kBase64[bits >> 18];
  out[1] = kBase64[bits >> 12 & 63];
  out[2] = count == 2 ? kBase64[bits >> 6 & 63] : '=';
  out[3] = '=';
  return out + 4;
}

}  // namespace quarn::util

int quarn_hexencode(
    int mode, const uint8_t *octets, int64_t count, char **text, int64_t *text_length) {
  if (!clear(text, text_length) || !readable(octets, count)) return 0;
  if ((mode != 0 && mode != 1) || count > (INT64_MAX - 1) / 2) return 0;
  auto *out = allocate_array<char>(static_cast<std::size_t>(count * 2 + 1));
  if (out == nullptr) return 0;
  const char *digits = mode == 1 ? kUpperDigits : kLowerDigits;
  char *end = out;
  for (int64_t i = 0; i < count; i++) {
    *end++ = digits[octets[i] >> 4];
    *end++ = digits[octets[i] & 15];
  }
  *end = '\0';
  return give(out, count * 2, text, text_length);
}

int quarn_hexdecode(const char *text, int64_t length, uint8_t **octets, int64_t *count) {
  if (!clear(octets, count) || !readable(text, length) || length % 2 != 0) return 0;
  quarn::util::Block<uint8_t> out(allocate_array<uint8_t>(static_cast<std::size_t>(length / 2)));
  if (out == nullptr) return 0;
  const auto *digits = reinterpret_cast<const uint8_t *>(text);
  for (int64_t i = 0; i < length / 2; i++) {
    const uint8_t high = kHexValues[digits[2 * i]];
    const uint8_t low = kHexValues[digits[2 * i + 1]];
    if (high == kBad || low == kBad) return 0;
    out.get()[i] = static_cast<uint8_t>(high << 4 | low);
  }
  return give(out.release(), length / 2, octets, count);
}

int quarn_base64encode(
    int line_length, const uint8_t *octets, int64_t count, char **text, int64_t *text_length) {
  if (!clear(text, text_length) || !readable(octets, count) || line_length < 0) return 0;
  if (count > quarn::util::kMostBase64Octets) return 0;
  const int64_t length = quarn::util::base64_length(count);
  const int64_t breaks = line_length == 0 || length == 0 ? 0 : (length - 1) / line_length;
  if (breaks > INT64_MAX - 1 - length) return 0;
  auto *out = allocate_array<char>(static_cast<std::size_t>(length + breaks + 1));
  if (out == nullptr) return 0;
  quarn::util::base64_encode(octets, count, out + breaks);
  if (breaks > 0) break_lines(out, out + breaks, length, line_length);
  out[length + breaks] = '\0';
  return give(out, length + breaks, text, text_length);
}

int quarn_base64decode(int mode,
                       const char *text,
                       int64_t length,
                       uint8_t **octets,
                       int64_t *count,
                       quarn_err_ctx *ctx) {
  const bool bad_mode = mode != 1 && mode != 2;
  if (!clear(octets, count) || bad_mode || (text == nullptr && length > 0)) {
    return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  }
  if (length < 0) return kUnit.fail(ctx, QUARN_ERROR_RANGE);
  const Base64Rule rule = mode == 1 ? Base64Rule::strict : Base64Rule::lenient;
  const Base64Result result = quarn::util::base64_decode(rule, text, length);
  if (result.code != 0) return kUnit.fail(ctx, result.code, result.offset);
  return give(result.octets, result.count, octets, count);
}

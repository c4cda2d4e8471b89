// Big integers: sign and magnitude octets. Nothing here does arithmetic beyond a two's complement.
#include "util/biginteger.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "util/error.h"
#include "util/memory.h"

namespace {

using quarn::util::biginteger_from_digits;
using quarn::util::biginteger_to_digits;
using quarn::util::kMostDecimalDigits;
using quarn::util::make_biginteger;

constexpr quarn::util::Unit kUnit{"QUARN_UTIL_BigInteger"};

// Replaces big-endian two's complement octets by those of the negated value.
void negate_octets(uint8_t *octets, std::size_t count) {
  // Up to and including the lowest octet that is not 0 a carry runs; above it, bits just flip.
  std::size_t i = count;
  while (i > 0 && octets[i - 1] == 0) i--;
  if (i == 0) return;
  i--;
  octets[i] = static_cast<uint8_t>(-octets[i]);
  while (i-- > 0) octets[i] = static_cast<uint8_t>(~octets[i]);
}

// Whether a magnitude takes one octet more in two's complement, to hold the sign bit.
bool needs_sign_octet(const quarn_biginteger &b) {
  const uint8_t *m = b.magnitude();
  if (b.length == 0) return true;
  if (b.sign > 0 || m[0] != 0x80) return m[0] >= 0x80;
  // -0x80 00 .. 00 is the one negative value that fits with its top bit set.
  return std::any_of(m + 1, m + b.length, [](uint8_t octet) { return octet != 0; });
}

// 1 when octets of this count can make a value; else one record.
int check_octets(const uint8_t *octets, int64_t count, quarn_err_ctx *ctx) {
  if (octets == nullptr) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  if (count < 1) return kUnit.fail(ctx, QUARN_ERROR_RANGE);
  return 1;
}

quarn_biginteger *made(quarn_biginteger *b, quarn_err_ctx *ctx) {
  if (b == nullptr) kUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
  return b;
}

}  // namespace

quarn_biginteger *quarn::util::make_biginteger(int sign,
                                               const uint8_t *magnitude,
                                               std::size_t length) {
  const uint8_t *end = magnitude + length;
  magnitude = std::find_if(magnitude, end, [](uint8_t octet) { return octet != 0; });
  const auto significant = static_cast<std::size_t>(end - magnitude);
  auto *b = allocate<quarn_biginteger>(significant + 1);
  if (b == nullptr) return nullptr;
  b->sign = significant == 0 ? 0 : sign;
  b->length = significant;
  b->magnitude()[-1] = 0;
  if (significant > 0) std::memcpy(b->magnitude(), magnitude, significant);
  return b;
}

quarn_biginteger *quarn_biginteger_newdata(const uint8_t *octets,
                                           int64_t count,
                                           quarn_err_ctx *ctx) {
  if (check_octets(octets, count, ctx) != 1) return nullptr;
  const uint8_t *end = octets + count;
  if (octets[0] < 0x80) return made(make_biginteger(1, octets, static_cast<size_t>(count)), ctx);
  // Octets that only repeat the sign go first. What is left, negated in place, is the magnitude
  // with at most one zero in front: FF FF 01 leaves FF 01, which becomes 00 FF.
  octets = std::find_if(octets, end, [](uint8_t octet) { return octet != 0xff; });
  if (octets == end || *octets < 0x80) octets--;
  const auto length = static_cast<std::size_t>(end - octets);
  quarn_biginteger *b = make_biginteger(-1, octets, length);
  if (b == nullptr) return made(b, ctx);
  negate_octets(b->magnitude(), length);
  if (b->magnitude()[0] == 0) {
    b->length--;
    std::memmove(b->magnitude(), b->magnitude() + 1, b->length);
  }
  return b;
}

quarn_biginteger *quarn_biginteger_newunsigneddata(const uint8_t *octets,
                                                   int64_t count,
                                                   quarn_err_ctx *ctx) {
  if (check_octets(octets, count, ctx) != 1) return nullptr;
  return made(make_biginteger(1, octets, static_cast<std::size_t>(count)), ctx);
}

quarn_biginteger *quarn_biginteger_newdec(const char *text, quarn_err_ctx *ctx) {
  if (text == nullptr) {
    kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
    return nullptr;
  }
  const char *digits = text + (*text == '-' ? 1 : 0);
  const std::size_t count = std::strspn(digits, "0123456789");
  if (count == 0 || digits[count] != '\0') {
    kUnit.fail(ctx, QUARN_ERROR_FORMAT, digits + count - text);
    return nullptr;
  }
  if (count > kMostDecimalDigits) {
    kUnit.fail(ctx, QUARN_ERROR_RANGE);
    return nullptr;
  }
  return made(biginteger_from_digits(digits == text ? 1 : -1, digits, count), ctx);
}

quarn_data_blob *quarn_biginteger_getdata(const quarn_biginteger *b) {
  if (b == nullptr) return nullptr;
  const std::size_t extra = needs_sign_octet(*b) ? 1 : 0;
  const std::size_t count = b->length + extra;
  auto *blob = quarn_data_blob_new(b->magnitude() - extra, static_cast<int64_t>(count));
  if (blob != nullptr && b->sign < 0) negate_octets(blob->data, count);
  return blob;
}

int quarn_biginteger_todec(const quarn_biginteger *b, char **text, size_t *length) {
  if (text != nullptr) *text = nullptr;
  if (b == nullptr || text == nullptr) return 0;
  std::size_t count = 0;
  *text = biginteger_to_digits(*b, &count);
  if (*text == nullptr) return 0;
  if (length != nullptr) *length = count;
  return 1;
}

int64_t quarn_biginteger_getbitcount(const quarn_biginteger *b) {
  if (b == nullptr) return -1;
  if (b->length == 0) return 0;
  return static_cast<int64_t>(b->length) * 8 - std::countl_zero(b->magnitude()[0]);
}

int quarn_biginteger_getsign(const quarn_biginteger *b) {
  return b == nullptr ? 0 : b->sign;
}

int quarn_biginteger_neg(quarn_biginteger *b) {
  if (b == nullptr) return 0;
  b->sign = -b->sign;
  return 1;
}

int quarn_biginteger_unsigned_tonbuf(const quarn_biginteger *b, uint8_t *buffer, int64_t size) {
  if (b == nullptr || buffer == nullptr || size < 0) return 0;
  const auto room = static_cast<std::size_t>(size);
  if (b->length > room) return 0;
  std::memset(buffer, 0, room - b->length);
  std::memcpy(buffer + (room - b->length), b->magnitude(), b->length);
  return 1;
}

void quarn_biginteger_free(quarn_biginteger *b) {
  quarn_free(b);
}

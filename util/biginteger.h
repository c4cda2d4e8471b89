// Big integers inside the support library: their layout, and conversion from and to decimal digits.
#ifndef QUARN_UTIL_BIGINTEGER_H
#define QUARN_UTIL_BIGINTEGER_H

#include <cstddef>
#include <cstdint>

#include "quarn_util.h"

// A value is one block, with the magnitude behind the head:
//
//     | sign | length | 00 | magnitude, big-endian, first octet not 0 |
//
// The zero octet stands in front so that the two's complement octets of a positive value, whose
// first bit must be 0, can be copied from here as they are. The value 0 has length 0.
struct quarn_biginteger {
  int sign;            // -1, 0 or 1
  std::size_t length;  // octets of the magnitude

  uint8_t *magnitude() { return reinterpret_cast<uint8_t *>(this + 1) + 1; }
  const uint8_t *magnitude() const { return reinterpret_cast<const uint8_t *>(this + 1) + 1; }
};

namespace quarn::util {

// Longer decimal text and greater values are not converted: the work grows with the 1.6th power of
// the digits, and at this size it still takes well under a second. Octets are those of so many
// nines.
constexpr std::size_t kMostDecimalDigits = 1'000'000;
constexpr std::size_t kMostDecimalOctets = 415'242;

// A new value of the given sign (0 when the magnitude is 0) from a big-endian magnitude, which may
// start with zeros. Null when memory is short.
quarn_biginteger *make_biginteger(int sign, const uint8_t *magnitude, std::size_t length);

// A new value from count decimal digits, 1 to kMostDecimalDigits. Null when memory is short.
quarn_biginteger *biginteger_from_digits(int sign, const char *digits, std::size_t count);

// The decimal text of the value, NUL-terminated. Null when memory is short or the value has more
// than kMostDecimalOctets octets.
char *biginteger_to_digits(const quarn_biginteger &value, std::size_t *length);

}  // namespace quarn::util

#endif

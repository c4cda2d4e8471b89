// Base64 for the sources that need more than a record of what is wrong.
#ifndef QUARN_UTIL_TEXT_H
#define QUARN_UTIL_TEXT_H

#include <cstdint>

#include "quarn_util.h"

namespace quarn::util {

enum class Base64Rule { strict, lenient };

struct Base64Result {
  int code;         // 0, QUARN_ERROR_FORMAT or QUARN_ERROR_NO_MEMORY
  int64_t offset;   // of the first character out of place
  uint8_t *octets;  // freed with quarn_free(); null on failure
  int64_t count;
};

Base64Result base64_decode(Base64Rule rule, const char *text, int64_t length);

// Characters of base64 text without line ends; count * 4 / 3 must fit.
constexpr int64_t base64_length(int64_t count) {
  return (count / 3 + (count % 3 != 0)) * 4;
}
// Greatest count of octets whose text, with line ends and what PEM adds, fits an int64_t.
inline constexpr int64_t kMostBase64Octets = INT64_MAX / 4;

// Writes base64_length(count) characters; returns what follows the last.
char *base64_encode(const uint8_t *octets, int64_t count, char *out);

}  // namespace quarn::util

#endif

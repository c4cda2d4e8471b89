// The value of an INTEGER or ENUMERATED.
#ifndef QUARN_TYPES_INTEGER_H
#define QUARN_TYPES_INTEGER_H

#include <cstdint>
#include <optional>

#include "quarn_asn1/types.h"

// The content octets follow in the same block: at least one, as they stand in the encoding.
struct quarn_asn1_integer {
  std::int64_t length;

  std::uint8_t *octets() { return reinterpret_cast<std::uint8_t *>(this + 1); }
  const std::uint8_t *octets() const { return reinterpret_cast<const std::uint8_t *>(this + 1); }
};

namespace quarn::asn1 {

// The number that a component holds, which is an INTEGER or ENUMERATED. None for null, and when it
// does not fit.
inline std::optional<std::int64_t> number_in(const void *integer) {
  std::int64_t number = 0;
  const auto *value = static_cast<const quarn_asn1_integer *>(integer);
  if (quarn_asn1_integer_getlong(value, &number) != 1) return std::nullopt;
  return number;
}

}  // namespace quarn::asn1

#endif

// The value of an INTEGER or ENUMERATED.
#ifndef QUARN_TYPES_INTEGER_H
#define QUARN_TYPES_INTEGER_H

#include <cstdint>

#include "quarn_asn1/types.h"

// The content octets follow in the same block: at least one, as they stand in the encoding.
struct quarn_asn1_integer {
  std::int64_t length;

  std::uint8_t *octets() { return reinterpret_cast<std::uint8_t *>(this + 1); }
  const std::uint8_t *octets() const { return reinterpret_cast<const std::uint8_t *>(this + 1); }
};

#endif

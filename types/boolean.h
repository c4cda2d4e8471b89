// The value of a BOOLEAN.
#ifndef QUARN_TYPES_BOOLEAN_H
#define QUARN_TYPES_BOOLEAN_H

#include <cstdint>

#include "quarn_asn1/types.h"

// The content octet as it was received, 255 or 0 in a value made here. Any but 0 is TRUE.
struct quarn_asn1_boolean {
  std::uint32_t cell;
};

namespace quarn::asn1 {

// The value of DER, which exists already. Freed like any other, which does nothing.
quarn_asn1_boolean *boolean_value(bool value);

}  // namespace quarn::asn1

#endif

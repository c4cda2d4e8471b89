// What the value of a signed message holds besides its components.
#ifndef QUARN_MODULES_SIGNED_DATA_H
#define QUARN_MODULES_SIGNED_DATA_H

#include "core/engine.h"

namespace quarn::asn1 {

// Numbers behind the components. A position is that of the component of the same number; the
// content info ends where the certificates are, or would be.
enum SignedDataPosition : std::uint8_t {
  kContentInfo = 2,
  kContentInfoEnd = 3,
  kSignerInfos = 5,
  kContentEnd = 6,
  kForm = 7  // what the message stood in, as callers have it; -1 when nobody has looked
};

// The form of a message that stands in nothing, and of one whose decoder has not looked.
constexpr std::int64_t kStandsAlone = 1;

inline const Schema &signed_data_schema() {
  return *type_of(QUARN_ASN1_PKCS7SIGNEDDATA).schema;
}

inline std::int64_t *positions_in_message(const void *message) {
  return positions_in(signed_data_schema(), const_cast<void *>(message));
}

}  // namespace quarn::asn1

#endif

// What the value of a signed message holds besides its components.
#ifndef QUARN_MODULES_SIGNED_DATA_H
#define QUARN_MODULES_SIGNED_DATA_H

#include "core/engine.h"
#include "quarn_asn1/message.h"
#include "types/diversion.h"

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

// Of the components between the two: certificates and revocation lists, which may be absent.
constexpr std::size_t kFirstOptional = kContentInfoEnd;

// The form of a message that stands in nothing, and of one whose decoder has not looked.
constexpr std::int64_t kStandsAlone = 1;

// The content types that are signed messages, by form.
constexpr struct {
  std::int64_t form;
  const char *oid;
} kForms[] = {{0, "1.2.840.113549.1.7.2"}, {2, "1.2.156.10197.6.1.4.2.2"}};

inline bool is_form(std::int64_t form) {
  bool known = form == kStandsAlone;
  for (const auto &each : kForms) known = known || form == each.form;
  return known;
}

inline const Schema &signed_data_schema() {
  return *type_of(QUARN_ASN1_PKCS7SIGNEDDATA).schema;
}

inline std::int64_t *positions_in_message(const void *message) {
  return positions_in(signed_data_schema(), const_cast<void *>(message));
}

// Where a message had its content, as callers are told.
constexpr quarn_asn1_content_place kNowhere{-1, -1, -1};
inline quarn_asn1_content_place place_of(const Diversion &diversion) {
  return {diversion.offset, diversion.end, diversion.length};
}

}  // namespace quarn::asn1

#endif

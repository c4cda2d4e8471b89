// OCTET STRING and character strings, for the callers inside the library.
#ifndef QUARN_TYPES_OCTETSTRING_H
#define QUARN_TYPES_OCTETSTRING_H

#include "quarn_asn1/types.h"
#include "types/string.h"

// Over no stream, octets() and length are the whole value.
struct quarn_asn1_octetstring : quarn::asn1::StringValue {};

namespace quarn::asn1 {

// A value with a copy of the octets; null when memory is short.
quarn_asn1_octetstring *make_octetstring(const std::uint8_t *octets, std::size_t count);

}  // namespace quarn::asn1

#endif

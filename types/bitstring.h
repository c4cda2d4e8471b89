// BIT STRING, for the callers inside the library.
#ifndef QUARN_TYPES_BITSTRING_H
#define QUARN_TYPES_BITSTRING_H

#include "quarn_asn1/types.h"
#include "types/string.h"

// Over no stream, octets(), length and unused_bits are the whole value. Unused bits may be set in
// what was decoded, and are written as they came.
struct quarn_asn1_bitstring : quarn::asn1::StringValue {};

namespace quarn::asn1 {

// A value with a copy of the octets, unused bits included; null when memory is short.
quarn_asn1_bitstring *make_bitstring(std::uint32_t unused_bits,
                                     const std::uint8_t *octets,
                                     std::size_t count);

}  // namespace quarn::asn1

#endif

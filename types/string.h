// Content of OCTET STRINGs and of every other string that may be cut into segments.
#ifndef QUARN_TYPES_STRING_H
#define QUARN_TYPES_STRING_H

#include "core/buffer.h"
#include "core/type.h"

namespace quarn::asn1 {

// Appends the octets of a string's content to a buffer: one run when primitive, the segments of a
// constructed string, which are OCTET STRINGs whatever the string's own tag is, one after another.
// An indefinite length ends with the end-of-contents, which is consumed.
Status gather_octets(Reader &in, bool primitive, std::int64_t length, Buffer &out);

}  // namespace quarn::asn1

#endif

// The content of a message apart from its value: passed on to a stream, or passed over.
//
//     30 ..                     ContentInfo
//        06 09 2A .. 07 01
//        A0 ..
//           24 80               from here (offset)
//              04 01 41         on to the stream: 41
//              04 01 42         42
//           00 00               to here (end)
//
// The decoder is handed a Diversion with its Reader, and the first component that its notation
// calls content takes it. The component then stays absent in the value. What lies inside open types
// and kept octets is read by other Readers, or not at all, and is never diverted.
#ifndef QUARN_TYPES_DIVERSION_H
#define QUARN_TYPES_DIVERSION_H

#include "core/type.h"

namespace quarn::asn1 {

struct Diversion {
  quarn_stream *destination;  // null: the content is passed over
  // What was found; numbers are -1 until then.
  Identifier identifier{};   // of the element that holds the content; of an implicit tag, that of
                             // the OCTET STRING under it
  std::int64_t offset = -1;  // where this element begins
  std::int64_t end = -1;     // and ends
  std::int64_t length = -1;  // octets of content, without those of headers between segments

  bool is_octets() const { return identifier.is(kUniversal, 4); }
};

// An element of a type, ANY or OCTET STRING, with its identifier. Fails as the decoder of the type
// does; segments of an OCTET STRING must be right also where an open type does not look into them.
Status divert_element(const Type &type, Reader &in, Diversion &diversion);
// The content of an OCTET STRING, whose offset has been noted.
Status divert_content(Reader &in, Diversion &diversion, bool primitive, std::int64_t length);

}  // namespace quarn::asn1

#endif

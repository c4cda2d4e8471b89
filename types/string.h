// What OCTET STRING, BIT STRING and the character strings have in common: octets, in the value's
// own block or in a stream of the caller's, and an encoding that may be cut into segments.
//
//     24 80                    constructed OCTET STRING, indefinite length
//        04 01 41              a segment
//        24 03  04 01 42       a segment that is cut into segments itself
//     00 00                    end-of-contents
#ifndef QUARN_TYPES_STRING_H
#define QUARN_TYPES_STRING_H

#include "core/buffer.h"
#include "core/type.h"

namespace quarn::asn1 {

// How OCTET STRING and BIT STRING differ. Callers match on the codes that either records, and these
// differ more than the encodings do; a code of 0 records nothing.
struct SegmentRules {
  Unit unit;
  std::int64_t tag_number;
  bool counts_unused_bits;  // content begins with an octet that counts unused bits
  bool empty_is_a_level;    // the nesting limit holds for a constructed string of length 0 too
  int definite_code;        // a segment failed in a string of definite length
  int indefinite_code;      // a segment failed in a string of indefinite length
  int cut_end_code;         // an end-of-contents is cut off after its first octet
  int bad_end_code;         // the second octet of an end-of-contents is not 0
};

extern const SegmentRules kOctetRules;  // ASN1_OctetString.cpp; character strings too
extern const SegmentRules kBitRules;    // ASN1_BitString.cpp

// Appends the octets of a string's content to a buffer: one run when primitive, the segments of a
// constructed string, which are OCTET STRINGs whatever the string's own tag is, one after another.
// An indefinite length ends with the end-of-contents, which is consumed.
Status gather_octets(Reader &in, bool primitive, std::int64_t length, Buffer &out);

// Where the octets of a string go while it is decoded.
class Sink {
 public:
  explicit Sink(Buffer &buffer) : buffer_(&buffer) {}
  explicit Sink(Writer &writer) : writer_(&writer) {}

  // Moves exactly count octets from the Reader, in pieces, so that memory grows as they arrive.
  Status take(Reader &in, std::uint64_t count, const Unit &unit);

 private:
  Buffer *buffer_ = nullptr;
  Writer *writer_ = nullptr;
  Buffer piece_;
};

// Moves the content of a string to a sink; the nesting of segments is counted from here.
// unused_bits receives those of the last segment.
Status move_string(const SegmentRules &rules,
                   Reader &in,
                   bool primitive,
                   std::int64_t length,
                   Sink &sink,
                   std::uint32_t &unused_bits);

// Identifier and length of a segment, or the end-of-contents that stands in place of one.
struct Segment {
  bool is_end;
  bool primitive;
  std::int64_t length;
};

Status read_segment(const SegmentRules &rules, Reader &in, Segment &out);

}  // namespace quarn::asn1

#endif

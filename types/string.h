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

// ---- Values

// A value of any string type. The public types are made of nothing else.
struct StringValue {
  quarn_stream *stream = nullptr;  // of the caller's, never freed here; null: octets() are here
  std::size_t length = 0;          // how many of them; 0 over a stream
  std::size_t position = 0;        // the next of them that is read piece by piece
  std::uint32_t unused_bits = 0;   // at the end of a BIT STRING, 0 to 7

  std::uint8_t *octets() { return reinterpret_cast<std::uint8_t *>(this + 1); }
  const std::uint8_t *octets() const { return reinterpret_cast<const std::uint8_t *>(this + 1); }
};

// A value with room for count octets, which are not set; null when memory is short.
StringValue *new_string(std::size_t count);
StringValue *new_string(const std::uint8_t *octets, std::size_t count);
void free_string(const Type &type, void *value);

// Number of octets. False when a stream cannot tell; kUnknown when it says that nobody knows.
constexpr std::uint64_t kUnknown = UINT64_MAX;
bool measure_string(const StringValue &value, std::uint64_t &count);

// The octets of a string from the first on, as a stream. That of the value is rewound unless it can
// be duplicated, so that a memory stream keeps its position.
class Source {
 public:
  Source() = default;
  Source(const Source &) = delete;
  Source &operator=(const Source &) = delete;
  ~Source() { quarn_stream_free(own_); }

  Status open(StringValue &value, const Unit &unit, quarn_err_ctx *ctx);
  quarn_stream *stream() const { return own_ != nullptr ? own_ : lent_; }
  bool at_end() const;

 private:
  quarn_stream *own_ = nullptr;
  quarn_stream *lent_ = nullptr;
};

// Copies the first count octets to a buffer of the caller's that has room for them. A negative
// count is a failure without a record.
Status copy_string(StringValue *value, std::int64_t count, std::uint8_t *out, const Unit &unit);
// Shows the first count octets: in place, or in storage when they have to be read first.
Status view_string(StringValue &value,
                   std::uint64_t count,
                   Buffer &storage,
                   const std::uint8_t *&octets,
                   const Unit &unit);
// The next octets, at most size. Mode 1 begins at the first, mode 2 goes on.
Status read_string(StringValue *value,
                   int mode,
                   std::uint8_t *out,
                   std::int64_t size,
                   std::uint64_t *count,
                   const Unit &unit,
                   quarn_err_ctx *ctx);
// Decodes the octets as one value of a type. The value is there also when octets follow it and the
// call therefore fails.
Status decode_inside(
    StringValue *value, std::int64_t type_id, void **object, const Unit &unit, quarn_err_ctx *ctx);

// ---- Encodings

// How OCTET STRING and BIT STRING differ. Callers match on the codes that either records, and these
// differ more than the encodings do; a code of 0 records nothing.
struct SegmentRules {
  Unit unit;
  std::int64_t tag_number;
  bool counts_unused_bits;  // content begins with an octet that counts unused bits
  bool empty_is_a_level;    // the nesting limit holds for a constructed string of length 0 too
  int strict_code;          // a segment failed where no end-of-contents may stand
  int indefinite_code;      // a segment failed in a string of indefinite length
  int cut_end_code;         // an end-of-contents is cut off after its first octet
  int bad_end_code;         // the second octet of an end-of-contents is not 0
  int write_length_code;    // the length of a segment could not be written
};

extern const SegmentRules kOctetRules;  // ASN1_OctetString.cpp; character strings too
extern const SegmentRules kBitRules;    // ASN1_BitString.cpp

// Records code unless it is 0 and hands the status up.
Status note(const SegmentRules &rules, Status status, const Reader &in, int code);

// Identifier and length of a segment, or the end-of-contents that stands in place of one.
struct Segment {
  bool is_end;
  bool primitive;
  std::int64_t length;
};

Status read_segment(const SegmentRules &rules, Reader &in, Segment &out);

// Reads a segment where no end-of-contents may stand. read_content(primitive, length) -> Status.
template <typename ReadContent>
Status read_strict_segment(const SegmentRules &rules, Reader &in, ReadContent read_content) {
  Segment segment{};
  Status status = read_segment(rules, in, segment);
  if (status && segment.is_end) status = Status::failure();
  if (status) status = read_content(segment.primitive, segment.length);
  return status ? status : note(rules, status, in, rules.strict_code);
}

// Content into a new value, or to the end of a stream, over which the new value then lies. The
// nesting of segments is counted from here.
Status decode_string_content(
    const SegmentRules &rules, Reader &in, void **value, bool primitive, std::int64_t length);
Status decode_string_content_into(const SegmentRules &rules,
                                  Reader &in,
                                  quarn_stream *destination,
                                  void **value,
                                  bool primitive,
                                  std::int64_t length);
// Content of an OCTET STRING on to a Writer, or passed over when copy is null. in_open_type: an
// open type holds the string, and limits its levels. count receives how many octets there were.
Status pass_octetstring_content(Reader &in,
                                Writer *copy,
                                bool in_open_type,
                                bool primitive,
                                std::int64_t length,
                                std::uint64_t &count);
// Whole elements under the tag of the rules.
Status decode_string(const SegmentRules &rules, Reader &in, void **value);
Status decode_string_into(const SegmentRules &rules,
                          Reader &in,
                          quarn_stream *destination,
                          void **value);

// Appends the octets of a string's content to a buffer: one run when primitive, the segments of a
// constructed string, which are OCTET STRINGs whatever the string's own tag is, one after another.
// An indefinite length ends with the end-of-contents, which is consumed.
Status gather_octets(Reader &in, bool primitive, std::int64_t length, Buffer &out);

// Identifier, length and content: in one piece when the length is known, else in segments. The
// codes are those of a value without a length and of an identifier that cannot be written, 0: none.
Status encode_string(const SegmentRules &rules,
                     const Type &type,
                     Writer &out,
                     void *value,
                     int measure_code,
                     int identifier_code);
// All octets, which must be count.
Status write_string(const SegmentRules &rules,
                    Writer &out,
                    StringValue &value,
                    std::uint64_t count);
// Segments up to the end of the string, and the end-of-contents.
Status write_segments(const SegmentRules &rules, Writer &out, StringValue &value);
Status write_segment(const SegmentRules &rules,
                     Writer &out,
                     const std::uint8_t *octets,
                     std::uint64_t count,
                     std::uint32_t unused_bits);

}  // namespace quarn::asn1

#endif

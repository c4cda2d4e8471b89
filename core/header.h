// Identifier octets, length octets and the end-of-contents marker (X.690, 8.1).
//
//     30 80            SEQUENCE, indefinite length
//        02 01 05      INTEGER 5
//     00 00            end-of-contents
//
// A tag number or length that does not fit is refused, never cut off.
#ifndef QUARN_CORE_HEADER_H
#define QUARN_CORE_HEADER_H

#include <cstdint>

#include "core/reader.h"
#include "core/writer.h"

namespace quarn::asn1 {

// Lengths that are no octet count: the indefinite form, and no length at all because the value is
// null or cannot be encoded.
constexpr std::int64_t kIndefinite = -1;
constexpr std::int64_t kNoLength = -2;

// Tag classes, as they stand in the top bits of the first identifier octet.
constexpr std::uint32_t kUniversal = 0x00;
constexpr std::uint32_t kApplication = 0x40;
constexpr std::uint32_t kContext = 0x80;
constexpr std::uint32_t kPrivate = 0xC0;

struct Identifier {
  std::uint32_t tag_class;
  bool primitive;
  std::uint64_t number;

  bool is(std::uint32_t wanted_class, std::uint64_t wanted_number) const {
    return tag_class == wanted_class && number == wanted_number;
  }
  bool is_end_of_contents() const { return primitive && is(kUniversal, 0); }
};

Status read_long_identifier(Reader &in, Identifier &out);
Status read_long_length(Reader &in, std::uint8_t first, std::int64_t &out);

// Reads identifier octets. Class and form are stored even when the number turns out to be bad.
inline Status read_identifier(Reader &in, Identifier &out) {
  std::uint8_t octet = 0;
  if (const Status status = in.octet(octet); !status) return status;
  out.tag_class = octet & 0xC0u;
  out.primitive = (octet & 0x20u) == 0;
  out.number = octet & 0x1Fu;
  if (out.number != 0x1F) [[likely]]
    return Status::success();
  return read_long_identifier(in, out);
}

// Reads length octets; kIndefinite for 80.
inline Status read_length(Reader &in, std::int64_t &out) {
  std::uint8_t octet = 0;
  if (const Status status = in.octet(octet); !status) return status;
  if (octet < 0x80) [[likely]] {
    out = octet;
    return Status::success();
  }
  return read_long_length(in, octet, out);
}

// Reads 00 00.
Status read_end_of_contents(Reader &in);
// Reads the length octet of an end-of-contents whose identifier octet has been read.
Status read_end_of_contents_length(Reader &in);

// Number of identifier octets of a tag number; kNoLength for a negative one.
std::int64_t identifier_length(std::int64_t number);
// Number of length octets of a length; kNoLength below kIndefinite.
std::int64_t length_length(std::int64_t length);
std::int64_t long_element_length(std::uint64_t number, std::int64_t content_length);
// Octets of a whole element with this tag number and content length, which is handed on when it is
// negative; kIndefinite when the sum does not fit, which no caller can tell from the indefinite
// form.
inline std::int64_t element_length(std::uint64_t number, std::int64_t content_length) {
  if (number < 0x1F && content_length >= 0 && content_length < 0x80) [[likely]] {
    return content_length + 2;
  }
  return long_element_length(number, content_length);
}

Status write_identifier(Writer &out, std::uint32_t tag_class, bool primitive, std::int64_t number);
Status write_length(Writer &out, std::int64_t length);
Status write_end_of_contents(Writer &out);

// Writes identifier and length in one step that cannot fail. False, with nothing written, when they
// are not one octet each or have no room in memory.
inline bool write_short_header(Writer &out,
                               std::uint32_t tag_class,
                               bool primitive,
                               std::uint64_t number,
                               std::int64_t length) {
  if (number >= 0x1F || length < 0 || length >= 0x80 || out.room() < 2) return false;
  const auto form = primitive ? 0u : 0x20u;
  out.put(static_cast<std::uint8_t>(tag_class | form | static_cast<std::uint32_t>(number)));
  out.put(static_cast<std::uint8_t>(length));
  return true;
}

// Identifier and length. The unit records which of the two could not be written.
Status write_long_header(Writer &out,
                         const Unit &unit,
                         std::uint32_t tag_class,
                         bool primitive,
                         std::uint64_t number,
                         std::int64_t length);
inline Status write_header(Writer &out,
                           const Unit &unit,
                           std::uint32_t tag_class,
                           bool primitive,
                           std::uint64_t number,
                           std::int64_t length) {
  if (write_short_header(out, tag_class, primitive, number, length)) [[likely]]
    return Status::success();
  return write_long_header(out, unit, tag_class, primitive, number, length);
}

}  // namespace quarn::asn1

#endif

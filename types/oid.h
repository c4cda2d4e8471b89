// The value of an OBJECT IDENTIFIER or RELATIVE-OID, and the two forms of identifiers apart from
// values.
#ifndef QUARN_TYPES_OID_H
#define QUARN_TYPES_OID_H

#include <cstdint>

#include "core/buffer.h"
#include "quarn_asn1/types.h"

// The content octets, as they stand in the encoding, and the dotted text with its NUL follow in the
// same block.
struct quarn_asn1_oid {
  std::int64_t length;
  std::int64_t text_length;

  std::uint8_t *octets() { return reinterpret_cast<std::uint8_t *>(this + 1); }
  const std::uint8_t *octets() const { return reinterpret_cast<const std::uint8_t *>(this + 1); }
  char *text() { return reinterpret_cast<char *>(octets() + length); }
  const char *text() const { return reinterpret_cast<const char *>(octets() + length); }
};

namespace quarn::asn1 {

// Appends the dotted text of content octets, without a NUL. An arc that the octets leave unfinished
// is dropped. False, with out as it was, when there are no octets, when a subidentifier begins with
// 80, when an arc does not fit 64 bits, or when memory is short.
bool append_oid_text(const std::uint8_t *octets, std::size_t count, bool relative, Buffer &out);

// Appends the content octets of dotted text of the given length; see quarn_asn1_oid_new() for what
// it may be. False, with out as it was, when the text is no identifier or memory is short.
bool append_oid_octets(const char *text, std::size_t length, bool relative, Buffer &out);

// The one value of an identifier that is met often, which is never freed and never changed; null
// for others. known_oids.cpp has the list.
const quarn_asn1_oid *known_oid(const std::uint8_t *octets, std::size_t count);
bool is_known_oid(const void *value);

}  // namespace quarn::asn1

#endif

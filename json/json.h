// The two directions of the JSON mapping, and the parts that each is made of.
#ifndef QUARN_JSON_JSON_H
#define QUARN_JSON_JSON_H

#include <cstddef>
#include <cstdint>

#include "core/buffer.h"
#include "json/back_writer.h"
#include "json/names.h"
#include "quarn_util.h"

namespace quarn::asn1::json {

// An element in primitive form, where it lies.
struct Primitive {
  const std::uint8_t *begin;    // its identifier octets
  const std::uint8_t *content;  // its content octets
  std::size_t length;           // how many those are
  std::uint32_t tag_class;
  std::uint32_t number;  // the tag number, within 31 bits
};

// The document of the one element that the octets hold; null on any failure.
quarn_json *render(const std::uint8_t *octets, std::size_t count);
// The document of one primitive element; null when its content is bad or memory is short. scratch
// is room for text, kept from call to call.
quarn_json *render_primitive(const Primitive &element, Buffer &scratch);

// Writes the element that a document describes. False on any failure; what was written is then of
// no use.
bool write_document(BackWriter &out, const quarn_json *document);
// Writes the primitive content of a kind from the "value" of a node.
bool write_value(BackWriter &out, Kind kind, const quarn_json *node);
// Writes the octets of a string of hexadecimal text.
bool write_hex_text(BackWriter &out, const quarn_json *text);

}  // namespace quarn::asn1::json

#endif

#include "types/diversion.h"

#include "types/any.h"
#include "types/string.h"

namespace quarn::asn1 {

namespace {

constexpr Identifier kOctetString{kUniversal, true, 4};

Writer *writer_for(const Diversion &diversion, Writer &out) {
  return diversion.destination == nullptr ? nullptr : &out;
}

// Segments of an OCTET STRING.
Status divert_octets(
    Reader &in, Diversion &diversion, bool in_open_type, bool primitive, std::int64_t length) {
  Writer out(diversion.destination, in.ctx());
  std::uint64_t count = 0;
  const Status status = pass_octetstring_content(in, writer_for(diversion, out), in_open_type,
                                                 primitive, length, count);
  diversion.identifier = kOctetString;
  diversion.length = static_cast<std::int64_t>(count);
  diversion.end = in.offset();
  return status;
}

Status divert_octetstring(Reader &in, Diversion &diversion) {
  return read_strict_segment(kOctetRules, in, [&](bool primitive, std::int64_t length) {
    return divert_octets(in, diversion, false, primitive, length);
  });
}

Status divert_any(Reader &in, Diversion &diversion) {
  Element element{};
  Status status = read_element_header(in, element);
  if (!status) return status;
  diversion.identifier = element.identifier;
  if (element.end_of_contents) return status;
  const std::int64_t length = element.content_length;
  if (diversion.is_octets()) {
    return divert_octets(in, diversion, true, element.identifier.primitive, length);
  }
  Writer out(diversion.destination, in.ctx());
  const std::int64_t start = in.offset();
  status = pass_content(in, length, writer_for(diversion, out));
  diversion.end = in.offset();
  diversion.length = diversion.end - start - (length == kIndefinite ? 2 : 0);
  return status;
}

}  // namespace

Status divert_element(const Type &type, Reader &in, Diversion &diversion) {
  if (in.at_depth_limit()) return Status::too_deep();
  const Nesting nesting(in);
  diversion.offset = in.offset();
  const bool any = &type == &type_of(QUARN_ASN1_ANY);
  return any ? divert_any(in, diversion) : divert_octetstring(in, diversion);
}

Status divert_content(Reader &in, Diversion &diversion, bool primitive, std::int64_t length) {
  if (in.at_depth_limit()) return Status::too_deep();
  const Nesting nesting(in);
  return divert_octets(in, diversion, false, primitive, length);
}

}  // namespace quarn::asn1

// Distinguished names as one line of text (RFC 4514).
//
//     SEQUENCE { SET { C=DE } SET { O=Example } SET { CN=a + UID=7 } }    CN=a+UID=7,O=Example,C=DE
//
// Every octet can be written as a backslash and two digits, so that the text is exact and still
// safe to print: control characters, marks of direction and the like are written that way. Values
// that are no text, and those of attributes without a short name, are # and their encoding.
#include "cli/leaf.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

// RFC 4514, section 3; then names that RFC 4519 and common use give to attributes of names.
constexpr struct {
  const char *dotted;
  const char *name;
} kShortNames[] = {
    {"2.5.4.3", "CN"},
    {"2.5.4.7", "L"},
    {"2.5.4.8", "ST"},
    {"2.5.4.10", "O"},
    {"2.5.4.11", "OU"},
    {"2.5.4.6", "C"},
    {"2.5.4.9", "STREET"},
    {"0.9.2342.19200300.100.1.25", "DC"},
    {"0.9.2342.19200300.100.1.1", "UID"},
    {"2.5.4.4", "SN"},
    {"2.5.4.5", "serialNumber"},
    {"2.5.4.12", "title"},
    {"2.5.4.13", "description"},
    {"2.5.4.15", "businessCategory"},
    {"2.5.4.17", "postalCode"},
    {"2.5.4.20", "telephoneNumber"},
    {"2.5.4.42", "givenName"},
    {"2.5.4.43", "initials"},
    {"2.5.4.44", "generationQualifier"},
    {"2.5.4.46", "dnQualifier"},
    {"2.5.4.65", "pseudonym"},
    {"2.5.4.97", "organizationIdentifier"},
    {"1.2.840.113549.1.9.1", "emailAddress"},
};

std::string short_name(const std::string &dotted) {
  for (const auto &row : kShortNames) {
    if (dotted == row.dotted) return row.name;
  }
  return "";
}

// Text of the value's encoding, when it is a character string.
std::optional<std::string> value_string(Octets encoding) {
  Walk walk(encoding);
  if (walk.next() != Walk::Step::element) return std::nullopt;
  const Element &element = walk.element();
  if (element.header.tag_class != kUniversal || element.constructed()) return std::nullopt;
  return utf8_text(element.header.tag_number, walk.content());
}

std::string attribute_text(const Node &attribute) {
  const Node type = part_of(attribute, 0);
  const Node value = part_of(attribute, 1);
  if (type.type_id != QUARN_ASN1_OID || value.value == nullptr) return "?";
  const std::string dotted = oid_text(type.value);
  const std::string name = short_name(dotted);
  const std::vector<std::uint8_t> encoding = octets_of(value);
  const std::optional<std::string> text = value_string(encoding);
  if (name.empty() || !text) return (name.empty() ? dotted : name) + "=#" + plain_hex(encoding);
  return name + "=" + escaped_4514(*text);
}

std::string relative_name_text(const Node &relative) {
  std::string text;
  for (std::int64_t i = 0; i < count_of(relative); i++) {
    text += (i == 0 ? "" : "+") + attribute_text(part_of(relative, i));
  }
  return text;
}

}  // namespace

std::string name_text(const Node &name) {
  std::string text;
  for (std::int64_t i = count_of(name); i-- > 0;) {
    text += (text.empty() ? "" : ",") + relative_name_text(part_of(name, i));
  }
  return text;
}

}  // namespace quarn::cli

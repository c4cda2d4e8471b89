// Structured types as data: what a SEQUENCE, SET, list or CHOICE is made of.
//
//     constexpr Field kExtensionFields[] = {
//         field("extnID", QUARN_ASN1_OID),
//         field("critical", QUARN_ASN1_BOOLEAN, defaults_to(false)),
//         field("extnValue", QUARN_ASN1_OCTETSTRING),
//     };
//     constexpr Schema kExtension = record("Extension", kUnit, kExtensionFields);
//
// Notes say what is not plain: optional(), explicit_tag(3), at_least(1), keep_body(). One engine
// (core/engine_*.cpp) interprets the schemas for all types. Whether a schema can be decoded at all
// is settled when the registry is compiled; see core/schema_check.h.
#ifndef QUARN_CORE_SCHEMA_H
#define QUARN_CORE_SCHEMA_H

#include <cstddef>
#include <cstdint>
#include <span>

#include "core/status.h"
#include "quarn_asn1/ids.h"

namespace quarn::asn1 {

struct Type;

enum class Tagging : std::uint8_t {
  plain,               // the identifier of the component's own type
  implicit,            // [n] in place of it
  implicit_primitive,  // the same, written as if the component were primitive and read in either
                       // form
  explicitly           // [n] around it
};

enum class Presence : std::uint8_t {
  mandatory,
  mandatory_exact,  // in another form than its type's, what comes is something else
  optional,
  optional_exact,
  content,          // optional: what a message carries, which may be decoded apart from the rest
  optional_inside,  // told from the next component by what stands first inside it, too
  selected,         // there when the INTEGER before it is default_value
  default_boolean,
  default_integer,
  default_encoding,
  default_inside  // an encoding, and told as optional_inside is
};

// A component of a record, or an alternative of a CHOICE.
struct Field {
  const char *name;
  const std::uint8_t *default_octets;  // DER encoding of a default that is neither of the two below
  std::uint16_t type_id;
  std::uint16_t tag;  // n of [n]; plain: the universal tag that is written, 0 for the type's
  std::int8_t default_value;  // 0 and 1 for FALSE and TRUE; how many default_octets there are;
                              // the number that selects the component
  std::int8_t size;  // octets of a string; negative: it has at least as many; 0: any number
  Tagging tagging;
  Presence presence;

  constexpr quarn_asn1_type_id type() const { return static_cast<quarn_asn1_type_id>(type_id); }
  constexpr bool mandatory() const { return presence <= Presence::mandatory_exact; }
  constexpr bool exact() const {
    return presence == Presence::mandatory_exact || presence == Presence::optional_exact;
  }
  constexpr bool told_inside() const {
    return presence == Presence::optional_inside || presence == Presence::default_inside;
  }
  constexpr bool has_default() const { return presence >= Presence::default_boolean; }
};

enum class Kind : std::uint8_t {
  record,         // SEQUENCE or SET of named components, in their order
  open_tail,      // a record of a mandatory component and an optional open type, which ends it
  list,           // SEQUENCE OF or SET OF
  choice,         // alternatives are numbered one after another, or by their tags
  string_choice,  // of character strings, which are numbered by their tags
};

// The longest encoding that a default may have: values are compared with it on the stack.
constexpr std::int8_t kMostDefaultOctets = 64;

// What a value keeps of the octets that it was decoded from or last encoded to, so that it encodes
// to the same ones again.
enum class Keep : std::uint8_t {
  nothing,
  positions,   // no octets, but where the components of a record stood in them
  body_alone,  // a record: the encoding of its first component, which is signed
  layout,      // a list of elements of any type: no octets, but a value of the layout they may have
  encoding,    // a list: its whole encoding
  body         // a signed object, a record: its whole encoding, and that of the first component
};

struct Diversion;

// A condition on the values of a type beyond its components. Decoding refuses a value that does not
// meet it, and so do constructors, encoding and measuring, as the type will have it.
struct Restriction {
  bool (*allows)(const void *value);
  int code;                   // what a refusal is recorded with
  bool general_text = false;  // with the general errors' text for the code, not with this library's
  bool in_length = false;     // a value that is refused has no length either
  bool decode_only = false;   // neither constructors nor encoding ask
  // allows, of content that a value was decoded apart from; null when it may be anything.
  bool (*allows_apart)(const Diversion &content) = nullptr;
};

struct Schema {
  const char *name;
  Unit unit;                      // in the records of failures
  std::span<const Field> fields;  // of a list: one, for the elements
  Kind kind;
  Keep keep = Keep::nothing;
  std::uint8_t at_least = 0;      // elements of a list
  std::uint8_t first_number = 0;  // of the alternatives of a CHOICE
  bool numbered_by_tag = false;   // those have the numbers of their tags
  const Restriction *restriction = nullptr;
  const Type *layout = nullptr;  // that elements of any type may have

  constexpr bool is_choice() const { return kind == Kind::choice || kind == Kind::string_choice; }
  constexpr bool is_list() const { return kind == Kind::list; }
  // Its own, and that of its first component.
  constexpr bool keeps_octets() const { return keep >= Keep::encoding; }
  // A list that lies in a record of its own, with what it keeps.
  constexpr bool wraps_list() const { return is_list() && keep != Keep::nothing; }
  constexpr bool keeps_body() const { return keep == Keep::body || keep == Keep::body_alone; }
  constexpr quarn_asn1_type_id element() const { return fields[0].type(); }
};

// ---- Writing schemas

namespace notation {

struct Tag {
  Tagging tagging;
  std::uint16_t number;
};
struct Occurrence {
  Presence presence;
  std::int8_t value;
  const std::uint8_t *octets = nullptr;
};
struct Size {
  std::int8_t octets;
};
struct PrimitiveForm {};
struct ExactForm {};
struct ToldInside {};
struct AtLeast {
  std::uint8_t count;
};
struct NumberedFrom {
  std::uint8_t number;
};
struct NumberedByTag {};

constexpr void note(Field &field, Tag tag) {
  field.tagging = tag.tagging;
  field.tag = tag.number;
}
constexpr void note(Field &field, Occurrence occurrence) {
  field.presence = occurrence.presence;
  field.default_value = occurrence.value;
  field.default_octets = occurrence.octets;
}
constexpr void note(Field &field, Size size) {
  field.size = size.octets;
}
constexpr void note(Field &field, PrimitiveForm /*form*/) {
  field.tagging = Tagging::implicit_primitive;
}
constexpr void note(Field &field, ExactForm /*form*/) {
  field.presence = field.mandatory() ? Presence::mandatory_exact : Presence::optional_exact;
}
constexpr void note(Field &field, ToldInside /*inside*/) {
  field.presence = field.has_default() ? Presence::default_inside : Presence::optional_inside;
}
constexpr void note(Schema &schema, Keep keep) {
  schema.keep = keep;
}
constexpr void note(Schema &schema, const Restriction *restriction) {
  schema.restriction = restriction;
}
constexpr void note(Schema &schema, AtLeast least) {
  schema.at_least = least.count;
}
constexpr void note(Schema &schema, NumberedFrom first) {
  schema.first_number = first.number;
}
constexpr void note(Schema &schema, NumberedByTag /*by*/) {
  schema.numbered_by_tag = true;
}

template <typename... Notes>
constexpr Schema schema(
    const char *name, Unit unit, std::span<const Field> fields, Kind kind, Notes... notes) {
  Schema made{name, unit, fields, kind};
  (note(made, notes), ...);
  return made;
}

}  // namespace notation

// Of a component: a tag, how it may be absent.
constexpr notation::Tag implicit_tag(std::uint16_t number) {
  return {Tagging::implicit, number};
}
constexpr notation::Tag explicit_tag(std::uint16_t number) {
  return {Tagging::explicitly, number};
}
// A plain component that goes out with another universal tag than its type's, and comes in with its
// type's.
constexpr notation::Tag written_tag(std::uint16_t number) {
  return {Tagging::plain, number};
}
// After an implicit tag, on a constructed type. Several such components may share a tag: they are
// filled in their order.
constexpr notation::PrimitiveForm primitive_form() {
  return {};
}
constexpr notation::Occurrence optional() {
  return {Presence::optional, 0};
}
// After optional(), or on an alternative: recognised by class, tag and form. Others go by class and
// tag, and another form is a failure of theirs.
constexpr notation::ExactForm exact_form() {
  return {};
}
// After optional() or default_encoding(): a component that begins with the same tag as the next one
// and is recognised by what its own type has first inside.
constexpr notation::ToldInside told_inside() {
  return {};
}
// There when the INTEGER before it, and before others so selected, is this number.
constexpr notation::Occurrence selected_by(std::int8_t number) {
  return {Presence::selected, number};
}
// An optional component under a tag, of type ANY or OCTET STRING: the content of a message.
constexpr notation::Occurrence content() {
  return {Presence::content, 0};
}
constexpr notation::Occurrence defaults_to(bool value) {
  return {Presence::default_boolean, static_cast<std::int8_t>(value ? 1 : 0)};
}
constexpr notation::Occurrence defaults_to(int value) {
  return {Presence::default_integer, static_cast<std::int8_t>(value)};
}
// A default of any type, by its DER encoding.
template <std::size_t kCount>
constexpr notation::Occurrence default_encoding(const std::uint8_t (&octets)[kCount]) {
  return {Presence::default_encoding, std::int8_t{kCount}, octets};
}
// A string of so many octets, or of at least as many. Decoders and constructors refuse others.
constexpr notation::Size octets(std::int8_t count) {
  return {count};
}
constexpr notation::Size at_least_octets(std::int8_t count) {
  return {static_cast<std::int8_t>(-count)};
}

// Of a type.
constexpr Keep keep_encoding() {
  return Keep::encoding;
}
constexpr Keep keep_body() {
  return Keep::body;
}
constexpr Keep keep_body_alone() {
  return Keep::body_alone;
}
constexpr Keep keep_positions() {
  return Keep::positions;
}
constexpr const Restriction *restricted_by(const Restriction &restriction) {
  return &restriction;
}
constexpr notation::AtLeast at_least(std::uint8_t count) {
  return {count};
}
constexpr notation::NumberedFrom numbered_from(std::uint8_t number) {
  return {number};
}
// For alternatives that all have a tag other than a universal one.
constexpr notation::NumberedByTag numbered_by_tag() {
  return {};
}

// Without notes a component is plain and mandatory.
template <typename... Notes>
constexpr Field field(const char *name, quarn_asn1_type_id type, Notes... notes) {
  Field made{name,
             nullptr,
             static_cast<std::uint16_t>(type),
             0,
             0,
             0,
             Tagging::plain,
             Presence::mandatory};
  (notation::note(made, notes), ...);
  return made;
}

template <typename... Notes>
constexpr Schema record(const char *name,
                        Unit unit,
                        std::span<const Field> fields,
                        Notes... notes) {
  return notation::schema(name, unit, fields, Kind::record, notes...);
}
template <typename... Notes>
constexpr Schema open_tail(const char *name,
                           Unit unit,
                           std::span<const Field> fields,
                           Notes... notes) {
  return notation::schema(name, unit, fields, Kind::open_tail, notes...);
}
template <typename... Notes>
constexpr Schema list(const char *name, Unit unit, std::span<const Field> element, Notes... notes) {
  return notation::schema(name, unit, element, Kind::list, notes...);
}
inline constexpr Field kElementOfAnyType[] = {field("element", QUARN_ASN1_ANY)};
// A type whose layout is inferred: what is laid out otherwise is read and written all the same.
constexpr Schema inferred(const char *name, Unit unit, const Type &layout) {
  Schema made = list(name, unit, kElementOfAnyType, Keep::layout);
  made.layout = &layout;
  return made;
}
template <typename... Notes>
constexpr Schema choice(const char *name,
                        Unit unit,
                        std::span<const Field> alternatives,
                        Notes... notes) {
  return notation::schema(name, unit, alternatives, Kind::choice, notes...);
}
template <typename... Notes>
constexpr Schema string_choice(const char *name,
                               Unit unit,
                               std::span<const Field> alternatives,
                               Notes... notes) {
  return notation::schema(name, unit, alternatives, Kind::string_choice, numbered_by_tag(),
                          notes...);
}

}  // namespace quarn::asn1

#endif

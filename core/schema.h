// Structured types as data: what a SEQUENCE, SET, list or CHOICE is made of.
//
//     constexpr Field kExtensionFields[] = {
//         field("extnID", QUARN_ASN1_OID),
//         field("critical", QUARN_ASN1_BOOLEAN, defaults_to(false)),
//         field("extnValue", QUARN_ASN1_OCTETSTRING),
//     };
//     constexpr Schema kExtension = record("Extension", kUnit, kExtensionFields);
//
// One engine (core/engine_*.cpp) interprets the schemas for all types. Whether a schema can be
// decoded at all is settled when the registry is compiled; see core/schema_check.h.
#ifndef QUARN_CORE_SCHEMA_H
#define QUARN_CORE_SCHEMA_H

#include <cstdint>
#include <span>

#include "core/status.h"
#include "quarn_asn1/ids.h"

namespace quarn::asn1 {

enum class Tagging : std::uint8_t {
  plain,      // the identifier of the component's own type
  implicit,   // [n] in place of it
  explicitly  // [n] around it
};

enum class Presence : std::uint8_t { mandatory, optional, default_boolean, default_integer };

// A component of a record, or an alternative of a CHOICE.
struct Field {
  const char *name;
  std::uint16_t type_id;
  std::uint16_t tag;           // n of [n]
  std::int16_t default_value;  // 0 and 1 for FALSE and TRUE
  Tagging tagging;
  Presence presence;

  constexpr quarn_asn1_type_id type() const { return static_cast<quarn_asn1_type_id>(type_id); }
  constexpr bool mandatory() const { return presence == Presence::mandatory; }
  constexpr bool has_default() const {
    return presence == Presence::default_boolean || presence == Presence::default_integer;
  }
};

enum class Kind : std::uint8_t {
  record,         // SEQUENCE or SET of named components, in their order
  open_tail,      // a record of a mandatory component and an optional open type, which ends it
  list,           // SEQUENCE OF or SET OF
  choice,         // alternatives are numbered one after another
  string_choice,  // of character strings, which are numbered by their tags
};

struct Schema {
  const char *name;
  Unit unit;                      // in the records of failures
  std::span<const Field> fields;  // of a list: one, for the elements
  Kind kind;
  std::uint8_t least;  // elements of a list; number of the first alternative of a CHOICE

  constexpr bool is_choice() const { return kind == Kind::choice || kind == Kind::string_choice; }
  constexpr bool is_list() const { return kind == Kind::list; }
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
  std::int16_t value;
};

constexpr void note(Field &field, Tag tag) {
  field.tagging = tag.tagging;
  field.tag = tag.number;
}
constexpr void note(Field &field, Occurrence occurrence) {
  field.presence = occurrence.presence;
  field.default_value = occurrence.value;
}

}  // namespace notation

constexpr notation::Tag implicit_tag(std::uint16_t number) {
  return {Tagging::implicit, number};
}
constexpr notation::Tag explicit_tag(std::uint16_t number) {
  return {Tagging::explicitly, number};
}
constexpr notation::Occurrence optional() {
  return {Presence::optional, 0};
}
constexpr notation::Occurrence defaults_to(bool value) {
  return {Presence::default_boolean, value};
}
constexpr notation::Occurrence defaults_to(int value) {
  return {Presence::default_integer, static_cast<std::int16_t>(value)};
}

// Notes are a tag, an occurrence, both or none: a plain mandatory component.
template <typename... Notes>
constexpr Field field(const char *name, quarn_asn1_type_id type, Notes... notes) {
  Field made{name, static_cast<std::uint16_t>(type), 0, 0, Tagging::plain, Presence::mandatory};
  (notation::note(made, notes), ...);
  return made;
}

constexpr std::uint8_t at_least(std::uint8_t elements) {
  return elements;
}
constexpr std::uint8_t numbered_from(std::uint8_t first) {
  return first;
}

constexpr Schema record(const char *name, Unit unit, std::span<const Field> fields) {
  return {name, unit, fields, Kind::record, 0};
}
constexpr Schema open_tail(const char *name, Unit unit, std::span<const Field> fields) {
  return {name, unit, fields, Kind::open_tail, 0};
}
constexpr Schema list(const char *name,
                      Unit unit,
                      std::span<const Field> element,
                      std::uint8_t least = 0) {
  return {name, unit, element, Kind::list, least};
}
constexpr Schema choice(const char *name,
                        Unit unit,
                        std::span<const Field> alternatives,
                        std::uint8_t first_number = 0) {
  return {name, unit, alternatives, Kind::choice, first_number};
}
constexpr Schema string_choice(const char *name, Unit unit, std::span<const Field> alternatives) {
  return {name, unit, alternatives, Kind::string_choice, 0};
}

}  // namespace quarn::asn1

#endif

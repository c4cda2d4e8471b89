// What the engine takes for granted about schemas, checked when the registry is compiled: whatever
// identifier comes next, at most one component can be meant by it, or a note says what else tells.
#ifndef QUARN_CORE_SCHEMA_CHECK_H
#define QUARN_CORE_SCHEMA_CHECK_H

#include <cstddef>

#include "core/schema.h"
#include "core/type.h"

namespace quarn::asn1 {

class SchemaCheck {
 public:
  constexpr explicit SchemaCheck(const Type *rows) : rows_(rows) {}

  constexpr bool well_formed(const Schema &schema) const {
    for (const Field &field : schema.fields) {
      if (!sound(field)) return false;
    }
    if (!keeps_what_it_can(schema)) return false;
    switch (schema.kind) {
      case Kind::record:
        return decidable(schema.fields) && content_is_one(schema);
      case Kind::open_tail:
        return ends_open(schema.fields);
      case Kind::list:
        return schema.fields.size() == 1 &&
               (schema.layout == nullptr || well_formed(*schema.layout->schema));
      case Kind::choice:
        return distinct(schema.fields);
      case Kind::string_choice:
        return distinct(schema.fields) && are_strings(schema.fields);
    }
    return false;
  }

 private:
  constexpr const Type &row(const Field &field) const { return rows_[field.type_id]; }

  static constexpr bool is_any(const Field &field) { return field.type_id == QUARN_ASN1_ANY; }

  // Types whose values begin with different tags cannot take another in their place.
  constexpr bool has_own_tag(const Field &field) const {
    return row(field).tag_number != 0 || row(field).tag_class != kUniversal;
  }

  // A CHOICE begins with those of its alternatives.
  constexpr bool begins_with_known_tag(const Field &field) const {
    const Schema *schema = row(field).schema;
    return has_own_tag(field) || (schema != nullptr && schema->is_choice());
  }

  constexpr bool sound(const Field &field) const {
    return soundly_tagged(field) && soundly_present(field) && (field.size == 0 || is_string(field));
  }

  constexpr bool soundly_tagged(const Field &field) const {
    const bool replaces_tag = field.tagging == Tagging::implicit ||
                              field.tagging == Tagging::implicit_primitive ||
                              (field.tagging == Tagging::plain && field.tag != 0);
    if (replaces_tag && !has_own_tag(field)) return false;
    if (field.tagging == Tagging::implicit_primitive && row(field).form != 0) return false;
    return !field.exact() || field.tagging != Tagging::explicitly;
  }

  constexpr bool soundly_present(const Field &field) const {
    if (field.told_inside() && (field.tagging != Tagging::plain || row(field).schema == nullptr)) {
      return false;
    }
    switch (field.presence) {
      case Presence::default_boolean:
        return field.type_id == QUARN_ASN1_BOOLEAN;
      case Presence::default_integer:
        return field.type_id == QUARN_ASN1_INTEGER || field.type_id == QUARN_ASN1_ENUMERATED;
      case Presence::default_encoding:
      case Presence::default_inside:
        return field.default_value >= 2 && field.default_value <= kMostDefaultOctets;
      case Presence::content:
        return can_be_content(field);
      default:
        return true;
    }
  }

  static constexpr bool can_be_content(const Field &field) {
    const bool octets = field.type_id == QUARN_ASN1_OCTETSTRING;
    return field.tagging == Tagging::explicitly ? octets || is_any(field)
                                                : octets && field.tagging == Tagging::implicit;
  }

  // Names are lists; signed objects begin with their body, which says its own length; what has
  // positions is a record.
  constexpr bool keeps_what_it_can(const Schema &schema) const {
    if (schema.keep == Keep::encoding || schema.keep == Keep::layout) return schema.is_list();
    if (schema.keep == Keep::nothing) return true;
    if (schema.kind != Kind::record) return false;
    if (!schema.keeps_body()) return true;
    const Field &first = schema.fields[0];
    if (!first.mandatory() || first.tagging != Tagging::plain) return false;
    const Schema *body = row(first).schema;
    return body != nullptr && !body->is_choice();
  }

  // Whether an element with this tag can begin the field.
  constexpr bool accepts(const Field &field, std::uint32_t tag_class, std::uint64_t number) const {
    if (field.tagging != Tagging::plain) return tag_class == kContext && number == field.tag;
    if (is_any(field)) return true;
    const Schema *schema = row(field).schema;
    if (schema != nullptr && schema->is_choice()) {
      for (const Field &alternative : schema->fields) {
        if (accepts(alternative, tag_class, number)) return true;
      }
      return false;
    }
    if (field.type_id == QUARN_ASN1_TIME) {
      return tag_class == kUniversal && (number == 23 || number == 24);
    }
    return tag_class == row(field).tag_class && number == row(field).tag_number;
  }

  constexpr bool clash(const Field &a, const Field &b) const {
    if (a.tagging != Tagging::plain) return accepts(b, kContext, a.tag);
    if (is_any(a)) return true;
    const Schema *schema = row(a).schema;
    if (schema != nullptr && schema->is_choice()) {
      for (const Field &alternative : schema->fields) {
        if (clash(alternative, b)) return true;
      }
      return false;
    }
    if (a.type_id == QUARN_ASN1_TIME)
      return accepts(b, kUniversal, 23) || accepts(b, kUniversal, 24);
    return accepts(b, row(a).tag_class, row(a).tag_number);
  }

  // Components that share a tag on purpose.
  static constexpr bool told_apart(const Field &a, const Field &b) {
    if (a.told_inside()) return true;
    return a.tagging == Tagging::implicit_primitive && b.tagging == Tagging::implicit_primitive &&
           a.type_id == b.type_id;
  }

  static constexpr bool follows_number(std::span<const Field> fields, std::size_t i) {
    while (i > 0 && fields[i].presence == Presence::selected) i--;
    return fields[i].mandatory() && fields[i].type_id == QUARN_ASN1_INTEGER;
  }

  constexpr bool decidable(std::span<const Field> fields) const {
    for (std::size_t i = 0; i < fields.size(); i++) {
      if (!fields[i].mandatory() && !decidable(fields, i)) return false;
    }
    return !fields.empty();
  }

  // A field that may be absent differs from those that may come in its place: the others that may
  // be absent up to the next mandatory one, and that one.
  constexpr bool decidable(std::span<const Field> fields, std::size_t i) const {
    const Field &field = fields[i];
    if (field.presence == Presence::selected) return follows_number(fields, i);
    for (const Field &next : fields.subspan(i + 1)) {
      if (clash(field, next) && !told_apart(field, next)) return false;
      if (next.mandatory()) break;
    }
    // An open type cannot be begun once its identifier has been read.
    return !is_any(field) || field.tagging != Tagging::plain;
  }

  // A message, whose content is in one of its components or is one, has no other content in it,
  // however deep: decoding apart takes the first that comes.
  constexpr bool content_is_one(const Schema &schema) const {
    return contents(schema, 1, 0) == 0 || contents(schema, kManyLevels, 2) == 1;
  }

  // How many components are content; beyond: as how many count types that are deeper than levels.
  constexpr int contents(const Schema &schema, int levels, int beyond) const {
    int count = 0;
    for (const Field &field : schema.fields) {
      const Schema *inner = row(field).schema;
      if (field.presence == Presence::content) {
        count++;
      } else if (inner != nullptr) {
        count += levels == 0 ? beyond : contents(*inner, levels - 1, beyond);
      }
    }
    return count;
  }

  static constexpr bool ends_open(std::span<const Field> fields) {
    return fields.size() == 2 && fields[0].mandatory() && is_any(fields[1]) &&
           fields[0].tagging == Tagging::plain && fields[1].tagging == Tagging::plain &&
           fields[1].presence == Presence::optional;
  }

  static constexpr bool is_character_string(const Field &field) {
    return field.type_id >= QUARN_ASN1_UTF8STRING && field.type_id <= QUARN_ASN1_BMPSTRING;
  }
  static constexpr bool is_string(const Field &field) {
    return field.type_id == QUARN_ASN1_OCTETSTRING || is_character_string(field);
  }
  static constexpr bool are_strings(std::span<const Field> alternatives) {
    for (const Field &field : alternatives) {
      if (!is_character_string(field)) return false;
    }
    return true;
  }

  constexpr bool distinct(std::span<const Field> alternatives) const {
    for (std::size_t i = 0; i < alternatives.size(); i++) {
      const Field &a = alternatives[i];
      if (!a.mandatory() || (a.tagging == Tagging::plain && !begins_with_known_tag(a)))
        return false;
      for (std::size_t next = i + 1; next < alternatives.size(); next++) {
        if (clash(a, alternatives[next])) return false;
      }
    }
    return !alternatives.empty();
  }

  static constexpr int kManyLevels = 20;

  const Type *rows_;
};

template <std::size_t kCount>
constexpr bool all_well_formed(const Type (&rows)[kCount]) {
  const SchemaCheck check(rows);
  for (const Type &row : rows) {
    if (row.schema != nullptr && !check.well_formed(*row.schema)) return false;
  }
  return true;
}

}  // namespace quarn::asn1

#endif

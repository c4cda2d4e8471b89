// Values of types that have a schema, and the interpreter of schemas.
//
//     record    one block: a pointer for each component, null where it is absent
//     CHOICE    one block: which alternative, and a pointer to its value
//     list      quarn_asn1_list
//
// Behind the components of a type that keeps octets, positions or a value of a layout, stands what
// it keeps; a list that keeps something is a record of one component, the list itself.
//
// A component with a default is never absent once a value has been decoded: it holds its default.
// C code knows these values by the names of incomplete types only, so that one layout serves all.
#ifndef QUARN_CORE_ENGINE_H
#define QUARN_CORE_ENGINE_H

#include <cstddef>
#include <cstdint>

#include "core/kept.h"
#include "core/schema.h"
#include "core/type.h"
#include "types/any.h"

namespace quarn::asn1 {

struct Choice {
  std::uint32_t index;  // of the alternative in the schema; of strings, in kStringAlternatives
  void *value;
};

// All alternatives that CHOICEs of strings have, by type id from QUARN_ASN1_UTF8STRING on. To C
// code the values of all these CHOICEs are of one type, and may be handed to any of them.
extern const Field kStringAlternatives[];

// ---- Access

inline void **components(void *record) {
  return static_cast<void **>(record);
}
inline void *component(const void *record, std::size_t index) {
  return record == nullptr ? nullptr : static_cast<void *const *>(record)[index];
}

// The number by which callers know the alternative of a value: all ones for null, 0 of a CHOICE of
// strings, whose numbers are tags.
std::uint64_t alternative_number(const Type &type, const void *value);
// The alternative's value when it is the one with this number, else null.
void *alternative(const Type &type, const void *value, std::uint64_t number);

// The index of the alternative with a number; how many alternatives there are when none has it.
std::uint32_t alternative_index(const Schema &schema, std::uint64_t number);

// The list of a value of a list type.
inline quarn_asn1_list *list_in(const Schema &schema, const void *value) {
  if (schema.wraps_list()) return static_cast<quarn_asn1_list *>(component(value, 0));
  return static_cast<quarn_asn1_list *>(const_cast<void *>(value));
}

// An empty list of a list type; null when memory is short.
void *build_list(const Schema &schema);
// A record with all components absent; null when memory is short.
void *new_record(const Schema &schema);
// A CHOICE of the alternative with this index in the schema, without its value; null when memory is
// short.
void *new_choice(const Schema &schema, std::uint32_t index);

// ---- Octets that values keep

// The next value written is encoded anew: of this value alone, and of all values in it. Its type
// and theirs may keep octets or not.
void drop_encoding(const Schema &schema, void *value);
void drop_kept(const Type &type, void *value);

// The octets of the first component of a signed object, made if it does not keep them. Null when
// that fails.
const Kept *body_of(const Type &type, void *value);

// What a value keeps: its encoding, and behind that, of a signed object, its body. The type must be
// one that keeps octets; of one that keeps its body alone, the first is never valid.
inline Kept *kept_by(const Schema &schema, void *value) {
  return reinterpret_cast<Kept *>(components(value) + schema.fields.size());
}

// ---- Positions that values keep

// Where each component of a record begins, or would if it were there, and then how many octets the
// content has: counted from the first octet of the content that was last decoded or encoded. A
// number more belongs to the type's module. All are -1 in a value that has only been built.
inline std::int64_t *positions_in(const Schema &schema, void *value) {
  return reinterpret_cast<std::int64_t *>(components(value) + schema.fields.size());
}
constexpr std::size_t kMorePositions = 2;

// ---- Elements of any type with a layout

// They as a value of the layout; null when they are laid out otherwise, and for null.
inline void *laid_out(const void *value) {
  return component(value, 1);
}
// Finds that out, of new elements.
Status lay_out(const Type &type, Reader &in, void *value);
// The elements of a value of the layout; null when memory is short.
void *value_of_layout(const Type &type, void *view);
// A type without a tag of its own is one element.
Status decode_one_element(const Type &type, Reader &in, void **value);
inline bool is_one_element(const Type &type) {
  return type.schema->keep == Keep::layout && type.form == -1;
}

// ---- Inside the engine

void free_structured(const Type &type, void *value);

// Whether a value's encoding is kept.
inline bool is_kept(const Schema &schema, const void *value) {
  return schema.keeps_octets() && value != nullptr &&
         kept_by(schema, const_cast<void *>(value))->valid();
}

// Gives an absent component its default, if it has one. False when memory is short.
[[nodiscard]] bool take_default(const Field &field, void **component);
// Whether a component is left out of the encoding: absent, or equal in meaning to its default.
bool left_out(const Field &field, void *component);
// Whether the value of a component, if it is there, has as many octets as it must.
bool has_size(const Field &field, const void *component);
// Whether a value may be used for its type. Decoding and encoding record it when not.
inline bool allowed(const Schema &schema, const void *value) {
  return schema.restriction == nullptr || schema.restriction->allows(value);
}
Status refuse(const Schema &schema, quarn_err_ctx *ctx, std::int64_t offset);

// Whether the value of a component is an end-of-contents, which an open type can hold.
inline bool is_end_of_contents(const Field &field, const void *value) {
  return field.type_id == QUARN_ASN1_ANY && value != nullptr &&
         static_cast<const quarn_asn1_any *>(value)->end_of_contents;
}

// The field that the value of a CHOICE is of.
inline const Field &chosen(const Schema &schema, const void *value) {
  const std::uint32_t index = static_cast<const Choice *>(value)->index;
  return schema.kind == Kind::string_choice ? kStringAlternatives[index] : schema.fields[index];
}

// The same, or what is chosen in the value, when that is a CHOICE without a tag of its own: the
// field that says what identifier the value has.
inline const Field &told_by_identifier(const Schema &schema, const void *value) {
  const Field *field = &chosen(schema, value);
  while (field->tagging == Tagging::plain) {
    const Schema *inner = type_of(field->type()).schema;
    value = static_cast<const Choice *>(value)->value;
    if (inner == nullptr || !inner->is_choice() || value == nullptr) break;
    field = &chosen(*inner, value);
  }
  return *field;
}

// engine_decode.cpp
Status decode_record_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
Status decode_structured(const Type &type, Reader &in, void **value);
Status decode_list_value(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
Status decode_choice(const Type &type, Reader &in, void **value);
Status decode_choice_rest(const Type &type, Reader &in, const Identifier &identifier, void **value);
bool choice_matches(const Type &type, const Identifier &identifier);

// engine_encode.cpp
std::int64_t structured_content_length(const Type &type, const void *value);
std::int64_t structured_length(const Type &type, const void *value);
Status encode_structured(const Type &type, Writer &out, void *value);
Status encode_structured_content(const Type &type, Writer &out, void *value, std::int64_t length);

// The codec of records, for those that differ from it in a step or two.
constexpr Codec record_codec() {
  return {.free = free_structured,
          .content_length = structured_content_length,
          .length = structured_length,
          .encode_content = encode_structured_content,
          .decode_content = decode_record_content,
          .encode = encode_structured,
          .decode = decode_structured};
}

}  // namespace quarn::asn1

#endif

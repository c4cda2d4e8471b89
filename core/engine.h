// Values of types that have a schema, and the interpreter of schemas.
//
//     record    one block: a pointer for each component, null where it is absent
//     CHOICE    one block: which alternative, and a pointer to its value
//     list      quarn_asn1_list
//
// A component with a default is never absent once a value has been decoded: it holds its default.
// C code knows these values by the names of incomplete types only, so that one layout serves all.
#ifndef QUARN_CORE_ENGINE_H
#define QUARN_CORE_ENGINE_H

#include <cstddef>
#include <cstdint>

#include "core/schema.h"
#include "core/type.h"

namespace quarn::asn1 {

struct Choice {
  std::uint32_t index;  // of the alternative in the schema
  void *value;
};

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

// ---- Inside the engine

// A record with all components absent; null when memory is short.
void *new_record(const Schema &schema);

// Gives an absent component its default, if it has one. False when memory is short.
[[nodiscard]] bool take_default(const Field &field, void **component);
// Whether a component is left out of the encoding: absent, or equal in meaning to its default.
bool left_out(const Field &field, const void *component);

// The field that the value of a CHOICE is of.
inline const Field &chosen(const Schema &schema, const void *value) {
  return schema.fields[static_cast<const Choice *>(value)->index];
}

// engine_decode.cpp
Status decode_record_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
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

}  // namespace quarn::asn1

#endif

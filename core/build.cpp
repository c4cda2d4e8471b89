#include "core/build.h"

#include <cstring>

#include "core/engine.h"
#include "types/null.h"

namespace quarn::asn1 {

namespace {

// What is built can be decoded, so that nothing nests deeper than a decoder goes: the copy stands
// inside one value. Encoding the value for it may fill what the value keeps.
bool copy_component(const Field &field, const void *value, void **copy) {
  return duplicate(type_of(field.type()), const_cast<void *>(value), copy, nullptr, 1).ok();
}

bool are_enough(const Schema &schema, std::span<const void *const> parts) {
  if (parts.size() != schema.fields.size()) return false;
  for (std::size_t i = 0; i < parts.size(); i++) {
    if (parts[i] == nullptr && schema.fields[i].mandatory()) return false;
  }
  return true;
}

// What constructors make and getters look into: a value of the layout, where a type has one.
const Type &made_as(const Type &type) {
  return type.schema->layout == nullptr ? type : *type.schema->layout;
}
const void *seen_in(const Type &type, const void *value) {
  return type.schema->layout == nullptr ? value : laid_out(value);
}
void *finished(const Type &type, Value &made) {
  return type.schema->layout == nullptr ? made.release() : value_of_layout(type, made.get());
}

}  // namespace

void *build_record(quarn_asn1_type_id id, std::span<const void *const> parts) {
  const Type &type = made_as(type_of(id));
  const Schema &schema = *type.schema;
  if (!are_enough(schema, parts)) return nullptr;
  Value record(type, new_record(schema));
  if (record.get() == nullptr) return nullptr;
  void **component = components(record.get());
  for (std::size_t i = 0; i < parts.size(); i++, component++) {
    const Field &field = schema.fields[i];
    const bool made = parts[i] != nullptr ? copy_component(field, parts[i], component)
                                          : take_default(field, component);
    if (!made) return nullptr;
    // Nobody could decode it again: there, it would be the end.
    if (schema.kind != Kind::open_tail && is_end_of_contents(field, *component)) return nullptr;
    if (!has_size(field, *component)) return nullptr;
  }
  const bool checked = schema.restriction != nullptr && !schema.restriction->decode_only;
  if (checked && !allowed(schema, record.get())) return nullptr;
  return finished(type_of(id), record);
}

void *build_alternative(quarn_asn1_type_id id, std::uint64_t number, const void *value) {
  const Type &type = made_as(type_of(id));
  const std::uint32_t index = alternative_index(*type.schema, number);
  if (index == type.schema->fields.size() || value == nullptr) return nullptr;
  Value choice(type, new_choice(*type.schema, index));
  if (choice.get() == nullptr) return nullptr;
  void **component = &static_cast<Choice *>(choice.get())->value;
  if (!copy_component(type.schema->fields[index], value, component)) return nullptr;
  return finished(type_of(id), choice);
}

void *build_null_alternative(quarn_asn1_type_id type, std::uint64_t number) {
  return build_alternative(type, number, null_value());
}

void *part_of(const void *value, std::size_t index) {
  return component(value, index);
}

const void *inferred_layout(const void *value) {
  return laid_out(value);
}

void *alternative_of(quarn_asn1_type_id type, const void *value, std::uint64_t number) {
  return alternative(made_as(type_of(type)), seen_in(type_of(type), value), number);
}

std::uint32_t choice_number(quarn_asn1_type_id type, const void *value) {
  const Type &row = type_of(type);
  return static_cast<std::uint32_t>(alternative_number(made_as(row), seen_in(row, value)));
}

std::uint64_t string_tag(quarn_asn1_type_id type, const void *value) {
  return alternative_number(type_of(type), value);
}

quarn_asn1_octetstring *string_part(const void *value) {
  if (value == nullptr) return nullptr;
  return static_cast<quarn_asn1_octetstring *>(static_cast<const Choice *>(value)->value);
}

int body_octets(quarn_asn1_type_id type, void *value, std::uint8_t *buffer, std::uint64_t *length) {
  if (value == nullptr || length == nullptr) return 0;
  const Kept *body = body_of(type_of(type), value);
  if (body == nullptr) return 0;
  const std::uint64_t room = *length;
  *length = body->count;
  if (buffer == nullptr) return 1;
  if (room < body->count) return 0;
  std::memcpy(buffer, body->octets, body->count);
  return 1;
}

}  // namespace quarn::asn1

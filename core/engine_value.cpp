// Values of structured types: blocks, defaults, freeing, alternatives.
#include "core/engine.h"
#include "quarn_asn1/types.h"
#include "types/codecs.h"
#include "types/list.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

void free_record(const Type &type, void *value) {
  void **component = components(value);
  for (const Field &field : type.schema->fields) free_value(type_of(field.type()), *component++);
  quarn_free(value);
}

void free_list_value(const Type &type, void *value) {
  free_list(static_cast<quarn_asn1_list *>(value), type_of(type.schema->element()));
}

void free_choice(const Type &type, void *value) {
  free_value(type_of(chosen(*type.schema, value).type()), static_cast<Choice *>(value)->value);
  quarn_free(value);
}

std::uint64_t number_of(const Schema &schema, std::uint32_t index) {
  if (schema.kind == Kind::choice) return std::uint64_t{schema.least} + index;
  return type_of(schema.fields[index].type()).tag_number;
}

}  // namespace

void *new_record(const Schema &schema) {
  const std::size_t count = schema.fields.size();
  void **record = util::allocate_array<void *>(count);
  for (std::size_t i = 0; record != nullptr && i < count; i++) record[i] = nullptr;
  return record;
}

bool take_default(const Field &field, void **component) {
  if (*component != nullptr || !field.has_default()) return true;
  if (field.presence == Presence::default_integer) {
    *component = quarn_asn1_integer_value(field.default_value);
  } else {
    *component = field.default_value != 0 ? quarn_asn1_boolean_true() : quarn_asn1_boolean_false();
  }
  return *component != nullptr;
}

bool left_out(const Field &field, const void *component) {
  if (field.presence == Presence::default_boolean) {
    const auto *value = static_cast<const quarn_asn1_boolean *>(component);
    return value == nullptr || quarn_asn1_boolean_istrue(value) == field.default_value;
  }
  if (field.presence == Presence::default_integer) {
    std::int64_t number = 0;
    const auto *value = static_cast<const quarn_asn1_integer *>(component);
    if (value == nullptr) return true;
    return quarn_asn1_integer_getlong(value, &number) == 1 && number == field.default_value;
  }
  return component == nullptr && !field.mandatory();
}

std::uint64_t alternative_number(const Type &type, const void *value) {
  if (value != nullptr) return number_of(*type.schema, static_cast<const Choice *>(value)->index);
  return type.schema->kind == Kind::choice ? UINT32_MAX : 0;
}

void *alternative(const Type &type, const void *value, std::uint64_t number) {
  if (value == nullptr || alternative_number(type, value) != number) return nullptr;
  return static_cast<const Choice *>(value)->value;
}

const Codec kRecordCodec{.free = free_record,
                         .content_length = structured_content_length,
                         .length = nullptr,
                         .encode_content = encode_structured_content,
                         .decode_content = decode_record_content,
                         .encode = encode_structured,
                         .decode = nullptr};

const Codec kListCodec{.free = free_list_value,
                       .content_length = structured_content_length,
                       .length = nullptr,
                       .encode_content = encode_structured_content,
                       .decode_content = decode_list_value,
                       .encode = encode_structured,
                       .decode = nullptr};

const Codec kChoiceCodec{.free = free_choice,
                         .content_length = structured_content_length,
                         .length = structured_length,
                         .encode_content = encode_structured_content,
                         .decode_content = cannot_decode_content,
                         .encode = encode_structured,
                         .decode = decode_choice,
                         .matches = choice_matches,
                         .decode_rest = decode_choice_rest};

}  // namespace quarn::asn1

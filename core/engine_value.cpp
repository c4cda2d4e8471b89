// Values of structured types: blocks, defaults, freeing, alternatives.
#include "core/engine.h"
#include "quarn_asn1/types.h"
#include "types/boolean.h"
#include "types/codecs.h"
#include "types/integer.h"
#include "types/list.h"
#include "types/string.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

void drop_body(const Schema &schema, void *value) {
  if (schema.keeps_body()) kept_by(schema, value)[1].drop();
}

// Frees a value and what is in it. Lists wait until what they are in is gone: the stack grows with
// components alone, which are copies and have a limit, and not with lists, which callers can put
// into one another as deep as they like.
class Freeing {
 public:
  void all(const Type &type, void *value) {
    one(type, value);
    while (!lists_.is_empty()) {
      lists_.free_next([this](const Type &element, void *each) { one(element, each); });
    }
  }

 private:
  void one(const Type &type, void *value) {
    if (value == nullptr) return;
    if (type.schema == nullptr) {
      type.codec->free(type, value);
    } else {
      structured(*type.schema, value);
    }
  }

  // Compilers would unroll the recursion into 13 KiB of code, which saves no time.
  [[gnu::noinline]] void structured(const Schema &schema, void *value) {
    if (schema.is_list()) {
      list(schema, value);
    } else if (schema.is_choice()) {
      one(type_of(chosen(schema, value).type()), static_cast<Choice *>(value)->value);
      quarn_free(value);
    } else {
      record(schema, value);
    }
  }

  void list(const Schema &schema, void *value) {
    quarn_asn1_list *list = list_in(schema, value);
    if (list != nullptr) lists_.add(*list, type_of(schema.element()));
    if (!schema.wraps_list()) return;
    if (schema.layout != nullptr) one(*schema.layout, laid_out(value));
    drop_encoding(schema, value);
    quarn_free(value);
  }

  void record(const Schema &schema, void *value) {
    drop_encoding(schema, value);
    drop_body(schema, value);
    void **component = components(value);
    for (const Field &field : schema.fields) one(type_of(field.type()), *component++);
    quarn_free(value);
  }

  WaitingLists lists_;
};

// Octets behind the components.
std::size_t size_kept(const Schema &schema) {
  switch (schema.keep) {
    case Keep::positions:
      return (schema.fields.size() + kMorePositions) * sizeof(std::int64_t);
    case Keep::layout:
      return sizeof(void *);
    case Keep::encoding:
      return sizeof(Kept);
    case Keep::body:
    case Keep::body_alone:
      return 2 * sizeof(Kept);
    default:
      return 0;
  }
}

std::uint64_t number_of(const Schema &schema, std::uint32_t index) {
  if (!schema.numbered_by_tag) return std::uint64_t{schema.first_number} + index;
  const Field &field = schema.fields[index];
  return field.tagging == Tagging::plain ? type_of(field.type()).tag_number : field.tag;
}

}  // namespace

void free_structured(const Type &type, void *value) {
  Freeing().all(type, value);
}

void *new_record(const Schema &schema) {
  const std::size_t size = schema.fields.size() * sizeof(void *);
  const std::size_t more = size_kept(schema);
  auto *record = util::allocate_array<std::uint8_t>(size + more);
  if (record == nullptr) return nullptr;
  std::memset(record, 0, size);
  std::memset(record + size, schema.keep == Keep::positions ? 0xFF : 0, more);
  return record;
}

constexpr Field kStringAlternatives[] = {
    field("utf8String", QUARN_ASN1_UTF8STRING),
    field("numericString", QUARN_ASN1_NUMERICSTRING),
    field("printableString", QUARN_ASN1_PRINTABLESTRING),
    field("teletexString", QUARN_ASN1_TELETEXSTRING),
    field("videotexString", QUARN_ASN1_VIDEOTEXSTRING),
    field("ia5String", QUARN_ASN1_IA5STRING),
    field("graphicString", QUARN_ASN1_GRAPHICSTRING),
    field("visibleString", QUARN_ASN1_VISIBLESTRING),
    field("generalString", QUARN_ASN1_GENERALSTRING),
    field("universalString", QUARN_ASN1_UNIVERSALSTRING),
    field("bmpString", QUARN_ASN1_BMPSTRING),
};

void *new_choice(const Schema &schema, std::uint32_t index) {
  auto *choice = util::allocate<Choice>();
  if (choice == nullptr) return nullptr;
  const bool of_strings = schema.kind == Kind::string_choice;
  choice->index = of_strings ? schema.fields[index].type_id - QUARN_ASN1_UTF8STRING : index;
  return choice;
}

void *build_list(const Schema &schema) {
  quarn_asn1_list *list = quarn_asn1_list_new();
  if (!schema.wraps_list() || list == nullptr) return list;
  void *record = new_record(schema);
  if (record == nullptr) {
    quarn_asn1_list_free(list, schema.element());
  } else {
    components(record)[0] = list;
  }
  return record;
}

void drop_encoding(const Schema &schema, void *value) {
  if (schema.keeps_octets()) kept_by(schema, value)->drop();
}

namespace {

// Down to the limit of nesting. What lies deeper is never encoded, whatever it keeps.
void drop_kept_to(int levels, const Type &type, void *value) {
  if (levels == 0 || value == nullptr || type.schema == nullptr) return;
  const Schema &schema = *type.schema;
  drop_encoding(schema, value);
  drop_body(schema, value);
  if (schema.is_choice()) {
    const Type &inner = type_of(chosen(schema, value).type());
    drop_kept_to(levels - 1, inner, static_cast<Choice *>(value)->value);
  } else if (schema.is_list()) {
    const Type &inner = type_of(schema.element());
    const quarn_asn1_list *list = list_in(schema, value);
    const std::int32_t count = list == nullptr ? 0 : list->count;
    for (std::int32_t i = 0; i < count; i++) drop_kept_to(levels - 1, inner, list->items[i]);
  } else {
    void **component = components(value);
    for (const Field &field : schema.fields) {
      drop_kept_to(levels - 1, type_of(field.type()), *component++);
    }
  }
}

}  // namespace

void drop_kept(const Type &type, void *value) {
  drop_kept_to(quarn_get_recursive_level(), type, value);
}

bool take_default(const Field &field, void **component) {
  if (*component != nullptr || !field.has_default()) return true;
  if (field.presence == Presence::default_integer) {
    *component = quarn_asn1_integer_value(field.default_value);
  } else if (field.presence == Presence::default_boolean) {
    *component = boolean_value(field.default_value != 0);
  } else {
    Reader in(field.default_octets, static_cast<std::size_t>(field.default_value), nullptr);
    return decode(type_of(field.type()), in, component).ok();
  }
  return *component != nullptr;
}

namespace {

// Whether a value encodes to these octets. One of their length needs no memory to be written.
bool encodes_to(const Type &type, void *value, const std::uint8_t *octets, std::int64_t count) {
  if (length_of(type, value) != count) return false;
  std::uint8_t room[kMostDefaultOctets];
  Writer out({room, static_cast<std::size_t>(count)});
  if (!encode(type, out, value) || out.offset() != count) return false;
  return std::memcmp(room, octets, static_cast<std::size_t>(count)) == 0;
}

}  // namespace

bool left_out(const Field &field, void *component) {
  if (component == nullptr) return !field.mandatory();
  if (!field.has_default()) return false;
  if (field.presence == Presence::default_boolean) {
    const auto *value = static_cast<const quarn_asn1_boolean *>(component);
    return quarn_asn1_boolean_istrue(value) == field.default_value;
  }
  if (field.presence == Presence::default_integer) {
    return number_in(component) == field.default_value;
  }
  return encodes_to(type_of(field.type()), component, field.default_octets, field.default_value);
}

bool has_size(const Field &field, const void *component) {
  if (field.size == 0 || component == nullptr) return true;
  std::uint64_t count = 0;
  if (!measure_string(*static_cast<const StringValue *>(component), count)) return false;
  return field.size > 0 ? count == static_cast<std::uint64_t>(field.size)
                        : count >= static_cast<std::uint64_t>(-field.size);
}

std::uint32_t alternative_index(const Schema &schema, std::uint64_t number) {
  std::uint32_t index = 0;
  while (index < schema.fields.size() && number_of(schema, index) != number) index++;
  return index;
}

std::uint64_t alternative_number(const Type &type, const void *value) {
  const Schema &schema = *type.schema;
  if (schema.kind == Kind::string_choice) {
    return value == nullptr ? 0 : type_of(chosen(schema, value).type()).tag_number;
  }
  if (value == nullptr) return UINT32_MAX;
  return number_of(schema, static_cast<const Choice *>(value)->index);
}

void *alternative(const Type &type, const void *value, std::uint64_t number) {
  if (value == nullptr || alternative_number(type, value) != number) return nullptr;
  return static_cast<const Choice *>(value)->value;
}

const Codec kRecordCodec = record_codec();

const Codec kListCodec = [] {
  Codec codec = record_codec();
  codec.decode_content = decode_list_value;
  return codec;
}();

const Codec kElementCodec = [] {
  Codec codec = record_codec();
  codec.decode_content = cannot_decode_content;
  codec.decode = decode_one_element;
  return codec;
}();

const Codec kChoiceCodec = [] {
  Codec codec = record_codec();
  codec.decode_content = cannot_decode_content;
  codec.decode = decode_choice;
  codec.matches = choice_matches;
  codec.decode_rest = decode_choice_rest;
  return codec;
}();

}  // namespace quarn::asn1

// Reflection: what the schemas say of a type and of its values, in terms that a caller in any
// language can follow without knowing the type.
#include "quarn_asn1/inspect.h"

#include <iterator>

#include "core/engine.h"
#include "quarn_asn1/types.h"
#include "types/codecs.h"
#include "types/time.h"

namespace quarn::asn1 {

namespace {

// Names in ASN.1 of the types without a schema, by id.
constexpr const char *kPrimitiveNames[] = {
    "END-OF-CONTENTS",   "BOOLEAN",         "INTEGER",
    "BIT STRING",        "OCTET STRING",    "NULL",
    "OBJECT IDENTIFIER", "ENUMERATED",      "OCTET STRING",
    "UTF8String",        "NumericString",   "PrintableString",
    "TeletexString",     "VideotexString",  "IA5String",
    "GraphicString",     "VisibleString",   "GeneralString",
    "UniversalString",   "BMPString",       "Time",
    "UTCTime",           "GeneralizedTime", "ANY",
    "SEQUENCE OF ANY",   "SEQUENCE OF ANY", "SET OF ANY",
    "SET OF ANY"};

constexpr Field kUtctimeAlternative = field("utcTime", QUARN_ASN1_UTCTIME);
constexpr Field kGentimeAlternative = field("generalTime", QUARN_ASN1_GENTIME);
constexpr Field kAnyElement = field("element", QUARN_ASN1_ANY);

bool is_any_list(const Type &type) {
  return type.codec == &kAnylistCodec || type.codec == &kAnylist1Codec;
}

int kind_of(const Type &type) {
  if (type.codec == &kTimeCodec) return QUARN_ASN1_KIND_CHOICE;
  if (is_any_list(type)) return QUARN_ASN1_KIND_LIST;
  if (type.schema == nullptr) return QUARN_ASN1_KIND_PRIMITIVE;
  if (type.schema->is_list()) return QUARN_ASN1_KIND_LIST;
  if (!type.schema->is_choice()) return QUARN_ASN1_KIND_RECORD;
  return type.schema->kind == Kind::choice ? QUARN_ASN1_KIND_CHOICE : QUARN_ASN1_KIND_STRINGS;
}

// A type with a tag of its own over the content of a universal one has the latter's values.
quarn_asn1_type_id base_of(const Type &type, quarn_asn1_type_id id) {
  if (static_cast<std::size_t>(id) < std::size(kPrimitiveNames)) return id;
  if (type.codec == &kIntegerCodec) return QUARN_ASN1_INTEGER;
  if (type.codec == &kOctetstringContentCodec) return QUARN_ASN1_OCTETSTRING;
  return type.codec == &kNullContentCodec ? QUARN_ASN1_NULL : id;
}

const char *name_of(const Type &type, quarn_asn1_type_id base) {
  if (type.schema != nullptr) return type.schema->name;
  if (base == QUARN_ASN1_RELATIVE_OID) return "RELATIVE-OID";
  const auto index = static_cast<std::size_t>(base);
  return index < std::size(kPrimitiveNames) ? kPrimitiveNames[index] : type.name;
}

// The fields that the components of a value are described by: one for each of a record, the
// chosen alternative of a CHOICE, the one that all elements of a list share.
const Field &field_of(const Type &type, const void *value, std::size_t index) {
  if (type.codec == &kTimeCodec) {
    const auto *time = static_cast<const quarn_asn1_time *>(value);
    return time->kind == kUtctime ? kUtctimeAlternative : kGentimeAlternative;
  }
  if (is_any_list(type)) return kAnyElement;
  if (type.schema->is_list()) return type.schema->fields[0];
  return type.schema->is_choice() ? chosen(*type.schema, value) : type.schema->fields[index];
}

const quarn_asn1_list *list_of(const Type &type, const void *value) {
  if (type.schema != nullptr) return list_in(*type.schema, value);
  return static_cast<const quarn_asn1_list *>(value);
}

int tagging_of(const Field &field) {
  if (field.tagging == Tagging::plain) return QUARN_ASN1_TAGGING_NONE;
  return field.tagging == Tagging::explicitly ? QUARN_ASN1_TAGGING_EXPLICIT
                                              : QUARN_ASN1_TAGGING_IMPLICIT;
}

void *component_value(const Type &type, const void *value, std::int64_t index) {
  switch (kind_of(type)) {
    case QUARN_ASN1_KIND_LIST: {
      void *element = nullptr;
      static_cast<void>(
          quarn_asn1_list_get(list_of(type, value), static_cast<int>(index), &element));
      return element;
    }
    case QUARN_ASN1_KIND_RECORD:
      return component(value, static_cast<std::size_t>(index));
    default:
      // Both alternatives of Time have the values that Time itself has.
      if (type.codec == &kTimeCodec) return const_cast<void *>(value);
      return static_cast<const Choice *>(value)->value;
  }
}

// A CHOICE that callers have no id for: they see what was chosen.
bool is_inner(const Field &field) {
  return field.type_id >= QUARN_ASN1_TYPE_COUNT;
}

int inner_component(const Field &field, const void *value, quarn_asn1_component *component) {
  const Field &alternative = chosen(*type_of(field.type()).schema, value);
  *component = {.name = field.name,
                .value = static_cast<const Choice *>(value)->value,
                .type_id = alternative.type(),
                .optional = 0,
                .is_default = 0,
                .tagging = tagging_of(alternative),
                .tag = alternative.tag};
  return 1;
}

}  // namespace

}  // namespace quarn::asn1

using namespace quarn::asn1;

extern "C" {

int quarn_asn1_type_shape(int64_t type_id, quarn_asn1_shape *shape) {
  const Type *type = find_type(type_id);
  if (type == nullptr || shape == nullptr) return 0;
  const quarn_asn1_type_id base = base_of(*type, static_cast<quarn_asn1_type_id>(type_id));
  *shape = {name_of(*type, base), base, kind_of(*type)};
  return 1;
}

int64_t quarn_asn1_component_count(int64_t type_id, const void *value) {
  const Type *type = find_type(type_id);
  if (type == nullptr || value == nullptr) return 0;
  switch (kind_of(*type)) {
    case QUARN_ASN1_KIND_RECORD:
      return static_cast<std::int64_t>(type->schema->fields.size());
    case QUARN_ASN1_KIND_LIST:
      return quarn_asn1_list_getsize(list_of(*type, value));
    case QUARN_ASN1_KIND_CHOICE:
    case QUARN_ASN1_KIND_STRINGS:
      return 1;
    default:
      return 0;
  }
}

int quarn_asn1_component_get(int64_t type_id,
                             const void *value,
                             int64_t index,
                             quarn_asn1_component *component) {
  if (component == nullptr || index < 0) return 0;
  if (index >= quarn_asn1_component_count(type_id, value)) return 0;
  const Type &type = *find_type(type_id);
  const Field &field = field_of(type, value, static_cast<std::size_t>(index));
  void *part = component_value(type, value, index);
  if (is_inner(field)) return inner_component(field, part, component);
  const bool record = kind_of(type) == QUARN_ASN1_KIND_RECORD;
  const bool optional = record && !field.mandatory();
  const int tagging = tagging_of(field);
  *component = {field.name,
                part,
                field.type(),
                optional,
                optional && field.has_default() && left_out(field, part),
                tagging,
                tagging == QUARN_ASN1_TAGGING_NONE ? 0 : field.tag};
  return 1;
}

}  // extern "C"

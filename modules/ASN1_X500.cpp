// Names and attributes: what their notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/x500.h"
#include "types/any.h"
#include "types/codecs.h"
#include "types/list.h"
#include "types/octetstring.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_X500"};
constexpr std::size_t kUuidOctets = 16;
constexpr std::int64_t kUuidPairOctets = 36;

// Where the components of these types stand in their values.
enum AttributeTypeAndValue : std::uint8_t { kPrimaryDistinguished = 2, kNameContexts = 3 };
enum AttributeComponent : std::uint8_t { kAttributeValues = 1, kAttributeContexts = 2 };
constexpr std::size_t kContextList = 1;

// RFC 5280 knows neither contexts nor values that are not distinguished.
bool is_pkix(const void *value) {
  const auto *primary =
      static_cast<const quarn_asn1_boolean *>(component(value, kPrimaryDistinguished));
  return component(value, kNameContexts) == nullptr &&
         (primary == nullptr || quarn_asn1_boolean_istrue(primary) == 1);
}

// An attribute with contexts is none of PKCS #10.
bool has_no_contexts(const void *value) {
  return component(value, kAttributeContexts) == nullptr;
}

bool is_uuid(const void *value) {
  const auto *octets = static_cast<const quarn_asn1_octetstring *>(value);
  return octets != nullptr && octets->stream == nullptr && octets->length == kUuidOctets;
}

bool is_uuid_pair(const void *value) {
  return is_uuid(component(value, 0)) && is_uuid(component(value, 1));
}

// The content of a pair has one length only. Callers who hand over another one are told so before
// anything is written.
Status encode_uuid_pair_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  if (!out.is_null() && value != nullptr && length != kIndefinite && length != kUuidPairOctets) {
    return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
  }
  return encode_structured_content(type, out, value, length);
}

int copy_uuid(const quarn_x500uuidpair *pair, std::size_t index, std::uint8_t *out) {
  if (pair == nullptr || out == nullptr) return 0;
  const auto *uuid = static_cast<const quarn_asn1_octetstring *>(component(pair, index));
  std::memcpy(out, uuid->octets(), kUuidOctets);
  return 1;
}

// Puts values with contexts into order: first the contexts of each, which its encoding consists of.
int sort_contexts(void *values, quarn_asn1_type_id item_type) {
  auto *items = static_cast<quarn_asn1_list *>(values);
  if (items == nullptr) return 1;
  for (std::int32_t i = 0; i < items->count; i++) {
    auto *contexts = static_cast<quarn_asn1_list *>(component(items->items[i], kContextList));
    const int result = quarn_asn1_list_sort_setof(contexts, QUARN_ASN1_X500CONTEXT);
    if (result != 1) return result;
  }
  return quarn_asn1_list_sort_setof(items, item_type);
}

}  // namespace

const Restriction kPkixAttributeTypeAndValue{.allows = is_pkix, .code = 0x10274};
const Restriction kPkcs10Attribute{.allows = has_no_contexts, .code = 0x1027d, .in_length = true};
const Restriction kUuidPair{.allows = is_uuid_pair, .code = QUARN_ASN1_ERROR_ITEM_LENGTH};

const Codec kUuidPairCodec = [] {
  Codec codec = record_codec();
  codec.encode_content = encode_uuid_pair_content;
  return codec;
}();

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_X500_api.inc"

quarn_x500attrtypedistval *quarn_pkixattrtypeval_new(const quarn_asn1_oid *type,
                                                     const quarn_asn1_any *value) {
  return quarn_x500attrtypedistval_new(type, value, nullptr, nullptr);
}

// Contexts come from decoding only: no constructor makes values with them.
quarn_x500attribute *quarn_x500attribute_new(const quarn_asn1_oid *type,
                                             const quarn_asn1_list *values) {
  const quarn_asn1_list *no_contexts = nullptr;
  return build<quarn_x500attribute>(QUARN_ASN1_X500ATTRIBUTE, type, values, no_contexts);
}

quarn_x500name *quarn_x500name_new(void) {
  const Type &type = type_of(QUARN_ASN1_X500NAME);
  Value name(type, new_record(*type.schema));
  if (name.get() == nullptr) return nullptr;
  components(name.get())[0] = quarn_asn1_list_new();
  if (components(name.get())[0] == nullptr) return nullptr;
  return static_cast<quarn_x500name *>(name.release());
}

quarn_asn1_list *quarn_x500name_getdn(const quarn_x500name *name) {
  return static_cast<quarn_asn1_list *>(component(name, 0));
}

int quarn_x500name_addrdn(quarn_x500name *name, quarn_asn1_list *rdn, int copy) {
  if (name == nullptr || rdn == nullptr) return 0;
  const Type &type = type_of(QUARN_ASN1_X500RDN);
  Value added(type, copy != 0 ? quarn_asn1_dupobject(QUARN_ASN1_X500RDN, rdn, nullptr) : rdn);
  if (!append(*quarn_x500name_getdn(name), added.get())) {
    if (copy == 0) static_cast<void>(added.release());  // still the caller's
    return 0;
  }
  static_cast<void>(added.release());
  drop_encoding(*type_of(QUARN_ASN1_X500NAME).schema, name);
  return 1;
}

int quarn_x500RDN_sort(quarn_asn1_list *rdn) {
  for (std::int32_t i = 0; rdn != nullptr && i < rdn->count; i++) {
    const int result = sort_contexts(component(rdn->items[i], kNameContexts),
                                     QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM);
    if (result != 1) return result;
  }
  return quarn_asn1_list_sort_setof(rdn, QUARN_ASN1_X500ATTRTYPEDISTVAL);
}

int quarn_x500name_sort(quarn_x500name *name) {
  if (name == nullptr) return 0;
  // Also when sorting stops half-way: the kept octets no longer tell the order.
  drop_encoding(*type_of(QUARN_ASN1_X500NAME).schema, name);
  const quarn_asn1_list *rdns = quarn_x500name_getdn(name);
  for (std::int32_t i = 0; i < rdns->count; i++) {
    const int result = quarn_x500RDN_sort(static_cast<quarn_asn1_list *>(rdns->items[i]));
    if (result != 1) return result;
  }
  return 1;
}

int quarn_x500attribute_sort(quarn_x500attribute *attribute) {
  if (attribute == nullptr) return 0;
  const int result = sort_contexts(component(attribute, kAttributeContexts),
                                   QUARN_ASN1_X500ATTRVALUESWITHCONTEXTITEM);
  if (result != 1) return result;
  return quarn_asn1_list_sort_setof(
      static_cast<quarn_asn1_list *>(component(attribute, kAttributeValues)), QUARN_ASN1_ANY);
}

quarn_x500uuidpair *quarn_x500uuidpair_new(const uint8_t *issuer, const uint8_t *subject) {
  if (issuer == nullptr || subject == nullptr) return nullptr;
  const Type &type = type_of(QUARN_ASN1_X500UUIDPAIR);
  Value pair(type, new_record(*type.schema));
  if (pair.get() == nullptr) return nullptr;
  void **uuids = components(pair.get());
  uuids[0] = make_octetstring(issuer, kUuidOctets);
  uuids[1] = make_octetstring(subject, kUuidOctets);
  if (uuids[0] == nullptr || uuids[1] == nullptr) return nullptr;
  return static_cast<quarn_x500uuidpair *>(pair.release());
}

int quarn_x500uuidpair_getissueruuid(const quarn_x500uuidpair *pair, uint8_t *out) {
  return copy_uuid(pair, 0, out);
}

int quarn_x500uuidpair_getsubjectuuid(const quarn_x500uuidpair *pair, uint8_t *out) {
  return copy_uuid(pair, 1, out);
}

// BOOLEAN (X.690, 8.2).
//
//     01 01 FF      TRUE, the only octet that DER knows for it
//     01 01 01      TRUE as well: read, kept for whoever asks, and written as FF
#include "types/boolean.h"

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/content.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Boolean.cpp"};

quarn_asn1_boolean *new_boolean(std::uint32_t cell) {
  auto *value = util::allocate<quarn_asn1_boolean>();
  if (value != nullptr) value->cell = cell;
  return value;
}

// Most values of many records are defaults. Nothing writes to these.
quarn_asn1_boolean kDefaults[] = {{0}, {0xFF}};

void free_boolean(const Type & /*type*/, void *value) {
  if (value != &kDefaults[0] && value != &kDefaults[1]) quarn_free(value);
}

// Whatever the value, null included.
std::int64_t boolean_length(const Type & /*type*/, const void * /*value*/) {
  return 1;
}

Status encode_boolean_content(const Type & /*type*/,
                              Writer &out,
                              void *value,
                              std::int64_t length) {
  const Status status = expect_length(out, value, length, 1, kUnit);
  if (!status) return status;
  const std::uint8_t octet = static_cast<quarn_asn1_boolean *>(value)->cell != 0 ? 0xFF : 0x00;
  return out.octets(&octet, 1);
}

Status decode_boolean_content(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  Status status = expect_primitive(in, value, primitive, length, kUnit);
  if (!status) return status;
  if (length != 1) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
  std::uint8_t octet = 0;
  status = in.octet(octet);
  if (!status) return status;
  *value = new_boolean(octet);
  if (*value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  return status;
}

}  // namespace

quarn_asn1_boolean *default_boolean(bool value) {
  return &kDefaults[value ? 1 : 0];
}

const Codec kBooleanCodec = {
    free_boolean,           boolean_length, nullptr, encode_boolean_content,
    decode_boolean_content, nullptr,        nullptr};

}  // namespace quarn::asn1

quarn_asn1_boolean *quarn_asn1_boolean_true(void) {
  return quarn::asn1::new_boolean(0xFF);
}

quarn_asn1_boolean *quarn_asn1_boolean_false(void) {
  return quarn::asn1::new_boolean(0);
}

int quarn_asn1_boolean_istrue(const quarn_asn1_boolean *v) {
  return v != nullptr && v->cell != 0 ? 1 : 0;
}

int quarn_asn1_boolean_getvalue(const quarn_asn1_boolean *v, uint32_t *cell) {
  if (v == nullptr || cell == nullptr) return 0;
  *cell = v->cell;
  return 1;
}

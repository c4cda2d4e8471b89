// BOOLEAN (X.690, 8.2).
//
//     01 01 FF      TRUE, the only octet that DER knows for it
//     01 01 01      TRUE as well: read, kept for whoever asks, and written as FF
//
// There are as many values as octets, which all exist already: structures are full of them, most
// being defaults.
#include "types/boolean.h"

#include <array>

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/content.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Boolean.cpp"};

constexpr std::array<quarn_asn1_boolean, 256> every_value() {
  std::array<quarn_asn1_boolean, 256> values{};
  for (std::uint32_t cell = 0; cell < values.size(); cell++) values[cell].cell = cell;
  return values;
}

constexpr std::array<quarn_asn1_boolean, 256> kValues = every_value();

// Values are not changed once they are made.
quarn_asn1_boolean *value_of(std::uint8_t cell) {
  return const_cast<quarn_asn1_boolean *>(&kValues[cell]);
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
  *value = value_of(octet);
  return status;
}

}  // namespace

quarn_asn1_boolean *boolean_value(bool value) {
  return value_of(value ? 0xFF : 0);
}

const Codec kBooleanCodec = {
    free_nothing,           boolean_length, nullptr, encode_boolean_content,
    decode_boolean_content, nullptr,        nullptr};

}  // namespace quarn::asn1

quarn_asn1_boolean *quarn_asn1_boolean_true(void) {
  return quarn::asn1::boolean_value(true);
}

quarn_asn1_boolean *quarn_asn1_boolean_false(void) {
  return quarn::asn1::boolean_value(false);
}

int quarn_asn1_boolean_istrue(const quarn_asn1_boolean *v) {
  return v != nullptr && v->cell != 0 ? 1 : 0;
}

int quarn_asn1_boolean_getvalue(const quarn_asn1_boolean *v, uint32_t *cell) {
  if (v == nullptr || cell == nullptr) return 0;
  *cell = v->cell;
  return 1;
}

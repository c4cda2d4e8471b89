// INTEGER and ENUMERATED (X.690, 8.3 and 8.4): two's complement octets, of any number.
//
//     02 02 00 80      128
//     02 02 00 7F      127 in one octet too many: accepted with a record, and kept as it is, since
//                      signatures were made over it
#include "types/integer.h"

#include <cstring>

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/content.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Integer.cpp"};

// Whether the first of several octets only repeats the sign that the second has already.
bool first_is_superfluous(const std::uint8_t *octets, std::uint64_t count) {
  if (count < 2) return false;
  const bool negative = (octets[1] & 0x80u) != 0;
  return octets[0] == (negative ? 0xFF : 0x00);
}

// Drops leading octets that only repeat the sign.
void strip(const std::uint8_t *&octets, std::uint64_t &count) {
  while (first_is_superfluous(octets, count)) {
    octets++;
    count--;
  }
}

quarn_asn1_integer *new_integer(const std::uint8_t *octets, std::uint64_t count) {
  auto *value = util::allocate<quarn_asn1_integer>(count);
  if (value == nullptr) return nullptr;
  value->length = static_cast<std::int64_t>(count);
  std::memcpy(value->octets(), octets, count);
  return value;
}

void free_integer(const Type & /*type*/, void *value) {
  quarn_free(value);
}

std::int64_t integer_length(const Type & /*type*/, const void *value) {
  return quarn_asn1_integer_getlength(static_cast<const quarn_asn1_integer *>(value));
}

Status encode_integer_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  const Status status = expect_length(out, value, length, integer_length(type, value), kUnit);
  if (!status) return status;
  return out.octets(static_cast<quarn_asn1_integer *>(value)->octets(),
                    static_cast<std::uint64_t>(length));
}

Status decode_integer_content(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  Status status = expect_some_primitive(in, value, primitive, length, kUnit);
  if (!status) return status;
  Content content;
  status = content.read(in, static_cast<std::uint64_t>(length), kUnit);
  if (!status) return status;
  *value = new_integer(content.data(), content.size());
  if (*value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  if (first_is_superfluous(content.data(), content.size())) {
    kUnit.record(in.ctx(), QUARN_ASN1_ERROR_NOT_MINIMAL, in.offset());
  }
  return status;
}

}  // namespace

const Codec kIntegerCodec = {
    free_integer,           integer_length, nullptr, encode_integer_content,
    decode_integer_content, nullptr,        nullptr};

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_integer *quarn_asn1_integer_new(const uint8_t *octets, int64_t length) {
  if (octets == nullptr || length < 1) return nullptr;
  auto count = static_cast<std::uint64_t>(length);
  strip(octets, count);
  return new_integer(octets, count);
}

quarn_asn1_integer *quarn_asn1_unsigned_integer_new(const uint8_t *octets, int64_t length) {
  if (octets == nullptr || length < 1) return nullptr;
  if ((octets[0] & 0x80u) == 0) return quarn_asn1_integer_new(octets, length);
  const auto count = static_cast<std::uint64_t>(length);
  auto *value = quarn::util::allocate<quarn_asn1_integer>(count + 1);
  if (value == nullptr) return nullptr;
  value->length = length + 1;
  value->octets()[0] = 0x00;
  std::memcpy(value->octets() + 1, octets, count);
  return value;
}

quarn_asn1_integer *quarn_asn1_integer_newbigint(const quarn_biginteger *b) {
  quarn_data_blob *blob = quarn_biginteger_getdata(b);
  if (blob == nullptr) return nullptr;
  quarn_asn1_integer *value = quarn_asn1_integer_new(blob->data, blob->length);
  quarn_data_blob_free(blob);
  return value;
}

quarn_asn1_integer *quarn_asn1_integer_value(int64_t n) {
  std::uint8_t octets[8];
  auto bits = static_cast<std::uint64_t>(n);
  for (int i = 7; i >= 0; i--, bits >>= 8) octets[i] = static_cast<std::uint8_t>(bits);
  return quarn_asn1_integer_new(octets, sizeof octets);
}

quarn_asn1_integer *quarn_asn1_enum_value(int64_t n) {
  return quarn_asn1_integer_value(n);
}

quarn_biginteger *quarn_asn1_integer_getbigintger(const quarn_asn1_integer *v, quarn_err_ctx *ctx) {
  return v == nullptr ? nullptr : quarn_biginteger_newdata(v->octets(), v->length, ctx);
}

int quarn_asn1_integer_getlong(const quarn_asn1_integer *v, int64_t *n) {
  if (v == nullptr || n == nullptr) return 0;
  const std::uint8_t *octets = v->octets();
  auto count = static_cast<std::uint64_t>(v->length);
  strip(octets, count);
  if (count > 8) return 0;
  std::uint64_t bits = (octets[0] & 0x80u) != 0 ? UINT64_MAX : 0;
  for (std::uint64_t i = 0; i < count; i++) bits = bits << 8 | octets[i];
  const auto number = static_cast<std::int64_t>(bits);
  // Callers rely on being able to negate what they get.
  if (number == INT64_MIN) return 0;
  *n = number;
  return 1;
}

int quarn_asn1_enum_getlong(const quarn_asn1_integer *v, int64_t *n) {
  return quarn_asn1_integer_getlong(v, n);
}

int64_t quarn_asn1_integer_getlength(const quarn_asn1_integer *v) {
  return v == nullptr ? kNoLength : v->length;
}

int quarn_asn1_integer_get(const quarn_asn1_integer *v, uint8_t *buffer) {
  if (v == nullptr || buffer == nullptr) return 0;
  std::memcpy(buffer, v->octets(), static_cast<std::size_t>(v->length));
  return 1;
}

int quarn_asn1_integer_equals(const quarn_asn1_integer *a, const quarn_asn1_integer *b) {
  return quarn_asn1_integer_encodecmp(a, b) == 0 ? 1 : 0;
}

int quarn_asn1_integer_encodecmp(const quarn_asn1_integer *a, const quarn_asn1_integer *b) {
  if (a == nullptr || b == nullptr) return (a != nullptr) - (b != nullptr);
  if (a->length != b->length) return a->length < b->length ? -1 : 1;
  const int order = std::memcmp(a->octets(), b->octets(), static_cast<std::size_t>(a->length));
  return (order > 0) - (order < 0);
}

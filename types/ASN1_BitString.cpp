// BIT STRING: signatures, public keys, and lists of named bits.
//
//     03 03 06 A0 40        1010 0000 01 -- bits 0, 2 and 9; 6 bits of the last octet do not count
//
// Bit 0 is the top bit of the first octet. In segments only the last may have unused bits.
#include <algorithm>

#include "core/adapter.h"
#include "types/bitstring.h"
#include "types/codecs.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_BitString"};
constexpr int kDecodeFailed = 0x10214;  // decode_error() of BIT STRING, whatever it is part of
constexpr std::uint32_t kMostUnusedBits = 7;

}  // namespace

const SegmentRules kBitRules{
    .unit = kUnit,
    .tag_number = 3,
    .counts_unused_bits = true,
    .empty_is_a_level = true,
    .strict_code = 0,
    .indefinite_code = kDecodeFailed,
    .cut_end_code = 0,
    .bad_end_code = QUARN_ASN1_ERROR_READ_END,
    .write_length_code = QUARN_ASN1_ERROR_WRITE_LENGTH,
};

namespace {

// Of the data octets.
std::int64_t data_length(const StringValue *value) {
  std::uint64_t count = 0;
  if (value == nullptr || !measure_string(*value, count)) return kNoLength;
  if (count == kUnknown) return kIndefinite;
  // One octet more is written.
  return count < INT64_MAX ? static_cast<std::int64_t>(count) : kNoLength;
}

std::int64_t content_length(const Type & /*type*/, const void *value) {
  const std::int64_t length = data_length(static_cast<const StringValue *>(value));
  return length < 0 ? length : length + 1;
}

Status encode_bits(const Type & /*type*/, Writer &out, void *value, std::int64_t length) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  auto &string = *static_cast<StringValue *>(value);
  if (length == kIndefinite) return write_segments(kBitRules, out, string);
  if (length < 1) return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
  const auto unused = static_cast<std::uint8_t>(string.unused_bits);
  if (const Status status = out.octets(&unused, 1); !status) return status;
  return write_string(kBitRules, out, string, static_cast<std::uint64_t>(length - 1));
}

Status decode_bits(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  return decode_string_content(kBitRules, in, value, primitive, length);
}

Status encode_bitstring(const Type &type, Writer &out, void *value) {
  return encode_string(kBitRules, type, out, value, QUARN_ASN1_ERROR_LENGTH, 0);
}

Status decode_bitstring(const Type & /*type*/, Reader &in, void **value) {
  return decode_string(kBitRules, in, value);
}

quarn_asn1_bitstring *as_bitstring(StringValue *value, std::uint32_t unused_bits) {
  if (value != nullptr) value->unused_bits = unused_bits;
  return static_cast<quarn_asn1_bitstring *>(value);
}

}  // namespace

const Codec kBitstringCodec{free_string, content_length,   nullptr,         encode_bits,
                            decode_bits, encode_bitstring, decode_bitstring};

quarn_asn1_bitstring *make_bitstring(std::uint32_t unused_bits,
                                     const std::uint8_t *octets,
                                     std::size_t count) {
  return as_bitstring(new_string(octets, count), unused_bits);
}

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_bitstring *quarn_asn1_bitstring_new(uint32_t unused_bits,
                                               const uint8_t *octets,
                                               int64_t length) {
  if (unused_bits > kMostUnusedBits || length < 0) return nullptr;
  if ((octets == nullptr && length > 0) || (unused_bits > 0 && length == 0)) return nullptr;
  quarn_asn1_bitstring *value =
      make_bitstring(unused_bits, octets, static_cast<std::size_t>(length));
  if (value != nullptr && unused_bits > 0) {
    std::uint8_t &last = value->octets()[length - 1];
    last = static_cast<std::uint8_t>(last & 0xFFu << unused_bits);
  }
  return value;
}

quarn_asn1_bitstring *quarn_asn1_bitstring_newbits(const int32_t *positions, int32_t count) {
  if (count < 0) return nullptr;
  if (positions == nullptr) return make_bitstring(0, nullptr, 0);
  // The first position counts always; callers rely on it.
  const int32_t *end = positions + std::max(count, 1);
  const auto [lowest, highest] = std::minmax_element(positions, end);
  if (*lowest < 0) return nullptr;
  const auto last = static_cast<std::uint32_t>(*highest);
  StringValue *value = new_string(last / 8 + std::size_t{1});
  if (value == nullptr) return nullptr;
  std::memset(value->octets(), 0, value->length);
  std::for_each(positions, end, [value](int32_t position) {
    const auto bit = static_cast<std::uint32_t>(position);
    std::uint8_t &octet = value->octets()[bit / 8];
    octet = static_cast<std::uint8_t>(octet | 0x80u >> bit % 8);
  });
  return as_bitstring(value, 7 - last % 8);
}

quarn_asn1_bitstring *quarn_asn1_bitstring_newbitset(const quarn_bitset *b) {
  std::uint32_t unused_bits = 0;
  quarn_data_blob *blob = quarn_bitset_getdata(b, &unused_bits);
  if (blob == nullptr) return nullptr;
  quarn_asn1_bitstring *value = quarn_asn1_bitstring_new(unused_bits, blob->data, blob->length);
  quarn_data_blob_free(blob);
  return value;
}

quarn_bitset *quarn_asn1_bitstring_getbitset(quarn_asn1_bitstring *v) {
  const std::int64_t length = data_length(v);
  if (length < 0 || (length == 0 && v->unused_bits > 0)) return nullptr;
  if (length == 0) return quarn_bitset_empty();
  Buffer storage;
  const std::uint8_t *octets = nullptr;
  if (!view_string(*v, static_cast<std::uint64_t>(length), storage, octets, kUnit)) return nullptr;
  return quarn_bitset_new(v->unused_bits, octets, length);
}

// Like a piecewise read of the one octet, it moves the position from which the next goes on.
int quarn_asn1_bitstring_getbit(quarn_asn1_bitstring *v, int64_t index) {
  const std::int64_t length = data_length(v);
  if (index < 0 || index / 8 >= length) return 0;
  const bool in_last = index / 8 == length - 1;
  if (in_last && index % 8 >= 8 - std::int64_t{v->unused_bits}) return 0;
  auto position = static_cast<std::uint64_t>(index / 8);
  std::uint8_t octet = 0;
  if (v->stream == nullptr) {
    octet = v->octets()[position];
    v->position = position + 1;
  } else if (quarn_stream_ctrl(v->stream, QUARN_STREAM_SEEK, &position, nullptr) != 1 ||
             quarn_stream_readn(v->stream, &octet, 1, nullptr) != 1) {
    return 0;
  }
  return octet >> (7 - index % 8) & 1;
}

int quarn_asn1_bitstring_getunusedbits(const quarn_asn1_bitstring *v, uint32_t *unused_bits) {
  if (v == nullptr || unused_bits == nullptr) return 0;
  *unused_bits = v->unused_bits;
  return 1;
}

int64_t quarn_asn1_bitstring_getlength(const quarn_asn1_bitstring *v) {
  return data_length(v);
}

int quarn_asn1_bitstring_getall(quarn_asn1_bitstring *v, uint8_t *buffer) {
  return copy_string(v, data_length(v), buffer, kUnit).raw();
}

int quarn_asn1_bitstring_get(quarn_asn1_bitstring *v,
                             int mode,
                             uint8_t *buffer,
                             int64_t size,
                             uint64_t *count,
                             quarn_err_ctx *ctx) {
  return read_string(v, mode, buffer, size, count, kUnit, ctx).raw();
}

int quarn_asn1_bitstring_getobject(quarn_asn1_bitstring *v,
                                   int64_t type_id,
                                   void **value,
                                   quarn_err_ctx *ctx) {
  return decode_inside(v, type_id, value, kUnit, ctx).raw();
}

int quarn_asn1_decode_bitstring(quarn_stream *s,
                                quarn_asn1_bitstring **v,
                                uint64_t *consumed,
                                quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx,
                 [=](Reader &in) { return decode_string(kBitRules, in, untyped(v)); });
}

int quarn_asn1_decode_bitstring_ex(quarn_stream *s,
                                   quarn_stream *destination,
                                   quarn_asn1_bitstring **v,
                                   uint64_t *consumed,
                                   quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx, [=](Reader &in) {
    return decode_string_into(kBitRules, in, destination, untyped(v));
  });
}

int quarn_asn1_decode_bitstring_content_ex(quarn_stream *s,
                                           quarn_stream *destination,
                                           quarn_asn1_bitstring **v,
                                           int32_t primitive,
                                           int64_t length,
                                           uint64_t *consumed,
                                           quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx, [=](Reader &in) {
    return decode_string_content_into(kBitRules, in, destination, untyped(v), primitive != 0,
                                      length);
  });
}

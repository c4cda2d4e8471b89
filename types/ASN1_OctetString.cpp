// OCTET STRING, and the character strings, which are the same under other tags: which characters
// they hold is not checked, neither when they are read nor when they are written.
#include "core/adapter.h"
#include "types/codecs.h"
#include "types/octetstring.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_OctetString"};
constexpr int kDecodeFailed = 0x10219;  // decode_error() of OCTET STRING, whatever it is part of

// Content that is not in memory is written in segments from this size on.
constexpr std::uint64_t kSegmentedFrom = 0x500000;

}  // namespace

const SegmentRules kOctetRules{
    .unit = kUnit,
    .tag_number = 4,
    .counts_unused_bits = false,
    .empty_is_a_level = false,
    .strict_code = kDecodeFailed,
    .indefinite_code = 0,
    .cut_end_code = QUARN_ASN1_ERROR_READ_END,
    .bad_end_code = 0,
    .write_length_code = QUARN_ASN1_ERROR_WRITE_IDENTIFIER,
};

namespace {

std::int64_t octet_length(const StringValue *value) {
  std::uint64_t count = 0;
  if (value == nullptr || !measure_string(*value, count)) return kNoLength;
  const bool in_memory =
      value->stream == nullptr || quarn_stream_gettype(value->stream) == QUARN_STREAM_MEMORY;
  return in_memory || count < kSegmentedFrom ? static_cast<std::int64_t>(count) : kIndefinite;
}

std::int64_t content_length(const Type & /*type*/, const void *value) {
  return octet_length(static_cast<const StringValue *>(value));
}

Status encode_octets(const Type & /*type*/, Writer &out, void *value, std::int64_t length) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  auto &string = *static_cast<StringValue *>(value);
  if (length == kIndefinite) return write_segments(kOctetRules, out, string);
  if (length < 0) return kUnit.fail(out.ctx(), QUARN_ERROR_COUNT, out.offset());
  return write_string(kOctetRules, out, string, static_cast<std::uint64_t>(length));
}

Status decode_octets(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  return decode_string_content(kOctetRules, in, value, primitive, length);
}

Status encode_octetstring(const Type &type, Writer &out, void *value) {
  return encode_string(kOctetRules, type, out, value, QUARN_ASN1_ERROR_LENGTH, 0);
}

Status decode_octetstring(const Type & /*type*/, Reader &in, void **value) {
  return decode_string(kOctetRules, in, value);
}

Status encode_characterstring(const Type &type, Writer &out, void *value) {
  return encode_string(kOctetRules, type, out, value, QUARN_ASN1_ERROR_MEASURE,
                       QUARN_ASN1_ERROR_WRITE_IDENTIFIER);
}

Status decode_characterstring(const Type &type, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null()) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  Identifier identifier{};
  Status status = read_identifier(in, identifier);
  if (!status) {
    return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
  }
  if (!identifier.is(type.tag_class, type.tag_number)) {
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  std::int64_t length = 0;
  status = read_length(in, length);
  if (!status) return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
  return decode_octets(type, in, value, identifier.primitive, length);
}

}  // namespace

const Codec kOctetstringCodec{free_string,   content_length,     nullptr,           encode_octets,
                              decode_octets, encode_octetstring, decode_octetstring};
const Codec kCharacterstringCodec{free_string,           content_length, nullptr,
                                  encode_octets,         decode_octets,  encode_characterstring,
                                  decode_characterstring};
const Codec kStringCodec{free_string,   content_length, nullptr,      encode_octets,
                         decode_octets, cannot_encode,  cannot_decode};
const Codec kOctetstringContentCodec{free_string,   content_length, nullptr, encode_octets,
                                     decode_octets, nullptr,        nullptr};

quarn_asn1_octetstring *make_octetstring(const std::uint8_t *octets, std::size_t count) {
  return static_cast<quarn_asn1_octetstring *>(new_string(octets, count));
}

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_octetstring *quarn_asn1_octetstring_new(const uint8_t *octets, int64_t length) {
  if (length < 0 || (octets == nullptr && length > 0)) return nullptr;
  return make_octetstring(octets, static_cast<std::size_t>(length));
}

quarn_asn1_octetstring *quarn_asn1_string_new(const uint8_t *octets, int64_t length) {
  return quarn_asn1_octetstring_new(octets, length);
}

quarn_asn1_octetstring *quarn_asn1_octetstring_newstream(quarn_stream *s) {
  if (s == nullptr) return nullptr;
  quarn_asn1_octetstring *value = make_octetstring(nullptr, 0);
  if (value != nullptr) value->stream = s;
  return value;
}

int64_t quarn_asn1_octetstring_length(const quarn_asn1_octetstring *v) {
  return octet_length(v);
}

int64_t quarn_asn1_octetstring_getlength(const quarn_asn1_octetstring *v) {
  return octet_length(v);
}

int64_t quarn_asn1_string_getlength(const quarn_asn1_octetstring *v) {
  return octet_length(v);
}

int quarn_asn1_octetstring_getall(quarn_asn1_octetstring *v, uint8_t *buffer) {
  return copy_string(v, octet_length(v), buffer, kUnit).raw();
}

int quarn_asn1_string_get(quarn_asn1_octetstring *v, uint8_t *buffer) {
  return quarn_asn1_octetstring_getall(v, buffer);
}

int quarn_asn1_octetstring_get(quarn_asn1_octetstring *v,
                               int mode,
                               uint8_t *buffer,
                               int64_t size,
                               uint64_t *count,
                               quarn_err_ctx *ctx) {
  return read_string(v, mode, buffer, size, count, kUnit, ctx).raw();
}

quarn_data_blob *quarn_asn1_octetstring_getblob(quarn_asn1_octetstring *v) {
  const std::int64_t length = octet_length(v);
  if (length < 0) return nullptr;
  Buffer storage;
  const std::uint8_t *octets = nullptr;
  if (!view_string(*v, static_cast<std::uint64_t>(length), storage, octets, kUnit)) return nullptr;
  return quarn_data_blob_new(octets, length);
}

int quarn_asn1_octetstring_getobject(quarn_asn1_octetstring *v,
                                     int64_t type_id,
                                     void **value,
                                     quarn_err_ctx *ctx) {
  return decode_inside(v, type_id, value, kUnit, ctx).raw();
}

int quarn_asn1_encode_octetstring_init(quarn_stream *s) {
  return writing(s, nullptr, nullptr, [](Writer &out) {
           const Status status = write_identifier(out, kUniversal, false, kOctetRules.tag_number);
           return status ? write_length(out, kIndefinite) : status;
         }) == 1;
}

int quarn_asn1_encode_octetstring_update(quarn_stream *s, const uint8_t *octets, int64_t length) {
  if (length < 0 || (octets == nullptr && length > 0)) return 0;
  return writing(s, nullptr, nullptr, [=](Writer &out) {
           return write_segment(kOctetRules, out, octets, static_cast<std::uint64_t>(length), 0);
         }) == 1;
}

int quarn_asn1_encode_octetstring_end(quarn_stream *s) {
  return writing(s, nullptr, nullptr, write_end_of_contents) == 1;
}

int quarn_asn1_decode_octetstring(quarn_stream *s,
                                  quarn_asn1_octetstring **v,
                                  uint64_t *consumed,
                                  quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx,
                 [=](Reader &in) { return decode_string(kOctetRules, in, untyped(v)); });
}

int quarn_asn1_decode_octetstring_ex(quarn_stream *s,
                                     quarn_stream *destination,
                                     quarn_asn1_octetstring **v,
                                     uint64_t *consumed,
                                     quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx, [=](Reader &in) {
    return decode_string_into(kOctetRules, in, destination, untyped(v));
  });
}

int quarn_asn1_decode_octetstring_content_ex(quarn_stream *s,
                                             quarn_stream *destination,
                                             quarn_asn1_octetstring **v,
                                             int32_t primitive,
                                             int64_t length,
                                             uint64_t *consumed,
                                             quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx, [=](Reader &in) {
    return decode_string_content_into(kOctetRules, in, destination, untyped(v), primitive != 0,
                                      length);
  });
}

int quarn_asn1_encode_numbericstring(quarn_stream *s,
                                     void *value,
                                     uint64_t *written,
                                     quarn_err_ctx *ctx) {
  return quarn_asn1_encode(s, QUARN_ASN1_NUMERICSTRING, value, written, ctx);
}

int quarn_asn1_decode_numbericstring(quarn_stream *s,
                                     void **value,
                                     uint64_t *consumed,
                                     quarn_err_ctx *ctx) {
  return quarn_asn1_decode(s, QUARN_ASN1_NUMERICSTRING, value, consumed, ctx);
}

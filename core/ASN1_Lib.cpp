// The codec of identifiers, lengths and end-of-contents, its C interface, whole values from and to
// memory, and the version.
#include "core/adapter.h"
#include "core/header.h"
#include "core/type.h"
#include "quarn_asn1/core.h"
#include "types/codecs.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Lib"};

// A tag number that exceeds this has no room for seven more bits.
constexpr std::uint64_t kMostBeforeLastGroup = 0xffffffffffffff;
// A length that exceeds this has no room for eight more bits within a signed 64-bit number.
constexpr std::uint64_t kMostBeforeLastOctet = 0x7fffffffffffff;

constexpr std::uint8_t kEndOfContents[] = {0, 0};

// Octets that a number fills when each takes `bits` of it; at least one.
constexpr int groups_of(std::uint64_t number, int bits) {
  int groups = 1;
  while ((number >>= bits) != 0) groups++;
  return groups;
}

}  // namespace

Status read_long_identifier(Reader &in, Identifier &out) {
  std::uint64_t number = 0;
  for (;;) {
    std::uint8_t octet = 0;
    if (const Status status = in.octet(octet); !status) return status;
    number = number << 7 | (octet & 0x7Fu);
    if ((octet & 0x80u) == 0) break;
    if (number > kMostBeforeLastGroup) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TOO_LARGE, in.offset());
    }
  }
  if (number < 0x1F) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TAG_NUMBER, in.offset());
  out.number = number;
  return Status::success();
}

// An overflow carries the code of a tag number that is too large, as callers know it.
Status read_long_length(Reader &in, std::uint8_t first, std::int64_t &out) {
  if (first == 0x80) {
    out = kIndefinite;
    return Status::success();
  }
  if (first == 0xFF) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
  std::uint64_t length = 0;
  for (int left = first & 0x7F; left > 0; left--) {
    if (length > kMostBeforeLastOctet) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TOO_LARGE, in.offset());
    }
    std::uint8_t octet = 0;
    if (const Status status = in.octet(octet); !status) return status;
    length = length << 8 | octet;
  }
  out = static_cast<std::int64_t>(length);
  return Status::success();
}

Status read_end_of_contents(Reader &in) {
  if (in.is_null()) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  std::uint8_t octets[2];
  if (const Status status = in.octets(octets, 2); !status) return status;
  if (octets[0] == 0 && octets[1] == 0) return Status::success();
  return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_END_OF_CONTENTS, in.offset());
}

Status read_end_of_contents_length(Reader &in) {
  if (in.is_null()) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  std::uint8_t octet = 0;
  if (const Status status = in.octet(octet); !status) return status;
  if (octet == 0) return Status::success();
  return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_END_OF_CONTENTS, in.offset());
}

std::int64_t identifier_length(std::int64_t number) {
  if (number < 0) return kNoLength;
  return number < 0x1F ? 1 : 1 + groups_of(static_cast<std::uint64_t>(number), 7);
}

std::int64_t length_length(std::int64_t length) {
  if (length < kIndefinite) return kNoLength;
  return length < 0x80 ? 1 : 1 + groups_of(static_cast<std::uint64_t>(length), 8);
}

std::int64_t long_element_length(std::uint64_t number, std::int64_t content_length) {
  if (content_length < 0) return content_length == kIndefinite ? kIndefinite : kNoLength;
  const std::int64_t identifier = identifier_length(static_cast<std::int64_t>(number));
  if (identifier < 0) return kNoLength;
  std::int64_t length = content_length;
  const bool fits = add_to(length, length_length(content_length)) && add_to(length, identifier);
  return fits ? length : kIndefinite;
}

Status write_identifier(Writer &out, std::uint32_t tag_class, bool primitive, std::int64_t number) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if ((tag_class & ~kPrivate) != 0) {
    return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_TAG_CLASS, out.offset());
  }
  if (number < 0) return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_TAG_NUMBER, out.offset());
  const std::uint32_t leading = tag_class | (primitive ? 0u : 0x20u);
  if (number < 0x1F) {
    const auto octet = static_cast<std::uint8_t>(leading | static_cast<std::uint32_t>(number));
    return out.octets(&octet, 1);
  }
  std::uint8_t octets[10];
  const int groups = groups_of(static_cast<std::uint64_t>(number), 7);
  octets[0] = static_cast<std::uint8_t>(leading | 0x1Fu);
  for (int i = 1; i <= groups; i++) {
    const std::uint32_t more = i == groups ? 0 : 0x80u;
    octets[i] = static_cast<std::uint8_t>(
        more | (static_cast<std::uint64_t>(number) >> (7 * (groups - i)) & 0x7Fu));
  }
  return out.octets(octets, static_cast<std::uint64_t>(groups) + 1);
}

Status write_length(Writer &out, std::int64_t length) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (length < kIndefinite) return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_LENGTH, out.offset());
  if (length < 0x80) {
    const auto octet = static_cast<std::uint8_t>(length == kIndefinite ? 0x80 : length);
    return out.octets(&octet, 1);
  }
  std::uint8_t octets[9];
  const int count = groups_of(static_cast<std::uint64_t>(length), 8);
  octets[0] = static_cast<std::uint8_t>(0x80 | count);
  for (int i = 1; i <= count; i++) {
    octets[i] = static_cast<std::uint8_t>(length >> (8 * (count - i)));
  }
  return out.octets(octets, static_cast<std::uint64_t>(count) + 1);
}

Status write_long_header(Writer &out,
                         const Unit &unit,
                         std::uint32_t tag_class,
                         bool primitive,
                         std::uint64_t number,
                         std::int64_t length) {
  Status status = write_identifier(out, tag_class, primitive, static_cast<std::int64_t>(number));
  if (!status) {
    return unit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_IDENTIFIER, out.offset());
  }
  status = write_length(out, length);
  if (status) return status;
  return unit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_LENGTH, out.offset());
}

Status write_end_of_contents(Writer &out) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  return out.octets(kEndOfContents, sizeof kEndOfContents);
}

namespace {

// Type id 0. It has no value: decoding leaves the caller's pointer alone.
Status encode_end(const Type & /*type*/, Writer &out, void * /*value*/) {
  return write_end_of_contents(out);
}

Status decode_end(const Type & /*type*/, Reader &in, void ** /*value*/) {
  return read_end_of_contents(in);
}

Status encode_end_content(const Type & /*type*/,
                          Writer &out,
                          void * /*value*/,
                          std::int64_t length) {
  if (length == 0) return Status::success();
  return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_LENGTH, out.offset());
}

Status decode_end_content(
    const Type & /*type*/, Reader &in, void ** /*value*/, bool primitive, std::int64_t length) {
  if (!primitive) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_FORM, in.offset());
  if (length == 0) return Status::success();
  return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
}

std::int64_t end_length(const Type & /*type*/, const void * /*value*/) {
  return 0;
}

}  // namespace

const Codec kEocCodec{free_nothing,       end_length, nullptr,   encode_end_content,
                      decode_end_content, encode_end, decode_end};

}  // namespace quarn::asn1

using namespace quarn::asn1;

int quarn_asn1_encode_identifier(quarn_stream *s,
                                 uint32_t tag_class,
                                 int form,
                                 int64_t tag_number,
                                 uint64_t *octets,
                                 quarn_err_ctx *ctx) {
  return writing(s, octets, ctx, [=](Writer &out) {
    return write_identifier(out, tag_class, form != 0, tag_number);
  });
}

int quarn_asn1_decode_identifier(quarn_stream *s,
                                 uint32_t *tag_class,
                                 int *form,
                                 uint64_t *tag_number,
                                 uint64_t *octets,
                                 quarn_err_ctx *ctx) {
  if (s == nullptr || tag_class == nullptr || form == nullptr || tag_number == nullptr) {
    return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  }
  return reading(s, octets, ctx, [=](Reader &in) {
    Identifier identifier{};
    const std::uint64_t before = in.count();
    const Status status = read_identifier(in, identifier);
    if (in.count() != before) {
      *tag_class = identifier.tag_class;
      *form = identifier.primitive ? 1 : 0;
    }
    if (status) *tag_number = identifier.number;
    return status;
  });
}

int quarn_asn1_encode_length(quarn_stream *s,
                             int64_t length,
                             uint64_t *octets,
                             quarn_err_ctx *ctx) {
  return writing(s, octets, ctx, [=](Writer &out) { return write_length(out, length); });
}

int quarn_asn1_decode_length(quarn_stream *s,
                             int64_t *length,
                             uint64_t *octets,
                             quarn_err_ctx *ctx) {
  if (s == nullptr || length == nullptr) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  return reading(s, octets, ctx, [=](Reader &in) { return read_length(in, *length); });
}

int64_t quarn_asn1_identifier_length(int64_t tag_number) {
  return identifier_length(tag_number);
}

int64_t quarn_asn1_length_length(int64_t length) {
  return length_length(length);
}

int quarn_asn1_decode_eoc_length(quarn_stream *s, uint64_t *octets, quarn_err_ctx *ctx) {
  return reading(s, octets, ctx, read_end_of_contents_length);
}

int quarn_asn1_mem_header(const uint8_t *octets, int64_t count, quarn_asn1_header *header) {
  if (octets == nullptr || count < 0 || header == nullptr) return 0;
  if (count >= 2 && (octets[0] & 0x1F) != 0x1F && octets[1] < 0x80) [[likely]] {
    *header = {octets[0] & 0x1Fu, octets[1], 2, octets[0] & kPrivate, (octets[0] & 0x20) == 0};
    return 1;
  }
  Reader in(octets, static_cast<std::size_t>(count), nullptr);
  Identifier identifier{};
  std::int64_t length = 0;
  if (!read_identifier(in, identifier) || !read_length(in, length)) {
    return in.ran_out() ? QUARN_ASN1_MORE : 0;
  }
  *header = {identifier.number, length, in.count(), identifier.tag_class, identifier.primitive};
  return 1;
}

quarn_data_blob *quarn_asn1_mem_encode(int64_t type_id, void *value) {
  quarn_stream *stream = quarn_stream_new_mem(1024, nullptr);
  if (stream == nullptr) return nullptr;
  quarn_data_blob *blob = nullptr;
  uint8_t *octets = nullptr;
  uint64_t count = 0;
  if (quarn_asn1_encode(stream, type_id, value, nullptr, nullptr) == 1 &&
      quarn_memstreamdeatch(stream, &octets, &count) == 1) {
    blob = quarn_data_blob_adopt(octets, static_cast<std::int64_t>(count));
    if (blob == nullptr) quarn_free(octets);
  }
  quarn_stream_free(stream);
  return blob;
}

int64_t quarn_asn1_mem_decode(const uint8_t *octets, int64_t count, int64_t type_id, void **value) {
  const Type *type = find_type(type_id);
  if (octets == nullptr || count < 1 || value == nullptr || type == nullptr) return -1;
  Reader in(octets, static_cast<std::size_t>(count), nullptr);
  return decode(*type, in, value) ? in.offset() : -1;
}

const char *quarn_asn1_version(void) {
  return "QUARN ASN.1 Library 1.8,Build on 2020";
}

// Between ANY values, octets, and values of a type.
//
//     30 06  A1 04  02 02 01 00        an ANY of all of it:
//     '-- toobject: SEQUENCE           the element as it stands
//            '-- contenttoobject       the content under another type's tag: IMPLICIT
//            '-- getobject             the content as an element of its own: EXPLICIT
//
// Decoding reads the octets of the value in place; no stream is made for it.
#include "core/adapter.h"
#include "types/any.h"
#include "types/codecs.h"
#include "types/scratch.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Any"};

int bad_argument(quarn_err_ctx *ctx) {
  return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
}

// The dispatch by type id and the layer that asked for the type each make their record.
Status no_such_type(quarn_err_ctx *ctx) {
  return kUnit.pass_on(kUnit.fail(ctx, QUARN_ASN1_ERROR_TYPE), ctx, QUARN_ASN1_ERROR_TYPE);
}

bool at_end(Reader &in) {
  if (in.in_memory()) return in.left() == 0;
  return quarn_stream_ctrl(in.stream(), QUARN_STREAM_ATEND, nullptr, nullptr) == 1;
}

// Decodes one value by read(type, in, value), lets close(in) read what encloses it to its end, and
// wants nothing left.
template <typename Read, typename Close>
Status decode_all(Reader &in, const Type &type, void **value, Read read, Close close) {
  Value made(type);
  Status status = read(type, in, made.out());
  if (!status) return kUnit.pass_on(status, in.ctx(), type.decode_error(), in.offset());
  status = close(in);
  if (!status) return status;
  if (!at_end(in)) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TRAILING, in.offset());
  *value = made.release();
  return status;
}

template <typename Read, typename Close>
Status decode_all(Reader &in, std::int64_t type_id, void **value, Read read, Close close) {
  const Type *type = find_type(type_id);
  return type == nullptr ? no_such_type(in.ctx()) : decode_all(in, *type, value, read, close);
}

Status nothing_more(Reader & /*in*/) {
  return Status::success();
}

Status decode_whole(Reader &in, std::int64_t type_id, void **value) {
  return decode_all(in, type_id, value, decode, nothing_more);
}

// Calls read(Reader &) over the content, wherever it is held.
template <typename Read>
Status read_content(const quarn_asn1_any &v, quarn_err_ctx *ctx, Read read) {
  if (!v.in_stream) {
    Reader in(v.content(), v.content_size, ctx);
    return read(in);
  }
  StreamContent source(v);
  if (const Status status = source.open(nullptr, ctx); !status) return status;
  Reader in(source.get(), ctx);
  return read(in);
}

bool has_content(const quarn_asn1_any *v) {
  return v != nullptr && !v->end_of_contents;
}

// Encodes by write(Writer &) into scratch memory.
template <typename Write>
Status write_to(const Scratch &scratch, quarn_err_ctx *ctx, Write write) {
  if (scratch.stream() == nullptr) return Status::failure();
  Writer out(scratch.stream(), ctx);
  return write(out);
}

Status to_object(const quarn_asn1_any &v, std::int64_t type_id, void **value, quarn_err_ctx *ctx) {
  if (v.is_encoding()) {
    Reader in(v.header(), v.header_size + v.content_size, ctx);
    return decode_whole(in, type_id, value);
  }
  const Scratch scratch(ctx);
  const Status status = write_to(scratch, ctx, [&](Writer &out) { return encode_any(out, &v); });
  if (!status) return kUnit.pass_on(status, ctx, type_of(QUARN_ASN1_ANY).encode_error());
  Reader in(scratch.data(), scratch.size(), ctx);
  return decode_whole(in, type_id, value);
}

Status content_to_object(const quarn_asn1_any &v,
                         std::int64_t type_id,
                         void **value,
                         quarn_err_ctx *ctx) {
  const auto decode_inner = [&v](const Type &type, Reader &in, void **out) {
    return decode_content(type, in, out, v.primitive, v.content_length);
  };
  return read_content(v, ctx, [=](Reader &in) {
    return decode_all(in, type_id, value, decode_inner, nothing_more);
  });
}

Status get_object(const quarn_asn1_any &v, std::int64_t type_id, void **value, quarn_err_ctx *ctx) {
  const auto close = v.content_length == kIndefinite ? read_end_of_contents : nothing_more;
  return read_content(v, ctx,
                      [=](Reader &in) { return decode_all(in, type_id, value, decode, close); });
}

Status copy_element(Reader &in, quarn_stream *destination) {
  quarn_asn1_any *v = nullptr;
  if (const Status status = decode_any(in, &v); !status) return status;
  const util::Block<quarn_asn1_any> owner(v);
  in.settle();  // the destination may be the same stream
  Writer out(destination, in.ctx());
  const Status status = encode_any(out, v);
  if (status) return status;
  return kUnit.pass_on(status, in.ctx(), type_of(QUARN_ASN1_ANY).encode_error());
}

// A new buffer with a copy of some octets; the count may be null.
Status hand_out(const std::uint8_t *from,
                std::uint64_t size,
                std::uint8_t **octets,
                std::uint64_t *count,
                quarn_err_ctx *ctx) {
  auto *copy = util::allocate_array<std::uint8_t>(size);
  if (copy == nullptr) return kUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
  if (size > 0) std::memcpy(copy, from, size);
  *octets = copy;
  if (count != nullptr) *count = size;
  return Status::success();
}

Status read_element(Reader &in, std::uint8_t **octets, std::uint64_t *count) {
  const Capture element(in);
  Element found{};
  if (const Status status = find_element(in, found); !status) return status;
  return hand_out(element.data(), element.size(), octets, count, in.ctx());
}

Status get_content(const quarn_asn1_any &v,
                   std::uint8_t **octets,
                   std::uint64_t *count,
                   quarn_err_ctx *ctx) {
  if (!v.in_stream) return hand_out(v.content(), v.content_size, octets, count, ctx);
  StreamContent source(v);
  if (const Status status = source.open(nullptr, ctx); !status) return status;
  const Scratch scratch(ctx);
  if (scratch.stream() == nullptr) return Status::failure();
  const auto copied =
      Status::from(quarn_stream_writefromstream(scratch.stream(), source.get(), ctx, nullptr));
  if (!copied) return copied;
  return hand_out(scratch.data(), scratch.size(), octets, count, ctx);
}

quarn_asn1_any *to_any(const Type &type, void *value) {
  const Scratch scratch(nullptr);
  const Status status =
      write_to(scratch, nullptr, [&](Writer &out) { return encode(type, out, value); });
  if (!status) return nullptr;
  Reader in(scratch.data(), scratch.size(), nullptr);
  quarn_asn1_any *v = nullptr;
  if (!decode_any(in, &v)) return nullptr;
  util::Block<quarn_asn1_any> owner(v);
  return at_end(in) ? owner.release() : nullptr;
}

}  // namespace

Status duplicate(const Type &type, void *value, void **copy, quarn_err_ctx *ctx, int around) {
  const Scratch scratch(ctx);
  const Status status =
      write_to(scratch, ctx, [&](Writer &out) { return encode(type, out, value); });
  if (!status) return kUnit.pass_on(status, ctx, type.encode_error());
  Reader in(scratch.data(), scratch.size(), ctx, around);
  return decode_all(in, type, copy, decode, nothing_more);
}

}  // namespace quarn::asn1

using namespace quarn::asn1;

int quarn_asn1_readobjecttostream(quarn_stream *in, quarn_stream *out, quarn_err_ctx *ctx) {
  if (in == nullptr || out == nullptr) return bad_argument(ctx);
  return reading(in, nullptr, ctx, [=](Reader &reader) { return copy_element(reader, out); });
}

int quarn_asn1_readoneobject(quarn_stream *in,
                             uint8_t **octets,
                             uint64_t *count,
                             quarn_err_ctx *ctx) {
  if (octets != nullptr) *octets = nullptr;
  if (in == nullptr || octets == nullptr) return bad_argument(ctx);
  return reading(in, nullptr, ctx,
                 [=](Reader &reader) { return read_element(reader, octets, count); });
}

quarn_asn1_any *quarn_asn1_objecttoany(int64_t type_id, void *value) {
  const Type *type = find_type(type_id);
  return type == nullptr ? nullptr : to_any(*type, value);
}

void *quarn_asn1_dupobject(int64_t type_id, void *value, quarn_err_ctx *ctx) {
  const Type *type = find_type(type_id);
  void *copy = nullptr;
  const Status status = type == nullptr ? no_such_type(ctx) : duplicate(*type, value, &copy, ctx);
  return status ? copy : nullptr;
}

int quarn_asn1_any_toobject(quarn_asn1_any *v, int64_t type_id, void **value, quarn_err_ctx *ctx) {
  if (value != nullptr) *value = nullptr;
  if (v == nullptr || value == nullptr) return bad_argument(ctx);
  return to_object(*v, type_id, value, ctx).raw();
}

int quarn_asn1_any_contenttoobject(quarn_asn1_any *v,
                                   int64_t type_id,
                                   void **value,
                                   quarn_err_ctx *ctx) {
  if (value != nullptr) *value = nullptr;
  if (!has_content(v) || value == nullptr) return bad_argument(ctx);
  return content_to_object(*v, type_id, value, ctx).raw();
}

int quarn_asn1_any_getobject(quarn_asn1_any *v, int64_t type_id, void **value, quarn_err_ctx *ctx) {
  if (value != nullptr) *value = nullptr;
  if (!has_content(v) || value == nullptr) return bad_argument(ctx);
  return get_object(*v, type_id, value, ctx).raw();
}

int quarn_asn1_any_getcontent(quarn_asn1_any *v,
                              uint8_t **octets,
                              uint64_t *count,
                              quarn_err_ctx *ctx) {
  if (octets != nullptr) *octets = nullptr;
  if (!has_content(v) || octets == nullptr) return bad_argument(ctx);
  return get_content(*v, octets, count, ctx).raw();
}

int quarn_asn1_any_decode_string(quarn_asn1_any *v,
                                 quarn_asn1_octetstring **string,
                                 quarn_err_ctx *ctx) {
  return quarn_asn1_any_contenttoobject(v, QUARN_ASN1_OCTETSTRING, untyped(string), ctx);
}

// ANY values: decoding, encoding, construction and what is known of them.
#include "types/any.h"

#include <iterator>
#include <limits>

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/scratch.h"
#include "types/sink.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Any"};

// Forms of the universal tags: bit 0 allows primitive, bit 1 constructed. REAL is never constructed
// and EXTERNAL always; 15 and 29 are refused altogether, as callers have come to rely on.
constexpr std::uint8_t kForms[] = {1, 1, 1, 3, 3, 1, 1, 3, 2, 1, 1, 2, 3, 1, 1, 0, 2, 2,
                                   3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 0, 3, 1, 1, 1, 1};

// Moves over identifier and length. An end-of-contents is left to the caller to copy.
Status pass_header(Reader &in, Element &out, Writer *copy) {
  if (copy == nullptr) return read_element_header(in, out);
  const Capture header(in);
  const Status status = read_element_header(in, out);
  const bool copied = status && !out.end_of_contents;
  return copied ? copy->octets(header.data(), header.size()) : status;
}

Status copy_end_of_contents(Writer *copy) {
  constexpr std::uint8_t kMarker[] = {0, 0};
  return copy == nullptr ? Status::success() : copy->octets(kMarker, sizeof kMarker);
}

// Moves over one element inside so many open ones of indefinite length. One more of these counts as
// open from its header on, until its end-of-contents comes.
Status pass_element(Reader &in, Sink &sink, Writer *copy, int limit, int &open) {
  Element element{};
  const Status status = pass_header(in, element, copy);
  if (!status) return status;
  if (element.end_of_contents) return --open > 0 ? copy_end_of_contents(copy) : status;
  if (open >= limit) return Status::too_deep();
  if (element.content_length == kIndefinite) {
    open++;
    return status;
  }
  return sink.take(in, static_cast<std::uint64_t>(element.content_length), kUnit);
}

}  // namespace

// An element counts as one level deeper than what it stands in, whatever its own form, so that the
// innermost level of all holds nothing but its end-of-contents.
Status pass_content(Reader &in, std::int64_t length, Writer *copy) {
  Sink sink(copy);
  if (length != kIndefinite) return sink.take(in, static_cast<std::uint64_t>(length), kUnit);
  const int limit = quarn_get_recursive_level();
  Status status = Status::success();
  for (int open = 1; status && open > 0;) status = pass_element(in, sink, copy, limit, open);
  return status;
}

namespace {

// A value for an element, with room for its header and so many octets of content.
quarn_asn1_any *new_any(const Element &element, std::uint64_t content_size) {
  std::uint64_t size = element.header_size;
  const bool fits = element.header_size <= std::numeric_limits<std::uint32_t>::max() &&
                    add_to(size, content_size);
  auto *v = fits ? util::allocate<quarn_asn1_any>(size) : nullptr;
  if (v == nullptr) return nullptr;
  v->tag_number = element.identifier.number;
  v->content_length = element.content_length;
  v->content_size = content_size;
  v->header_size = static_cast<std::uint32_t>(element.header_size);
  v->tag_class = static_cast<std::uint8_t>(element.identifier.tag_class);
  v->primitive = element.identifier.primitive;
  v->end_of_contents = element.end_of_contents;
  return v;
}

// Copies octets of an element behind the value.
void fill(quarn_asn1_any *v, std::size_t offset, const void *octets, std::size_t count) {
  if (count > 0) std::memcpy(reinterpret_cast<std::uint8_t *>(v + 1) + offset, octets, count);
}

// Decodes with the content going to a stream of the caller's. That cannot be the stream that is
// read: its octets are read in place.
Status decode_any_into(Reader &in, quarn_stream *content, quarn_asn1_any **out) {
  if (out == nullptr || content == nullptr || content == in.stream()) {
    return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  }
  util::Block<quarn_asn1_any> v;
  Element element{};
  {
    const Capture header(in);
    if (const Status status = read_element_header(in, element); !status) return status;
    v.reset(new_any(element, 0));
    if (v == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
    fill(v.get(), 0, header.data(), header.size());
  }
  if (!element.end_of_contents) {
    v->in_stream = true;
    v->content_stream = content;
    Writer copy(content, in.ctx());
    Status status = pass_content(in, element.content_length, &copy);
    if (status && element.content_length == kIndefinite) status = copy_end_of_contents(&copy);
    if (!status) return status;
  }
  *out = v.release();
  return Status::success();
}

// Writes the value's octets from offset on: the header too, or the content alone. A definite
// length that differs from the content is answered with code.
Status write_octets(Writer &out, const quarn_asn1_any &v, std::size_t offset, int code) {
  std::uint64_t content = v.in_stream ? 0 : v.content_size;
  StreamContent source(v);
  if (v.in_stream) {
    out.settle();  // the content may be in the stream that is being written
    if (const Status status = source.open(out.stream(), out.ctx()); !status) return status;
  }
  Status status = out.octets(v.header() + offset, v.header_size - offset + content);
  if (status && v.in_stream) {
    status = out.from_stream(source.get(), std::numeric_limits<std::uint64_t>::max(), content);
  }
  if (!status) return status;
  const bool agrees =
      v.content_length < 0 || static_cast<std::uint64_t>(v.content_length) == content;
  return agrees ? status : kUnit.fail(out.ctx(), code, out.offset());
}

Status encode_any_content(Writer &out, const quarn_asn1_any *v, std::int64_t length) {
  if (out.is_null() || v == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (length != v->content_length) {
    return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
  }
  return write_octets(out, *v, v->header_size, QUARN_ERROR_COUNT);
}

std::int64_t content_length_of_any(const quarn_asn1_any *v) {
  return v == nullptr ? kNoLength : v->content_length;
}

std::int64_t length_of_any(const quarn_asn1_any *v) {
  if (v == nullptr) return kNoLength;
  if (v->content_length == kIndefinite) return kIndefinite;
  std::int64_t length = v->content_length;
  return add_to<std::int64_t>(length, v->header_size) ? length : kNoLength;
}

}  // namespace

bool form_allowed(const Identifier &identifier) {
  if (identifier.tag_class != kUniversal) return true;
  if (identifier.number >= std::size(kForms)) return false;
  return (kForms[identifier.number] & (identifier.primitive ? 1 : 2)) != 0;
}

Status read_element_header(Reader &in, Element &out) {
  const std::uint64_t start = in.count();
  Status status = read_identifier(in, out.identifier);
  if (!status) {
    return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
  }
  out.end_of_contents = out.identifier.is_end_of_contents();
  out.content_length = 0;
  if (out.end_of_contents) {
    std::uint8_t length = 0;
    status = in.octet(length);
    if (!status) return status;
    if (length != 0) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_END_OF_CONTENTS, in.offset());
    }
  } else {
    if (!form_allowed(out.identifier)) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_TAG_NUMBER, in.offset());
    }
    status = read_length(in, out.content_length);
    if (!status) return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
  }
  out.header_size = in.count() - start;
  return Status::success();
}

Status find_element(Reader &in, Element &out) {
  if (const Status status = read_element_header(in, out); !status) return status;
  const auto claimed = static_cast<std::uint64_t>(out.content_length);
  if (claimed <= in.left()) [[likely]] {  // the indefinite form claims more than any memory holds
    in.advance(claimed);
    out.content_size = claimed;
    return Status::success();
  }
  const std::uint64_t start = in.count();
  if (!out.end_of_contents) {
    if (const Status status = pass_content(in, out.content_length, nullptr); !status) return status;
  }
  out.content_size = in.count() - start;
  return Status::success();
}

Status decode_any(Reader &in, quarn_asn1_any **out) {
  if (out == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT, in.offset());
  *out = nullptr;
  const Capture octets(in);
  Element element{};
  if (const Status status = find_element(in, element); !status) return status;
  quarn_asn1_any *v = new_any(element, element.content_size);
  if (v == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  fill(v, 0, octets.data(), octets.size());
  *out = v;
  return Status::success();
}

Status encode_any(Writer &out, const quarn_asn1_any *v) {
  if (out.is_null() || v == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  return write_octets(out, *v, 0, type_of(QUARN_ASN1_ANY).encode_error());
}

Status StreamContent::open(const quarn_stream *destination, quarn_err_ctx *ctx) {
  duplicate_ = quarn_memstream_dup_readonly(stream_, nullptr);
  if (duplicate_ != nullptr) return Status::success();
  // Read while it grows, the stream would have no end.
  if (stream_ == destination) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  if (quarn_stream_ctrl(stream_, QUARN_STREAM_REWIND, nullptr, nullptr) == 1) {
    return Status::success();
  }
  return kUnit.fail(ctx, QUARN_STREAM_ERROR_REWIND);
}

namespace {

// Type id 23.
const quarn_asn1_any *any(const void *value) {
  return static_cast<const quarn_asn1_any *>(value);
}

void free_any_value(const Type & /*type*/, void *value) {
  quarn_free(value);
}

std::int64_t any_content_length(const Type & /*type*/, const void *value) {
  return content_length_of_any(any(value));
}

std::int64_t any_length(const Type & /*type*/, const void *value) {
  return length_of_any(any(value));
}

Status encode_any_value_content(const Type & /*type*/,
                                Writer &out,
                                void *value,
                                std::int64_t length) {
  return encode_any_content(out, any(value), length);
}

Status encode_any_value(const Type & /*type*/, Writer &out, void *value) {
  return encode_any(out, any(value));
}

Status decode_any_value(const Type & /*type*/, Reader &in, void **value) {
  return decode_any(in, reinterpret_cast<quarn_asn1_any **>(value));
}

}  // namespace

const Codec kAnyCodec = {free_any_value,           any_content_length,    any_length,
                         encode_any_value_content, cannot_decode_content, encode_any_value,
                         decode_any_value};

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_any *quarn_asn1_any_new(uint32_t tag_class,
                                   uint32_t primitive,
                                   uint64_t tag_number,
                                   int64_t content_length,
                                   const uint8_t *octets,
                                   int64_t count) {
  if (count < 0 || (octets == nullptr && count > 0)) return nullptr;
  if (content_length == kIndefinite) {
    if (count < 2 || octets[count - 2] != 0 || octets[count - 1] != 0) return nullptr;
  }
  const Scratch scratch(nullptr);
  {
    Writer out(scratch.stream(), nullptr);
    const auto number = static_cast<int64_t>(tag_number);
    if (!write_identifier(out, tag_class, primitive != 0, number)) return nullptr;
    if (!write_length(out, content_length)) return nullptr;
  }
  const Identifier identifier{tag_class, primitive != 0, tag_number};
  const auto content_size = static_cast<uint64_t>(count);
  const Element element{identifier, content_length, scratch.size(), content_size, false};
  quarn_asn1_any *v = new_any(element, content_size);
  if (v == nullptr) return nullptr;
  fill(v, 0, scratch.data(), scratch.size());
  fill(v, scratch.size(), octets, content_size);
  return v;
}

void quarn_asn1_any_free(quarn_asn1_any *v) {
  quarn_free(v);
}

int quarn_asn1_any_gettypeclass(const quarn_asn1_any *v, uint32_t *tag_class) {
  if (v == nullptr || tag_class == nullptr) return 0;
  *tag_class = v->tag_class;
  return 1;
}

int quarn_asn1_any_isprimitive(const quarn_asn1_any *v, uint32_t *primitive) {
  if (v == nullptr || primitive == nullptr) return 0;
  *primitive = v->primitive ? 1 : 0;
  return 1;
}

int quarn_asn1_any_gettagnumber(const quarn_asn1_any *v, uint64_t *tag_number) {
  if (v == nullptr || tag_number == nullptr) return 0;
  *tag_number = v->tag_number;
  return 1;
}

int64_t quarn_asn1_any_getcontentlength(const quarn_asn1_any *v) {
  return content_length_of_any(v);
}

int64_t quarn_asn1_any_length(const quarn_asn1_any *v) {
  return content_length_of_any(v);
}

int quarn_asn1_any_iseoc(const quarn_asn1_any *v) {
  return v != nullptr && v->end_of_contents ? 1 : 0;
}

int64_t quarn_asn1_any_encodelength(const quarn_asn1_any *v) {
  return length_of_any(v);
}

int quarn_asn1_decode_any(quarn_stream *s,
                          quarn_asn1_any **v,
                          uint64_t *consumed,
                          quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx, [=](Reader &in) { return decode_any(in, v); });
}

int quarn_asn1_decode_any_ex(quarn_stream *s,
                             quarn_stream *content,
                             quarn_asn1_any **v,
                             uint64_t *consumed,
                             quarn_err_ctx *ctx) {
  if (v != nullptr) *v = nullptr;
  return reading(s, consumed, ctx, [=](Reader &in) { return decode_any_into(in, content, v); });
}

int quarn_asn1_encode_any(quarn_stream *s,
                          quarn_asn1_any *v,
                          uint64_t *written,
                          quarn_err_ctx *ctx) {
  return writing(s, written, ctx, [=](Writer &out) { return encode_any(out, v); });
}

int quarn_asn1_encode_any_content(quarn_stream *s,
                                  quarn_asn1_any *v,
                                  int64_t content_length,
                                  uint64_t *written,
                                  quarn_err_ctx *ctx) {
  return writing(s, written, ctx,
                 [=](Writer &out) { return encode_any_content(out, v, content_length); });
}

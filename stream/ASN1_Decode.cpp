// Push decoders of one element of any type, whose octets are kept, and of OCTET STRINGs, whose
// content is passed on.
#include "core/adapter.h"
#include "core/buffer.h"
#include "core/type.h"
#include "quarn_asn1.h"
#include "stream/push.h"
#include "util/memory.h"

using quarn::asn1::PushMachine;
using quarn::asn1::Slice;

struct quarn_asn1_decode_any_ctx {
  PushMachine machine;
  quarn::asn1::Buffer octets;  // all that were taken
};

struct quarn_asn1_decode_octetstring_ctx {
  PushMachine machine;
  std::int64_t total;
};

namespace quarn::asn1 {

namespace {

using AnyContext = quarn_asn1_decode_any_ctx;
using OctetStringContext = quarn_asn1_decode_octetstring_ctx;

// The levels of the machine follow the context in its block.
template <typename Context>
Context *new_context(PushMachine::Accepts accepts) {
  using Level = PushMachine::Level;
  static_assert(alignof(Context) >= alignof(Level));
  const int deepest = quarn_get_recursive_level();
  auto count = static_cast<std::size_t>(deepest) + 1;
  if (!multiply_by(count, sizeof(Level))) return nullptr;
  auto *c = util::allocate<Context>(count);
  if (c != nullptr) c->machine.start(accepts, reinterpret_cast<Level *>(c + 1), deepest);
  return c;
}

template <typename Context>
void free_context(Context *c) {
  if (c == nullptr) return;
  c->~Context();
  quarn_free(c);
}

// Nothing is left over of a slice that is refused.
bool is_slice(const void *c, const std::uint8_t *data, std::int64_t length, std::int64_t *left) {
  if (left == nullptr) return false;
  *left = 0;
  return c != nullptr && length >= 0 && (data != nullptr || length == 0);
}

Slice slice_of(const std::uint8_t *data, std::int64_t length) {
  return {data, static_cast<std::uint64_t>(length)};
}

// Keeps what the machine took of the slice, in one copy. An empty slice may be null.
bool keep(AnyContext &c, const std::uint8_t *begin, const Slice &rest) {
  if (begin == nullptr) return true;
  if (c.octets.append(begin, static_cast<std::size_t>(rest.next - begin))) return true;
  c.machine.fail();
  return false;
}

int update(AnyContext &c, Slice slice, std::int64_t &left_over) {
  const std::uint8_t *begin = slice.next;
  if (!c.machine.feed(slice, nullptr) || !keep(c, begin, slice)) return 0;
  left_over = static_cast<std::int64_t>(slice.left);
  return 1;
}

// Of the slice in which the string ends, the total counts what is left over, if anything is.
// Callers who feed exact slices get exact totals, and others have come to expect what they get.
int update(OctetStringContext &c, quarn_stream *out, Slice slice, std::int64_t &left_over) {
  const bool was_complete = c.machine.is_complete();
  const auto length = static_cast<std::int64_t>(slice.left);
  if (!c.machine.feed(slice, out)) return 0;
  const auto left = static_cast<std::int64_t>(slice.left);
  if (!was_complete && !add_to(c.total, left == 0 ? length : left)) {
    c.machine.fail();
    return 0;
  }
  left_over = left;
  return 1;
}

Status decode_kept(const Buffer &octets, const Type &type, void **value) {
  Reader in(octets.data(), octets.size(), nullptr);
  Value result(type);
  if (const Status status = decode(type, in, result.out()); !status) return status;
  if (in.left() > 0) return Status::failure();
  *value = result.release();
  return Status::success();
}

}  // namespace

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_decode_any_ctx *quarn_asn1_decode_any_ctx_new(void) {
  return new_context<AnyContext>(PushMachine::Accepts::any_element);
}

void quarn_asn1_decode_any_ctx_free(quarn_asn1_decode_any_ctx *c) {
  free_context(c);
}

int quarn_asn1_decode_any_update(quarn_asn1_decode_any_ctx *c,
                                 const uint8_t *data,
                                 int64_t length,
                                 int64_t *left_over) {
  return is_slice(c, data, length, left_over) ? update(*c, slice_of(data, length), *left_over) : 0;
}

int quarn_asn1_decode_any_isfinish(const quarn_asn1_decode_any_ctx *c) {
  return c != nullptr && c->machine.is_complete() ? 1 : 0;
}

// No other element begins with 00.
int quarn_asn1_decode_any_ctx_iseoc(const quarn_asn1_decode_any_ctx *c) {
  return quarn_asn1_decode_any_isfinish(c) == 1 && c->octets.data()[0] == 0 ? 1 : 0;
}

int quarn_asn1_decode_any_identifier_length(quarn_asn1_decode_any_ctx *c,
                                            int fresh,
                                            const uint8_t *data,
                                            int64_t length,
                                            uint32_t *tag_class,
                                            uint32_t *primitive,
                                            uint64_t *tag_number,
                                            int64_t *content_length,
                                            int64_t *left_over) {
  if (!is_slice(c, data, length, left_over)) return 0;
  if (tag_class == nullptr || primitive == nullptr || tag_number == nullptr ||
      content_length == nullptr) {
    return 0;
  }
  if (fresh != 0 ? !c->machine.is_new() : !c->machine.in_header()) return 0;
  Slice slice = slice_of(data, length);
  if (!c->machine.feed_header(slice) || !keep(*c, data, slice)) return 0;
  if (c->machine.in_header()) return QUARN_ASN1_MORE;
  const PushMachine::Header &header = c->machine.header();
  *tag_class = header.tag_class;
  *primitive = header.primitive ? 1 : 0;
  *tag_number = header.tag_number;
  *content_length = header.length;
  *left_over = static_cast<int64_t>(slice.left);
  return 1;
}

int quarn_asn1_decode_any_ctx_toobject(quarn_asn1_decode_any_ctx *c,
                                       int64_t type_id,
                                       void **value) {
  if (value == nullptr) return 0;
  *value = nullptr;
  if (c == nullptr || c->machine.has_failed()) return 0;
  if (!c->machine.is_complete()) return QUARN_ASN1_MORE;
  const Type *type = find_type(type_id);
  return type == nullptr ? 0 : decode_kept(c->octets, *type, value).raw();
}

quarn_asn1_decode_octetstring_ctx *quarn_asn1_decode_octetstring_ctx_new(void) {
  return new_context<OctetStringContext>(PushMachine::Accepts::octet_strings);
}

void quarn_asn1_decode_octetstring_ctx_free(quarn_asn1_decode_octetstring_ctx *c) {
  free_context(c);
}

int quarn_asn1_decode_octetstring_update(quarn_asn1_decode_octetstring_ctx *c,
                                         quarn_stream *out,
                                         const uint8_t *data,
                                         int64_t length,
                                         int64_t *left_over) {
  if (!is_slice(c, data, length, left_over) || out == nullptr) return 0;
  return update(*c, out, slice_of(data, length), *left_over);
}

int quarn_asn1_decode_octetstring_ctx_setstate(quarn_asn1_decode_octetstring_ctx *c,
                                               uint32_t primitive,
                                               int64_t content_length) {
  return c != nullptr && c->machine.start_in_content(primitive != 0, content_length) ? 1 : 0;
}

int quarn_asn1_decode_octetstring_content_update(quarn_asn1_decode_octetstring_ctx *c,
                                                 quarn_stream *out,
                                                 const uint8_t *data,
                                                 int64_t length,
                                                 int64_t *left_over) {
  if (!is_slice(c, data, length, left_over) || out == nullptr || !c->machine.in_content()) return 0;
  return update(*c, out, slice_of(data, length), *left_over);
}

int quarn_asn1_decode_octetstring_isfinish(const quarn_asn1_decode_octetstring_ctx *c) {
  return c != nullptr && c->machine.is_complete() ? 1 : 0;
}

int64_t quarn_asn1_decode_octetstring_ctx_getencodelength(
    const quarn_asn1_decode_octetstring_ctx *c) {
  return quarn_asn1_decode_octetstring_isfinish(c) == 1 ? c->total : -1;
}

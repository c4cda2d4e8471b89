// Dispatch by type id: whole elements and contents through the rows of the registry.
//
// A row needs a content codec only; identifier and length around it are written and checked here.
// These functions add no record for a failure inside a content codec: whoever decodes a component
// records that component's code, so that each layer is named once.
#include "core/adapter.h"
#include "core/engine.h"
#include "core/type.h"
#include "quarn_asn1/core.h"
#include "types/codecs.h"
#include "types/null.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1"};

Status encode_around_content(const Type &type, Writer &out, void *value) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  // NULL carries nothing, so that its value may be null.
  if (value == nullptr && type.codec->encode_content != encode_null_content) {
    return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT, out.offset());
  }
  const std::int64_t length = content_length_of(type, value);
  const Status status = write_header(type, out, length);
  return status ? type.codec->encode_content(type, out, value, length) : status;
}

}  // namespace

Status decode_around_content(const Type &type, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  Identifier identifier{};
  Status status = read_identifier(in, identifier);
  if (!status) {
    return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
  }
  if (!identifier.is(type.tag_class, type.tag_number)) {
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  if (type.form != -1 && identifier.primitive != (type.form != 0)) {
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_FORM, in.offset());
  }
  std::int64_t length = 0;
  status = read_length(in, length);
  if (!status) return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
  return type.codec->decode_content(type, in, value, identifier.primitive, length);
}

Status write_header(const Type &type, Writer &out, std::int64_t length) {
  if (length < kIndefinite) {
    return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_ITEM_LENGTH, out.offset());
  }
  const bool primitive = type.form == -1 ? length != kIndefinite : type.form != 0;
  return write_header(out, kUnit, type.tag_class, primitive, type.tag_number, length);
}

Status encode(const Type &type, Writer &out, void *value) {
  if (type.codec->encode != nullptr) return type.codec->encode(type, out, value);
  return encode_around_content(type, out, value);
}

Status decode(const Type &type, Reader &in, void **value) {
  if (in.at_depth_limit()) return Status::too_deep();
  const Nesting nesting(in);
  if (type.codec->decode != nullptr) return type.codec->decode(type, in, value);
  return decode_around_content(type, in, value);
}

bool matches(const Type &type, const Identifier &identifier) {
  if (type.codec->matches != nullptr) return type.codec->matches(type, identifier);
  return identifier.is(type.tag_class, type.tag_number);
}

Status decode_rest(const Type &type, Reader &in, const Identifier &identifier, void **value) {
  if (in.at_depth_limit()) return Status::too_deep();
  const Nesting nesting(in);
  return type.codec->decode_rest(type, in, identifier, value);
}

std::int64_t content_length_of(const Type &type, const void *value) {
  const std::int64_t length = type.codec->content_length(type, value);
  return length < kIndefinite ? kNoLength : length;
}

std::int64_t length_of(const Type &type, const void *value) {
  if (type.codec->length != nullptr) return type.codec->length(type, value);
  return element_length(type.tag_number, content_length_of(type, value));
}

Status encode_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  return type.codec->encode_content(type, out, value, length);
}

Status decode_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  if (in.at_depth_limit()) return Status::too_deep();
  const Nesting nesting(in);
  return type.codec->decode_content(type, in, value, primitive, length);
}

void free_value(const Type &type, void *value) {
  if (value != nullptr) type.codec->free(type, value);
}

Status cannot_encode(const Type & /*type*/, Writer &out, void * /*value*/) {
  return kUnit.fail(out.ctx(), QUARN_ASN1_ERROR_CANNOT_ENCODE, out.offset());
}

Status cannot_decode(const Type & /*type*/, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_CANNOT_DECODE, in.offset());
}

Status cannot_decode_content(
    const Type &type, Reader &in, void **value, bool /*primitive*/, std::int64_t /*length*/) {
  return cannot_decode(type, in, value);
}

void free_nothing(const Type & /*type*/, void * /*value*/) {}

}  // namespace quarn::asn1

using namespace quarn::asn1;

namespace {

int no_such_type(quarn_err_ctx *ctx) {
  return kUnit.fail(ctx, QUARN_ASN1_ERROR_TYPE).raw();
}

}  // namespace

void quarn_asn1_value_free(int64_t type_id, void *value) {
  const Type *type = find_type(type_id);
  if (type != nullptr) free_value(*type, value);
}

void quarn_asn1_forget_octets(int64_t type_id, void *value) {
  const Type *type = find_type(type_id);
  if (type != nullptr) drop_kept(*type, value);
}

int64_t quarn_asn1_content_length(int64_t type_id, const void *value) {
  const Type *type = find_type(type_id);
  return type == nullptr ? kNoLength : content_length_of(*type, value);
}

int64_t quarn_asn1_length(int64_t type_id, const void *value) {
  const Type *type = find_type(type_id);
  return type == nullptr ? kNoLength : length_of(*type, value);
}

int quarn_asn1_encode(
    quarn_stream *s, int64_t type_id, void *value, uint64_t *written, quarn_err_ctx *ctx) {
  const Type *type = find_type(type_id);
  if (type == nullptr) return no_such_type(ctx);
  return writing(s, written, ctx, [=](Writer &out) { return encode(*type, out, value); });
}

int quarn_asn1_decode(
    quarn_stream *s, int64_t type_id, void **value, uint64_t *consumed, quarn_err_ctx *ctx) {
  const Type *type = find_type(type_id);
  if (type == nullptr) return no_such_type(ctx);
  return reading(s, consumed, ctx, [=](Reader &in) { return decode(*type, in, value); });
}

int quarn_asn1_encode_content(quarn_stream *s,
                              int64_t type_id,
                              void *value,
                              int64_t content_length,
                              uint64_t *written,
                              quarn_err_ctx *ctx) {
  const Type *type = find_type(type_id);
  if (type == nullptr) return no_such_type(ctx);
  return writing(s, written, ctx,
                 [=](Writer &out) { return encode_content(*type, out, value, content_length); });
}

int quarn_asn1_decode_content(quarn_stream *s,
                              int64_t type_id,
                              void **value,
                              int form,
                              int64_t content_length,
                              uint64_t *consumed,
                              quarn_err_ctx *ctx) {
  const Type *type = find_type(type_id);
  if (type == nullptr) return no_such_type(ctx);
  return reading(s, consumed, ctx, [=](Reader &in) {
    return decode_content(*type, in, value, form != 0, content_length);
  });
}

int quarn_asn1_encode_puterr(quarn_err_ctx *ctx, int64_t type_id, const char *file, int line) {
  const Type *type = find_type(type_id);
  const int code = type == nullptr ? QUARN_ASN1_ERROR_TYPE : type->encode_error();
  return quarn_err_ctx_put(ctx, file, line, code, quarn_igetASN1Error(code));
}

int quarn_asn1_decode_puterr(quarn_err_ctx *ctx, int64_t type_id, const char *file, int line) {
  const Type *type = find_type(type_id);
  const int code = type == nullptr ? QUARN_ASN1_ERROR_TYPE : type->decode_error();
  return quarn_err_ctx_put(ctx, file, line, code, quarn_igetASN1Error(code));
}

int quarn_asn1_type_describe(int64_t type_id, quarn_asn1_type_description *description) {
  const Type *type = find_type(type_id);
  if (type == nullptr || description == nullptr) return 0;
  *description = {type->name,       type->tag_untold ? 0 : type->tag_number,
                  type->tag_class,  type->tag_untold ? -1 : type->form,
                  type->error_code, 1};
  return 1;
}

int64_t quarn_asn1_type_find(const char *name) {
  if (name == nullptr) return -1;
  for (int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (std::strcmp(find_type(id)->name, name) == 0) return id;
  }
  return -1;
}

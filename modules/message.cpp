// Messages apart from their content.
#include "quarn_asn1/message.h"

#include "core/adapter.h"
#include "modules/signed_data.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_CMS"};

// Whether a record has content, in a component of its own or, with deep, in one of a component.
bool has_content(const Type &type, bool deep) {
  const Schema *schema = type.schema;
  if (schema == nullptr || schema->kind != Kind::record) return false;
  for (const Field &field : schema->fields) {
    if (field.presence == Presence::content) return true;
    if (deep && field.mandatory() && has_content(type_of(field.type()), false)) return true;
  }
  return false;
}

// CMS signs the octets of an OCTET STRING. The value cannot tell any more what it was.
bool signs_something_else(const Type &type, const Diversion &diversion) {
  return &type == &type_of(QUARN_ASN1_CMSSIGNEDDATA) && diversion.offset >= 0 &&
         !diversion.is_octets();
}

Status decode_apart(const Type &type, Reader &in, Diversion &diversion, void **value) {
  in.divert(diversion);
  Value message(type);
  const Status status = decode(type, in, message.out());
  if (!status) return status;
  if (signs_something_else(type, diversion)) return refuse(*type.schema, in.ctx(), in.offset());
  *value = message.release();
  return status;
}

}  // namespace

}  // namespace quarn::asn1

using namespace quarn::asn1;

int quarn_asn1_decode_message(quarn_stream *stream,
                              uint32_t type_id,
                              quarn_stream *content,
                              void **value,
                              quarn_asn1_content_place *place,
                              uint64_t *consumed,
                              quarn_err_ctx *ctx) {
  if (value != nullptr) *value = nullptr;
  if (place != nullptr) *place = kNowhere;
  const Type *type = find_type(type_id);
  if (type == nullptr) return kUnit.fail(ctx, QUARN_ASN1_ERROR_TYPE).raw();
  // Octets of a memory stream are read in place: it cannot grow meanwhile.
  if (value == nullptr || stream == nullptr || content == stream || !has_content(*type, true)) {
    return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  }
  Diversion diversion{content};
  const int result = reading(stream, consumed, ctx,
                             [&](Reader &in) { return decode_apart(*type, in, diversion, value); });
  if (result == 1 && place != nullptr) *place = place_of(diversion);
  return result;
}

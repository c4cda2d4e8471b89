// Messages apart from their content.
#include "quarn_asn1/message.h"

#include "core/adapter.h"
#include "modules/signed_data.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_CMS"};

// Whether a record has content, in a component of its own or, with deep, in one of a component. It
// is then the only content in it; see core/schema_check.h.
bool has_content(const Type &type, bool deep) {
  const Schema *schema = type.schema;
  if (schema == nullptr || schema->kind != Kind::record) return false;
  for (const Field &field : schema->fields) {
    if (field.presence == Presence::content) return true;
    if (deep && field.mandatory() && has_content(type_of(field.type()), false)) return true;
  }
  return false;
}

// The value cannot tell any more what the content was.
bool allowed_apart(const Schema &schema, const Diversion &content) {
  const Restriction *restriction = schema.restriction;
  return restriction == nullptr || restriction->allows_apart == nullptr ||
         restriction->allows_apart(content);
}

Status decode_apart(const Type &type, Reader &in, Diversion &diversion, void **value) {
  in.divert(diversion);
  Value message(type);
  const Status status = decode(type, in, message.out());
  if (!status) return status;
  if (!allowed_apart(*type.schema, diversion)) return refuse(*type.schema, in.ctx(), in.offset());
  *value = message.release();
  return status;
}

// Writes a signed message in two halves, between which its content comes.
class Halves {
 public:
  Halves(Writer &out, const quarn_pkcs7signeddata *message, std::int32_t form)
      : out_(out),
        components_(components(const_cast<quarn_pkcs7signeddata *>(message))),
        form_(form) {}

  Status before_content() {
    Status status = form_ == kStandsAlone ? Status::success() : begin_content_info();
    if (status) status = begin(kSequence);
    if (status) status = plain(0);
    if (status) status = plain(1);
    if (status) status = begin(kSequence);
    if (status) status = content_type();
    if (status) status = begin(kTag);
    return status ? begin(kSegments) : status;
  }

  Status after_content() {
    Status status = ends(3);  // OCTET STRING, its tag, contentInfo
    for (std::size_t i = kFirstOptional; status && i < kSignerInfos; i++) {
      if (components_[i] != nullptr) status = tagged(i);
    }
    if (status) status = plain(kSignerInfos);
    return status ? ends(form_ == kStandsAlone ? 1 : 3) : status;
  }

 private:
  // First octets of elements, all of which are of indefinite length.
  static constexpr std::uint8_t kSequence = 0x30;
  static constexpr std::uint8_t kTag = 0xA0;
  static constexpr std::uint8_t kSegments = 0x24;

  Status begin(std::uint8_t identifier) {
    const std::uint8_t header[] = {identifier, 0x80};
    return out_.octets(header, sizeof header);
  }
  Status ends(int count) {
    Status status = Status::success();
    while (status && count-- > 0) status = write_end_of_contents(out_);
    return status;
  }

  Status begin_content_info() {
    Status status = begin(kSequence);
    if (!status) return status;
    const Type &type = type_of(QUARN_ASN1_OID);
    for (const auto &known : kForms) {
      if (known.form != form_) continue;
      Value oid(type, quarn_asn1_oid_new(known.oid));
      if (oid.get() == nullptr) return kUnit.fail(out_.ctx(), QUARN_ERROR_NO_MEMORY);
      status = encode(type, out_, oid.get());
    }
    return status ? begin(kTag) : status;
  }

  // A component that is written by its row.
  Status plain(std::size_t index) {
    const Field &field = signed_data_schema().fields[index];
    return named(field, encode(type_of(field.type()), out_, components_[index]));
  }
  Status content_type() {
    const Schema &info = *type_of(QUARN_ASN1_PKCS7CONTENTINFO).schema;
    const Field &field = info.fields[0];
    return named(field,
                 encode(type_of(field.type()), out_, component(components_[kContentInfo], 0)));
  }
  Status tagged(std::size_t index) {
    const Field &field = signed_data_schema().fields[index];
    const Type &type = type_of(field.type());
    const std::int64_t length = content_length_of(type, components_[index]);
    Status status = write_identifier(out_, kContext, false, field.tag);
    if (status) status = write_length(out_, length);
    if (status) status = encode_content(type, out_, components_[index], length);
    return named(field, status);
  }
  Status named(const Field &field, Status status) {
    if (status) return status;
    out_.step(field.name);
    return kUnit.pass_on(status, out_.ctx(), type_of(field.type()).encode_error(), out_.offset());
  }

  Writer &out_;
  void **components_;
  std::int32_t form_;
};

int write_half(quarn_stream *stream,
               const quarn_pkcs7signeddata *message,
               std::int32_t form,
               quarn_err_ctx *ctx,
               Status (Halves::*half)()) {
  if (stream == nullptr || message == nullptr || !is_form(form)) {
    return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  }
  return writing(stream, nullptr, ctx, [=](Writer &out) {
    Halves halves(out, message, form);
    return (halves.*half)();
  });
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

int quarn_asn1_encode_signeddata_init(quarn_stream *stream,
                                      const quarn_pkcs7signeddata *message,
                                      int32_t form,
                                      quarn_err_ctx *ctx) {
  return write_half(stream, message, form, ctx, &Halves::before_content);
}

int quarn_asn1_encode_signeddata_end(quarn_stream *stream,
                                     const quarn_pkcs7signeddata *message,
                                     int32_t form,
                                     quarn_err_ctx *ctx) {
  return write_half(stream, message, form, ctx, &Halves::after_content);
}

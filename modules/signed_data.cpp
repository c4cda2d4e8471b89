// Signed messages in one pass over a stream that cannot go back.
//
//     30 80                         ContentInfo
//        06 09 2A .. 07 02
//        A0 80
//           30 80                   SignedData
//              02 01 01
//              31 .. ..
//              30 80 ..             contentInfo: from here
//              A0 .. ..             to here
//              31 .. ..             signerInfos: here
//              00 00  00 00  00 00
//
// The SignedData may also stand alone: its first component is an INTEGER, not an OBJECT IDENTIFIER.
// What begins like neither is not refused: the caller may know what it is.
#include "modules/signed_data.h"

#include <cstring>

#include "core/adapter.h"
#include "quarn_asn1/cms.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_CMS"};

constexpr int kNotSignedData = 0x10354;
constexpr std::uint64_t kIntegerTag = 2;
constexpr std::uint64_t kOidTag = 6;
constexpr std::uint64_t kSequenceTag = 16;
constexpr std::uint64_t kSetTag = 17;

class OnePass {
 public:
  explicit OnePass(Reader &in) : in_(in), message_(type_of(QUARN_ASN1_PKCS7SIGNEDDATA)) {}

  // Success without a message: it is something else.
  Status decode_message(void **message) {
    Status status = begin();
    if (!status || !mine_) return status;
    status = version();
    if (status) status = components_after_version();
    if (status) status = close(body_);
    if (status && form_ != kStandsAlone) status = close_content_info();
    if (status) *message = message_.release();
    return status;
  }

 private:
  // An open element whose content began at a position.
  struct Level {
    std::uint64_t start;
    std::int64_t length;
  };

  Status fail(int code, int line = __builtin_LINE()) {
    return kUnit.fail(in_.ctx(), code, in_.offset(), line);
  }
  Status note(Status status, int code, int line = __builtin_LINE()) {
    return status ? status : kUnit.pass_on(status, in_.ctx(), code, in_.offset(), line);
  }
  Status something_else() {
    mine_ = false;
    return Status::success();
  }
  Status something_like_it(int line = __builtin_LINE()) {
    kUnit.record(in_.ctx(), kNotSignedData, in_.offset(), line);
    return something_else();
  }

  Status look() { return note(read_identifier(in_, next_), QUARN_ASN1_ERROR_READ_IDENTIFIER); }
  bool next_is(std::uint32_t tag_class, bool primitive, std::uint64_t number) const {
    return next_.is(tag_class, number) && next_.primitive == primitive;
  }
  Status open(Level &level) {
    const Status status = note(read_length(in_, level.length), QUARN_ASN1_ERROR_READ_LENGTH);
    level.start = in_.count();
    return status;
  }
  std::uint64_t taken(const Level &level) const { return in_.count() - level.start; }

  // Up to the identifier of the version.
  Status begin() {
    Status status = look();
    if (!status) return status;
    if (!next_is(kUniversal, false, kSequenceTag)) return something_else();
    status = open(body_);
    if (status) status = look();
    if (status && next_is(kUniversal, true, kOidTag)) status = enter_content_info();
    if (!status || !mine_) return status;
    return next_is(kUniversal, true, kIntegerTag) ? status : something_like_it();
  }

  Status enter_content_info() {
    whole_ = body_;
    Status status = content_type();
    if (status) status = look();
    if (!status) return status;
    if (!next_is(kContext, false, 0)) return something_like_it();
    status = open(tag_);
    if (status) status = look();
    if (!status) return status;
    if (!next_is(kUniversal, false, kSequenceTag)) return something_like_it();
    status = open(body_);
    return status ? look() : status;
  }

  Status content_type() {
    const Type &type = type_of(QUARN_ASN1_OID);
    Value oid(type);
    const Status status = content_of(type, oid.out());
    if (!status) return status;
    const char *dotted = quarn_asn1_oid_getstring(static_cast<const quarn_asn1_oid *>(oid.get()));
    for (const auto &known : kForms) {
      if (std::strcmp(dotted, known.oid) != 0) continue;
      form_ = known.form;
      return status;
    }
    return fail(kNotSignedData);
  }

  // Length and content of a value whose identifier has been read.
  Status content_of(const Type &type, void **value) {
    Level level{};
    const Status status = open(level);
    if (!status) return status;
    return note(decode_content(type, in_, value, next_.primitive, level.length),
                type.decode_error());
  }

  Status version() {
    void *record = new_record(signed_data_schema());
    if (record == nullptr) return fail(QUARN_ERROR_NO_MEMORY);
    *message_.out() = record;
    positions_in_message(record)[kForm] = form_;
    return component_content(0);
  }

  Status components_after_version() {
    Status status = component_whole(1);
    mark(kContentInfo);
    if (status) status = component_whole(kContentInfo);
    mark(kContentInfoEnd);
    if (status) status = next_component();
    for (std::size_t i = kFirstOptional; status && i < kSignerInfos; i++) {
      if (!next_is(kContext, false, signed_data_schema().fields[i].tag)) continue;
      status = component_content(i);
      if (status) status = next_component();
    }
    if (!status) return status;
    return next_is(kUniversal, false, kSetTag) ? component_content(kSignerInfos)
                                               : fail(QUARN_ASN1_ERROR_ITEM);
  }

  void mark(SignedDataPosition position) {
    positions_in_message(message_.get())[position] = in_.offset();
  }
  // The signer infos are here, unless something else is.
  Status next_component() {
    mark(kSignerInfos);
    return look();
  }

  Status component_whole(std::size_t index) {
    const Type &type = type_of(signed_data_schema().fields[index].type());
    const Status status = decode(type, in_, components(message_.get()) + index);
    return finish(index, note(status, type.decode_error()));
  }
  Status component_content(std::size_t index) {
    const Type &type = type_of(signed_data_schema().fields[index].type());
    return finish(index, content_of(type, components(message_.get()) + index));
  }
  Status finish(std::size_t index, Status status) {
    if (!status) {
      in_.step(signed_data_schema().fields[index].name);
      return status;
    }
    const bool beyond =
        body_.length != kIndefinite && taken(body_) > static_cast<std::uint64_t>(body_.length);
    return beyond ? fail(QUARN_ASN1_ERROR_ITEM_LENGTH) : status;
  }

  Status at_end_of(const Level &level) {
    const bool exact = taken(level) == static_cast<std::uint64_t>(level.length);
    return exact ? Status::success() : fail(QUARN_ASN1_ERROR_ITEM_LENGTH);
  }

  Status close(const Level &level) {
    if (level.length != kIndefinite) return at_end_of(level);
    const Status status = look();
    if (!status) return status;
    if (!next_is(kUniversal, true, 0)) return fail(QUARN_ASN1_ERROR_ITEM);
    return note(read_end_of_contents_length(in_), QUARN_ASN1_ERROR_READ_END);
  }

  Status close_content_info() {
    for (const Level &level : {tag_, whole_}) {
      const Status status = level.length != kIndefinite
                                ? at_end_of(level)
                                : note(read_end_of_contents(in_), kNotSignedData);
      if (!status) return status;
    }
    return Status::success();
  }

  Reader &in_;
  Value message_;
  Identifier next_{};
  Level whole_{};  // the ContentInfo
  Level tag_{};    // of its content
  Level body_{};   // the SignedData
  std::int64_t form_ = kStandsAlone;
  bool mine_ = true;
};

}  // namespace

}  // namespace quarn::asn1

using namespace quarn::asn1;

namespace {

// With a diversion the content goes where that says.
int decode_in_one_pass(quarn_stream *stream,
                       Diversion *diversion,
                       quarn_pkcs7signeddata **message,
                       uint64_t *consumed,
                       quarn_err_ctx *ctx) {
  if (message != nullptr) *message = nullptr;
  if (stream == nullptr || message == nullptr) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  std::uint64_t count = 0;
  const int result = reading(stream, &count, ctx, [=](Reader &in) {
    if (diversion != nullptr) in.divert(*diversion);
    return OnePass(in).decode_message(untyped(message));
  });
  if (*message != nullptr && consumed != nullptr) *consumed = count;
  return result;
}

}  // namespace

int quarn_asn1_decode_pkcs7signeddata(quarn_stream *stream,
                                      quarn_pkcs7signeddata **message,
                                      uint64_t *consumed,
                                      quarn_err_ctx *ctx) {
  return decode_in_one_pass(stream, nullptr, message, consumed, ctx);
}

int quarn_asn1_decode_pkcs7signeddata_ex(quarn_stream *stream,
                                         quarn_stream *content,
                                         quarn_pkcs7signeddata **message,
                                         quarn_asn1_content_place *place,
                                         uint64_t *consumed,
                                         quarn_err_ctx *ctx) {
  if (message != nullptr) *message = nullptr;
  if (place != nullptr) *place = kNowhere;
  // Octets of a memory stream are read in place: it cannot grow meanwhile.
  if (content != nullptr && content == stream) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  Diversion diversion{content};
  const int result = decode_in_one_pass(stream, &diversion, message, consumed, ctx);
  if (message != nullptr && *message != nullptr && place != nullptr) *place = place_of(diversion);
  return result;
}

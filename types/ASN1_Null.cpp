// NULL (X.690, 8.8): 05 00, and nothing to keep.
#include "types/null.h"

#include "types/codecs.h"
#include "types/content.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Null.cpp"};
constexpr std::uint8_t kEncoding[] = {0x05, 0x00};

constexpr std::uint32_t kShared = 0;

std::int64_t null_length(const Type & /*type*/, const void * /*value*/) {
  return 0;
}

Status encode_null(const Type & /*type*/, Writer &out, void * /*value*/) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  return out.octets(kEncoding, sizeof kEncoding);
}

// Callers that only want to know that a NULL stands there give no out pointer.
Status decode_null_content(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  void *ignored = nullptr;
  if (value == nullptr) value = &ignored;
  const Status status = expect_primitive(in, value, primitive, length, kUnit);
  if (!status) return status;
  if (length != 0) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
  *value = null_value();
  return status;
}

}  // namespace

Status encode_null_content(const Type & /*type*/,
                           Writer &out,
                           void * /*value*/,
                           std::int64_t length) {
  if (out.is_null()) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (length != 0) return kUnit.fail_generally(out.ctx(), QUARN_ASN1_ERROR_LENGTH);
  return Status::success();
}

void *null_value() {
  return const_cast<std::uint32_t *>(&kShared);
}

const Codec kNullCodec = {free_nothing,        null_length, nullptr, encode_null_content,
                          decode_null_content, encode_null, nullptr};
const Codec kNullContentCodec = {free_nothing,        null_length, nullptr, encode_null_content,
                                 decode_null_content, nullptr,     nullptr};

}  // namespace quarn::asn1

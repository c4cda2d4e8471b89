// Content of values that are always primitive and of definite length.
#ifndef QUARN_TYPES_CONTENT_H
#define QUARN_TYPES_CONTENT_H

#include <cstdint>

#include "core/header.h"
#include "core/type.h"

namespace quarn::asn1 {

// The content of one value in one run: a view where the input is in memory, else a copy that grows
// as the octets arrive.
class Content {
 public:
  // cppcheck-suppress uninitMemberVar ; few_ is written before it is read
  Content() = default;

  Status read(Reader &in, std::uint64_t count, const Unit &unit) {
    size_ = count;
    if (in.in_memory() && count <= in.left()) [[likely]] {
      data_ = in.next();
      in.advance(count);
      return Status::success();
    }
    if (count <= sizeof few_) return in.octets(few_, count);
    const Status status = in.octets(many_, count, unit);
    data_ = many_.data();
    return status;
  }

  // Valid while this lives and nothing is written to the stream that was read.
  const std::uint8_t *data() const { return data_; }
  std::size_t size() const { return size_; }

 private:
  std::uint8_t few_[64];
  Buffer many_;
  const std::uint8_t *data_ = few_;
  std::size_t size_ = 0;
};

// What a content decoder checks before it looks at the length. Stores null first.
inline Status expect_primitive(
    Reader &in, void **value, bool primitive, std::int64_t length, const Unit &unit) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return unit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  if (!primitive) return unit.fail(in.ctx(), QUARN_ASN1_ERROR_FORM, in.offset());
  if (length == kIndefinite) {
    return unit.fail(in.ctx(), QUARN_ASN1_ERROR_INDEFINITE, in.offset());
  }
  return Status::success();
}

// The same for values whose content is never empty.
inline Status expect_some_primitive(
    Reader &in, void **value, bool primitive, std::int64_t length, const Unit &unit) {
  const Status status = expect_primitive(in, value, primitive, length, unit);
  if (!status || length > 0) return status;
  return unit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
}

// What a content encoder checks first: a length other than the value's is refused with the general
// text of its code.
inline Status expect_length(
    Writer &out, const void *value, std::int64_t length, std::int64_t wanted, const Unit &unit) {
  if (out.is_null() || value == nullptr) return unit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  return length == wanted ? Status::success()
                          : unit.fail_generally(out.ctx(), QUARN_ASN1_ERROR_LENGTH);
}

}  // namespace quarn::asn1

#endif

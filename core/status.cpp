#include "core/status.h"

#include "quarn_asn1/core.h"

namespace quarn::asn1 {

const char *message_of(int code) {
  const char *text = quarn_igetASN1Error(code);
  if (*text == '\0') text = quarn_igetGeneralError(code);
  if (*text == '\0') text = quarn_igetStreamError(code);
  return text;
}

[[gnu::cold]] void Unit::record(quarn_err_ctx *ctx, int code, std::int64_t offset, int line) const {
  quarn_err_ctx_put_at(ctx, name, line, code, message_of(code), offset);
}

[[gnu::cold]] Status Unit::fail_generally(quarn_err_ctx *ctx,
                                          int code,
                                          std::int64_t offset,
                                          int line) const {
  quarn_err_ctx_put_at(ctx, name, line, code, quarn_igetGeneralError(code), offset);
  return Status::failure();
}

[[gnu::cold]] void FailurePath::step(quarn_err_ctx *ctx, const char *name, std::int64_t index) {
  FailurePath *path = this;
  while (path->outer_ != nullptr) path = path->outer_;
  quarn_err_ctx_put_step(ctx, name, index, path->begun_ ? 0 : 1);
  path->begun_ = true;
}

}  // namespace quarn::asn1

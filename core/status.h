// Results inside the library, and how a failure gets its record.
//
// A function that can fail returns a Status. The place that finds a fault calls fail(), which puts
// a record into the caller's error context; each enclosing layer that has a code of its own for the
// failure calls pass_on(), which adds a record and hands the result up unchanged. Callers of the C
// interface receive the number inside: 1 for success.
#ifndef QUARN_CORE_STATUS_H
#define QUARN_CORE_STATUS_H

#include <cstdint>

#include "quarn_asn1/errors.h"
#include "quarn_util.h"

namespace quarn::asn1 {

class [[nodiscard]] Status {
 public:
  static constexpr Status success() { return Status(1); }
  static constexpr Status failure() { return Status(0); }
  // Nesting passes the limit. The result says so; nothing records it.
  static constexpr Status too_deep() { return Status(QUARN_ERROR_RECURSION); }
  // The result of a function with C linkage, whatever number it is.
  static constexpr Status from(int raw) { return Status(raw); }

  constexpr bool ok() const { return raw_ == 1; }
  constexpr explicit operator bool() const { return ok(); }
  constexpr int raw() const { return raw_; }

 private:
  constexpr explicit Status(int raw) : raw_(raw) {}
  int raw_;
};

// Text of any code that this library records: its own, general or stream.
const char *message_of(int code);

// The source unit whose name stands in its records.
struct Unit {
  const char *name;

  // Records code with its own text; the result is failure (0).
  Status fail(quarn_err_ctx *ctx,
              int code,
              std::int64_t offset = -1,
              int line = __builtin_LINE()) const {
    record(ctx, code, offset, line);
    return Status::failure();
  }
  // Records code after a step below has failed and hands that step's result up.
  Status pass_on(Status status,
                 quarn_err_ctx *ctx,
                 int code,
                 std::int64_t offset = -1,
                 int line = __builtin_LINE()) const {
    record(ctx, code, offset, line);
    return status;
  }
  // Records code with the text that the general errors have for it. The content encoders of
  // BOOLEAN, INTEGER, NULL, OBJECT IDENTIFIER and the times report a length that does not fit this
  // way; callers match on the empty text.
  Status fail_generally(quarn_err_ctx *ctx,
                        int code,
                        std::int64_t offset = -1,
                        int line = __builtin_LINE()) const;
  // Records code for what is accepted nevertheless.
  void record(quarn_err_ctx *ctx,
              int code,
              std::int64_t offset = -1,
              int line = __builtin_LINE()) const;
};

// The steps by which a failure came up through the components of values. Each cursor has one; that
// of a cursor inside another one's octets goes on with its path.
class FailurePath {
 public:
  explicit FailurePath(FailurePath *outer = nullptr) : outer_(outer) {}

  // The failure lies in a component of this name, or in element number index of a list.
  void step(quarn_err_ctx *ctx, const char *name, std::int64_t index = 0);

 private:
  FailurePath *outer_;
  bool begun_ = false;
};

}  // namespace quarn::asn1

#endif

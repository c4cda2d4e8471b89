// How the support library's own functions report a failure.
#ifndef QUARN_UTIL_ERROR_H
#define QUARN_UTIL_ERROR_H

#include "quarn_util.h"

namespace quarn::util {

// The source unit whose name stands in the records.
struct Unit {
  const char *name;

  // Puts one record with the text of a general or stream code and returns 0.
  int fail(quarn_err_ctx *ctx, int code, int64_t offset = -1, int line = __builtin_LINE()) const {
    const char *text = quarn_igetGeneralError(code);
    if (*text == '\0') text = quarn_igetStreamError(code);
    quarn_err_ctx_put_at(ctx, name, line, code, text, offset);
    return 0;
  }
};

}  // namespace quarn::util

#endif

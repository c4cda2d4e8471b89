// Texts of the error codes.
#include <iterator>

#include "quarn_asn1/core.h"

namespace {

#include "core/gen/messages.inc"

constexpr int kFirstCode = 0x10200;
static_assert(std::size(kMessages) == 0x10576 - kFirstCode + 1);

}  // namespace

const char *quarn_igetASN1Error(int code) {
  const bool known =
      code >= kFirstCode && code < kFirstCode + static_cast<int>(std::size(kMessages));
  return known ? kMessages[code - kFirstCode] : "";
}

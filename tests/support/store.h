// Every call on a stream and every allocation failing in turn.
#ifndef QUARN_TESTS_SUPPORT_STORE_H
#define QUARN_TESTS_SUPPORT_STORE_H

#include <cstdint>
#include <vector>

#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {

// Runs attempt(from, to), which reads `octets` from one store and works on another that knows its
// length or does not, with every call on either and every allocation failing in turn. It returns
// whether all went well.
template <typename Attempt>
void fail_each_call(const std::vector<std::uint8_t> &octets, Attempt attempt) {
  for (const bool knows_length : {true, false}) {
    Store whole(octets);
    Store content;
    content.knows_length = knows_length;
    ASSERT_TRUE(attempt(whole, content));
    for (std::uint64_t n = 0; n < whole.calls + content.calls; n++) {
      Store from(octets);
      Store to;
      to.knows_length = knows_length;
      (n < whole.calls ? from : to).fail_at = n < whole.calls ? n : n - whole.calls;
      EXPECT_FALSE(attempt(from, to)) << "call " << n << " failing";
    }
    fail_each_allocation([&](Allocation &allocation) {
      Store from(octets);
      Store to;
      to.knows_length = knows_length;
      EXPECT_TRUE(attempt(from, to) || allocation.failed());
    });
  }
}

}  // namespace quarn::test

#endif

// Values of samples, and everything that can be done with a value.
#ifndef QUARN_TESTS_LAWS_USE_H
#define QUARN_TESTS_LAWS_USE_H

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "core/engine.h"
#include "quarn_asn1.h"
#include "tests/laws/samples.h"
#include "tests/support/components.h"
#include "tests/unit/values.h"

namespace quarn::test {

// The encoding of a value that has forgotten what it kept of the octets it came from.
inline Octets fresh_encoding_of(std::int64_t type, void *value) {
  asn1::drop_kept(*asn1::find_type(type), value);
  return encoding_of(type, value);
}

inline void for_each(const std::vector<Vector> &samples,
                     const std::function<void(const Vector &)> &law) {
  for (const Vector &sample : samples) {
    SCOPED_TRACE(sample.file + ":" + std::to_string(sample.line) + ": " + sample.name);
    law(sample);
    if (::testing::Test::HasFatalFailure()) return;
  }
}
inline void for_each_sample(std::size_t most, const std::function<void(const Vector &)> &law) {
  for_each(samples(most), law);
}

// What a value is encoded to decodes, and that encodes to the same.
inline void encode_and_back(std::int64_t type, const Octets &encoding) {
  const Held again(type, encoding);
  ASSERT_EQ(again.consumed(), static_cast<std::int64_t>(encoding.size()));
  EXPECT_EQ(encoding_of(type, again.get()), encoding);
}

// Everything that can be done with what some octets decoded to, if they did.
inline void use(std::int64_t type, const Octets &octets) {
  const Held decoded(type, octets);
  if (decoded.consumed() < 0) {
    EXPECT_EQ(decoded.get(), nullptr);
    return;
  }
  EXPECT_LE(decoded.consumed(), static_cast<std::int64_t>(octets.size()));
  EXPECT_TRUE(is_whole(type, decoded.get()));
  const std::int64_t length = quarn_asn1_length(type, decoded.get());
  const Octets encoding = encoding_of(type, decoded.get());
  if (encoding.empty()) return;
  if (length >= 0) {
    EXPECT_EQ(encoding.size(), static_cast<std::size_t>(length));
  }
  encode_and_back(type, encoding);
  EXPECT_NE(Held(type, quarn_asn1_dupobject(type, decoded.get(), nullptr)).get(), nullptr);
  encode_and_back(type, fresh_encoding_of(type, decoded.get()));
}

}  // namespace quarn::test

#endif

// Octets in and out of values and streams, for the tests of single types.
#ifndef QUARN_TESTS_UNIT_VALUES_H
#define QUARN_TESTS_UNIT_VALUES_H

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "quarn_asn1.h"
#include "tests/support/streams.h"

namespace quarn::test {

using Octets = std::vector<std::uint8_t>;
using Codes = std::vector<int>;

template <std::int64_t kType>
struct FreeValue {
  void operator()(void *value) const { quarn_asn1_value_free(kType, value); }
};
template <typename T, std::int64_t kType>
using Value = std::unique_ptr<T, FreeValue<kType>>;

// Octets of hexadecimal digits with blanks between octets.
inline Octets hex(const char *text) {
  Octets octets;
  for (char *end = nullptr; *text != '\0'; text = *end == ' ' ? end + 1 : end) {
    octets.push_back(static_cast<std::uint8_t>(std::strtoul(text, &end, 16)));
  }
  return octets;
}

// A stream in memory that already holds some octets.
inline Stream growable(const Octets &octets = {}) {
  Stream s(quarn_stream_new_mem(0, nullptr));
  quarn_stream_writen(s.get(), octets.data(), static_cast<std::int64_t>(octets.size()), nullptr);
  return s;
}

inline Octets held_by(const Stream &s) {
  const std::uint8_t *octets = nullptr;
  std::uint64_t count = 0;
  EXPECT_EQ(quarn_memstream_peek(s.get(), &octets, &count), 1);
  return {octets, octets + count};
}

// Nothing for a value that cannot be encoded.
inline Octets encoding_of(std::int64_t type, void *value) {
  quarn_data_blob *blob = quarn_asn1_mem_encode(type, value);
  if (blob == nullptr) return {};
  Octets octets(blob->data, blob->data + blob->length);
  quarn_data_blob_free(blob);
  return octets;
}

}  // namespace quarn::test

#endif

// Calls on distinct objects from several threads at once: run under the thread sanitizer.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "quarn_asn1.h"
#include "tests/laws/samples.h"
#include "tests/support/json.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

bool round_trip(const Vector &sample) {
  const Held decoded(sample.type, sample.in);
  const Held copy(sample.type, quarn_asn1_dupobject(sample.type, decoded.get(), nullptr));
  const std::string text(sample.in.begin(), sample.in.end());
  return decoded.encoding() == *sample.out && encoded(to_json(text)) != "";
}

TEST(Threads, give_the_results_of_one) {
  const std::vector<Vector> all = samples(4096);
  std::atomic<int> wrong = 0;
  const auto work = [&all, &wrong](std::size_t first) {
    for (std::size_t i = 0; i < all.size(); i++) {
      if (!round_trip(all[(first + i) % all.size()])) wrong++;
    }
  };
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < 8; i++) threads.emplace_back(work, i * 7);
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

// Duplicates of one memory stream share its octets; each may be used and freed on its own thread.
TEST(Threads, duplicates_of_a_stream_are_independent) {
  for (int round = 0; round < 50; round++) {
    Stream stream(quarn_stream_new_mem(0, nullptr));
    ASSERT_EQ(quarn_stream_writen(stream.get(), "\x02\x01\x05", 3, nullptr), 1);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; i++) {
      quarn_stream *duplicate = quarn_memstream_dup_readonly(stream.get(), nullptr);
      threads.emplace_back([duplicate] {
        void *value = nullptr;
        EXPECT_EQ(quarn_asn1_decode(duplicate, QUARN_ASN1_INTEGER, &value, nullptr, nullptr), 1);
        quarn_asn1_value_free(QUARN_ASN1_INTEGER, value);
        quarn_stream_free(duplicate);
      });
    }
    ASSERT_EQ(quarn_stream_writen(stream.get(), "more", 4, nullptr), 1);
    stream.reset();
    for (std::thread &thread : threads) thread.join();
  }
}

}  // namespace
}  // namespace quarn::test

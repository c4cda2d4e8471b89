// Calls on distinct objects from several threads at once: run under the thread sanitizer.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "quarn_asn1.h"
#include "tests/laws/samples.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

bool same(quarn_data_blob *blob, const Octets &expected) {
  const bool equal = blob != nullptr && Octets(blob->data, blob->data + blob->length) == expected;
  quarn_data_blob_free(blob);
  return equal;
}

bool round_trip(const Vector &sample) {
  const Context ctx(quarn_err_ctx_new());
  const Stream stream = memory_stream(sample.in);
  void *value = nullptr;
  if (quarn_asn1_decode(stream.get(), sample.type, &value, nullptr, ctx.get()) != 1) return false;
  const bool good = same(quarn_asn1_mem_encode(sample.type, value), *sample.out);
  quarn_asn1_value_free(sample.type, quarn_asn1_dupobject(sample.type, value, nullptr));
  quarn_asn1_value_free(sample.type, value);
  quarn_json *document =
      quarn_asn1_tojson(sample.in.data(), static_cast<std::int64_t>(sample.in.size()));
  quarn_data_blob_free(document == nullptr ? nullptr : quarn_asn1_encodejson(document));
  quarn_json_free(document);
  return good;
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

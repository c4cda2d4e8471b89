#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"

namespace quarn::test {
namespace {

using Octets = std::vector<uint8_t>;

void expect_data(const quarn_bitset *b, const Octets &octets, uint32_t unused_bits) {
  uint32_t unused = 99;
  quarn_data_blob *blob = quarn_bitset_getdata(b, &unused);
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(Octets(blob->data, blob->data + blob->length), octets);
  EXPECT_EQ(unused, unused_bits);
  EXPECT_EQ(quarn_bitset_getcount(b), blob->length * 8 - unused_bits);
  quarn_data_blob_free(blob);
}

TEST(BitSet, gives_back_what_it_was_made_from) {
  const Octets octets{0x86, 0x40, 0x07};
  quarn_bitset *b = quarn_bitset_new(4, octets.data(), 3);
  expect_data(b, octets, 4);
  for (const int64_t n : {0, 5, 6, 9}) EXPECT_EQ(quarn_bitset_isset(b, n), 1) << n;
  for (const int64_t n : {-1, 1, 7, 19, 21, 24}) EXPECT_EQ(quarn_bitset_isset(b, n), 0) << n;
  quarn_bitset_free(b);
}

TEST(BitSet, unused_bits_become_zero_when_the_set_grows_over_them) {
  const Octets octets{0xff};
  quarn_bitset *b = quarn_bitset_new(5, octets.data(), 1);
  EXPECT_EQ(quarn_bitset_set(b, 5), 1);
  expect_data(b, {0xe4}, 2);
  EXPECT_EQ(quarn_bitset_set(b, 16), 1);
  EXPECT_EQ(quarn_bitset_set(b, 1), 1);
  expect_data(b, {0xe4, 0x00, 0x80}, 7);
  quarn_bitset_free(b);
}

TEST(BitSet, setting_bits_in_order_copies_each_octet_a_few_times_only) {
  Allocation allocation;
  quarn_bitset *b = quarn_bitset_empty();
  for (int64_t n = 0; n < 1'000'000; n += 2) ASSERT_EQ(quarn_bitset_set(b, n), 1);
  EXPECT_LT(allocation.count(), 20u);
  EXPECT_EQ(quarn_bitset_getcount(b), 999'999);
  expect_data(b, Octets(125'000, 0xaa), 1);
  quarn_bitset_free(b);
  EXPECT_EQ(allocation.live_blocks(), 0);
}

TEST(BitSet, refuses_what_cannot_be) {
  const uint8_t octet = 0;
  EXPECT_EQ(quarn_bitset_new(8, &octet, 1), nullptr);
  EXPECT_EQ(quarn_bitset_new(1, &octet, 0), nullptr);
  EXPECT_EQ(quarn_bitset_new(0, &octet, INT64_MAX / 8 + 1), nullptr);
}

TEST(BitSet, a_bit_beyond_memory_fails_and_changes_nothing) {
  quarn_mem_set_functions(
      [](size_t size) { return size > 1'000'000 ? nullptr : std::malloc(size); }, std::free);
  const uint8_t octet = 0x81;
  quarn_bitset *b = quarn_bitset_new(0, &octet, 1);
  for (const int64_t n : {INT64_MAX, INT64_MAX - 1, INT64_MAX - 8, int64_t{1} << 32}) {
    EXPECT_EQ(quarn_bitset_set(b, n), 0) << n;
  }
  EXPECT_EQ(quarn_bitset_set(b, -1), 0);
  expect_data(b, {0x81}, 0);
  quarn_bitset_free(b);
  quarn_mem_set_functions(nullptr, nullptr);
}

TEST(BitSet, survives_lack_of_memory) {
  fail_each_allocation([](Allocation &) {
    quarn_bitset *b = quarn_bitset_empty();
    for (int64_t n = 0; n < 2000; n += 500) {
      const int set = quarn_bitset_set(b, n);
      EXPECT_EQ(quarn_bitset_isset(b, n), set);
    }
    quarn_data_blob_free(quarn_bitset_getdata(b, nullptr));
    quarn_bitset_free(b);
  });
}

}  // namespace
}  // namespace quarn::test

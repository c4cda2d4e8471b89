#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

using Octets = std::vector<uint8_t>;
using BitSet = std::unique_ptr<quarn_bitset, decltype(&quarn_bitset_free)>;

BitSet make(uint32_t unused_bits, const Octets &octets) {
  const auto length = static_cast<int64_t>(octets.size());
  return {quarn_bitset_new(unused_bits, octets.data(), length), quarn_bitset_free};
}

void expect_data(const BitSet &b, const Octets &octets, uint32_t unused_bits) {
  uint32_t unused = 99;
  const Blob blob(quarn_bitset_getdata(b.get(), &unused));
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(Octets(blob->data, blob->data + blob->length), octets);
  EXPECT_EQ(unused, unused_bits);
}

TEST(BitSet, unused_bits_are_not_set_and_become_zero_when_the_set_grows_over_them) {
  const BitSet b = make(5, {0xdf});
  for (const int64_t n : {0, 1}) EXPECT_EQ(quarn_bitset_isset(b.get(), n), 1) << n;
  for (const int64_t n : {-1, 2, 3, 8}) EXPECT_EQ(quarn_bitset_isset(b.get(), n), 0) << n;
  EXPECT_EQ(quarn_bitset_set(b.get(), 5), 1);
  expect_data(b, {0xc4}, 2);
  EXPECT_EQ(quarn_bitset_set(b.get(), 16), 1);
  EXPECT_EQ(quarn_bitset_set(b.get(), 2), 1);
  expect_data(b, {0xe4, 0x00, 0x80}, 7);
}

TEST(BitSet, setting_bits_in_order_copies_each_octet_a_few_times_only) {
  const Allocation allocation;
  const BitSet b = make(0, {});
  for (int64_t n = 0; n < 1'000'000; n += 2) ASSERT_EQ(quarn_bitset_set(b.get(), n), 1);
  EXPECT_LT(allocation.count(), 20u);
  EXPECT_EQ(quarn_bitset_getcount(b.get()), 999'999);
  expect_data(b, Octets(125'000, 0xaa), 1);
}

TEST(BitSet, what_cannot_be_fails_and_changes_nothing) {
  const uint8_t octet = 0;
  EXPECT_EQ(make(8, {0}), nullptr);
  EXPECT_EQ(make(1, {}), nullptr);
  EXPECT_EQ(quarn_bitset_new(0, &octet, INT64_MAX / 8 + 1), nullptr);
  Allocation allocation;
  const BitSet b = make(0, {0x81});
  allocation.fail_after(0, Allocation::Mode::from_then_on);
  for (const int64_t n : {INT64_MAX, INT64_MAX - 1, INT64_MAX - 8, int64_t{8}, int64_t{-1}}) {
    EXPECT_EQ(quarn_bitset_set(b.get(), n), 0) << n;
  }
  allocation.never_fail();
  expect_data(b, {0x81}, 0);
}

}  // namespace
}  // namespace quarn::test

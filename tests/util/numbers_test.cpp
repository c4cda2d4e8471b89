#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

// Big integers and bit sets. Expected octets and texts are python's: int.to_bytes(),
// int.bit_length(), str().
namespace quarn::test {
namespace {

using Octets = std::vector<uint8_t>;
using BigInteger = std::unique_ptr<quarn_biginteger, decltype(&quarn_biginteger_free)>;

BigInteger from_octets(const Octets &octets) {
  return {quarn_biginteger_newdata(octets.data(), static_cast<int64_t>(octets.size()), nullptr),
          quarn_biginteger_free};
}

BigInteger from_decimal(const std::string &text) {
  return {quarn_biginteger_newdec(text.c_str(), nullptr), quarn_biginteger_free};
}

Octets octets_of(const BigInteger &b) {
  const Blob blob(quarn_biginteger_getdata(b.get()));
  return blob == nullptr ? Octets() : Octets(blob->data, blob->data + blob->length);
}

std::string decimal_of(const BigInteger &b) {
  char *text = nullptr;
  size_t length = 0;
  if (quarn_biginteger_todec(b.get(), &text, &length) != 1) return "failed";
  return std::string(Memory<char>(text).get(), length);
}

// The digits of the squares from 1 on, one after the other.
std::string digits_of(size_t count) {
  std::string digits;
  for (size_t i = 1; digits.size() < count; i++) digits += std::to_string(i * i);
  return digits.substr(0, count);
}

TEST(BigInteger, octets_and_decimal_text_agree_with_each_other) {
  const std::tuple<std::string, Octets, int64_t> cases[] = {
      {"0", {0}, 0},
      {"18446744073709551616", {1, 0, 0, 0, 0, 0, 0, 0, 0}, 65},
      {"-12345678901234567890123",
       {0xfd, 0x62, 0xbd, 0x49, 0xb1, 0x89, 0x8e, 0xbd, 0xbb, 0x35},
       74},
  };
  for (const auto &[text, octets, bits] : cases) {
    const BigInteger b = from_decimal(text);
    EXPECT_EQ(octets_of(b), octets);
    EXPECT_EQ(decimal_of(from_octets(octets)), text);
    EXPECT_EQ(quarn_biginteger_getbitcount(b.get()), bits);
    EXPECT_EQ(quarn_biginteger_getsign(b.get()), text[0] == '-' ? -1 : bits > 0);
    // Repeated sign octets change nothing.
    Octets longer(3, octets[0] < 0x80 ? 0 : 0xff);
    longer.insert(longer.end(), octets.begin(), octets.end());
    EXPECT_EQ(octets_of(from_octets(longer)), octets);
  }
}

TEST(BigInteger, every_pair_of_octets_is_read_negated_and_written) {
  for (int value = -32768; value <= 32767; value++) {
    const auto high = static_cast<uint8_t>((value >> 8) & 0xff);
    const BigInteger b = from_octets({high, static_cast<uint8_t>(value & 0xff)});
    ASSERT_EQ(decimal_of(b), std::to_string(value));
    ASSERT_EQ(quarn_biginteger_neg(b.get()), 1);
    ASSERT_EQ(octets_of(b), octets_of(from_decimal(std::to_string(-value))));
  }
}

// Around the size at which the conversion divides, and long; 31-fold hashes of the magnitude.
TEST(BigInteger, long_decimal_text_becomes_the_right_octets_and_the_same_text) {
  const std::tuple<size_t, int64_t, uint64_t> cases[] = {{609, 2021, 0x4ecbde3c02bc40c2},
                                                         {40000, 132875, 0x6c591bb105809032}};
  for (const auto &[digits, bits, expected] : cases) {
    const std::string text = '-' + digits_of(digits);
    const BigInteger b = from_decimal(text);
    EXPECT_EQ(quarn_biginteger_getbitcount(b.get()), bits);
    Octets magnitude(static_cast<size_t>(bits + 7) / 8 + 2);
    const auto size = static_cast<int64_t>(magnitude.size());
    ASSERT_EQ(quarn_biginteger_unsigned_tonbuf(b.get(), magnitude.data(), size), 1);
    uint64_t hash = 0;
    for (const uint8_t octet : magnitude) hash = hash * 31 + octet;
    EXPECT_EQ(hash, expected);
    EXPECT_EQ(quarn_biginteger_unsigned_tonbuf(b.get(), magnitude.data(), size - 3), 0);
    EXPECT_EQ(decimal_of(b), text);
  }
}

// Quotients that are one off show at the powers of ten.
TEST(BigInteger, text_next_to_powers_of_ten_survives_the_way_there_and_back) {
  for (const size_t digits : {607U, 608U, 1216U, 4864U, 4865U, 9728U, 20000U}) {
    const std::string zeros(digits, '0');
    EXPECT_EQ(decimal_of(from_decimal(std::string(digits, '9'))), std::string(digits, '9'));
    EXPECT_EQ(decimal_of(from_decimal("-0001" + zeros)), "-1" + zeros);
  }
}

TEST(BigInteger, decimal_text_is_digits_after_an_optional_minus) {
  for (const char *text : {"", "-", "+1", " 1", "1 ", "--1", "12a"}) {
    EXPECT_EQ(from_decimal(text), nullptr) << text;
  }
  EXPECT_EQ(from_octets({}), nullptr);
  EXPECT_EQ(decimal_of(from_decimal("-0")), "0");
}

TEST(BigInteger, survives_lack_of_memory_within_a_long_conversion) {
  const std::string text = digits_of(2500);
  fail_each_allocation([&](Allocation &allocation) {
    const std::string printed = decimal_of(from_decimal(text));
    EXPECT_EQ(printed, allocation.failed() ? "failed" : text);
  });
}

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
  for (const int64_t count : {int64_t{-1}, INT64_MAX}) {
    EXPECT_EQ(quarn_data_blob_new(&octet, count), nullptr);
  }
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

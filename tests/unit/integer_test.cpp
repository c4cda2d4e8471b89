// INTEGER and ENUMERATED values: numbers, octets, big integers and order.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Integer = Value<quarn_asn1_integer, QUARN_ASN1_INTEGER>;

Octets octets_of(const Integer &v) {
  Octets octets(static_cast<std::size_t>(quarn_asn1_integer_getlength(v.get())));
  EXPECT_EQ(quarn_asn1_integer_get(v.get(), octets.data()), 1);
  return octets;
}

std::int64_t number_of(const char *octets, int result) {
  const Held value(QUARN_ASN1_INTEGER, octets);
  std::int64_t n = 77;
  EXPECT_EQ(quarn_asn1_enum_getlong(value.as<quarn_asn1_integer>(), &n), result) << octets;
  EXPECT_EQ(quarn_asn1_integer_getlong(value.as<quarn_asn1_integer>(), &n), result) << octets;
  return n;
}

Integer from_octets(const Octets &octets) {
  return Integer(quarn_asn1_integer_new(octets.data(), static_cast<std::int64_t>(octets.size())));
}

// The fewest octets whose two's complement range holds n.
Octets minimal(std::int64_t n) {
  std::size_t count = 1;
  while (count < 8 &&
         (n < -(std::int64_t{1} << (8 * count - 1)) || n >= std::int64_t{1} << (8 * count - 1))) {
    count++;
  }
  Octets octets(count);
  for (std::size_t i = 0; i < count; i++) {
    octets[i] = static_cast<std::uint8_t>(n >> (8 * (count - 1 - i)));
  }
  return octets;
}

void expect_number(std::int64_t n) {
  const Integer v(quarn_asn1_integer_value(n));
  ASSERT_EQ(octets_of(v), minimal(n)) << n;
  std::int64_t back = 77;
  ASSERT_EQ(quarn_asn1_integer_getlong(v.get(), &back), n == INT64_MIN ? 0 : 1) << n;
  ASSERT_EQ(back, n == INT64_MIN ? 77 : n);
}

TEST(Integer, numbers_have_their_fewest_octets_and_come_back) {
  for (std::int64_t n = -70000; n <= 70000; n++) expect_number(n);
  for (int bit = 16; bit < 63; bit++) {
    for (const std::int64_t near : {-2, -1, 0, 1, 2}) {
      expect_number((std::int64_t{1} << bit) + near);
      expect_number(-(std::int64_t{1} << bit) + near);
    }
  }
  for (const std::int64_t n : {INT64_MAX, INT64_MIN, INT64_MIN + 1}) expect_number(n);
}

TEST(Integer, numbers_beyond_64_bits_are_refused_and_superfluous_octets_are_not) {
  EXPECT_EQ(number_of("02 28 (FF)*39 FE", 1), -2);
  for (const char *octets : {"02 09 00 80 (00)*7", "02 08 80 (00)*7", "02 09 FF 80 (00)*7",
                             "02 09 FF 7F (00)*7", "02 09 01 (00)*8", "02 28 (80)*40"}) {
    EXPECT_EQ(number_of(octets, 0), 77) << "untouched";
  }
}

TEST(Integer, octets_are_stripped_to_the_sign_bit) {
  EXPECT_EQ(octets_of(from_octets({0, 0, 1})), (Octets{1}));
  EXPECT_EQ(octets_of(from_octets({0xFF, 0xFF, 0x80})), (Octets{0x80}));
  EXPECT_EQ(octets_of(from_octets({0, 0, 0x80})), (Octets{0, 0x80}));
  const auto magnitude = [](const Octets &octets) {
    return octets_of(Integer(
        quarn_asn1_unsigned_integer_new(octets.data(), static_cast<std::int64_t>(octets.size()))));
  };
  EXPECT_EQ(magnitude({0x80}), (Octets{0, 0x80}));
  EXPECT_EQ(magnitude({0, 0, 0x85}), (Octets{0, 0x85}));
  EXPECT_EQ(magnitude({0, 0, 0}), (Octets{0}));
}

TEST(Integer, order_is_that_of_encodings) {
  const Integer minus_one = from_octets({0xFF});
  const Integer most = from_octets({0x7F});
  const Integer larger = from_octets({1, 0});
  const auto order = [](const Integer &a, const Integer &b) {
    const int result = quarn_asn1_integer_encodecmp(a.get(), b.get());
    EXPECT_EQ(quarn_asn1_integer_encodecmp(b.get(), a.get()), -result);
    EXPECT_EQ(quarn_asn1_integer_equals(a.get(), b.get()), result == 0 ? 1 : 0);
    return result;
  };
  EXPECT_EQ(order(larger, minus_one), 1) << "longer is greater";
  EXPECT_EQ(order(most, minus_one), -1) << "octets count without a sign";
  EXPECT_EQ(order(most, from_octets({0, 0x7F})), 0);
  EXPECT_EQ(order(nullptr, most), -1);
  EXPECT_EQ(order(nullptr, nullptr), 0);
}

TEST(Integer, no_octets_make_no_value) {
  const std::uint8_t octet = 1;
  EXPECT_EQ(quarn_asn1_integer_new(&octet, 0), nullptr);
  EXPECT_EQ(quarn_asn1_unsigned_integer_new(&octet, -1), nullptr);
  EXPECT_EQ(quarn_asn1_integer_newbigint(nullptr), nullptr);
  EXPECT_EQ(quarn_asn1_integer_getlength(nullptr), -2);
}

TEST(Integer, big_integers_go_in_and_out_whatever_allocation_fails) {
  fail_each_allocation([](Allocation &allocation) {
    const Integer v = from_octets(Octets(30, 0x85));
    quarn_biginteger *big = quarn_asn1_integer_getbigintger(v.get(), nullptr);
    const Integer back(quarn_asn1_integer_newbigint(big));
    quarn_biginteger_free(big);
    const std::uint8_t magnitude = 0x80;
    const Integer other(quarn_asn1_unsigned_integer_new(&magnitude, 1));
    const bool made = back != nullptr && other != nullptr;
    EXPECT_EQ(made, !allocation.failed());
    if (back != nullptr) {
      EXPECT_EQ(octets_of(back), Octets(30, 0x85));
    }
  });
}

}  // namespace
}  // namespace quarn::test

// INTEGER and ENUMERATED values: numbers, octets, big integers and order.
#include <gtest/gtest.h>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Integer = Value<quarn_asn1_integer, QUARN_ASN1_INTEGER>;

Octets octets_of(const Integer &v) {
  if (v == nullptr) return {};
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

void expect_number(std::int64_t n) {
  const Integer v(quarn_asn1_integer_value(n));
  const Octets octets = octets_of(v);
  std::int64_t sum = octets[0] < 0x80 ? 0 : -1;
  for (const std::uint8_t octet : octets) sum = sum * 256 + octet;
  ASSERT_EQ(sum, n);
  const bool superfluous = octets.size() > 1 && (octets[0] == 0 || octets[0] == 0xFF) &&
                           (octets[0] & 0x80) == (octets[1] & 0x80);
  ASSERT_FALSE(superfluous) << n;
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
  EXPECT_EQ(magnitude({}), Octets{});
  EXPECT_EQ(octets_of(from_octets({})), Octets{});
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

TEST(Integer, big_integers_go_in_and_out_whatever_allocation_fails) {
  fail_each_allocation([](Allocation &allocation) {
    const Integer v = from_octets(Octets(30, 0x85));
    quarn_biginteger *big = quarn_asn1_integer_getbigintger(v.get(), nullptr);
    const Integer back(quarn_asn1_integer_newbigint(big));
    quarn_biginteger_free(big);
    EXPECT_EQ(back != nullptr, !allocation.failed());
    EXPECT_EQ(octets_of(back), back == nullptr ? Octets{} : Octets(30, 0x85));
  });
}

}  // namespace
}  // namespace quarn::test

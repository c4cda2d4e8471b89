#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

// Expected octets and texts are python's: int.to_bytes(), int.bit_length(), str().
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
  quarn_data_blob *blob = quarn_biginteger_getdata(b.get());
  if (blob == nullptr) return {};
  Octets octets(blob->data, blob->data + blob->length);
  quarn_data_blob_free(blob);
  return octets;
}

std::string decimal_of(const BigInteger &b) {
  char *text = nullptr;
  size_t length = 0;
  if (quarn_biginteger_todec(b.get(), &text, &length) != 1) return "failed";
  return std::string(Memory<char>(text).get(), length);
}

// Digits of a linear congruential generator, not starting with 0.
std::string digits_of(size_t count) {
  std::string digits;
  for (uint32_t x = 12345; digits.size() < count;) {
    x = x * 1103515245 + 12345;
    digits += static_cast<char>('0' + (x >> 16) % 10);
  }
  return digits;
}

TEST(BigInteger, octets_and_decimal_text_agree_with_each_other) {
  const struct {
    const char *text;
    Octets octets;
    int64_t bits;
  } cases[] = {
      {"0", {0}, 0},
      {"-1", {0xff}, 1},
      {"-256", {0xff, 0x00}, 9},
      {"18446744073709551616", {1, 0, 0, 0, 0, 0, 0, 0, 0}, 65},
      {"-12345678901234567890123",
       {0xfd, 0x62, 0xbd, 0x49, 0xb1, 0x89, 0x8e, 0xbd, 0xbb, 0x35},
       74},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    const BigInteger b = from_decimal(c.text);
    EXPECT_EQ(octets_of(b), c.octets);
    EXPECT_EQ(decimal_of(from_octets(c.octets)), c.text);
    EXPECT_EQ(quarn_biginteger_getbitcount(b.get()), c.bits);
    EXPECT_EQ(quarn_biginteger_getsign(b.get()), c.text[0] == '-' ? -1 : c.bits > 0);
    // Repeated sign octets change nothing.
    Octets longer(3, c.octets[0] < 0x80 ? 0 : 0xff);
    longer.insert(longer.end(), c.octets.begin(), c.octets.end());
    EXPECT_EQ(octets_of(from_octets(longer)), c.octets);
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

// Counts around the sizes at which the conversion divides. 31-fold hashes of the magnitude octets.
TEST(BigInteger, long_decimal_text_becomes_the_right_octets_and_the_same_text) {
  const struct {
    size_t digits;
    int64_t bits;
    uint64_t hash;
  } cases[] = {{19, 63, 0x2644046f21c},
               {20, 66, 0x63f132297c9},
               {609, 2023, 0xa35c84bb01039bfa},
               {40000, 132877, 0x79b6d03ac892a201}};
  for (const auto &c : cases) {
    SCOPED_TRACE(c.digits);
    std::string text = digits_of(c.digits);
    text.insert(text.begin(), '-');
    const BigInteger b = from_decimal(text);
    EXPECT_EQ(quarn_biginteger_getbitcount(b.get()), c.bits);
    Octets magnitude(static_cast<size_t>(c.bits + 7) / 8 + 2);
    const auto size = static_cast<int64_t>(magnitude.size());
    ASSERT_EQ(quarn_biginteger_unsigned_tonbuf(b.get(), magnitude.data(), size), 1);
    uint64_t hash = 0;
    for (const uint8_t octet : magnitude) hash = hash * 31 + octet;
    EXPECT_EQ(hash, c.hash);
    EXPECT_EQ(quarn_biginteger_unsigned_tonbuf(b.get(), magnitude.data(), size - 3), 0);
    EXPECT_EQ(decimal_of(b), text);
  }
}

// Quotients that are one off show at the powers of ten.
TEST(BigInteger, text_next_to_powers_of_ten_survives_the_way_there_and_back) {
  for (const size_t digits : {607U, 608U, 1216U, 2432U, 4864U, 4865U, 9728U, 20000U}) {
    const std::string nines(digits, '9');
    std::string power(digits + 1, '0');
    power[0] = '1';
    EXPECT_EQ(decimal_of(from_decimal(nines)), nines);
    EXPECT_EQ(decimal_of(from_decimal(power)), power);
    power.insert(power.begin(), '-');
    EXPECT_EQ(decimal_of(from_decimal(std::string(power).insert(1, "000"))), power);
  }
}

TEST(BigInteger, decimal_text_is_digits_after_an_optional_minus) {
  for (const char *text : {"", "-", "+1", " 1", "1 ", "--1", "0x10", "1.0", "12a"}) {
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(quarn_biginteger_newdec(text, ctx.get()), nullptr) << text;
    EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{QUARN_ERROR_FORMAT});
  }
  EXPECT_EQ(from_octets({}), nullptr);
  EXPECT_EQ(decimal_of(from_decimal("-0")), "0");
}

TEST(BigInteger, survives_lack_of_memory_within_a_long_conversion) {
  const std::string text = digits_of(2500);
  const Octets octets{0xff, 0x80, 0x01};
  fail_each_allocation([&](Allocation &allocation) {
    quarn_biginteger *b = quarn_biginteger_newdec(text.c_str(), nullptr);
    char *printed = nullptr;
    if (quarn_biginteger_todec(b, &printed, nullptr) == 1) {
      EXPECT_EQ(printed, text);
    } else {
      EXPECT_TRUE(allocation.failed());
      EXPECT_EQ(printed, nullptr);
    }
    quarn_data_blob_free(quarn_biginteger_getdata(b));
    quarn_free(printed);
    quarn_biginteger_free(b);
    quarn_biginteger_free(quarn_biginteger_newdata(octets.data(), 3, nullptr));
  });
}

}  // namespace
}  // namespace quarn::test

// BIT STRING: bits by number, unused bits, and what differs from OCTET STRING.
#include <gtest/gtest.h>

#include "tests/support/store.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Bits = Value<quarn_asn1_bitstring, QUARN_ASN1_BITSTRING>;

Octets encoding_of(const Bits &value) {
  return test::encoding_of(3, value.get());
}

// A value over the store.
Bits decode_into(const Octets &octets, quarn_stream *destination) {
  quarn_asn1_bitstring *value = nullptr;
  const Stream s = memory_stream(octets);
  quarn_asn1_decode_bitstring_ex(s.get(), destination, &value, nullptr, nullptr);
  return Bits(value);
}

TEST(BitString, named_bits_end_with_the_highest) {
  const auto encode = [](std::initializer_list<std::int32_t> positions, std::int32_t count) {
    return encoding_of(Bits(quarn_asn1_bitstring_newbits(positions.begin(), count)));
  };
  EXPECT_EQ(encode({0, 2, 9}, 3), (Octets{0x03, 3, 6, 0xA0, 0x40}));
  EXPECT_EQ(encode({8}, 0), (Octets{0x03, 3, 7, 0x00, 0x80})) << "the first counts always";
  EXPECT_EQ(encode({3, -1, 5}, 3), Octets{});
  EXPECT_EQ(encoding_of(Bits(quarn_asn1_bitstring_newbits(nullptr, 5))), (Octets{0x03, 1, 0}));
}

TEST(BitString, unused_bits_of_a_new_value_are_cleared) {
  const std::uint8_t octets[] = {0xFF, 0xFF};
  EXPECT_EQ(encoding_of(Bits(quarn_asn1_bitstring_new(3, octets, 2))),
            (Octets{0x03, 3, 3, 0xFF, 0xF8}));
  EXPECT_EQ(quarn_asn1_bitstring_new(8, octets, 1), nullptr);
  EXPECT_EQ(quarn_asn1_bitstring_new(1, octets, 0), nullptr);
}

TEST(BitString, bits_are_asked_by_number_and_unused_ones_are_not_there) {
  const Octets octets = hex("03 03 07 41 81");
  Store store;
  const Stream destination = store.stream();
  const Held memory(3, octets);
  const Bits over = decode_into(octets, destination.get());
  for (auto *value : {memory.as<quarn_asn1_bitstring>(), over.get()}) {
    std::vector<std::int64_t> set;
    for (std::int64_t i = -2; i < 20; i++) {
      if (quarn_asn1_bitstring_getbit(value, i) == 1) set.push_back(i);
    }
    EXPECT_EQ(set, (std::vector<std::int64_t>{1, 7, 8}));
    std::uint8_t octet = 0;
    std::uint64_t count = 0;
    EXPECT_EQ(quarn_asn1_bitstring_getbit(value, 1), 1);
    EXPECT_EQ(quarn_asn1_bitstring_get(value, 2, &octet, 1, &count, nullptr), 1);
    EXPECT_EQ(octet, 0x81) << "reading goes on behind the octet of the bit";
    Octets all(2);
    EXPECT_EQ(quarn_asn1_bitstring_getall(value, all.data()), 1);
    EXPECT_EQ(all, hex("41 81"));
  }
}

TEST(BitString, only_the_last_segment_has_the_unused_bits) {
  const Octets encoding = hex("03 82 27 11 03 (F8)*10000");
  Store store;
  const Stream stream = store.stream();
  const Bits value = decode_into(encoding, stream.get());
  EXPECT_EQ(encoding_of(value), encoding) << "of known length";
  store.knows_length = false;
  EXPECT_EQ(quarn_asn1_bitstring_getlength(value.get()), QUARN_ASN1_INDEFINITE);
  EXPECT_EQ(quarn_asn1_bitstring_getbit(value.get(), 0), 0);
  EXPECT_EQ(quarn_asn1_bitstring_getall(value.get(), store.octets.data()), 0);
  EXPECT_EQ(encoding_of(value),
            hex("23 80 03 82 20 01 00 (F8)*8192 03 82 07 11 03 (F8)*1808 00 00"));
  store.octets.clear();
  store.size = 0;
  EXPECT_EQ(encoding_of(value), (Octets{0x23, 0x80, 0, 0})) << "no segment of no octets";
}

TEST(BitString, lengths_that_do_not_fit_are_refused) {
  const Context ctx(quarn_err_ctx_new());
  Store store;
  const Stream stream = store.stream();
  const Bits value = decode_into({0x03, 2, 0, 0xFF}, stream.get());
  const auto encode = [&](std::int64_t length) {
    const Stream s(quarn_stream_new_mem(0, nullptr));
    return quarn_asn1_encode_content(s.get(), 3, value.get(), length, nullptr, ctx.get());
  };
  for (const std::int64_t length : {-2, 0, 1, 3}) EXPECT_EQ(encode(length), 0);
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10001, 0x10001, 0x10004, 0x10004}));
  store.claimed = INT64_MAX;
  EXPECT_EQ(quarn_asn1_length(3, value.get()), QUARN_ASN1_NO_LENGTH) << "one octet more is written";
  EXPECT_EQ(quarn_asn1_encode(stream.get(), 3, value.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()).back(), 0x10203);
}

TEST(BitString, every_failing_call_is_a_failure_and_leaves_nothing) {
  fail_each_call(hex("23 80 03 03 00 04 01 03 02 04 F0 00 00"), [](Store &from, Store &to) {
    return use_over<quarn_asn1_bitstring>(
        from, to, QUARN_ASN1_BITSTRING, quarn_asn1_decode_bitstring_ex,
        quarn_asn1_bitstring_getobject, [&to](auto *string, const Stream &) {
          return !to.knows_length || quarn_asn1_bitstring_getbit(string, 15) == 1;
        });
  });
}

TEST(BitString, bit_sets_go_both_ways_whatever_allocation_fails) {
  fail_each_allocation([](Allocation &allocation) {
    const std::int32_t positions[] = {0, 9};
    const Bits named(quarn_asn1_bitstring_newbits(positions, 2));
    quarn_bitset *set = quarn_asn1_bitstring_getbitset(named.get());
    const Bits copy(quarn_asn1_bitstring_newbitset(set));
    quarn_bitset_free(set);
    EXPECT_EQ(copy == nullptr, allocation.failed());
    allocation.never_fail();
    EXPECT_EQ(encoding_of(copy), copy == nullptr ? Octets{} : hex("03 03 06 80 40"));
  });
}

}  // namespace
}  // namespace quarn::test

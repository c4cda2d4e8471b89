// The codec of identifiers, lengths and end-of-contents through its C interface, and what
// quarn_asn1_mem_header() makes of the same octets.
#include <gtest/gtest.h>

#include "tests/unit/values.h"

namespace quarn::test {
namespace {

TEST(Header, identifiers_and_lengths_take_the_fewest_octets) {
  const Stream s = growable();
  std::uint64_t count = 0;
  const auto identifier = [&](std::uint32_t tag_class, int form, std::int64_t number) {
    return quarn_asn1_encode_identifier(s.get(), tag_class, form, number, &count, nullptr);
  };
  const auto length = [&](std::int64_t n) {
    return quarn_asn1_encode_length(s.get(), n, &count, nullptr);
  };
  EXPECT_EQ(identifier(0, 1, 31), 1);
  EXPECT_EQ(identifier(0, 1, 128), 1);
  EXPECT_EQ(identifier(0xC0, -1, INT64_MAX), 1);
  EXPECT_EQ(count, 10u);
  for (const std::int64_t n : {std::int64_t{127}, std::int64_t{256}, std::int64_t{-1}, INT64_MAX}) {
    EXPECT_EQ(length(n), 1);
  }
  EXPECT_EQ(count, 9u);
  EXPECT_EQ(held_by(s), hex("1F1F 1F8100 DFFFFFFFFFFFFFFFFF7F 7F 820100 80 887FFFFFFFFFFFFFFF"));
  EXPECT_EQ(identifier(0x100, 1, 1) + identifier(0, 1, -1) + length(-2), 0);
  EXPECT_EQ(count, 9u) << "stored on success only";
  EXPECT_EQ(quarn_asn1_identifier_length(31), 2);
  EXPECT_EQ(quarn_asn1_identifier_length(INT64_MAX), 10);
  EXPECT_EQ(quarn_asn1_identifier_length(-1), -2);
  EXPECT_EQ(quarn_asn1_length_length(-2), -2);
  EXPECT_EQ(quarn_asn1_length_length(0x7FFFFFFF), 5);
}

TEST(Header, headers_are_read_alike_from_streams_and_memory) {
  const struct {
    Octets octets;
    std::size_t identifier_size;
    std::uint64_t number;
    std::int64_t length;
    Codes codes;
  } cases[] = {
      {hex("1F 80 1F 82 00 05"), 3, 31, 5, {}},
      {hex("5F FF FF FF FF FF FF FF FF 7F 00"), 10, INT64_MAX, 0, {}},
      {hex("30 88 7F FF FF FF FF FF FF FF"), 1, 16, INT64_MAX, {}},
      {hex("1F 1E"), 0, 0, 0, {0x10201}},
      {hex("1F 81"), 0, 0, 0, {0x10103}},
      {hex("30 88 80 00 00 00 00 00 00 00"), 1, 16, 0, {0x10202}},
      {hex("30 82 01"), 1, 16, 0, {0x10103}},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.octets));
    const Context ctx(quarn_err_ctx_new());
    const Stream s = memory_stream(c.octets);
    std::uint32_t tag_class = 0;
    int form = 7;
    std::uint64_t number = 0;
    std::uint64_t count = 0;
    std::int64_t length = 0;
    std::uint64_t length_count = 0;
    if (quarn_asn1_decode_identifier(s.get(), &tag_class, &form, &number, &count, ctx.get()) == 1) {
      quarn_asn1_decode_length(s.get(), &length, &length_count, ctx.get());
    }
    EXPECT_EQ(codes_in(ctx.get()), c.codes);
    EXPECT_EQ(tag_class, c.octets[0] & 0xC0u) << "stored with the first octet";
    EXPECT_EQ(form, c.octets[0] & 0x20 ? 0 : 1);
    EXPECT_EQ(number, c.number);
    EXPECT_EQ(count, c.identifier_size);
    EXPECT_EQ(length, c.length);
    EXPECT_EQ(length_count, c.codes.empty() ? c.octets.size() - count : 0);

    quarn_asn1_header header{};
    const int good = c.codes.empty() ? 1 : 0;
    EXPECT_EQ(
        quarn_asn1_mem_header(c.octets.data(), static_cast<std::int64_t>(c.octets.size()), &header),
        c.codes == Codes{0x10103} ? QUARN_ASN1_MORE : good);
    EXPECT_EQ(header.content_length, c.length);
    EXPECT_EQ(header.header_length, c.codes.empty() ? c.octets.size() : 0);
  }
}

}  // namespace
}  // namespace quarn::test

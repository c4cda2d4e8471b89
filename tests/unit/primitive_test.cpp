// BOOLEAN, NULL, and what the primitive types have in common.
#include <gtest/gtest.h>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"
#include "types/null.h"

namespace quarn::test {
namespace {

TEST(Boolean, the_octet_received_is_kept_for_the_caller) {
  const std::uint8_t octets[] = {0x01, 0x01, 0x2A};
  void *value = nullptr;
  ASSERT_EQ(quarn_asn1_mem_decode(octets, 3, QUARN_ASN1_BOOLEAN, &value), 3);
  const auto *received = static_cast<quarn_asn1_boolean *>(value);
  std::uint32_t cell = 0;
  EXPECT_EQ(quarn_asn1_boolean_getvalue(received, &cell), 1);
  EXPECT_EQ(cell, 0x2Au);
  EXPECT_EQ(quarn_asn1_boolean_istrue(received), 1);
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_BOOLEAN, nullptr), 3) << "whatever the value";
  quarn_asn1_value_free(QUARN_ASN1_BOOLEAN, value);
}

TEST(Boolean, constructors_make_the_octets_of_der) {
  quarn_asn1_boolean *yes = quarn_asn1_boolean_true();
  quarn_asn1_boolean *no = quarn_asn1_boolean_false();
  std::uint32_t cell = 1;
  EXPECT_EQ(quarn_asn1_boolean_getvalue(yes, &cell), 1);
  EXPECT_EQ(cell, 255u);
  EXPECT_EQ(quarn_asn1_boolean_getvalue(no, &cell), 1);
  EXPECT_EQ(cell, 0u);
  quarn_asn1_value_free(QUARN_ASN1_BOOLEAN, yes);
  quarn_asn1_value_free(QUARN_ASN1_BOOLEAN, no);
}

TEST(Null, every_value_is_the_shared_one) {
  Allocation allocation;
  const std::uint8_t octets[] = {0x05, 0x00};
  void *value = nullptr;
  EXPECT_EQ(quarn_asn1_mem_decode(octets, 2, QUARN_ASN1_NULL, &value), 2);
  EXPECT_EQ(value, asn1::null_value());
  const Stream stream(quarn_stream_new_mem(0, nullptr));
  EXPECT_EQ(
      quarn_asn1_decode_content(stream.get(), QUARN_ASN1_NULL, nullptr, 1, 0, nullptr, nullptr), 1)
      << "a null out pointer is accepted";
  quarn_asn1_value_free(QUARN_ASN1_NULL, value);
}

TEST(Null, no_value_is_needed_to_write_one) {
  SlowSink sink;
  std::uint64_t written = 0;
  const Stream stream = sink.stream();
  EXPECT_EQ(quarn_asn1_encode(stream.get(), QUARN_ASN1_NULL, nullptr, &written, nullptr), 1);
  EXPECT_EQ(written, 2u);
  EXPECT_EQ(
      quarn_asn1_encode(stream.get(), QUARN_ASN1_LDAPUNBINDREQUEST, nullptr, &written, nullptr), 1);
  EXPECT_EQ(sink.octets(), (std::vector<std::uint8_t>{0x05, 0x00, 0x42, 0x00}));
}

TEST(Primitive, content_encoders_check_the_stream_and_then_the_length) {
  const struct {
    std::int64_t type;
    std::vector<std::uint8_t> element;
    const char *unit;
  } cases[] = {
      {QUARN_ASN1_BOOLEAN, {1, 1, 0xFF}, "QUARN_ASN1_Boolean.cpp"},
      {QUARN_ASN1_INTEGER, {2, 2, 1, 0x2C}, "QUARN_ASN1_Integer.cpp"},
      {QUARN_ASN1_NULL, {5, 0}, "QUARN_ASN1_Null.cpp"},
      {QUARN_ASN1_OID, {6, 2, 0x2A, 3}, "QUARN_ASN1_Oid"},
      {QUARN_ASN1_RELATIVE_OID, {13, 3, 1, 2, 3}, "QUARN_ASN1_Oid"},
      {QUARN_ASN1_TIME,
       {23, 11, '2', '0', '0', '1', '0', '1', '1', '2', '0', '0', 'Z'},
       "QUARN_ASN1_Time"},
  };
  for (const auto &[type, element, unit] : cases) {
    SCOPED_TRACE(type);
    void *value = nullptr;
    const auto size = static_cast<std::int64_t>(element.size());
    ASSERT_EQ(quarn_asn1_mem_decode(element.data(), size, type, &value), size);
    EXPECT_EQ(quarn_asn1_content_length(type, value), size - 2);
    SlowSink sink;
    const Stream s = sink.stream();
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(quarn_asn1_encode_content(nullptr, type, value, size, nullptr, ctx.get()), 0);
    EXPECT_EQ(quarn_asn1_encode_content(s.get(), type, value, size, nullptr, ctx.get()), 0);
    EXPECT_EQ(codes_in(ctx.get()), (std::vector<int>{0x10002, 0x10203}));
    EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->file, unit);
    quarn_asn1_value_free(type, value);
  }
}

}  // namespace
}  // namespace quarn::test

// BOOLEAN, NULL, and what the primitive types have in common.
#include <gtest/gtest.h>

#include <string>

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

struct Sample {
  std::int64_t type;
  void *value;
  std::int64_t length;
  const char *unit;
};

std::vector<Sample> samples() {
  return {
      {QUARN_ASN1_BOOLEAN, quarn_asn1_boolean_true(), 1, "QUARN_ASN1_Boolean.cpp"},
      {QUARN_ASN1_INTEGER, quarn_asn1_integer_value(300), 2, "QUARN_ASN1_Integer.cpp"},
      {QUARN_ASN1_NULL, asn1::null_value(), 0, "QUARN_ASN1_Null.cpp"},
      {QUARN_ASN1_OID, quarn_asn1_oid_new("1.2.3"), 2, "QUARN_ASN1_Oid"},
      {QUARN_ASN1_RELATIVE_OID, quarn_asn1_relative_oid_new("1.2.3"), 3, "QUARN_ASN1_Oid"},
      {QUARN_ASN1_TIME, quarn_asn1_time_new(2050, 1, 2, 3, 4, 5, 0), 15, "QUARN_ASN1_Time"},
      {QUARN_ASN1_UTCTIME, quarn_asn1_utctime_new(2049, 1, 2, 3, 4, 5), 13, "QUARN_ASN1_Time"},
      {QUARN_ASN1_GENTIME, quarn_asn1_gentime_new(2024, 1, 2, 3, 4, 5, 0), 15, "QUARN_ASN1_Time"},
  };
}

TEST(Primitive, content_encoders_check_stream_value_and_length_in_this_order) {
  for (const Sample &sample : samples()) {
    SCOPED_TRACE(sample.type);
    SlowSink sink;
    const Stream stream = sink.stream();
    const Context ctx(quarn_err_ctx_new());
    const auto encode = [&](quarn_stream *s, void *value, std::int64_t length) {
      return quarn_asn1_encode_content(s, sample.type, value, length, nullptr, ctx.get());
    };
    EXPECT_EQ(quarn_asn1_content_length(sample.type, sample.value), sample.length);
    EXPECT_EQ(encode(stream.get(), sample.value, sample.length), 1);
    EXPECT_EQ(sink.octets().size(), static_cast<std::size_t>(sample.length));
    EXPECT_EQ(encode(nullptr, sample.value, sample.length + 1), 0);
    EXPECT_EQ(encode(stream.get(), sample.value, sample.length + 1), 0);
    std::vector<int> codes{0x10002, 0x10203};
    if (sample.type != QUARN_ASN1_NULL) {
      EXPECT_EQ(encode(stream.get(), nullptr, sample.length + 1), 0);
      codes.push_back(0x10002);
    }
    EXPECT_EQ(codes_in(ctx.get()), codes);
    EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->file, sample.unit);
    EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 1)->message, "") << "general codes have no such text";
    quarn_asn1_value_free(sample.type, sample.value);
  }
}

}  // namespace
}  // namespace quarn::test

// BOOLEAN, NULL, and what the primitive types have in common.
#include <gtest/gtest.h>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/null.h"

namespace quarn::test {
namespace {

TEST(Boolean, the_octet_received_is_kept_and_constructors_make_those_of_der) {
  const Held values[] = {Held(QUARN_ASN1_BOOLEAN, "01 01 2A"),
                         Held(QUARN_ASN1_BOOLEAN, quarn_asn1_boolean_true()),
                         Held(QUARN_ASN1_BOOLEAN, quarn_asn1_boolean_false())};
  std::vector<std::uint32_t> cells(3);
  for (std::size_t i = 0; i < 3; i++) {
    const auto *value = values[i].as<quarn_asn1_boolean>();
    EXPECT_EQ(quarn_asn1_boolean_getvalue(value, &cells[i]), 1);
    EXPECT_EQ(quarn_asn1_boolean_istrue(value), cells[i] != 0);
  }
  EXPECT_EQ(cells, (std::vector<std::uint32_t>{0x2A, 255, 0}));
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_BOOLEAN, nullptr), 3) << "whatever the value";
}

TEST(Null, every_value_is_the_shared_one) {
  Allocation allocation;
  const Held value(QUARN_ASN1_NULL, "05 00");
  EXPECT_EQ(value.get(), asn1::null_value());
  const Stream stream = growable();
  EXPECT_EQ(
      quarn_asn1_decode_content(stream.get(), QUARN_ASN1_NULL, nullptr, 1, 0, nullptr, nullptr), 1)
      << "a null out pointer is accepted";
}

TEST(Null, no_value_is_needed_to_write_one) {
  SlowSink sink;
  std::uint64_t written = 0;
  const Stream stream = sink.stream();
  EXPECT_EQ(quarn_asn1_encode(stream.get(), QUARN_ASN1_NULL, nullptr, &written, nullptr), 1);
  EXPECT_EQ(written, 2u);
  EXPECT_EQ(
      quarn_asn1_encode(stream.get(), QUARN_ASN1_LDAPUNBINDREQUEST, nullptr, &written, nullptr), 1);
  EXPECT_EQ(sink.octets(), hex("05 00 42 00"));
}

TEST(Primitive, content_encoders_check_the_stream_and_then_the_length) {
  const struct {
    std::int64_t type;
    const char *element;
    const char *unit;
  } cases[] = {
      {QUARN_ASN1_BOOLEAN, "01 01 FF", "QUARN_ASN1_Boolean.cpp"},
      {QUARN_ASN1_INTEGER, "02 02 01 2C", "QUARN_ASN1_Integer.cpp"},
      {QUARN_ASN1_NULL, "05 00", "QUARN_ASN1_Null.cpp"},
      {QUARN_ASN1_OID, "06 02 2A 03", "QUARN_ASN1_Oid"},
      {QUARN_ASN1_RELATIVE_OID, "0D 03 01 02 03", "QUARN_ASN1_Oid"},
      {QUARN_ASN1_TIME, R"(17 0B "2001011200Z")", "QUARN_ASN1_Time"},
  };
  for (const auto &[type, element, unit] : cases) {
    SCOPED_TRACE(type);
    const Held value(type, element);
    const auto size = static_cast<std::int64_t>(hex(element).size());
    EXPECT_EQ(quarn_asn1_content_length(type, value.get()), size - 2);
    SlowSink sink;
    const Stream s = sink.stream();
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(quarn_asn1_encode_content(nullptr, type, value.get(), size, nullptr, ctx.get()), 0);
    EXPECT_EQ(quarn_asn1_encode_content(s.get(), type, value.get(), size, nullptr, ctx.get()), 0);
    EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10002, 0x10203}));
    EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->file, unit);
  }
}

}  // namespace
}  // namespace quarn::test

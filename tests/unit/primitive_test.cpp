// BOOLEAN, NULL, and what the primitive types have in common.
#include <gtest/gtest.h>

#include "tests/unit/values.h"

namespace quarn::test {
namespace {

TEST(Boolean, the_octet_received_is_kept_and_constructors_make_those_of_der) {
  const Held values[] = {Held(QUARN_ASN1_BOOLEAN, "01 01 2A"),
                         Held(QUARN_ASN1_BOOLEAN, quarn_asn1_boolean_true()),
                         Held(QUARN_ASN1_BOOLEAN, quarn_asn1_boolean_false())};
  for (std::size_t i = 0; i < 3; i++) {
    std::uint32_t cell = 77;
    EXPECT_EQ(quarn_asn1_boolean_getvalue(values[i].as<quarn_asn1_boolean>(), &cell), 1);
    EXPECT_EQ(cell, (Octets{0x2A, 255, 0})[i]);
  }
}

TEST(Null, is_one_value_for_all_and_none_is_needed_to_write_it) {
  const Held value(QUARN_ASN1_NULL, "05 00");
  EXPECT_EQ(value.get(), Held(QUARN_ASN1_NULL, "05 00").get());
  const Stream s = growable();
  EXPECT_EQ(quarn_asn1_decode_content(s.get(), QUARN_ASN1_NULL, nullptr, 1, 0, nullptr, nullptr), 1)
      << "a null out pointer is accepted";
  EXPECT_EQ(encoding_of(QUARN_ASN1_NULL, nullptr), hex("05 00"));
  EXPECT_EQ(encoding_of(QUARN_ASN1_LDAPUNBINDREQUEST, nullptr), hex("42 00"));
}

TEST(Primitive, content_encoders_check_the_stream_and_then_the_length) {
  const std::pair<std::int64_t, const char *> cases[] = {
      {QUARN_ASN1_BOOLEAN, "01 01 FF"},
      {QUARN_ASN1_INTEGER, "02 02 01 2C"},
      {QUARN_ASN1_NULL, "05 00"},
      {QUARN_ASN1_OID, "06 02 2A 03"},
      {QUARN_ASN1_RELATIVE_OID, "0D 03 01 02 03"},
      {QUARN_ASN1_TIME, R"(17 0B "2001011200Z")"},
  };
  for (const auto &[type, element] : cases) {
    SCOPED_TRACE(type);
    const Held value(type, element);
    const auto size = static_cast<std::int64_t>(hex(element).size());
    EXPECT_EQ(quarn_asn1_content_length(type, value.get()), size - 2);
    const Stream s = growable();
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(quarn_asn1_encode_content(nullptr, type, value.get(), size, nullptr, ctx.get()), 0);
    EXPECT_EQ(quarn_asn1_encode_content(s.get(), type, value.get(), size, nullptr, ctx.get()), 0);
    EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10002, 0x10203}));
  }
}

}  // namespace
}  // namespace quarn::test

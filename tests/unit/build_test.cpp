// Constructors and getters over schemas, restrictions, defaults, and where failures are said to
// lie: what the laws of tests/laws/structure_test.cpp leave to say.
#include "core/build.h"

#include <gtest/gtest.h>

#include "core/engine.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Codes;
using test::Context;
using test::encoding_of;
using test::fail_each_allocation;
using test::growable;
using test::Held;
using test::held_by;
using test::hex;
using test::Octets;

TEST(Build, what_is_mandatory_is_looked_at_first) {
  const Held oid(QUARN_ASN1_OID, "06 01 2A");
  const void *nothing = nullptr;
  test::Allocation allocation;
  allocation.reset_count();
  EXPECT_EQ(build<void>(QUARN_ASN1_X509EXTENSION, oid.as<const void>(), nothing, nothing), nullptr);
  EXPECT_EQ(allocation.count(), 0u);
  EXPECT_EQ(part<void>(nullptr, 1), nullptr);
}

TEST(Build, a_choice_is_made_by_number) {
  const Held name(QUARN_ASN1_IA5STRING, "16 01 61");
  const Held dns(QUARN_ASN1_X509GENERALNAME,
                 build_choice<void>(QUARN_ASN1_X509GENERALNAME, 2, name.get()));
  EXPECT_EQ(dns.encoding(), hex("82 01 61"));
  EXPECT_EQ(choice_number(QUARN_ASN1_X509GENERALNAME, dns.get()), 2u);
  EXPECT_NE(choice_part<void>(QUARN_ASN1_X509GENERALNAME, dns.get(), 2), nullptr);
  EXPECT_EQ(choice_part<void>(QUARN_ASN1_X509GENERALNAME, dns.get(), 6), nullptr);
  EXPECT_EQ(build_choice<void>(QUARN_ASN1_X509GENERALNAME, 9, name.get()), nullptr);
  EXPECT_EQ(build_choice<void>(QUARN_ASN1_X509GENERALNAME, 2, nullptr), nullptr);
}

TEST(Build, strings_of_all_choices_are_one_type) {
  // An alternative that the other CHOICE does not have, and one that stands elsewhere in it.
  const Held ia5(QUARN_ASN1_PKCS9STRING, "16 01 61");
  const Held bmp(QUARN_ASN1_PKCS9STRING, "1E 02 0061");
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, ia5.get()), 22u);
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, nullptr), 0u);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500DIRSTRING, ia5.get()), hex("16 01 61"));
  EXPECT_EQ(quarn_asn1_dupobject(QUARN_ASN1_X500DIRSTRING, ia5.get(), nullptr), nullptr);
  const Held copy(QUARN_ASN1_DISPLAYTEXT,
                  quarn_asn1_dupobject(QUARN_ASN1_DISPLAYTEXT, bmp.get(), nullptr));
  EXPECT_EQ(copy.encoding(), hex("1E 02 0061"));
}

TEST(Build, a_copy_is_what_the_encoding_decodes_to) {
  constexpr auto kId = QUARN_ASN1_AC_IETFATTRSYNTAXVALUE;
  const Held string(kId, "0C 01 61");
  EXPECT_EQ(choice_number(kId, string.get()), 2u);
  const Held copy(kId, quarn_asn1_dupobject(kId, string.get(), nullptr));
  EXPECT_EQ(choice_number(kId, copy.get()), 0u);
}

TEST(Restriction, a_value_that_is_not_allowed_is_not_encoded) {
  constexpr auto kWhole = -9;
  const struct {
    quarn_asn1_type_id decoded_as;
    const char *octets;
    quarn_asn1_type_id type;
    std::int64_t length;  // of the content
    int code;
  } rows[] = {
      {QUARN_ASN1_X500ATTRTYPEDISTVAL, "30 08 060155 130141 3100", QUARN_ASN1_PKIXATTRTYPEVAL,
       kWhole, 0x10274},
      {QUARN_ASN1_X500ATTRTYPEDISTVAL, "30 08 060155 130141 3100", QUARN_ASN1_PKIXATTRTYPEVAL, 8,
       0x10274},
      {QUARN_ASN1_X500ATTRIBUTE, "30 0A 060155 3103130141 3100", QUARN_ASN1_PKCS10ATTRIBUTE, kWhole,
       0x1020b},
      {QUARN_ASN1_X500ATTRIBUTE, "30 0A 060155 3103130141 3100", QUARN_ASN1_PKCS10ATTRIBUTE, 10,
       0x1027d},
      {QUARN_ASN1_X509NAMECONSTAINTS, "30 02 A200", QUARN_ASN1_PKIXNAMECONSTAINTS, 2, 0x102ce},
      {QUARN_ASN1_X500UUIDPAIR, "30 24 (04 10 (41)*16)*2", QUARN_ASN1_X500UUIDPAIR, 35,
       QUARN_ERROR_RANGE},
  };
  for (const auto &row : rows) {
    const Held value(row.decoded_as, row.octets);
    const Context ctx(quarn_err_ctx_new());
    const test::Stream out = growable();
    const int result = row.length == kWhole
                           ? quarn_asn1_encode(out.get(), row.type, value.get(), nullptr, ctx.get())
                           : quarn_asn1_encode_content(out.get(), row.type, value.get(), row.length,
                                                       nullptr, ctx.get());
    EXPECT_EQ(result, 0);
    EXPECT_EQ(test::codes_in(ctx.get()), Codes{row.code});
  }
}

TEST(Restriction, records_and_stages_are_the_restrictions_own) {
  const Unit unit{"build_test"};
  const Field element[] = {field("e", QUARN_ASN1_OID)};
  static const Restriction kNever{[](const void *) { return false; }, 0x102ce, true, false, true};
  const Schema schema = list("L", unit, element, restricted_by(kNever), at_least(1));
  const Type type{"l", type_of(QUARN_ASN1_X509EXKEYUSAGE).codec, &schema, 16, 0x1, 0, 0};
  const Context ctx(quarn_err_ctx_new());
  void *value = nullptr;
  const Octets oid = hex("06 01 2A");
  Reader in(oid.data(), oid.size(), ctx.get());
  EXPECT_FALSE(decode_content(type, in, &value, false, 3));
  EXPECT_EQ(value, nullptr);
  ASSERT_EQ(test::codes_in(ctx.get()), Codes{0x102ce});
  EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->message, "") << "no general error has this code";
  EXPECT_EQ(quarn_err_ctx_offset(ctx.get(), 0), 3);

  const Held purposes(QUARN_ASN1_X509EXKEYUSAGE, "30 03 06 01 2A");
  const test::Stream out = growable();
  Writer writer(out.get(), ctx.get());
  EXPECT_TRUE(encode(type, writer, purposes.get())) << "only decoding asks";
}

TEST(Default, a_value_that_encodes_to_the_default_is_left_out) {
  static constexpr std::uint8_t kDefault[] = {0x30, 5, 6, 1, 0x2A, 5, 0};
  const Field algorithm =
      field("hash", QUARN_ASN1_X509ALGORITHMID, explicit_tag(0), default_encoding(kDefault));
  fail_each_allocation([&](test::Allocation &allocation) {
    void *made = nullptr;
    const bool taken = take_default(algorithm, &made);
    EXPECT_NE(taken, allocation.failed());
    const Held held(QUARN_ASN1_X509ALGORITHMID, made);
    EXPECT_TRUE(left_out(algorithm, made)) << "comparing takes no memory";
  });
  const auto is_left_out = [&algorithm](const char *octets) {
    return left_out(algorithm, Held(QUARN_ASN1_X509ALGORITHMID, octets).get());
  };
  EXPECT_TRUE(is_left_out("30 80 06012A 0500 0000"));
  EXPECT_FALSE(is_left_out("30 05 06012B 0500"));
  EXPECT_FALSE(is_left_out("30 06 06012A 040100"));
}

TEST(Path, a_failure_names_the_components_it_lies_in) {
  const struct {
    quarn_asn1_type_id id;
    const char *octets;
    const char *path;
  } rows[] = {
      {QUARN_ASN1_X509EXTENSIONS, "30 10 3006 06012A 040178 3006 06012A 050178", "[1].extnValue"},
      {QUARN_ASN1_X509DISTPOINT, "30 07 A005 A003 880180",
       "distributionPoint.fullName[0].registeredID"},
      {QUARN_ASN1_X509EXTENSION, "30 03 06012A", "extnValue"},
      {QUARN_ASN1_X509EXTENSION, "30 06 06012A 0101", "critical"},
      {QUARN_ASN1_X509ALGORITHMID, "30 04 06012A 05", "parameters"},
      {QUARN_ASN1_X500NAME, "30 0A 3108 3006 020155 130141", "[0][0].type"},
      {QUARN_ASN1_PKCS10CERTREQ, "30 10 300E 020100 3009 3107 3005 060180 0500",
       "certificationRequestInfo.subject[0][0].type"},
      {QUARN_ASN1_X509EXTENSION, "31 00", ""},  // the value itself is another one
  };
  for (const auto &[id, octets, path] : rows) {
    const Context ctx(quarn_err_ctx_new());
    const Octets input = hex(octets);
    const test::Stream in = test::memory_stream(input);
    void *value = nullptr;
    EXPECT_NE(quarn_asn1_decode(in.get(), id, &value, nullptr, ctx.get()), 1);
    EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), path);
  }
}

}  // namespace
}  // namespace quarn::asn1

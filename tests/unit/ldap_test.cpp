// Messages of LDAP: operations by their numbers.
#include "tests/unit/given.h"

namespace quarn::test {
namespace {

TEST(Ldap, operations_are_given_and_lent_by_number) {
  Given g;
  constexpr auto kType = QUARN_ASN1_LDAPMESSAGE;
  const Lent number = g(QUARN_ASN1_INTEGER, "02 01 06");
  const Lent negative = g(QUARN_ASN1_INTEGER, "02 01 FF");
  const auto make = [](const Lent &id, std::uint32_t operation, void *value) {
    return quarn_ldapmessage_new(id, operation, value, nullptr);
  };
  const Held abandon(kType, make(number, 16, g.integer()));
  EXPECT_EQ(abandon.encoding(), hex("30 06 02 01 06 50 01 05"));
  EXPECT_EQ(quarn_ldapmessage_getoptype(abandon.as<quarn_ldapmessage>()), 16U);
  EXPECT_EQ(encoding_of(QUARN_ASN1_INTEGER,
                        quarn_ldapmessage_getprotocolop(abandon.as<quarn_ldapmessage>())),
            hex("02 01 05"));
  const Held unbind(kType, make(number, 2, nullptr));
  EXPECT_EQ(unbind.encoding(), hex("30 05 02 01 06 42 00"));
  EXPECT_EQ(quarn_ldapmessage_getoptype(unbind.as<quarn_ldapmessage>()), 2U);
  EXPECT_EQ(quarn_ldapmessage_getprotocolop(unbind.as<quarn_ldapmessage>()), nullptr);
  quarn_asn1_component part{};
  EXPECT_EQ(quarn_asn1_component_get(kType, unbind.get(), 1, &part), 1);
  EXPECT_EQ(part.type_id, QUARN_ASN1_LDAPUNBINDREQUEST) << "it shows as what it is";
  EXPECT_EQ(quarn_ldapmessage_getoptype(nullptr), UINT32_MAX);
  EXPECT_EQ(quarn_ldapmessage_getprotocolop(nullptr), nullptr);
  g.makes("no such operation", kType, make(number, 17, g.integer()), "");
  g.makes("nothing to abandon", kType, make(number, 16, nullptr), "");
  g.makes("abandons a negative number", kType, make(number, 16, negative), "");
  g.makes("a negative number", kType, make(negative, 2, nullptr), "");
}

TEST(Ldap, only_an_attribute_that_is_partial_may_have_no_value) {
  Given g;
  const Lent none = g(QUARN_ASN1_LDAPATTRIBUTEVALUES, "31 00");
  g.makes("whole", QUARN_ASN1_LDAPATTRIBUTE, quarn_ldapattribute_new(g.octets(), none), "");
  g.makes("partial", QUARN_ASN1_LDAPPARTIALATTRIBUTE,
          quarn_ldappartialattribute_new(g.octets(), none), "30 05 04 01 41 31 00");
}

}  // namespace
}  // namespace quarn::test

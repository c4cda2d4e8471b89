// Messages of LDAP: operations by their numbers.
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Integer = Value<quarn_asn1_integer, QUARN_ASN1_INTEGER>;
using Message = Value<quarn_ldapmessage, QUARN_ASN1_LDAPMESSAGE>;

Octets encoding_of(const Message &message) {
  const Blob blob(quarn_asn1_mem_encode(QUARN_ASN1_LDAPMESSAGE, message.get()));
  return blob == nullptr ? Octets() : Octets(blob->data, blob->data + blob->length);
}

TEST(Ldap, operations_are_given_and_lent_by_number) {
  const Integer number(quarn_asn1_integer_value(6));
  const Integer abandoned(quarn_asn1_integer_value(5));
  const Integer negative(quarn_asn1_integer_value(-1));
  const Message abandon(quarn_ldapmessage_new(number.get(), 16, abandoned.get(), nullptr));
  EXPECT_EQ(encoding_of(abandon), hex("30 06 02 01 06 50 01 05"));
  EXPECT_EQ(quarn_ldapmessage_getoptype(abandon.get()), 16U);
  std::int64_t id = 0;
  quarn_asn1_integer_getlong(
      static_cast<quarn_asn1_integer *>(quarn_ldapmessage_getprotocolop(abandon.get())), &id);
  EXPECT_EQ(id, 5);
  const Message unbind(quarn_ldapmessage_new(number.get(), 2, nullptr, nullptr));
  EXPECT_EQ(encoding_of(unbind), hex("30 05 02 01 06 42 00"));
  EXPECT_EQ(quarn_ldapmessage_getoptype(unbind.get()), 2U);
  EXPECT_EQ(quarn_ldapmessage_getprotocolop(unbind.get()), nullptr);
  EXPECT_EQ(quarn_ldapmessage_getoptype(nullptr), UINT32_MAX);
  EXPECT_EQ(quarn_ldapmessage_getprotocolop(nullptr), nullptr);
  EXPECT_EQ(quarn_ldapmessage_new(number.get(), 17, abandoned.get(), nullptr), nullptr);
  EXPECT_EQ(quarn_ldapmessage_new(number.get(), 16, nullptr, nullptr), nullptr);
  EXPECT_EQ(quarn_ldapmessage_new(number.get(), 16, negative.get(), nullptr), nullptr);
  EXPECT_EQ(quarn_ldapmessage_new(negative.get(), 2, nullptr, nullptr), nullptr);
}

TEST(Ldap, only_an_attribute_that_is_partial_may_have_no_value) {
  const Held type(QUARN_ASN1_OCTETSTRING, "04 01 61");
  const Held none(QUARN_ASN1_LDAPATTRIBUTEVALUES, "31 00");
  const auto *name = type.as<quarn_asn1_octetstring>();
  const auto *values = none.as<quarn_asn1_list>();
  EXPECT_EQ(quarn_ldapattribute_new(name, values), nullptr);
  const Held partial(QUARN_ASN1_LDAPPARTIALATTRIBUTE, quarn_ldappartialattribute_new(name, values));
  EXPECT_EQ(partial.encoding(), hex("30 05 04 01 61 31 00"));
}

TEST(Ldap, the_operation_of_a_message_shows_as_what_it_is) {
  const Message unbind(
      quarn_ldapmessage_new(Integer(quarn_asn1_integer_value(6)).get(), 2, nullptr, nullptr));
  quarn_asn1_component part{};
  ASSERT_EQ(quarn_asn1_component_get(QUARN_ASN1_LDAPMESSAGE, unbind.get(), 1, &part), 1);
  EXPECT_STREQ(part.name, "protocolOp");
  EXPECT_EQ(part.type_id, QUARN_ASN1_LDAPUNBINDREQUEST);
}

}  // namespace
}  // namespace quarn::test

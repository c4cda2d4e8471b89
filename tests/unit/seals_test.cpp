// Seals and certificate stores: functions that are not as the notation makes them.
#include "tests/laws/samples.h"
#include "tests/unit/given.h"

namespace quarn::test {
namespace {

using Property = Value<quarn_gb_ses_espropertyinfo, QUARN_ASN1_GB_SES_ESPROPERTYINFO>;

// The number, then which of the lists is there.
std::string lists_of(const Property &property) {
  if (property == nullptr) return "null";
  std::string found = std::to_string(quarn_gb_ses_espropertyinfo_getcertlistype(property.get()));
  if (quarn_gb_ses_espropertyinfo_getcertlist(property.get()) != nullptr) found += " certs";
  if (quarn_gb_ses_espropertyinfo_getcertdigestlist(property.get()) != nullptr) found += " digests";
  return found;
}

TEST(Seals, are_made_for_certificates_or_for_digests) {
  fail_each_allocation([](Allocation &allocation) {
    Given g;
    const Lent one = g(QUARN_ASN1_INTEGER, "02 01 01");
    const Lent name = g(QUARN_ASN1_UTF8STRING, "0C 01 4E");
    const Lent time = g(QUARN_ASN1_GENTIME, R"(18 0F "20260101000000Z")");
    const Lent certs = g(QUARN_ASN1_OCTETSTRINGS, "30 03 04 01 43");
    const Lent digests = g(QUARN_ASN1_SES_CERTDIGESTLIST, "30 08 30 06 13 01 64 04 01 44");
    const Property of_certs(
        quarn_gb_ses_espropertyinfo_newcert(one, name, certs, time, time, time));
    const Property of_digests(
        quarn_gb_ses_espropertyinfo_newcertdigest(one, name, digests, time, time, time));
    EXPECT_TRUE(lists_of(of_certs) == "1 certs" || allocation.failed());
    EXPECT_TRUE(lists_of(of_digests) == "2 digests" || allocation.failed());
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcert(one, name, nullptr, time, time, time), nullptr);
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcertdigest(one, nullptr, digests, time, time, time),
              nullptr);
    if (allocation.failed()) return;
    allocation.never_fail();
    const Octets octets = encoding_of(QUARN_ASN1_GB_SES_ESPROPERTYINFO, of_digests.get());
    EXPECT_EQ(Octets(octets.begin() + 8, octets.begin() + 18),
              hex("02 01 02 30 08 30 06 13 01 64"));
  });
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertlistype(nullptr), 0U);
}

// The component of a value that has some name.
void *named(std::int64_t type, const void *value, const std::string &name) {
  quarn_asn1_component part{};
  for (std::int64_t i = 0; quarn_asn1_component_get(type, value, i, &part) == 1; i++) {
    if (part.name == name) return part.value;
  }
  return nullptr;
}

TEST(Seals, getters_with_other_names) {
  Given g;
  for (const Vector &sample : structured_samples()) {
    if (sample.type == QUARN_ASN1_SES_HEADER) {
      const quarn_ses_header *value = g(sample.type, sample.in);
      EXPECT_EQ(quarn_ses_header_geversion(value), named(sample.type, value, "version"));
    }
    if (sample.type == QUARN_ASN1_GB_SES_TBSSIGN) {
      const quarn_gb_ses_tbssign *value = g(sample.type, sample.in);
      EXPECT_EQ(quarn_ses_gb_tbssign_getpropertyinfo(value),
                named(sample.type, value, "propertyInfo"));
    }
  }
  EXPECT_EQ(quarn_ses_header_geversion(nullptr), nullptr);
  EXPECT_EQ(quarn_ses_gb_tbssign_getpropertyinfo(nullptr), nullptr);
}

TEST(CertStore, dup_copies_a_key_id) {
  Given g;
  const Value<quarn_certstore_keyid, QUARN_ASN1_CERTSTORE_KEYID> copy(
      quarn_certstore_dup(g(QUARN_ASN1_CERTSTORE_KEYID, "A0 03 06 01 2A")));
  EXPECT_EQ(quarn_certstore_keyid_gettype(copy.get()), 1U);
  EXPECT_EQ(encoding_of(QUARN_ASN1_CERTSTORE_KEYID, copy.get()), hex("A0 03 06 01 2A"));
  EXPECT_EQ(quarn_certstore_keyid_getkeyid(copy.get()), nullptr);
  EXPECT_EQ(quarn_certstore_dup(nullptr), nullptr);
}

}  // namespace
}  // namespace quarn::test

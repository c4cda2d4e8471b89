// Seals and certificate stores: functions that are not as the notation makes them.
#include "tests/laws/samples.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

// What some octets encode, lent until the end of a test.
class Given {
 public:
  Given(std::int64_t type, const char *octets) : Given(type, hex(octets)) {}
  Given(std::int64_t type, const Octets &encoding) : type_(type) {
    quarn_asn1_mem_decode(encoding.data(), static_cast<std::int64_t>(encoding.size()), type,
                          &value_);
  }
  Given(const Given &) = delete;
  Given &operator=(const Given &) = delete;
  ~Given() { quarn_asn1_value_free(type_, value_); }

  template <typename T>
  operator T *() const {  // NOLINT(google-explicit-constructor)
    return static_cast<T *>(value_);
  }

 private:
  std::int64_t type_;
  void *value_ = nullptr;
};

using Property = Value<quarn_gb_ses_espropertyinfo, QUARN_ASN1_GB_SES_ESPROPERTYINFO>;

TEST(Seals, a_constructor_for_each_kind_of_list) {
  const Given one(QUARN_ASN1_INTEGER, "02 01 01");
  const Given name(QUARN_ASN1_UTF8STRING, "0C 01 4E");
  const Given time(QUARN_ASN1_GENTIME, "18 0F 32 30 32 36 30 31 30 31 30 30 30 30 30 30 5A");
  const Given certs(QUARN_ASN1_OCTETSTRINGS, "30 03 04 01 43");
  const Given digests(QUARN_ASN1_SES_CERTDIGESTLIST, "30 08 30 06 13 01 64 04 01 44");
  fail_each_allocation([&](Allocation &allocation) {
    const Property with_certs(
        quarn_gb_ses_espropertyinfo_newcert(one, name, certs, time, time, time));
    const Property with_digests(
        quarn_gb_ses_espropertyinfo_newcertdigest(one, name, digests, time, time, time));
    allocation.never_fail();
    if (with_certs == nullptr || with_digests == nullptr) {
      EXPECT_TRUE(allocation.failed());
      return;
    }
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertlistype(with_certs.get()), 1U);
    EXPECT_NE(quarn_gb_ses_espropertyinfo_getcertlist(with_certs.get()), nullptr);
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertdigestlist(with_certs.get()), nullptr);
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertlistype(with_digests.get()), 2U);
    EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertlist(with_digests.get()), nullptr);
    const Octets octets = encoding_of(QUARN_ASN1_GB_SES_ESPROPERTYINFO, with_digests.get());
    ASSERT_GT(octets.size(), 18U);
    EXPECT_EQ(Octets(octets.begin() + 8, octets.begin() + 18),
              hex("02 01 02 30 08 30 06 13 01 64"));
  });
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcert(one, name, nullptr, time, time, time), nullptr);
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcertdigest(one, nullptr, digests, time, time, time),
            nullptr);
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
  int met = 0;
  for (const Vector &sample : structured_samples()) {
    const Given value(sample.type, sample.in);
    if (sample.type == QUARN_ASN1_SES_HEADER) {
      met += quarn_ses_header_geversion(value) == named(sample.type, value, "version");
    } else if (sample.type == QUARN_ASN1_GB_SES_TBSSIGN) {
      met +=
          quarn_ses_gb_tbssign_getpropertyinfo(value) == named(sample.type, value, "propertyInfo");
    }
  }
  EXPECT_EQ(met, 4) << "a full and a least sample of each";
  EXPECT_EQ(quarn_ses_header_geversion(nullptr), nullptr);
  EXPECT_EQ(quarn_ses_gb_tbssign_getpropertyinfo(nullptr), nullptr);
}

TEST(CertStore, dup_copies_a_key_id) {
  const Given algorithm(QUARN_ASN1_CERTSTORE_KEYID, "A0 03 06 01 2A");
  const Value<quarn_certstore_keyid, QUARN_ASN1_CERTSTORE_KEYID> copy(
      quarn_certstore_dup(algorithm));
  EXPECT_EQ(quarn_certstore_keyid_gettype(copy.get()), 1U);
  EXPECT_EQ(encoding_of(QUARN_ASN1_CERTSTORE_KEYID, copy.get()), hex("A0 03 06 01 2A"));
  EXPECT_EQ(quarn_certstore_keyid_getkeyid(copy.get()), nullptr);
  EXPECT_EQ(quarn_certstore_dup(nullptr), nullptr);
}

}  // namespace
}  // namespace quarn::test

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

// The number, then which of the lists is there.
std::string lists_of(const Property &property) {
  if (property == nullptr) return "null";
  std::string found = std::to_string(quarn_gb_ses_espropertyinfo_getcertlistype(property.get()));
  if (quarn_gb_ses_espropertyinfo_getcertlist(property.get()) != nullptr) found += " certs";
  if (quarn_gb_ses_espropertyinfo_getcertdigestlist(property.get()) != nullptr) found += " digests";
  return found;
}

class Seals : public ::testing::Test {
 protected:
  const Given one_{QUARN_ASN1_INTEGER, "02 01 01"};
  const Given name_{QUARN_ASN1_UTF8STRING, "0C 01 4E"};
  const Given time_{QUARN_ASN1_GENTIME, "18 0F 32 30 32 36 30 31 30 31 30 30 30 30 30 30 5A"};
};

TEST_F(Seals, are_made_for_certificates) {
  const Given certs(QUARN_ASN1_OCTETSTRINGS, "30 03 04 01 43");
  fail_each_allocation([&](Allocation &allocation) {
    const Property made(
        quarn_gb_ses_espropertyinfo_newcert(one_, name_, certs, time_, time_, time_));
    allocation.never_fail();
    const bool refused = made == nullptr && allocation.failed();
    EXPECT_EQ(lists_of(made), refused ? "null" : "1 certs");
  });
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcert(one_, name_, nullptr, time_, time_, time_),
            nullptr);
}

TEST_F(Seals, are_made_for_digests) {
  const Given digests(QUARN_ASN1_SES_CERTDIGESTLIST, "30 08 30 06 13 01 64 04 01 44");
  const Property made(
      quarn_gb_ses_espropertyinfo_newcertdigest(one_, name_, digests, time_, time_, time_));
  EXPECT_EQ(lists_of(made), "2 digests");
  const Octets octets = encoding_of(QUARN_ASN1_GB_SES_ESPROPERTYINFO, made.get());
  EXPECT_EQ(Octets(octets.begin() + 8, octets.begin() + 18), hex("02 01 02 30 08 30 06 13 01 64"));
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_newcertdigest(one_, nullptr, digests, time_, time_, time_),
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

TEST_F(Seals, getters_with_other_names) {
  const struct {
    std::int64_t type;
    const char *name;
    void *(*get)(const Given &);
  } getters[] = {
      {QUARN_ASN1_SES_HEADER, "version",
       [](const Given &value) -> void * { return quarn_ses_header_geversion(value); }},
      {QUARN_ASN1_GB_SES_TBSSIGN, "propertyInfo",
       [](const Given &value) -> void * { return quarn_ses_gb_tbssign_getpropertyinfo(value); }},
  };
  const std::vector<Vector> samples = structured_samples();
  for (const auto &getter : getters) {
    const auto sample = std::find_if(samples.begin(), samples.end(),
                                     [&](const Vector &one) { return one.type == getter.type; });
    const Given value(getter.type, sample->in);
    EXPECT_EQ(getter.get(value), named(getter.type, value, getter.name)) << getter.name;
  }
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

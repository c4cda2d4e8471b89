// Keys, containers, OCSP and time-stamps: what constructors refuse, signed parts, inferred layouts.
#include <gtest/gtest.h>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/unit/given.h"

namespace quarn::test {
namespace {

const std::string kAlgorithm = "30 03 06 01 2A ";
const std::string kNumber = "02 01 05 ";

quarn_pkcs1rsaprivkey *rsa_key(Given &g, const char *version, const quarn_asn1_list *others) {
  const Lent n = g.integer();
  return quarn_pkcs1rsaprivkey_new(g(QUARN_ASN1_INTEGER, version), n, n, n, n, n, n, n, n, others);
}

quarn_pkcs5rc2cbcparameter *rc2(Given &g, const std::string &iv) {
  return quarn_pkcs5rc2cbcparameter_new(nullptr, g.octets(iv));
}

TEST(Containers, constructors_refuse_what_decoders_refuse) {
  const std::string primes = "30 0B 30 09 " + kNumber + kNumber + kNumber;
  const std::string key =
      kNumber + kNumber + kNumber + kNumber + kNumber + kNumber + kNumber + kNumber;
  const std::string eight = "04 08 31 32 33 34 35 36 37 38 ";
  fail_each_allocation([&](Allocation &allocation) {
    Given g(&allocation);
    const quarn_asn1_list *others = g.list(QUARN_ASN1_PKCS1OTHERPRIMEINFOS, primes);
    constexpr auto kKey = QUARN_ASN1_PKCS1RSAPRIVKEY;
    g.makes("two primes", kKey, rsa_key(g, "02 01 00", nullptr), "30 1B 02 01 00 " + key);
    g.makes("three", kKey, rsa_key(g, "02 01 01", others), "30 28 02 01 01 " + key + primes);
    if (!allocation.failed()) {
      g.makes("two under version 1", kKey, rsa_key(g, "02 01 01", nullptr), "null");
      g.makes("three under version 0", kKey, rsa_key(g, "02 01 00", others), "null");
    }
    g.makes("no other prime", kKey,
            rsa_key(g, "02 01 01", g.own(QUARN_ASN1_PKCS1OTHERPRIMEINFOS, quarn_asn1_list_new())),
            "null");
    g.makes("a salt", QUARN_ASN1_PKCS5PBEPARAM,
            quarn_pkcs5pbeparam_new(g.octets(eight), g.integer()), "30 0D " + eight + kNumber);
    g.makes("a short salt", QUARN_ASN1_PKCS5PBEPARAM,
            quarn_pkcs5pbeparam_new(g.octets(), g.integer()), "null");
    g.makes("octets of RC2", QUARN_ASN1_PKCS5RC2CBCPARAMETER, rc2(g, eight), "30 0A " + eight);
    g.makes("too few of them", QUARN_ASN1_PKCS5RC2CBCPARAMETER, rc2(g, "04 01 41"), "null");
  });
}

TEST(Containers, alternatives_without_a_value_take_none) {
  fail_each_allocation([](Allocation &allocation) {
    Given g(&allocation);
    g.makes("good", QUARN_ASN1_OCSP_CERTSTATUS, quarn_ocsp_certstatus_newgood(), "80 00");
    g.makes("unknown", QUARN_ASN1_OCSP_CERTSTATUS, quarn_ocsp_certstatus_newunknown(), "82 00");
    g.makes("authority", QUARN_ASN1_ECPKPARAMETERS, quarn_ecpkparameters_newimplicitlyca(),
            "05 00");
  });
  Given g;
  const quarn_ocsp_certstatus *good = g(QUARN_ASN1_OCSP_CERTSTATUS, "80 00");
  EXPECT_EQ(quarn_ocsp_certstatus_gettype(good), 0u);
  EXPECT_EQ(quarn_ocsp_certstatus_getrevokedinfo(good), nullptr);
}

TEST(Containers, keys_may_hold_their_public_key) {
  Given g;
  const std::string head = "30 14 02 01 05 " + kAlgorithm + "04 01 41 ";
  constexpr auto kType = QUARN_ASN1_PKCS8PRIVATEKEYINFO;
  g.makes("without", kType,
          quarn_pkcs8privatekeyinfo_new(g.integer(), g.algorithm(), g.octets(), nullptr),
          "30 0B " + head.substr(6));
  g.makes(
      "with it", kType,
      quarn_pkcs8privatekeyinfo_newv2(g.integer(), g.algorithm(), g.octets(), nullptr, g.bits()),
      "30 0F " + head.substr(6) + "81 02 06 40");
}

TEST(Containers, what_was_signed_is_as_it_was_received) {
  const std::string body = "30 80 A0 03 02 01 00 30 00 00 00 ";
  Given g;
  quarn_ocsp_ocsprequest *request = g(QUARN_ASN1_OCSP_OCSPREQUEST, "30 80 " + body + "00 00");
  std::uint64_t length = 0;
  ASSERT_EQ(quarn_ocsp_ocsprequest_gettbsocts(request, nullptr, &length), 1);
  std::string octets(length, '\0');
  quarn_ocsp_ocsprequest_gettbsocts(request, reinterpret_cast<std::uint8_t *>(octets.data()),
                                    &length);
  EXPECT_EQ(octets, from_hex(body));
  quarn_asn1_forget_octets(QUARN_ASN1_OCSP_OCSPREQUEST, request);
  EXPECT_EQ(encoding_of(QUARN_ASN1_OCSP_OCSPREQUEST, request), hex("30 04 30 02 30 00"));
}

TEST(Containers, elements_show_the_inferred_layout_or_nothing) {
  const std::string rsa = "30 0B " + kAlgorithm + "04 01 41 04 01 42 ";
  fail_each_allocation([&](Allocation &allocation) {
    Given g(&allocation);
    quarn_rsaenvelopedkeypair *pair =
        quarn_rsaenvelopedkeypair_new(g.algorithm(), g.octets(), g.octets("04 01 42"));
    g.makes("RSA", QUARN_ASN1_RSAENVELOPEDKEYPAIR, pair, rsa);
    quarn_innerenvelopedkeypair *inner = quarn_innerenvelopedkeypair_newrsa(pair);
    g.makes("inner", QUARN_ASN1_INNERENVELOPEDKEYPAIR, inner, "A0" + rsa.substr(2));
    g.makes("whole", QUARN_ASN1_ENVELOPEDKEYPAIR, quarn_envelopedkeypair_new(g.integer(), inner),
            "30 10 " + kNumber + "A0" + rsa.substr(2));
    if (allocation.failed()) return;
    allocation.never_fail();
    EXPECT_EQ(quarn_innerenvelopedkeypair_gettype(inner), 0u);
    EXPECT_EQ(quarn_innerenvelopedkeypair_getsm2(inner), nullptr);
    const quarn_rsaenvelopedkeypair *shown = quarn_innerenvelopedkeypair_getrsa(inner);
    EXPECT_EQ(encoding_of(QUARN_ASN1_OCTETSTRING, quarn_rsaenvelopedkeypair_getenckeypair(shown)),
              hex("04 01 42"));
  });
  fail_each_allocation([&](Allocation &allocation) {
    Given g(&allocation);
    const quarn_envelopedkeypair *pair = g(QUARN_ASN1_ENVELOPEDKEYPAIR, "30 06 02 01 01 A2 01 41");
    if (pair == nullptr) return;
    const quarn_innerenvelopedkeypair *inner = quarn_envelopedkeypair_getkeypair(pair);
    ASSERT_NE(inner, nullptr) << "the version and an element";
    EXPECT_EQ(quarn_innerenvelopedkeypair_gettype(inner), UINT32_MAX);
    EXPECT_EQ(quarn_innerenvelopedkeypair_getrsa(inner), nullptr);
    const quarn_rsaenvelopedkeypair *other = g(QUARN_ASN1_RSAENVELOPEDKEYPAIR, "30 03 02 01 01");
    EXPECT_EQ(quarn_rsaenvelopedkeypair_getsymalgo(other), nullptr);
    EXPECT_EQ(quarn_innerenvelopedkeypair_gettype(nullptr), UINT32_MAX);
  });
}

}  // namespace
}  // namespace quarn::test

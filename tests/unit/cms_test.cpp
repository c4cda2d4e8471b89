// Messages: where the parts of a signed one stand, and the constructors that do not just copy.
#include "tests/unit/given.h"

namespace quarn::test {
namespace {

using SignedData = Value<quarn_pkcs7signeddata, QUARN_ASN1_PKCS7SIGNEDDATA>;
using Places = std::vector<std::int64_t>;

const Places kNowhere{-1, -1, -1};
// Without and with what may be left out: the places of the content info, its end and the signer
// infos, from the content on.
const char *const kLeast = "02 01 01 31 00 30 03 06 01 2A 31 00";
const Places kLeastPlaces{5, 10, 10};
const char *const kMost = "02 01 01 31 00 30 08 06 01 2A A0 03 04 01 41 A0 00 A1 00 31 00";
const Places kMostPlaces{5, 15, 19};

Places places_of(const SignedData &message) {
  return {quarn_pkcs7signeddata_getcontentinfooffset(message.get()),
          quarn_pkcs7signeddata_getcontentinfoendoffset(message.get()),
          quarn_pkcs7signeddata_getsignerinfosoffset(message.get())};
}

Places moved(Places places, std::int64_t by) {
  for (std::int64_t &place : places) place += by;
  return places;
}

SignedData decoded(const Octets &octets, quarn_asn1_type_id id = QUARN_ASN1_PKCS7SIGNEDDATA) {
  void *value = nullptr;
  quarn_asn1_mem_decode(octets.data(), static_cast<std::int64_t>(octets.size()), id, &value);
  return SignedData(static_cast<quarn_pkcs7signeddata *>(value));
}

Octets wrapped(const Octets &header, const Octets &content, const Octets &end = {}) {
  Octets whole = header;
  whole.insert(whole.end(), content.begin(), content.end());
  whole.insert(whole.end(), end.begin(), end.end());
  return whole;
}

template <std::int64_t kType, typename T>
T *made(const char *octets) {
  const Octets encoding = hex(octets);
  void *value = nullptr;
  quarn_asn1_mem_decode(encoding.data(), static_cast<std::int64_t>(encoding.size()), kType, &value);
  return static_cast<T *>(value);
}

TEST(SignedData, places_count_from_the_identifier_under_its_own_type_only) {
  for (const auto &[content, places] : {std::pair{kLeast, kLeastPlaces}, {kMost, kMostPlaces}}) {
    const Octets octets = hex(content);
    const auto size = static_cast<std::uint8_t>(octets.size());
    const Octets forms[] = {wrapped({0x30, size}, octets), wrapped({0x30, 0x82, 0, size}, octets),
                            wrapped({0x30, 0x80}, octets, {0, 0})};
    for (const Octets &form : forms) {
      const std::int64_t header = form[1] == 0x82 ? 4 : 2;
      EXPECT_EQ(places_of(decoded(form)), moved(places, header));
      EXPECT_EQ(places_of(decoded(form, QUARN_ASN1_CMSSIGNEDDATA)), places);
    }
    // In segments of one octet from a stream that cannot go back.
    SlowSource source(forms[2]);
    void *value = nullptr;
    EXPECT_EQ(quarn_asn1_decode(source.stream().get(), QUARN_ASN1_PKCS7SIGNEDDATA, &value, nullptr,
                                nullptr),
              1);
    EXPECT_EQ(places_of(SignedData(static_cast<quarn_pkcs7signeddata *>(value))), moved(places, 2));
  }
}

TEST(SignedData, content_alone_and_indefinite_components_have_places) {
  const Octets octets = hex("02 01 01 31 80 00 00 30 80 06 01 2A 00 00 A0 80 00 00 31 00 00 00");
  const Stream stream = growable(octets);
  void *value = nullptr;
  ASSERT_EQ(quarn_asn1_decode_content(stream.get(), QUARN_ASN1_PKCS7SIGNEDDATA, &value, 0,
                                      QUARN_ASN1_INDEFINITE, nullptr, nullptr),
            1);
  const SignedData message(static_cast<quarn_pkcs7signeddata *>(value));
  EXPECT_EQ(places_of(message), (Places{7, 14, 18}));
  EXPECT_EQ(quarn_pkcs7signeddata_gettype(message.get()), 1);
  const Stream out = growable();
  ASSERT_EQ(
      quarn_asn1_encode_content(out.get(), QUARN_ASN1_PKCS7SIGNEDDATA, value, 14, nullptr, nullptr),
      1);
  EXPECT_EQ(places_of(message), (Places{5, 10, 12}));
}

TEST(SignedData, encoding_moves_the_places_to_what_was_written) {
  const SignedData message = decoded(wrapped({0x30, 0x80}, hex(kMost), {0, 0}));
  for (int i = 0; i < 2; i++) {
    encoding_of(QUARN_ASN1_PKCS7SIGNEDDATA, message.get());
    EXPECT_EQ(places_of(message), moved(kMostPlaces, 2));
  }
  encoding_of(QUARN_ASN1_CMSSIGNEDDATA, message.get());
  EXPECT_EQ(places_of(message), kMostPlaces);
  const SignedData copy(static_cast<quarn_pkcs7signeddata *>(
      quarn_asn1_dupobject(QUARN_ASN1_PKCS7SIGNEDDATA, message.get(), nullptr)));
  EXPECT_EQ(places_of(copy), moved(kMostPlaces, 2));
}

TEST(SignedData, its_parts_are_taken_over_or_left_with_the_caller) {
  EXPECT_EQ(places_of(nullptr), kNowhere);
  EXPECT_EQ(quarn_pkcs7signeddata_gettype(nullptr), -1);
  fail_each_allocation([](Allocation &allocation) {
    auto *version = made<QUARN_ASN1_INTEGER, quarn_asn1_integer>("02 01 01");
    auto *digests = made<QUARN_ASN1_CMSALGOS, quarn_asn1_list>("31 00");
    auto *content = made<QUARN_ASN1_PKCS7CONTENTINFO, quarn_pkcs7contentinfo>("30 03 06 01 2A");
    auto *signers = made<QUARN_ASN1_CMSSIGNERINFOS, quarn_asn1_list>("31 00");
    auto *crls = made<QUARN_ASN1_CMSREVINFOS, quarn_asn1_list>("31 00");
    const auto make = quarn_pkcs7signeddata_new0;
    EXPECT_EQ(make(nullptr, digests, content, nullptr, crls, signers), nullptr);
    EXPECT_EQ(make(version, nullptr, content, nullptr, crls, signers), nullptr);
    EXPECT_EQ(make(version, digests, nullptr, nullptr, crls, signers), nullptr);
    EXPECT_EQ(make(version, digests, content, nullptr, crls, nullptr), nullptr);
    const SignedData message(make(version, digests, content, nullptr, crls, signers));
    if (message == nullptr) {
      EXPECT_TRUE(allocation.failed());
      quarn_asn1_value_free(QUARN_ASN1_INTEGER, version);
      quarn_asn1_value_free(QUARN_ASN1_CMSALGOS, digests);
      quarn_asn1_value_free(QUARN_ASN1_PKCS7CONTENTINFO, content);
      quarn_asn1_value_free(QUARN_ASN1_CMSSIGNERINFOS, signers);
      quarn_asn1_value_free(QUARN_ASN1_CMSREVINFOS, crls);
      return;
    }
    EXPECT_EQ(quarn_pkcs7signeddata_getversion(message.get()), version);
    EXPECT_EQ(quarn_pkcs7signeddata_hascerts(message.get()), 0);
    EXPECT_EQ(quarn_pkcs7signeddata_getcrls(message.get()), crls);
    EXPECT_EQ(quarn_pkcs7signeddata_gettype(message.get()), 1);
    EXPECT_EQ(places_of(message), kNowhere);
    if (allocation.failed()) return;
    allocation.never_fail();
    EXPECT_EQ(encoding_of(QUARN_ASN1_PKCS7SIGNEDDATA, message.get()),
              hex("30 0E 02 01 01 31 00 30 03 06 01 2A A1 00 31 00"));
    EXPECT_EQ(places_of(message), (Places{7, 12, 14}));
  });
}

TEST(CMSAlgorithmProtection, is_of_two_algorithms) {
  Given g;
  constexpr auto kType = QUARN_ASN1_CMSALGORITHMPROTECTION;
  const auto sign = quarn_cmsalgorithmprotection_newsign;
  const auto mac = quarn_cmsalgorithmprotection_newmac;
  const std::string head = "30 0A 30 03 06 01 2A ";
  g.makes("signed", kType, sign(g.algorithm(), g.algorithm()), head + "A1 03 06 01 2A");
  g.makes("with a code", kType, mac(g.algorithm(), g.algorithm()), head + "A2 03 06 01 2A");
  g.makes("no signature", kType, sign(g.algorithm(), nullptr), "");
  g.makes("no code", kType, mac(g.algorithm(), nullptr), "");
  g.makes("no digest", kType, mac(nullptr, g.algorithm()), "");
}

}  // namespace
}  // namespace quarn::test

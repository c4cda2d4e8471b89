// 5. Small values: how long does it take to decode and free one, and how many allocations?
#include <openssl/asn1.h>

#include "bench/bench.h"
#include "quarn_asn1/core.h"

namespace bench {

namespace {

constexpr std::size_t kTimes = 256;

Octets text(std::uint8_t identifier, const std::string &content) {
  return element(identifier, Octets(content.begin(), content.end()));
}

std::function<std::uint64_t()> decode_quarn(quarn_asn1_type_id type, const Octets &der) {
  return uncounted([type, der] {
    std::uint64_t octets = 0;
    for (std::size_t i = 0; i < kTimes; i++) {
      void *value = nullptr;
      octets += static_cast<std::uint64_t>(
          quarn_asn1_mem_decode(der.data(), static_cast<std::int64_t>(der.size()), type, &value));
      quarn_asn1_value_free(type, value);
    }
    if (octets != kTimes * der.size()) require(false, "decode type " + std::to_string(type));
  });
}

template <typename T>
std::function<std::uint64_t()> decode_openssl(T *(*decode)(T **, const unsigned char **, long),
                                              void (*release)(T *),
                                              const Octets &der) {
  return uncounted([decode, release, der] {
    for (std::size_t i = 0; i < kTimes; i++) {
      const std::uint8_t *next = der.data();
      T *value = decode(nullptr, &next, static_cast<long>(der.size()));
      require(next == der.data() + der.size(), "decode a small value with OpenSSL");
      release(value);
    }
  });
}

// Both ways to decode one type. The ratio is for information: what is demanded is the number of
// allocations.
template <typename T>
void add(std::vector<Case> &cases,
         const std::string &name,
         quarn_asn1_type_id type,
         T *(*decode)(T **, const unsigned char **, long),
         void (*release)(T *),
         const Octets &der,
         double allocations = 1) {
  cases.push_back({.name = "OpenSSL " + name,
                   .work = decode_openssl(decode, release, der),
                   .reference = "OpenSSL " + name});
  cases.push_back({.name = name,
                   .work = decode_quarn(type, der),
                   .allocations = allocations,
                   .reference = "OpenSSL " + name});
}

}  // namespace

Question small_values() {
  std::vector<Case> cases;
  const Octets serial{0x04, 0x00, 0x00, 0x00, 0x00, 0x01, 0x15, 0x4B, 0x5A, 0xC3, 0x94};
  add(cases, "INTEGER", QUARN_ASN1_INTEGER, d2i_ASN1_INTEGER, ASN1_INTEGER_free,
      element(0x02, serial));
  add(cases, "ENUMERATED", QUARN_ASN1_ENUMERATED, d2i_ASN1_ENUMERATED, ASN1_ENUMERATED_free,
      element(0x0A, {0x04}));
  // sha256WithRSAEncryption, which both find among those they know, and 1.3.6.1.4.1.55555.1.
  add(cases, "OBJECT IDENTIFIER, known", QUARN_ASN1_OID, d2i_ASN1_OBJECT, ASN1_OBJECT_free,
      element(0x06, {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x01, 0x0B}), 0);
  add(cases, "OBJECT IDENTIFIER", QUARN_ASN1_OID, d2i_ASN1_OBJECT, ASN1_OBJECT_free,
      element(0x06, {0x2B, 0x06, 0x01, 0x04, 0x01, 0x83, 0xB2, 0x03, 0x01}));
  add(cases, "UTF8String", QUARN_ASN1_UTF8STRING, d2i_ASN1_UTF8STRING, ASN1_UTF8STRING_free,
      text(0x0C, "Example Root Certification Authority"));
  add(cases, "OCTET STRING", QUARN_ASN1_OCTETSTRING, d2i_ASN1_OCTET_STRING, ASN1_OCTET_STRING_free,
      element(0x04, Octets(20, 0x5A)));
  add(cases, "BIT STRING", QUARN_ASN1_BITSTRING, d2i_ASN1_BIT_STRING, ASN1_BIT_STRING_free,
      element(0x03, {0x01, 0x06}));
  add(cases, "UTCTime", QUARN_ASN1_UTCTIME, d2i_ASN1_UTCTIME, ASN1_UTCTIME_free,
      text(0x17, "240229235959Z"));
  add(cases, "GeneralizedTime", QUARN_ASN1_GENTIME, d2i_ASN1_GENERALIZEDTIME,
      ASN1_GENERALIZEDTIME_free, text(0x18, "20500101000000Z"));
  // OpenSSL has no BOOLEAN objects; as an ANY it makes one.
  add(cases, "BOOLEAN", QUARN_ASN1_BOOLEAN, d2i_ASN1_TYPE, ASN1_TYPE_free, element(0x01, {0xFF}),
      0);
  add(cases, "NULL", QUARN_ASN1_NULL, d2i_ASN1_NULL, ASN1_NULL_free, element(0x05, {}), 0);
  return {"5. Small values, decoded and freed", "value", kTimes, std::move(cases)};
}

}  // namespace bench

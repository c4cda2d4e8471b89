// This library, by its C interface. Names and certificates keep the octets they were decoded from;
// extensions stay octets until they are asked for.
#include <cstring>

#include "bench/typed/typed.h"
#include "quarn_asn1/types.h"
#include "quarn_asn1/x500.h"
#include "quarn_asn1/x509.h"

namespace bench {

namespace {

void *decode(quarn_asn1_type_id type, const Octets &der) {
  void *value = nullptr;
  const auto count = static_cast<std::int64_t>(der.size());
  if (quarn_asn1_mem_decode(der.data(), count, type, &value) == count) return value;
  quarn_asn1_value_free(type, value);
  return nullptr;
}

template <quarn_asn1_type_id type>
bool decode_and_free(const Octets &der) {
  void *value = decode(type, der);
  quarn_asn1_value_free(type, value);
  return value != nullptr;
}

bool certificate_from_stream(const Octets &der) {
  quarn_stream *stream =
      quarn_stream_new_romem(der.data(), static_cast<std::int64_t>(der.size()), 0, nullptr);
  void *value = nullptr;
  const int result = quarn_asn1_decode(stream, QUARN_ASN1_X509PUBKEYCERT, &value, nullptr, nullptr);
  quarn_asn1_value_free(QUARN_ASN1_X509PUBKEYCERT, value);
  quarn_stream_free(stream);
  return result == 1;
}

struct KnownExtension {
  const char *type;
  quarn_asn1_type_id value;
};

constexpr KnownExtension kKnownExtensions[] = {
    {"2.5.29.14", QUARN_ASN1_OCTETSTRING},             // subjectKeyIdentifier
    {"2.5.29.15", QUARN_ASN1_BITSTRING},               // keyUsage
    {"2.5.29.19", QUARN_ASN1_X509BASICCONSTRAINTS},    // basicConstraints
    {"2.5.29.35", QUARN_ASN1_X509AKID},                // authorityKeyIdentifier
    {"2.5.29.17", QUARN_ASN1_X509GENERALNAMES},        // subjectAltName
    {"2.5.29.18", QUARN_ASN1_X509GENERALNAMES},        // issuerAltName
    {"2.5.29.37", QUARN_ASN1_X509EXKEYUSAGE},          // extKeyUsage
    {"2.5.29.32", QUARN_ASN1_X509CERTPOLICIES},        // certificatePolicies
    {"2.5.29.31", QUARN_ASN1_X509CRLDP},               // cRLDistributionPoints
    {"2.5.29.46", QUARN_ASN1_X509CRLDP},               // freshestCRL
    {"1.3.6.1.5.5.7.1.1", QUARN_ASN1_PKIXAIA},         // authorityInfoAccess
    {"1.3.6.1.5.5.7.1.11", QUARN_ASN1_PKIXAIA},        // subjectInfoAccess
    {"2.5.29.30", QUARN_ASN1_PKIXNAMECONSTAINTS},      // nameConstraints
    {"2.5.29.33", QUARN_ASN1_X509POLICYMAPPINGS},      // policyMappings
    {"2.5.29.36", QUARN_ASN1_X509POLICYCONSTAINTS},    // policyConstraints
    {"2.5.29.54", QUARN_ASN1_INTEGER},                 // inhibitAnyPolicy
    {"2.5.29.16", QUARN_ASN1_X509PRIVKEYUSAGEPERIOD},  // privateKeyUsagePeriod
    {"2.5.29.9", QUARN_ASN1_X509SUBJECTDIRATTRS},      // subjectDirectoryAttributes
    {"1.3.6.1.5.5.7.1.3", QUARN_ASN1_QCSTATEMENTS},    // qcStatements
};

bool decode_extension(const quarn_x509extension *extension) {
  const char *type = quarn_asn1_oid_getstring(quarn_x509extension_getextnid(extension));
  for (const KnownExtension &known : kKnownExtensions) {
    if (strcmp(type, known.type) != 0) continue;
    void *value = nullptr;
    const int result = quarn_asn1_octetstring_getobject(quarn_x509extension_getextnvalue(extension),
                                                        known.value, &value, nullptr);
    quarn_asn1_value_free(known.value, value);
    return result == 1;
  }
  return true;
}

bool certificate_and_extensions(const Octets &der) {
  void *value = decode(QUARN_ASN1_X509PUBKEYCERT, der);
  const quarn_asn1_list *extensions =
      quarn_x509pubkeycert_getexts(static_cast<quarn_x509pubkeycert *>(value));
  bool good = value != nullptr;
  const int count = quarn_asn1_list_getsize(extensions);
  for (int i = 0; i < count; i++) {
    void *extension = nullptr;
    quarn_asn1_list_get(extensions, i, &extension);
    good = decode_extension(static_cast<quarn_x509extension *>(extension)) && good;
  }
  quarn_asn1_value_free(QUARN_ASN1_X509PUBKEYCERT, value);
  return good;
}

bool sorted_name(const Octets &der) {
  void *value = decode(QUARN_ASN1_X500NAME, der);
  const int result = quarn_x500name_sort(static_cast<quarn_x500name *>(value));
  quarn_asn1_value_free(QUARN_ASN1_X500NAME, value);
  return result == 1;
}

void *load(const Octets &der) {
  return decode(QUARN_ASN1_X509PUBKEYCERT, der);
}

void release(void *certificate) {
  quarn_asn1_value_free(QUARN_ASN1_X509PUBKEYCERT, certificate);
}

std::size_t encode(void *certificate) {
  quarn_data_blob *blob = quarn_asn1_mem_encode(QUARN_ASN1_X509PUBKEYCERT, certificate);
  const std::size_t count = blob == nullptr ? 0 : static_cast<std::size_t>(blob->length);
  quarn_data_blob_free(blob);
  return count;
}

// Encoding keeps what it wrote, so that it has to be forgotten each time: that is a part of what is
// measured.
std::size_t encode_anew(void *certificate) {
  quarn_asn1_forget_octets(QUARN_ASN1_X509PUBKEYCERT, certificate);
  return encode(certificate);
}

bool copy(void *certificate) {
  void *value = quarn_asn1_dupobject(QUARN_ASN1_X509PUBKEYCERT, certificate, nullptr);
  quarn_asn1_value_free(QUARN_ASN1_X509PUBKEYCERT, value);
  return value != nullptr;
}

// By their encodings, which is what there is to compare names by.
bool same_names(void *certificate) {
  auto *value = static_cast<quarn_x509pubkeycert *>(certificate);
  quarn_data_blob *issuer =
      quarn_asn1_mem_encode(QUARN_ASN1_X500NAME, quarn_x509pubkeycert_getissuer(value));
  quarn_data_blob *subject =
      quarn_asn1_mem_encode(QUARN_ASN1_X500NAME, quarn_x509pubkeycert_getsubject(value));
  const bool same =
      issuer != nullptr && subject != nullptr && issuer->length == subject->length &&
      memcmp(issuer->data, subject->data, static_cast<std::size_t>(issuer->length)) == 0;
  quarn_data_blob_free(issuer);
  quarn_data_blob_free(subject);
  return same;
}

const bool kKnown = known_library({.name = "quarn",
                                   .certificate = decode_and_free<QUARN_ASN1_X509PUBKEYCERT>,
                                   .certificate_from_stream = certificate_from_stream,
                                   .certificate_and_extensions = certificate_and_extensions,
                                   .request = decode_and_free<QUARN_ASN1_PKCS10CERTREQ>,
                                   .list = decode_and_free<QUARN_ASN1_X509CRL>,
                                   .sorted_name = sorted_name,
                                   .load = load,
                                   .release = release,
                                   .encode = encode,
                                   .encode_anew = encode_anew,
                                   .copy = copy,
                                   .same_names = same_names});

}  // namespace

}  // namespace bench

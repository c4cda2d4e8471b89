// Heimdal: C structures by a compiler of ASN.1, without any keys or canonical forms. It has no
// types of requests, certificate policies and their mappings and constraints.
#include <iterator>
#include <memory>

#include "bench/heimdal.h"
#include "bench/typed/typed.h"

namespace bench {

namespace {

// Of the subject's information access, which its headers have no constant for.
unsigned kSubjectAccess[] = {1, 3, 6, 1, 5, 5, 7, 1, 11};
const heim_oid kSubjectAccessType = {std::size(kSubjectAccess), kSubjectAccess};

struct KnownExtension {
  const heim_oid *type;
  bool (*decode)(const void *octets, std::size_t count);
};

const KnownExtension kKnownExtensions[] = {
    {&asn1_oid_id_x509_ce_subjectKeyIdentifier,
     decode_and_free<SubjectKeyIdentifier, decode_SubjectKeyIdentifier, free_SubjectKeyIdentifier>},
    {&asn1_oid_id_x509_ce_keyUsage, decode_and_free<KeyUsage, decode_KeyUsage, free_KeyUsage>},
    {&asn1_oid_id_x509_ce_basicConstraints,
     decode_and_free<BasicConstraints, decode_BasicConstraints, free_BasicConstraints>},
    {&asn1_oid_id_x509_ce_authorityKeyIdentifier, decode_and_free<AuthorityKeyIdentifier,
                                                                  decode_AuthorityKeyIdentifier,
                                                                  free_AuthorityKeyIdentifier>},
    {&asn1_oid_id_x509_ce_subjectAltName,
     decode_and_free<GeneralNames, decode_GeneralNames, free_GeneralNames>},
    {&asn1_oid_id_x509_ce_issuerAltName,
     decode_and_free<GeneralNames, decode_GeneralNames, free_GeneralNames>},
    {&asn1_oid_id_x509_ce_extKeyUsage,
     decode_and_free<ExtKeyUsage, decode_ExtKeyUsage, free_ExtKeyUsage>},
    {&asn1_oid_id_x509_ce_nameConstraints,
     decode_and_free<NameConstraints, decode_NameConstraints, free_NameConstraints>},
    {&asn1_oid_id_x509_ce_cRLDistributionPoints, decode_and_free<CRLDistributionPoints,
                                                                 decode_CRLDistributionPoints,
                                                                 free_CRLDistributionPoints>},
    {&asn1_oid_id_pkix_pe_authorityInfoAccess, decode_and_free<AuthorityInfoAccessSyntax,
                                                               decode_AuthorityInfoAccessSyntax,
                                                               free_AuthorityInfoAccessSyntax>},
    {&kSubjectAccessType, decode_and_free<AuthorityInfoAccessSyntax,
                                          decode_AuthorityInfoAccessSyntax,
                                          free_AuthorityInfoAccessSyntax>},
};

bool decode_extension(const Extension &extension) {
  for (const KnownExtension &known : kKnownExtensions) {
    if (der_heim_oid_cmp(&extension.extnID, known.type) == 0) {
      return known.decode(extension.extnValue.data, extension.extnValue.length);
    }
  }
  return true;
}

bool certificate(const Octets &der) {
  return decode_certificate(der.data(), der.size());
}

bool certificate_and_extensions(const Octets &der) {
  Certificate value;
  std::size_t size = 0;
  if (decode_Certificate(der.data(), der.size(), &value, &size) != 0) return false;
  const Extensions *extensions = value.tbsCertificate.extensions;
  bool good = true;
  for (unsigned i = 0; extensions != nullptr && i < extensions->len; i++) {
    good = decode_extension(extensions->val[i]) && good;
  }
  free_Certificate(&value);
  return good;
}

bool list(const Octets &der) {
  return decode_and_free<CRLCertificateList, decode_CRLCertificateList, free_CRLCertificateList>(
      der.data(), der.size());
}

void *load(const Octets &der) {
  auto value = std::make_unique<Certificate>();
  std::size_t size = 0;
  const int result = decode_Certificate(der.data(), der.size(), value.get(), &size);
  return result == 0 ? value.release() : nullptr;
}

void release(void *certificate) {
  auto *value = static_cast<Certificate *>(certificate);
  free_Certificate(value);
  delete value;
}

std::size_t encode_anew(void *certificate) {
  const auto *value = static_cast<const Certificate *>(certificate);
  const std::size_t size = length_Certificate(value);
  auto *octets = static_cast<unsigned char *>(malloc(size));
  std::size_t written = 0;
  // It writes backwards from the last octet.
  const int result = encode_Certificate(octets + size - 1, size, value, &written);
  free(octets);
  return result == 0 ? written : 0;
}

bool copy(void *certificate) {
  Certificate value;
  if (copy_Certificate(static_cast<const Certificate *>(certificate), &value) != 0) return false;
  free_Certificate(&value);
  return true;
}

const bool kKnown = known_library({.name = "Heimdal",
                                   .certificate = certificate,
                                   .certificate_and_extensions = certificate_and_extensions,
                                   .list = list,
                                   .load = load,
                                   .release = release,
                                   .encode_anew = encode_anew,
                                   .copy = copy});

}  // namespace

}  // namespace bench

#include "cli/candidates.h"

#include <algorithm>
#include <string_view>

#include "cli/options.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

Sight always(const Node & /*value*/) {
  return Sight::sure;
}

Sight sure_if(bool condition, Sight otherwise = Sight::no) {
  return condition ? Sight::sure : otherwise;
}

Sight not_empty(const Node &list) {
  return sure_if(count_of(list) > 0);
}

bool has(const Node &node, std::string_view name) {
  return part_of(node, name).value != nullptr;
}

// ---- What an object identifier tells

std::string identifier(const Node &node, std::string_view name) {
  return oid_text(part_of(node, name).value);
}

bool begins_with_one_of(std::string_view dotted, std::span<const char *const> arcs) {
  return std::any_of(arcs.begin(), arcs.end(),
                     [&](const char *arc) { return dotted.starts_with(arc); });
}

bool starts(const Node &node, std::string_view name, std::string_view arc) {
  return identifier(node, name).starts_with(arc);
}

// Whether what stands there is known for the identifier of that name.
bool known(Place place, const Node &node, std::string_view name) {
  return find_opening(place, identifier(node, name)) != nullptr;
}

Sight content_info(const Node &node) {
  if (known(Place::content, node, "contentType")) return Sight::sure;
  return has(node, "content") ? Sight::likely : Sight::no;
}
Sight cert_bag(const Node &node) {
  return sure_if(starts(node, "certId", "1.2.840.113549.1.9.22."));
}
Sight crl_bag(const Node &node) {
  return sure_if(starts(node, "crlId", "1.2.840.113549.1.9.23."));
}
Sight safe_bag(const Node &node) {
  return sure_if(starts(node, "bagId", "1.2.840.113549.1.12.10.1."));
}
Sight code_time_stamp_request(const Node &node) {
  return sure_if(identifier(node, "countersignatureType") == "1.3.6.1.4.1.311.3.2.1");
}
// Beside other identifiers stand values of other types; NULL stands beside those of algorithms.
Sight algorithm(const Node &node) {
  if (known(Place::parameters, node, "algorithm")) return Sight::sure;
  return is_null(part_of(node, "parameters")) ? Sight::likely : Sight::no;
}
// Any algorithm and a string would do for the type, a digest to begin with.
Sight encrypted_key(const Node &node) {
  return sure_if(known(Place::parameters, part_of(node, "encryptionAlgorithm"), "algorithm"));
}
// An identifier and a string: that of a digest, an attribute or a response would do, too.
Sight extension(const Node &node) {
  return sure_if(known(Place::extension, node, "extnID"));
}
Sight extensions(const Node &list) {
  for (std::int64_t i = 0; i < count_of(list); i++) {
    if (extension(part_of(list, i)) == Sight::sure) return Sight::sure;
  }
  return Sight::no;
}
Sight digest_info(const Node &node) {
  constexpr const char *kDigests[] = {"1.2.840.113549.2.", "1.3.14.3.2.26", "1.3.36.3.2.",
                                      "2.16.840.1.101.3.4.2.", "1.2.156.10197.1.401"};
  const std::string digest = identifier(part_of(node, "digestAlgorithm"), "algorithm");
  return begins_with_one_of(digest, kDigests) ? Sight::likely : Sight::no;
}
Sight attribute(const Node &node) {
  return sure_if(known(Place::attribute, node, "type"), Sight::likely);
}

// ---- What is there

// A refusal is a number in two sequences, and so are other things.
Sight time_stamp_response(const Node &node) {
  return sure_if(has(node, "timeStampToken"), Sight::likely);
}
Sight ocsp_request(const Node &node) {
  return not_empty(part_of(part_of(node, "tbsRequest"), "requestList"));
}
Sight evidence_record(const Node &node) {
  return not_empty(part_of(node, "archiveTimeStampSequence"));
}
Sight certificate_store(const Node &list) {
  for (std::int64_t i = 0; i < count_of(list); i++) {
    if (has(part_of(list, i), "attrs")) return Sight::sure;
  }
  return count_of(list) > 0 ? Sight::likely : Sight::no;
}
Sight name(const Node &list) {
  return not_empty(part_of(list, 0));
}
Sight certificate_pair(const Node &node) {
  return sure_if(has(node, "forward") || has(node, "reverse"));
}

// ---- What numbers are like. Many types are a few numbers and nothing else.

struct Number {
  std::size_t size = 0;  // octets; 0 when it is negative, zero or absent
  bool odd = false;
  std::uint8_t last = 0;
};

Number number(const Node &node, std::string_view name) {
  const Node part = part_of(node, name);
  if (part.value == nullptr) return {};
  const std::vector<std::uint8_t> octets = octets_of(part);
  if (octets.empty() || octets[0] >= 0x80) return {};
  const auto first = std::find_if(octets.begin(), octets.end(), [](auto octet) { return octet; });
  return {static_cast<std::size_t>(octets.end() - first), (octets.back() & 1) != 0, octets.back()};
}

// What is a small number, 0 included; a greater one counts as 255.
std::uint8_t small(const Node &node, std::string_view name) {
  const Number found = number(node, name);
  return found.size > 1 ? 0xFF : found.last;
}

// Recipients of messages with a password begin alike.
Sight private_key(const Node &node) {
  return sure_if(small(node, "version") <= 1);
}
// Without a response, it says why there is none.
Sight ocsp_response(const Node &node) {
  constexpr std::uint8_t kUnauthorized = 6;
  const std::uint8_t status = small(node, "responseStatus");
  return sure_if(has(node, "responseBytes") || (status > 0 && status <= kUnauthorized));
}

constexpr std::size_t kLeastModulus = 64;  // octets of RSA, DSA, Diffie-Hellman
constexpr std::size_t kLeastGroup = 20;    // of a subgroup, of a number in a signature
constexpr std::size_t kMostGroup = 32;
constexpr std::size_t kMostInSignature = 66;

bool is_modulus(const Number &number) {
  return number.odd && number.size >= kLeastModulus;
}

// 3 and 5, which are both exponents of RSA and bases of Diffie-Hellman.
bool is_shared(const Number &small) {
  return small.size == 1 && (small.last == 3 || small.last == 5);
}

Sight rsa_public_key(const Node &node) {
  const Number exponent = number(node, "publicExponent");
  const bool fits = is_modulus(number(node, "modulus")) && exponent.odd &&
                    exponent.size <= kMostGroup && (exponent.size > 1 || exponent.last > 1);
  if (!fits) return Sight::no;
  return is_shared(exponent) ? Sight::likely : Sight::sure;
}
Sight dh_parameters(const Node &node) {
  const Number prime = number(node, "prime");
  const Number base = number(node, "base");
  if (!is_modulus(prime) || base.size == 0 || base.size > prime.size) return Sight::no;
  if (has(node, "privateValueLength")) {
    return sure_if(number(node, "privateValueLength").size <= sizeof(std::uint32_t));
  }
  if (is_shared(base)) return Sight::likely;
  const bool long_base = base.size > kMostGroup && prime.size > kMostInSignature;
  return sure_if(long_base || (base.size == 1 && base.last == 2));
}
Sight dsa_parameters(const Node &node) {
  const Number prime = number(node, "p");
  const Number group = number(node, "q");
  return sure_if(is_modulus(prime) && group.odd && group.size >= kLeastGroup &&
                 group.size <= kMostGroup && number(node, "g").size > group.size);
}
// Numbers of about the same length, as shorter ones are rare.
Sight signature_value(const Node &node) {
  constexpr std::size_t kMostShorter = 4;
  const std::size_t r = number(node, "r").size;
  const std::size_t s = number(node, "s").size;
  const std::size_t least = std::min(r, s);
  const std::size_t most = std::max(r, s);
  return sure_if(least + kMostShorter >= most && most >= kLeastGroup && most <= kMostInSignature);
}
Sight ec_private_key(const Node &node) {
  constexpr std::size_t kLeastKey = 14;  // of a curve of 112 bits
  const Node key = part_of(node, "privateKey");
  if (small(node, "version") != 1 || octets_of(key).size() < kLeastKey) {
    return Sight::no;
  }
  return sure_if(has(node, "parameters") || has(node, "publicKey"), Sight::likely);
}

// A named curve is one of these arcs. Explicit parameters begin with a number and the field, whose
// kind is under the last of them.
Sight ec_parameters(const Node &node) {
  constexpr const char *kCurves[] = {"1.2.840.10045.3.", "1.3.132.0.", "1.3.36.3.3.2.8.1.1.",
                                     "1.2.156.10197.1.301"};
  if (node.type_id == QUARN_ASN1_OID) {
    return sure_if(begins_with_one_of(oid_text(node.value), kCurves));
  }
  if (!node.list() || count_of(node) < 2) return Sight::no;
  const Decoded field(QUARN_ASN1_X509ALGORITHMID, octets_of(part_of(node, 1)));
  return sure_if(field.get() != nullptr &&
                 starts(node_of(field.type_id(), field.get()), "algorithm", "1.2.840.10045.1."));
}

// Those that are told by much come before those that are told by little.
constexpr Candidate kCandidates[] = {
    {QUARN_ASN1_X509PUBKEYCERT, always, "CERTIFICATE,X509 CERTIFICATE,TRUSTED CERTIFICATE"},
    {QUARN_ASN1_X509CRL, always, "X509 CRL,CRL"},
    {QUARN_ASN1_PKCS10CERTREQ, always, "CERTIFICATE REQUEST,NEW CERTIFICATE REQUEST"},
    {QUARN_ASN1_ATTRIBUTECERTIFICATE, always, "ATTRIBUTE CERTIFICATE"},
    {QUARN_ASN1_PKCS7CONTENTINFO, content_info, "PKCS7,CMS,PKCS #7 SIGNED DATA"},
    {QUARN_ASN1_PKCS12PFX, always, "PKCS12"},
    {QUARN_ASN1_PKCS8PRIVATEKEYINFO, private_key, "PRIVATE KEY"},
    {QUARN_ASN1_PKCS8ENCPRIVATEKEYINFO, encrypted_key, "ENCRYPTED PRIVATE KEY"},
    {QUARN_ASN1_PKCS1RSAPRIVKEY, always, "RSA PRIVATE KEY"},
    {QUARN_ASN1_ECPRIVATEKEY, ec_private_key, "EC PRIVATE KEY,SM2 PRIVATE KEY"},
    {QUARN_ASN1_ECPKPARAMETERS, ec_parameters, "EC PARAMETERS,SM2 PARAMETERS"},
    {QUARN_ASN1_PKCS3DHPRARAM, dh_parameters, "DH PARAMETERS"},
    {QUARN_ASN1_DSSPARAMS, dsa_parameters, "DSA PARAMETERS"},
    {QUARN_ASN1_X509PUBLICKEYINFO, always, "PUBLIC KEY"},
    {QUARN_ASN1_PKCS1RSAPUBKEY, rsa_public_key, "RSA PUBLIC KEY"},
    {QUARN_ASN1_DSSSIGVALUE, signature_value, ""},
    {QUARN_ASN1_OCSP_OCSPRESPONSE, ocsp_response, "OCSP RESPONSE"},
    {QUARN_ASN1_OCSP_BASICOCSPRESPONSE, always, ""},
    {QUARN_ASN1_OCSP_OCSPREQUEST, ocsp_request, "OCSP REQUEST"},
    {QUARN_ASN1_TSP_TIMESTAMPRESP, time_stamp_response, ""},
    {QUARN_ASN1_TSP_TIMESTAMPREQ, always, ""},
    {QUARN_ASN1_TSP_TSTINFO, always, ""},
    {QUARN_ASN1_EVIDENCERECORD, evidence_record, ""},
    {QUARN_ASN1_PKCS7SIGNEDDATA, always, ""},
    {QUARN_ASN1_CMSENVELOPEDDATA, always, ""},
    {QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ, code_time_stamp_request, ""},
    {QUARN_ASN1_SES_SIGNATURE, always, ""},
    {QUARN_ASN1_SES_SESEAL, always, ""},
    {QUARN_ASN1_GB_SES_SIGNATURE, always, ""},
    {QUARN_ASN1_GB_SES_SEAL, always, ""},
    {QUARN_ASN1_SM2ENVELOPEDKEY, always, ""},
    {QUARN_ASN1_SM2CIPHER, always, ""},
    {QUARN_ASN1_LDAPMESSAGE, always, ""},
    {QUARN_ASN1_SCVPCVREQUEST, always, ""},
    {QUARN_ASN1_SCVPCVRESPONSE, always, ""},
    {QUARN_ASN1_SCVPVALPOLRESPONSE, always, ""},
    {QUARN_ASN1_X500CERTPAIR, certificate_pair, ""},
    {QUARN_ASN1_X509CERTIFICATES, not_empty, ""},
    {QUARN_ASN1_CERTSTORE, certificate_store, ""},
    {QUARN_ASN1_PKCS12CERTBAG, cert_bag, ""},
    {QUARN_ASN1_PKCS12CRLBAG, crl_bag, ""},
    {QUARN_ASN1_PKCS12SAFEBAG, safe_bag, ""},
    {QUARN_ASN1_X509TBSCERTIFICATE, always, ""},
    {QUARN_ASN1_PKCS10CERTREQINFO, always, ""},
    {QUARN_ASN1_X509TBSCERTLIST, always, ""},
    {QUARN_ASN1_X500NAME, name, ""},
    {QUARN_ASN1_X509EXTENSIONS, extensions, ""},
    {QUARN_ASN1_X509EXTENSION, extension, ""},
    {QUARN_ASN1_X500ATTRIBUTE, attribute, ""},
    {QUARN_ASN1_PKCSDIGESTINFO, digest_info, ""},
    {QUARN_ASN1_X509ALGORITHMID, algorithm, ""},
};

}  // namespace

bool Candidate::has_label(const std::string &label) const {
  if (label.empty()) return false;
  const std::vector<std::string> all = split(labels);
  return std::find(all.begin(), all.end(), label) != all.end();
}

std::span<const Candidate> candidates() {
  return kCandidates;
}

}  // namespace quarn::cli

// What text and JSON have in common.
#include "cli/message_show.h"

#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::string_view kSubjectKeyIdentifier = "2.5.29.14";

std::string key_of(const Node &node) {
  const std::vector<std::uint8_t> octets = octets_of(node);
  return std::string(as_text(octets));
}

// The two names that a certificate may be called by are told apart by the first character.
std::string key_of(const Node &issuer, const Node &serial) {
  return "i" + key_of(serial) + key_of(issuer);
}

}  // namespace

CertificateIndex::CertificateIndex(const Message &message) {
  const Node set = part_of(node_of(message.type_id, message.value.get()), "certificates");
  for (std::int64_t i = 0; i < count_of(set); i++) {
    const Node certificate = part_of(set, i);
    if (certificate.type_id == QUARN_ASN1_X509PUBKEYCERT) add(certificate, i);
  }
}

void CertificateIndex::add(const Node &certificate, std::int64_t number) {
  const Node signed_part = part_of(certificate, "tbsCertificate");
  numbers_.emplace(key_of(part_of(signed_part, "issuer"), part_of(signed_part, "serialNumber")),
                   number);
  const Node extensions = part_of(signed_part, "extensions");
  for (std::int64_t i = 0; i < count_of(extensions); i++) {
    const Node extension = part_of(extensions, i);
    if (oid_text(part_of(extension, "extnID").value) != kSubjectKeyIdentifier) continue;
    const Decoded identifier(QUARN_ASN1_OCTETSTRING, octets_of(part_of(extension, "extnValue")));
    if (identifier.get() == nullptr) continue;
    numbers_.emplace("k" + key_of(node_of(QUARN_ASN1_OCTETSTRING, identifier.get())), number);
  }
}

std::int64_t CertificateIndex::of_signer(const Node &signer) const {
  if (numbers_.empty()) return -1;
  const Node id = part_of(signer, "sid");
  const auto found = numbers_.find(id.type_id == QUARN_ASN1_CMSISSUERANDSN
                                       ? key_of(part_of(id, "issuer"), part_of(id, "serialNumber"))
                                       : "k" + key_of(id));
  return found == numbers_.end() ? -1 : found->second;
}

std::vector<Brief> briefs_of(const Node &node) {
  std::vector<Brief> briefs;
  const auto add = [&briefs](const Node &from, std::initializer_list<const char *> names) {
    for (const char *name : names) {
      Node part = part_of(from, name);
      if (part.value != nullptr) briefs.push_back({name, std::move(part)});
    }
  };
  if (node.type_id == QUARN_ASN1_CMSISSUERANDSN) {
    add(node, {"issuer", "serialNumber"});
  } else if (node.type_id == QUARN_ASN1_X509PUBKEYCERT) {
    const Node signed_part = part_of(node, "tbsCertificate");
    add(signed_part, {"subject", "issuer", "serialNumber"});
    add(part_of(signed_part, "validity"), {"notBefore", "notAfter"});
  } else if (node.type_id == QUARN_ASN1_X509CRL) {
    add(part_of(node, "tbsCertList"), {"issuer", "thisUpdate", "nextUpdate"});
  }
  return briefs;
}

std::int64_t revoked_in(const Node &list) {
  return count_of(part_of(part_of(list, "tbsCertList"), "revokedCertificates"));
}

}  // namespace quarn::cli

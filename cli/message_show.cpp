// What text and JSON have in common.
#include "cli/message_show.h"

#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::string_view kSubjectKeyIdentifier = "2.5.29.14";

std::string key_of(const Node &node) {
  const std::vector<std::uint8_t> octets = octets_of(node.type_id, node.value);
  return std::string(as_text(octets));
}

// The two names that a certificate may be called by are told apart by the first character.
std::string key_of(const Node &issuer, const Node &serial) {
  return "i" + key_of(serial) + key_of(issuer);
}

}  // namespace

CertificateIndex::CertificateIndex(const Message &message) {
  const Node set = part_of(node_of(message.type_id, message.value.get()), "certificates");
  const std::int64_t count = quarn_asn1_component_count(set.type_id, set.value);
  for (std::int64_t i = 0; i < count; i++) {
    const quarn_asn1_component choice = component_of(set, i);
    const Node certificate = node_of(choice.type_id, choice.value);
    if (certificate.type_id == QUARN_ASN1_X509PUBKEYCERT) add(certificate, i);
  }
}

void CertificateIndex::add(const Node &certificate, std::int64_t number) {
  const Node signed_part = part_of(certificate, "tbsCertificate");
  numbers_.emplace(key_of(part_of(signed_part, "issuer"), part_of(signed_part, "serialNumber")),
                   number);
  const Node extensions = part_of(signed_part, "extensions");
  const std::int64_t count = quarn_asn1_component_count(extensions.type_id, extensions.value);
  for (std::int64_t i = 0; i < count; i++) {
    const quarn_asn1_component element = component_of(extensions, i);
    const Node extension = node_of(element.type_id, element.value);
    if (oid_text(part_of(extension, "extnID").value) != kSubjectKeyIdentifier) continue;
    const Node value = part_of(extension, "extnValue");
    const Decoded identifier(QUARN_ASN1_OCTETSTRING, octets_of(value.type_id, value.value));
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
  const Node entries = part_of(part_of(list, "tbsCertList"), "revokedCertificates");
  return quarn_asn1_component_count(entries.type_id, entries.value);
}

}  // namespace quarn::cli

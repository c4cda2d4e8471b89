// Extensions: what their notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/extension.h"

namespace quarn::asn1 {

namespace {

constexpr std::size_t kRequiredNameForms = 2;

// RFC 5280 leaves the third component of X.509 out.
bool has_no_name_forms(const void *value) {
  return component(value, kRequiredNameForms) == nullptr;
}

}  // namespace

// The code has no text among the messages of this library: callers see that of the general errors.
const Restriction kPkixNameConstraints{
    .allows = has_no_name_forms, .code = 0x102ce, .general_text = true, .in_length = true};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_Extension_api.inc"

// Issuer and serial number identify a certificate only together (RFC 5280, 4.2.1.1).
quarn_x509akid *quarn_x509akid_new(const quarn_asn1_octetstring *key_identifier,
                                   const quarn_asn1_list *issuer,
                                   const quarn_asn1_integer *serial_number) {
  if (issuer != nullptr && serial_number == nullptr) return nullptr;
  return build<quarn_x509akid>(QUARN_ASN1_X509AKID, key_identifier, issuer, serial_number);
}

// A path length means nothing where there is no authority (RFC 5280, 4.2.1.9), so that callers may
// pass one whatever ca is.
quarn_x509basicconstraints *quarn_x509basicconstraints_new(const quarn_asn1_boolean *ca,
                                                           const quarn_asn1_integer *path_length) {
  const bool is_ca = ca != nullptr && quarn_asn1_boolean_istrue(ca) == 1;
  return build<quarn_x509basicconstraints>(QUARN_ASN1_X509BASICCONSTRAINTS, ca,
                                           is_ca ? path_length : nullptr);
}

// The order of the arguments is older than that of the components, and callers have it.
quarn_x509aaidp *quarn_x509aaidp_new(const quarn_x509dpname *distribution_point,
                                     const quarn_asn1_boolean *contains_user_attribute_certs,
                                     const quarn_asn1_boolean *contains_aa_certs,
                                     const quarn_asn1_boolean *contains_soa_public_key_certs,
                                     const quarn_asn1_bitstring *only_some_reasons,
                                     const quarn_asn1_boolean *indirect_crl) {
  return build<quarn_x509aaidp>(QUARN_ASN1_X509AAIDP, distribution_point, only_some_reasons,
                                indirect_crl, contains_user_attribute_certs, contains_aa_certs,
                                contains_soa_public_key_certs);
}

// RFC 3739, 3.2.6.1: one of the two components at least.
quarn_semanticsinformation *quarn_semanticsinformation_new(const quarn_asn1_oid *identifier,
                                                           const quarn_asn1_list *authorities) {
  if (identifier == nullptr && authorities == nullptr) return nullptr;
  return build<quarn_semanticsinformation>(QUARN_ASN1_SEMANTICSINFORMATION, identifier,
                                           authorities);
}

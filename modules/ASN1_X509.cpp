// Certificates and revocation lists: what their notation cannot say.
#include "core/build.h"
#include "modules/load.h"
#include "modules/own.h"
#include "quarn_asn1/x509.h"
#include "types/any.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_X509_api.inc"

quarn_x509algoid *quarn_x509algoid_new(const quarn_asn1_oid *algorithm,
                                       int64_t param_type_id,
                                       const void *param) {
  if (algorithm == nullptr) return nullptr;
  // The parameters are an open type: their encoding, whatever type the caller has them in.
  const Value any(type_of(QUARN_ASN1_ANY),
                  quarn_asn1_objecttoany(param_type_id, const_cast<void *>(param)));
  if (any.get() == nullptr) return nullptr;
  return build<quarn_x509algoid>(QUARN_ASN1_X509ALGORITHMID, algorithm, any.get());
}

// Apart from the one above, where null is a parameter: an explicit NULL.
quarn_x509algoid *quarn_x509algoid_new_without_param(const quarn_asn1_oid *algorithm) {
  const quarn_asn1_any *absent = nullptr;
  return build<quarn_x509algoid>(QUARN_ASN1_X509ALGORITHMID, algorithm, absent);
}

int quarn_x509algoid_isnullparam(const quarn_x509algoid *value) {
  const quarn_asn1_any *param = quarn_x509algoid_getparam(value);
  if (param == nullptr) return 0;
  return param->tag_class == kUniversal && param->tag_number == 5 && param->primitive &&
         param->content_length == 0;
}

quarn_x509pubkeycert *quarn_x509pubkeycert_new(const uint8_t *data,
                                               int64_t length,
                                               quarn_err_ctx *ctx) {
  return static_cast<quarn_x509pubkeycert *>(
      load(QUARN_ASN1_X509PUBKEYCERT, {"CERTIFICATE"}, data, length, ctx));
}

// Outer and inner algorithm must be equal (RFC 5280, 4.1.1.2): nobody gets to give two.
quarn_x509pubkeycert *quarn_x509pubkeycert_create(const quarn_x509TBSCertificate *body,
                                                  const quarn_asn1_bitstring *signature) {
  return static_cast<quarn_x509pubkeycert *>(create_signed(
      QUARN_ASN1_X509PUBKEYCERT, body, quarn_x509TBSCertificate_getinnersignalgo(body), signature));
}

// No component belongs to the reserved argument, which callers pass all the same.
quarn_x509TBSCertList *quarn_x509TBSCertList_new(const quarn_asn1_integer *version,
                                                 const quarn_x509algoid *signature,
                                                 const quarn_x500name *issuer,
                                                 const quarn_asn1_time *this_update,
                                                 const quarn_asn1_time *next_update,
                                                 const quarn_asn1_list *revoked,
                                                 uint32_t /*reserved*/,
                                                 const quarn_asn1_list *extensions) {
  return build<quarn_x509TBSCertList>(QUARN_ASN1_X509TBSCERTLIST, version, signature, issuer,
                                      this_update, next_update, revoked, extensions);
}

quarn_x509crl *quarn_x509crl_new(const uint8_t *data, int64_t length, quarn_err_ctx *ctx) {
  return static_cast<quarn_x509crl *>(
      load(QUARN_ASN1_X509CRL, {"X509 CRL", "CRL"}, data, length, ctx));
}

quarn_x509crl *quarn_x509crl_create(const quarn_x509TBSCertList *body,
                                    const quarn_asn1_bitstring *signature) {
  return static_cast<quarn_x509crl *>(create_signed(
      QUARN_ASN1_X509CRL, body, quarn_x509TBSCertList_getinnersignalgo(body), signature));
}

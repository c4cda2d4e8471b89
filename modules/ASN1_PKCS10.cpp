// Certification requests: what their notation cannot say.
#include "core/build.h"
#include "modules/load.h"
#include "quarn_asn1/pkcs10.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS10_api.inc"

quarn_pkcs10certreq *quarn_pkcs10certreq_new(const uint8_t *data,
                                             int64_t length,
                                             quarn_err_ctx *ctx) {
  return static_cast<quarn_pkcs10certreq *>(load(QUARN_ASN1_PKCS10CERTREQ,
                                                 {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"},
                                                 data, length, ctx));
}

quarn_pkcs10certreq *quarn_pkcs10certreq_create(const quarn_pkcs10certreqinfo *body,
                                                const quarn_x509algoid *algorithm,
                                                const quarn_asn1_bitstring *signature) {
  return static_cast<quarn_pkcs10certreq *>(
      create_signed(QUARN_ASN1_PKCS10CERTREQ, body, algorithm, signature));
}

// Stores of certificates: what their notation cannot say.
#include "core/build.h"
#include "quarn_asn1/certstore.h"
#include "quarn_asn1/types.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_CertStore_api.inc"

quarn_certstore_keyid *quarn_certstore_dup(const quarn_certstore_keyid *key_id) {
  return static_cast<quarn_certstore_keyid *>(quarn_asn1_dupobject(
      QUARN_ASN1_CERTSTORE_KEYID, const_cast<quarn_certstore_keyid *>(key_id), nullptr));
}

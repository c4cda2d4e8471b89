// Private keys: what their notation cannot say.
#include "core/build.h"
#include "quarn_asn1/pkcs8.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS8_api.inc"

quarn_pkcs8privatekeyinfo *quarn_pkcs8privatekeyinfo_new(const quarn_asn1_integer *version,
                                                         const quarn_x509algoid *algorithm,
                                                         const quarn_asn1_octetstring *private_key,
                                                         const quarn_asn1_list *attributes) {
  return quarn_pkcs8privatekeyinfo_newv2(version, algorithm, private_key, attributes, nullptr);
}

quarn_pkcs8privatekeyinfo *quarn_pkcs8privatekeyinfo_newv2(
    const quarn_asn1_integer *version,
    const quarn_x509algoid *algorithm,
    const quarn_asn1_octetstring *private_key,
    const quarn_asn1_list *attributes,
    const quarn_asn1_bitstring *public_key) {
  return build<quarn_pkcs8privatekeyinfo>(QUARN_ASN1_PKCS8PRIVATEKEYINFO, version, algorithm,
                                          private_key, attributes, public_key);
}

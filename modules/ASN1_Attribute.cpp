// Attribute certificates: what their notation cannot say.
#include "core/build.h"
#include "modules/load.h"
#include "quarn_asn1/attribute.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_Attribute_api.inc"

quarn_attributecertificate *quarn_attributecertificate_new(
    const quarn_attributecertificateinfo *acinfo, const quarn_asn1_bitstring *signature) {
  return static_cast<quarn_attributecertificate *>(
      create_signed(QUARN_ASN1_ATTRIBUTECERTIFICATE, acinfo,
                    quarn_attributecertificateinfo_getinnersignalgo(acinfo), signature));
}

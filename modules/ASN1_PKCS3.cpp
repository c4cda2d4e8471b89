// Diffie-Hellman: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/pkcs3.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS3_api.inc"

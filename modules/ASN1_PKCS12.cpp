// Personal information exchange: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/pkcs12.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS12_api.inc"

// Certificate status: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/ocsp.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_OCSP_api.inc"

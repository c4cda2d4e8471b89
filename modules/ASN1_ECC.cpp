// Keys of elliptic curves: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/ecc.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_ECC_api.inc"

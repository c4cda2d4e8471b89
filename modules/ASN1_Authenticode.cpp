// Signatures of program files: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/authenticode.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_Authenticode_api.inc"

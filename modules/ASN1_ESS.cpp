// Signing certificates: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/ess.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_ESS_api.inc"

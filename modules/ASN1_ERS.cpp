// Evidence records: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/ers.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_ERS_api.inc"

// Time-stamps: functions made from the notation.
#include "core/build.h"
#include "quarn_asn1/tsp.h"

using namespace quarn::asn1;

#include "modules/gen/ASN1_TSP_api.inc"

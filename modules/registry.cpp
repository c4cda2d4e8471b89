// The array of all rows, put together on the top floor: the core only declares it, with the number
// of rows that it must have, so that nothing below depends on the modules.
#include "core/engine.h"
#include "core/schema_check.h"
#include "core/type.h"
#include "types/codecs.h"

namespace quarn::asn1 {

namespace {

#include "modules/ASN1_AC.inc"
#include "modules/ASN1_X500.inc"
#include "modules/ASN1_X509.inc"

}  // namespace

#include "modules/gen/registry.inc"

static_assert(all_well_formed(kTypes));

}  // namespace quarn::asn1

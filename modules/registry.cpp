// The array of all rows, put together on the top floor: the core only declares it, so that nothing
// below depends on the modules.
#include <iterator>

#include "core/schema_check.h"
#include "core/type.h"
#include "types/codecs.h"

namespace quarn::asn1 {

namespace {

#include "modules/ASN1_X500.inc"
#include "modules/ASN1_X509.inc"
#include "modules/gen/registry.inc"

static_assert(std::size(kTypes) == QUARN_ASN1_TYPE_COUNT);
static_assert(all_well_formed(kTypes));

}  // namespace

const Type *find_type(std::int64_t id) {
  return id < 0 || id >= QUARN_ASN1_TYPE_COUNT ? nullptr : &kTypes[id];
}

const Type &type_of(quarn_asn1_type_id id) {
  return kTypes[id];
}

}  // namespace quarn::asn1

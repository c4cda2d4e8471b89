// The array of all rows, put together on the top floor: the core only declares it, so that nothing
// below depends on the modules.
#include <iterator>

#include "core/schema_check.h"
#include "core/type.h"
#include "modules/own.h"
#include "types/codecs.h"

namespace quarn::asn1 {

namespace {

#include "modules/gen/ASN1_Attribute.inc"
#include "modules/gen/ASN1_Authenticode.inc"
#include "modules/gen/ASN1_CAdES.inc"
#include "modules/gen/ASN1_CMS.inc"
#include "modules/gen/ASN1_CertStore.inc"
#include "modules/gen/ASN1_ECC.inc"
#include "modules/gen/ASN1_ERS.inc"
#include "modules/gen/ASN1_ESS.inc"
#include "modules/gen/ASN1_Extension.inc"
#include "modules/gen/ASN1_LDAP.inc"
#include "modules/gen/ASN1_OCSP.inc"
#include "modules/gen/ASN1_PKCS1.inc"
#include "modules/gen/ASN1_PKCS10.inc"
#include "modules/gen/ASN1_PKCS12.inc"
#include "modules/gen/ASN1_PKCS3.inc"
#include "modules/gen/ASN1_PKCS5.inc"
#include "modules/gen/ASN1_PKCS8.inc"
#include "modules/gen/ASN1_SCVP.inc"
#include "modules/gen/ASN1_SES.inc"
#include "modules/gen/ASN1_TSP.inc"
#include "modules/gen/ASN1_X500.inc"
#include "modules/gen/ASN1_X509.inc"

}  // namespace

#include "modules/gen/registry.inc"

static_assert(std::size(kTypes) >= QUARN_ASN1_TYPE_COUNT);
static_assert(all_well_formed(kTypes));

}  // namespace quarn::asn1

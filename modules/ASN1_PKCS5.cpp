// Password-based cryptography: what its notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/pkcs5.h"
#include "types/octetstring.h"

namespace quarn::asn1 {

namespace {

constexpr std::size_t kSalt = 0;  // of a PBEParameter
constexpr std::uint64_t kSaltOctets = 8;
// The code whose message says it: also that of encoding PBKDF2-params.
constexpr int kBadSalt = 0x10314;

// RFC 8018, A.3. A SIZE in the definition would refuse it with the code of any size.
bool has_salt_of_eight_octets(const void *value) {
  std::uint64_t count = 0;
  return measure_string(*static_cast<const StringValue *>(component(value, kSalt)), count) &&
         count == kSaltOctets;
}

}  // namespace

const Restriction kPbeSalt{.allows = has_salt_of_eight_octets, .code = kBadSalt};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS5_api.inc"

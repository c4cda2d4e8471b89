// RSA: what its notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/pkcs1.h"
#include "types/integer.h"

namespace quarn::asn1 {

namespace {

constexpr std::size_t kVersion = 0;  // of an RSAPrivateKey
constexpr std::size_t kOtherPrimes = 9;
// The code whose message says it: also that of encoding other primes.
constexpr int kBadVersion = 0x10303;

// RFC 8017, A.1.2: the version tells whether there are other primes.
bool tells_primes(const void *value) {
  return number_in(component(value, kVersion)) ==
         (component(value, kOtherPrimes) != nullptr ? 1 : 0);
}

}  // namespace

const Restriction kRsaVersion{.allows = tells_primes, .code = kBadVersion};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_PKCS1_api.inc"

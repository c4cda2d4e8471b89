// Attributes of signatures: what their notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/cades.h"

namespace quarn::asn1 {

namespace {

enum PolicyComponent : std::uint8_t { kPolicyQualifiers = 2 };
enum CommitmentComponent : std::uint8_t { kCommitmentQualifiers = 1 };
enum LocationComponent : std::uint8_t { kCountry, kLocality, kAddress };

constexpr std::int32_t kMostLines = 6;

// Of a list that may be absent.
bool has_elements(const void *record, std::size_t index, std::int32_t most = INT32_MAX) {
  const auto *list = static_cast<const quarn_asn1_list *>(component(record, index));
  if (list == nullptr) return true;
  const int count = quarn_asn1_list_getsize(list);
  return count > 0 && count <= most;
}

bool has_policy_qualifiers(const void *value) {
  return has_elements(value, kPolicyQualifiers);
}

bool has_commitment_qualifiers(const void *value) {
  return has_elements(value, kCommitmentQualifiers);
}

bool is_somewhere(const void *location) {
  const bool known = component(location, kCountry) != nullptr ||
                     component(location, kLocality) != nullptr ||
                     component(location, kAddress) != nullptr;
  return known && has_elements(location, kAddress, kMostLines);
}

}  // namespace

const Restriction kSignaturePolicyId{.allows = has_policy_qualifiers,
                                     .code = QUARN_ASN1_ERROR_SIZE};
const Restriction kCommitmentTypeIndication{.allows = has_commitment_qualifiers,
                                            .code = QUARN_ASN1_ERROR_SIZE};
const Restriction kSignerLocation{.allows = is_somewhere, .code = QUARN_ASN1_ERROR_SIZE};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_CAdES_api.inc"

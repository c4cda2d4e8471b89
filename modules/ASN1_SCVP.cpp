// SCVP: what its notation cannot say.
#include <algorithm>

#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/scvp.h"
#include "types/string.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_SCVP"};

constexpr std::uint64_t kMostCharacters = 256;
constexpr std::uint64_t kMostOctets = 4 * kMostCharacters;

bool begins_character(std::uint8_t octet) {
  return (octet & 0xC0) != 0x80;
}

// Whether a text in UTF-8, if it is there, has 1 to 256 characters.
bool is_short_text(quarn_asn1_octetstring *text) {
  if (text == nullptr) return true;
  auto &value = *reinterpret_cast<StringValue *>(text);
  std::uint64_t count = 0;
  if (!measure_string(value, count) || count == 0 || count > kMostOctets) return false;
  Buffer storage;
  const std::uint8_t *octets = nullptr;
  if (!view_string(value, count, storage, octets, kUnit)) return false;
  const auto characters = std::count_if(octets, octets + count, begins_character);
  return characters > 0 && static_cast<std::uint64_t>(characters) <= kMostCharacters;
}

bool request_has_short_text(const void *value) {
  const auto *request = static_cast<const quarn_scvpcvrequest *>(value);
  return is_short_text(quarn_scvpcvrequest_getrequestortext(request));
}

bool response_has_short_text(const void *value) {
  const auto *response = static_cast<const quarn_scvpcvresponse *>(value);
  return is_short_text(quarn_scvpcvresponse_getrequestortext(response));
}

}  // namespace

const Restriction kScvpCvRequest{.allows = request_has_short_text, .code = QUARN_ASN1_ERROR_SIZE};
const Restriction kScvpCvResponse{.allows = response_has_short_text, .code = QUARN_ASN1_ERROR_SIZE};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_SCVP_api.inc"

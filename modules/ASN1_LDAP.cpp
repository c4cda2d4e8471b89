// LDAP: what its notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/ldap.h"
#include "types/integer.h"
#include "types/list.h"

namespace quarn::asn1 {

namespace {

constexpr std::int64_t kMostInteger = INT32_MAX;  // maxInt of RFC 4511, 4.1.1

bool in_range(const void *integer, std::int64_t least, std::int64_t most) {
  const std::optional<std::int64_t> number = number_in(integer);
  return number.has_value() && *number >= least && *number <= most;
}

bool is_not_empty(const void *value) {
  return quarn_asn1_list_getsize(
             quarn_ldapattribute_getvals(static_cast<const quarn_ldapattribute *>(value))) > 0;
}

bool has_known_version(const void *value) {
  return in_range(component(value, 0), 1, 127);
}

bool has_sound_limits(const void *value) {
  const auto *request = static_cast<const quarn_ldapsearchrequest *>(value);
  return in_range(quarn_ldapsearchrequest_getsizelimit(request), 0, kMostInteger) &&
         in_range(quarn_ldapsearchrequest_gettimelimit(request), 0, kMostInteger);
}

enum Operation : std::uint32_t { kUnbind = 2, kAbandon = 16 };

constexpr std::size_t kProtocolOp = 1;  // among the components of a message

bool has_sound_numbers(const void *value) {
  if (!in_range(component(value, 0), 0, kMostInteger)) return false;
  const void *abandoned = alternative_of(kProtocolOpType, component(value, kProtocolOp), kAbandon);
  return abandoned == nullptr || in_range(abandoned, 0, kMostInteger);
}

bool are_in_order(const void *value) {
  const auto &parts = *static_cast<const quarn_asn1_list *>(value);
  for (std::int32_t i = 0; i < parts.count; i++) {
    const std::uint32_t kind = choice_number(QUARN_ASN1_LDAPSUBSTRING, parts.items[i]);
    if ((kind == 0 && i != 0) || (kind == 2 && i + 1 != parts.count)) return false;
  }
  return true;
}

}  // namespace

const Restriction kLdapAttribute{.allows = is_not_empty, .code = QUARN_ASN1_ERROR_SIZE};
const Restriction kLdapBindRequest{.allows = has_known_version, .code = QUARN_ERROR_RANGE};
const Restriction kLdapSearchRequest{.allows = has_sound_limits, .code = QUARN_ERROR_RANGE};
const Restriction kLdapMessage{.allows = has_sound_numbers, .code = QUARN_ERROR_RANGE};
const Restriction kLdapSubstrings{.allows = are_in_order, .code = QUARN_ASN1_ERROR_ITEM};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_LDAP_api.inc"

quarn_ldapmessage *quarn_ldapmessage_new(const quarn_asn1_integer *message_id,
                                         uint32_t op_type,
                                         const void *protocol_op,
                                         const quarn_asn1_list *controls) {
  const Value operation(type_of(kProtocolOpType),
                        op_type == kUnbind
                            ? build_null_alternative(kProtocolOpType, op_type)
                            : build_alternative(kProtocolOpType, op_type, protocol_op));
  return build<quarn_ldapmessage>(QUARN_ASN1_LDAPMESSAGE, message_id, operation.get(), controls);
}

uint32_t quarn_ldapmessage_getoptype(const quarn_ldapmessage *value) {
  return choice_number(kProtocolOpType, component(value, kProtocolOp));
}

void *quarn_ldapmessage_getprotocolop(const quarn_ldapmessage *value) {
  const std::uint32_t number = quarn_ldapmessage_getoptype(value);
  if (number == kUnbind) return nullptr;
  return alternative_of(kProtocolOpType, component(value, kProtocolOp), number);
}

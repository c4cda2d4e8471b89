// Electronic seals: what their notation cannot say.
#include "core/build.h"
#include "core/engine.h"
#include "modules/own.h"
#include "quarn_asn1/ses.h"
#include "types/integer.h"

namespace quarn::asn1 {

namespace {

enum HeaderComponent : std::uint8_t { kHeaderVersion = 1 };
enum PropertyComponent : std::uint8_t { kListType = 2 };
enum TbsSignComponent : std::uint8_t { kPropertyInfo = 4 };

constexpr std::int64_t kCertificates = 1;
constexpr std::int64_t kDigests = 2;

// 0 when the number is none.
std::int64_t list_type_of(const void *property) {
  return number_in(component(property, kListType)).value_or(0);
}

bool has_known_list_type(const void *property) {
  const std::int64_t type = list_type_of(property);
  return type == kCertificates || type == kDigests;
}

quarn_gb_ses_espropertyinfo *new_property(std::int64_t list_type,
                                          const quarn_asn1_integer *type,
                                          const quarn_asn1_octetstring *name,
                                          const quarn_asn1_list *list,
                                          const quarn_asn1_time *create_date,
                                          const quarn_asn1_time *valid_start,
                                          const quarn_asn1_time *valid_end) {
  const quarn_asn1_list *absent = nullptr;
  if (list == nullptr) return nullptr;
  Value number(type_of(QUARN_ASN1_INTEGER), quarn_asn1_integer_value(list_type));
  return build<quarn_gb_ses_espropertyinfo>(QUARN_ASN1_GB_SES_ESPROPERTYINFO, type, name,
                                            static_cast<const quarn_asn1_integer *>(number.get()),
                                            list_type == kCertificates ? list : absent,
                                            list_type == kDigests ? list : absent, create_date,
                                            valid_start, valid_end);
}

}  // namespace

const Restriction kCertListType{.allows = has_known_list_type, .code = 0x1056c};

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_SES_api.inc"

quarn_asn1_integer *quarn_ses_header_geversion(const quarn_ses_header *header) {
  return part<quarn_asn1_integer>(header, kHeaderVersion);
}

quarn_gb_ses_espropertyinfo *quarn_gb_ses_espropertyinfo_newcert(const quarn_asn1_integer *type,
                                                                 const quarn_asn1_octetstring *name,
                                                                 const quarn_asn1_list *certs,
                                                                 const quarn_asn1_time *create_date,
                                                                 const quarn_asn1_time *valid_start,
                                                                 const quarn_asn1_time *valid_end) {
  return new_property(kCertificates, type, name, certs, create_date, valid_start, valid_end);
}

quarn_gb_ses_espropertyinfo *quarn_gb_ses_espropertyinfo_newcertdigest(
    const quarn_asn1_integer *type,
    const quarn_asn1_octetstring *name,
    const quarn_asn1_list *cert_digest_list,
    const quarn_asn1_time *create_date,
    const quarn_asn1_time *valid_start,
    const quarn_asn1_time *valid_end) {
  return new_property(kDigests, type, name, cert_digest_list, create_date, valid_start, valid_end);
}

uint32_t quarn_gb_ses_espropertyinfo_getcertlistype(const quarn_gb_ses_espropertyinfo *property) {
  return static_cast<uint32_t>(list_type_of(property));
}

quarn_asn1_octetstring *quarn_ses_gb_tbssign_getpropertyinfo(const quarn_gb_ses_tbssign *value) {
  return part<quarn_asn1_octetstring>(value, kPropertyInfo);
}

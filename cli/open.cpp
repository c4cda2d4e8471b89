#include "cli/open.h"

#include <algorithm>
#include <new>
#include <utility>

#include "cli/handles.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr OpenRecord kRecords[] = {
    {QUARN_ASN1_X509EXTENSION, 2, Place::extension, false},
    {QUARN_ASN1_X500ATTRTYPEDISTVAL, 1, Place::attribute, false},
    {QUARN_ASN1_PKIXATTRTYPEVAL, 1, Place::attribute, false},
    {QUARN_ASN1_X500ATTRIBUTE, 1, Place::attribute, true},
    {QUARN_ASN1_PKCS10ATTRIBUTE, 1, Place::attribute, true},
    {QUARN_ASN1_X509POLICYQUALIFIERINFO, 1, Place::qualifier, false},
    {QUARN_ASN1_QCSTATEMENT, 1, Place::statement, false},
    {QUARN_ASN1_X509ALGORITHMID, 1, Place::parameters, false},
    {QUARN_ASN1_X509PUBLICKEYINFO, 1, Place::key, false},
    {QUARN_ASN1_PKCS7CONTENTINFO, 1, Place::content, false},
};

constexpr const char *kKeyUsages =
    "digitalSignature,nonRepudiation,keyEncipherment,dataEncipherment,keyAgreement,keyCertSign,"
    "cRLSign,encipherOnly,decipherOnly";
constexpr const char *kReasonFlags =
    "unused,keyCompromise,cACompromise,affiliationChanged,superseded,cessationOfOperation,"
    "certificateHold,privilegeWithdrawn,aACompromise";
constexpr const char *kReasons =
    "unspecified,keyCompromise,cACompromise,affiliationChanged,superseded,cessationOfOperation,"
    "certificateHold,,removeFromCRL,privilegeWithdrawn,aACompromise";
constexpr const char *kNetscapeTypes =
    "sslClient,sslServer,smime,objectSigning,reserved,sslCA,smimeCA,objectSigningCA";

// By place and identifier. Types that this version cannot decode stand here too: they are opened as
// soon as it can.
constexpr struct {
  Place place;
  const char *dotted;
  Opening opening;
} kOpenings[] = {
    // Extensions of certificates and CRLs (RFC 5280, 4.2 and 5.2) and of their entries (5.3).
    {Place::extension, "2.5.29.9", {QUARN_ASN1_X509SUBJECTDIRATTRS, nullptr}},
    {Place::extension, "2.5.29.14", {QUARN_ASN1_OCTETSTRING, nullptr}},
    {Place::extension, "2.5.29.15", {QUARN_ASN1_BITSTRING, kKeyUsages}},
    {Place::extension, "2.5.29.16", {QUARN_ASN1_X509PRIVKEYUSAGEPERIOD, nullptr}},
    {Place::extension, "2.5.29.17", {QUARN_ASN1_X509GENERALNAMES, nullptr}},
    {Place::extension, "2.5.29.18", {QUARN_ASN1_X509GENERALNAMES, nullptr}},
    {Place::extension, "2.5.29.19", {QUARN_ASN1_X509BASICCONSTRAINTS, nullptr}},
    {Place::extension, "2.5.29.20", {QUARN_ASN1_INTEGER, nullptr}},
    {Place::extension, "2.5.29.21", {QUARN_ASN1_ENUMERATED, kReasons}},
    {Place::extension, "2.5.29.23", {QUARN_ASN1_OID, nullptr}},
    {Place::extension, "2.5.29.24", {QUARN_ASN1_GENTIME, nullptr}},
    {Place::extension, "2.5.29.27", {QUARN_ASN1_INTEGER, nullptr}},
    {Place::extension, "2.5.29.28", {QUARN_ASN1_PKIXIDP, nullptr}},
    {Place::extension, "2.5.29.29", {QUARN_ASN1_X509GENERALNAMES, nullptr}},
    {Place::extension, "2.5.29.30", {QUARN_ASN1_X509NAMECONSTAINTS, nullptr}},
    {Place::extension, "2.5.29.31", {QUARN_ASN1_X509CRLDP, nullptr}},
    {Place::extension, "2.5.29.32", {QUARN_ASN1_X509CERTPOLICIES, nullptr}},
    {Place::extension, "2.5.29.33", {QUARN_ASN1_X509POLICYMAPPINGS, nullptr}},
    {Place::extension, "2.5.29.35", {QUARN_ASN1_X509AKID, nullptr}},
    {Place::extension, "2.5.29.36", {QUARN_ASN1_X509POLICYCONSTAINTS, nullptr}},
    {Place::extension, "2.5.29.37", {QUARN_ASN1_X509EXKEYUSAGE, nullptr}},
    {Place::extension, "2.5.29.46", {QUARN_ASN1_X509CRLDP, nullptr}},
    {Place::extension, "2.5.29.54", {QUARN_ASN1_INTEGER, nullptr}},
    {Place::extension, "1.3.6.1.5.5.7.1.1", {QUARN_ASN1_PKIXAIA, nullptr}},
    {Place::extension, "1.3.6.1.5.5.7.1.11", {QUARN_ASN1_PKIXAIA, nullptr}},
    {Place::extension, "1.3.6.1.5.5.7.48.1.5", {QUARN_ASN1_NULL, nullptr}},
    {Place::extension, "1.2.840.113549.1.9.15", {QUARN_ASN1_SMIMECAPABILITIES, nullptr}},
    // Qualified certificates (RFC 3739).
    {Place::extension, "1.3.6.1.5.5.7.1.3", {QUARN_ASN1_QCSTATEMENTS, nullptr}},
    {Place::statement, "1.3.6.1.5.5.7.11.1", {QUARN_ASN1_SEMANTICSINFORMATION, nullptr}},
    {Place::statement, "1.3.6.1.5.5.7.11.2", {QUARN_ASN1_SEMANTICSINFORMATION, nullptr}},
    // Attribute certificates (RFC 5755, 4.3).
    {Place::extension, "2.5.29.55", {QUARN_ASN1_AC_SEQOFTARGETS, nullptr}},
    {Place::extension, "2.5.29.56", {QUARN_ASN1_NULL, nullptr}},
    {Place::extension, "2.5.29.63", {QUARN_ASN1_X509AAIDP, nullptr}},
    {Place::extension, "1.3.6.1.5.5.7.1.4", {QUARN_ASN1_OCTETSTRING, nullptr}},
    {Place::extension, "1.3.6.1.5.5.7.1.6", {QUARN_ASN1_AC_AACONTROLS, nullptr}},
    // Of no standard, and common.
    {Place::extension, "2.16.840.1.113730.1.1", {QUARN_ASN1_BITSTRING, kNetscapeTypes}},
    {Place::extension, "2.16.840.1.113730.1.13", {QUARN_ASN1_IA5STRING, nullptr}},

    // Attributes of names and of X.520 whose values are no plain string.
    {Place::attribute, "2.5.4.16", {QUARN_ASN1_X500POSTALADDRESS, nullptr}},
    {Place::attribute, "2.5.4.21", {QUARN_ASN1_X500TELEXNUMBER, nullptr}},
    // Attributes of attribute certificates (RFC 5755, 4.4).
    {Place::attribute, "2.5.4.72", {QUARN_ASN1_AC_ROLESYNTAX, nullptr}},
    {Place::attribute, "2.5.4.55", {QUARN_ASN1_AC_CLEARANCE, nullptr}},
    {Place::attribute, "2.5.1.5.55", {QUARN_ASN1_AC_CLEARANCE, nullptr}},
    {Place::attribute, "1.3.6.1.5.5.7.10.1", {QUARN_ASN1_AC_SVCEAUTHINFO, nullptr}},
    {Place::attribute, "1.3.6.1.5.5.7.10.2", {QUARN_ASN1_AC_SVCEAUTHINFO, nullptr}},
    {Place::attribute, "1.3.6.1.5.5.7.10.3", {QUARN_ASN1_AC_IETFATTRSYNTAX, nullptr}},
    {Place::attribute, "1.3.6.1.5.5.7.10.4", {QUARN_ASN1_AC_IETFATTRSYNTAX, nullptr}},
    // PKCS #9 (RFC 2985), and attributes of CMS.
    {Place::attribute, "1.2.840.113549.1.9.2", {QUARN_ASN1_PKCS9STRING, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.3", {QUARN_ASN1_OID, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.4", {QUARN_ASN1_OCTETSTRING, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.5", {QUARN_ASN1_TIME, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.6", {QUARN_ASN1_CMSSIGNERINFO, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.7", {QUARN_ASN1_X500DIRSTRING, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.8", {QUARN_ASN1_X500DIRSTRING, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.14", {QUARN_ASN1_X509EXTENSIONS, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.15", {QUARN_ASN1_SMIMECAPABILITIES, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.16.2.12", {QUARN_ASN1_ESS_SIGNINGCERTIFICATE, nullptr}},
    {Place::attribute,
     "1.2.840.113549.1.9.16.2.47",
     {QUARN_ASN1_ESS_SIGNINGCERTIFICATEV2, nullptr}},
    {Place::attribute, "1.2.840.113549.1.9.52", {QUARN_ASN1_CMSALGORITHMPROTECTION, nullptr}},
    {Place::attribute, "1.3.6.1.4.1.311.2.1.14", {QUARN_ASN1_X509EXTENSIONS, nullptr}},

    // Contents of messages (RFC 2315, RFC 5652), and those with the algorithms of SM2.
    {Place::content, "1.2.840.113549.1.7.1", {QUARN_ASN1_OCTETSTRING, nullptr}},
    {Place::content, "1.2.840.113549.1.7.2", {QUARN_ASN1_PKCS7SIGNEDDATA, nullptr}},
    {Place::content, "1.2.840.113549.1.7.3", {QUARN_ASN1_CMSENVELOPEDDATA, nullptr}},
    {Place::content, "1.2.840.113549.1.7.4", {QUARN_ASN1_SIGNEDANDENVELOPEDDATA, nullptr}},
    {Place::content, "1.2.840.113549.1.7.5", {QUARN_ASN1_PKCS7DIGESTEDDATA, nullptr}},
    {Place::content, "1.2.840.113549.1.7.6", {QUARN_ASN1_CMSENCRYPTEDDATA, nullptr}},
    {Place::content, "1.2.840.113549.1.9.16.1.2", {QUARN_ASN1_CMSAUTHDATA, nullptr}},
    {Place::content, "1.2.156.10197.6.1.4.2.1", {QUARN_ASN1_OCTETSTRING, nullptr}},
    {Place::content, "1.2.156.10197.6.1.4.2.2", {QUARN_ASN1_PKCS7SIGNEDDATA, nullptr}},
    {Place::content, "1.2.156.10197.6.1.4.2.3", {QUARN_ASN1_CMSENVELOPEDDATA, nullptr}},
    {Place::content, "1.2.156.10197.6.1.4.2.4", {QUARN_ASN1_SIGNEDANDENVELOPEDDATA, nullptr}},
    {Place::content, "1.2.156.10197.6.1.4.2.5", {QUARN_ASN1_CMSENCRYPTEDDATA, nullptr}},

    // Qualifiers of policies (RFC 5280, 4.2.1.4).
    {Place::qualifier, "1.3.6.1.5.5.7.2.1", {QUARN_ASN1_IA5STRING, nullptr}},
    {Place::qualifier, "1.3.6.1.5.5.7.2.2", {QUARN_ASN1_PKIXUSERNOTICE, nullptr}},

    // Algorithms (RFC 3279, RFC 4055, RFC 5480): their parameters, and the keys in a BIT STRING.
    {Place::parameters, "1.2.840.10040.4.1", {QUARN_ASN1_DSSPARAMS, nullptr}},
    {Place::parameters, "1.2.840.10045.2.1", {QUARN_ASN1_ECPKPARAMETERS, nullptr}},
    {Place::parameters, "1.2.840.113549.1.1.10", {QUARN_ASN1_PKCS1RSASSAPSSPRARAMS, nullptr}},
    {Place::parameters, "1.2.840.113549.1.3.1", {QUARN_ASN1_PKCS3DHPRARAM, nullptr}},
    {Place::key, "1.2.840.113549.1.1.1", {QUARN_ASN1_PKCS1RSAPUBKEY, nullptr}},
    {Place::key, "1.2.840.113549.1.1.10", {QUARN_ASN1_PKCS1RSAPUBKEY, nullptr}},
    {Place::key, "1.2.840.10040.4.1", {QUARN_ASN1_INTEGER, nullptr}},
    {Place::key, "1.2.840.113549.1.3.1", {QUARN_ASN1_INTEGER, nullptr}},
};

constexpr struct {
  std::int64_t record;
  const char *component;
  const char *names;
} kNamed[] = {
    {QUARN_ASN1_X509TBSCERTIFICATE, "version", "v1,v2,v3"},
    {QUARN_ASN1_X509TBSCERTLIST, "version", "v1,v2"},
    {QUARN_ASN1_PKCS10CERTREQINFO, "version", "v1"},
    {QUARN_ASN1_ATTRIBUTECERTIFICATEINFO, "version", ",v2"},
    {QUARN_ASN1_OBJECTDIGESTINFO, "digestedObjectType", "publicKey,publicKeyCert,otherObjectTypes"},
    {QUARN_ASN1_X509DISTPOINT, "reasons", kReasonFlags},
    {QUARN_ASN1_PKIXIDP, "onlySomeReasons", kReasonFlags},
    {QUARN_ASN1_X509AAIDP, "onlySomeReasons", kReasonFlags},
    {QUARN_ASN1_AC_CLEARANCE, "classList",
     "unmarked,unclassified,restricted,confidential,secret,topSecret"},
};

bool decodable(std::int64_t type_id) {
  quarn_asn1_type_description type{};
  return quarn_asn1_type_describe(type_id, &type) == 1 && type.supported == 1;
}

std::string reason_of(const std::vector<Record> &records, const std::string &path) {
  if (records.empty()) return "nested too deep";
  const Record &first = records.front();
  const std::string place = first.offset < 0 ? "" : "offset " + std::to_string(first.offset) + ": ";
  return place + (path.empty() ? "" : path + ": ") + printable(first.message);
}

}  // namespace

const OpenRecord *open_record(std::int64_t type_id) {
  const auto *end = std::end(kRecords);
  const auto *found = std::find_if(std::begin(kRecords), end, [type_id](const OpenRecord &record) {
    return record.type_id == type_id;
  });
  return found == end ? nullptr : found;
}

const Opening *find_opening(Place place, std::string_view dotted) {
  for (const auto &row : kOpenings) {
    if (row.place != place || dotted != row.dotted) continue;
    return decodable(row.opening.type_id) ? &row.opening : nullptr;
  }
  return nullptr;
}

const char *component_names(std::int64_t record_type, std::string_view component) {
  for (const auto &row : kNamed) {
    if (row.record == record_type && component == row.component) return row.names;
  }
  return nullptr;
}

std::string name_of(const char *names, std::uint64_t number) {
  std::string_view rest = names == nullptr ? "" : names;
  while (number-- > 0 && !rest.empty()) {
    rest.remove_prefix(std::min(rest.find(','), rest.size() - 1) + 1);
  }
  return std::string(rest.substr(0, rest.find(',')));
}

Decoded::Decoded(std::int64_t type_id, Octets octets) : type_id_(type_id) {
  const Records ctx = new_records();
  const auto count = static_cast<std::int64_t>(octets.size());
  const Stream stream(quarn_stream_new_romem(octets.data(), count, 0, ctx.get()));
  if (stream == nullptr) throw std::bad_alloc();
  std::uint64_t consumed = 0;
  if (quarn_asn1_decode(stream.get(), type_id, &value_, &consumed, ctx.get()) != 1) {
    records_ = records_of(ctx.get());
    path_ = quarn_err_ctx_path(ctx.get());
    reason_ = reason_of(records_, path_);
  } else if (consumed != octets.size()) {
    reason_ = counted(octets.size() - consumed, "octet") + " after its end";
    quarn_asn1_value_free(type_id_, std::exchange(value_, nullptr));
  }
}

Decoded::Decoded(Decoded &&other) noexcept
    : type_id_(other.type_id_),
      value_(std::exchange(other.value_, nullptr)),
      reason_(std::move(other.reason_)),
      records_(std::move(other.records_)),
      path_(std::move(other.path_)) {}

Decoded &Decoded::operator=(Decoded &&other) noexcept {
  std::swap(type_id_, other.type_id_);
  std::swap(value_, other.value_);
  std::swap(reason_, other.reason_);
  std::swap(records_, other.records_);
  std::swap(path_, other.path_);
  return *this;
}

Decoded::~Decoded() {
  quarn_asn1_value_free(type_id_, value_);
}

}  // namespace quarn::cli

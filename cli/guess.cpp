#include "cli/guess.h"

#include <strings.h>

#include <algorithm>

#include "cli/failure.h"
#include "cli/handles.h"
#include "cli/options.h"
#include "cli/walk.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostReasons = 6;

// How a type is told by its octets: `sure` leaves no room for another, as what it demands is met by
// no accident; `likely` does; `never` is met by too many other things, only a label tells.
enum class Sight { sure, likely, never };
using enum Sight;

// The types that files hold, the likely ones first. Those that this version cannot decode are
// passed over until it can.
constexpr struct {
  std::int64_t type_id;
  Sight sight;
  const char *labels;  // of PEM blocks
} kCandidates[] = {
    {QUARN_ASN1_X509PUBKEYCERT, sure, "CERTIFICATE,X509 CERTIFICATE,TRUSTED CERTIFICATE"},
    {QUARN_ASN1_X509CRL, sure, "X509 CRL,CRL"},
    {QUARN_ASN1_PKCS10CERTREQ, sure, "CERTIFICATE REQUEST,NEW CERTIFICATE REQUEST"},
    {QUARN_ASN1_ATTRIBUTECERTIFICATE, sure, "ATTRIBUTE CERTIFICATE"},
    {QUARN_ASN1_PKCS7CONTENTINFO, sure, "PKCS7,CMS,PKCS #7 SIGNED DATA"},
    {QUARN_ASN1_PKCS12PFX, sure, "PKCS12"},
    {QUARN_ASN1_PKCS8PRIVATEKEYINFO, sure, "PRIVATE KEY"},
    {QUARN_ASN1_PKCS8ENCPRIVATEKEYINFO, likely, "ENCRYPTED PRIVATE KEY"},
    {QUARN_ASN1_PKCS1RSAPRIVKEY, sure, "RSA PRIVATE KEY"},
    {QUARN_ASN1_ECPRIVATEKEY, likely, "EC PRIVATE KEY"},
    {QUARN_ASN1_ECPKPARAMETERS, never, "EC PARAMETERS"},
    {QUARN_ASN1_PKCS3DHPRARAM, likely, "DH PARAMETERS"},
    {QUARN_ASN1_DSSPARAMS, likely, "DSA PARAMETERS"},
    {QUARN_ASN1_X509PUBLICKEYINFO, likely, "PUBLIC KEY"},
    {QUARN_ASN1_PKCS1RSAPUBKEY, likely, "RSA PUBLIC KEY"},
    {QUARN_ASN1_OCSP_OCSPRESPONSE, sure, "OCSP RESPONSE"},
    {QUARN_ASN1_OCSP_OCSPREQUEST, likely, "OCSP REQUEST"},
    {QUARN_ASN1_TSP_TIMESTAMPRESP, likely, ""},
    {QUARN_ASN1_TSP_TIMESTAMPREQ, likely, ""},
    {QUARN_ASN1_X509TBSCERTIFICATE, sure, ""},
    {QUARN_ASN1_PKCS10CERTREQINFO, sure, ""},
    {QUARN_ASN1_X509TBSCERTLIST, sure, ""},
    {QUARN_ASN1_X500NAME, likely, ""},
    {QUARN_ASN1_X509EXTENSIONS, likely, ""},
    {QUARN_ASN1_X509EXTENSION, likely, ""},
    {QUARN_ASN1_X500ATTRIBUTE, likely, ""},
    {QUARN_ASN1_PKCSDIGESTINFO, likely, ""},
    {QUARN_ASN1_X509ALGORITHMID, likely, ""},
    {QUARN_ASN1_X509GENERALNAMES, likely, ""},
};

bool supported(std::int64_t type_id) {
  quarn_asn1_type_description type{};
  return quarn_asn1_type_describe(type_id, &type) == 1 && type.supported == 1;
}

bool has_label(const char *labels, const std::string &label) {
  const std::vector<std::string> all = split(labels);
  return !label.empty() && std::find(all.begin(), all.end(), label) != all.end();
}

std::string registered_name(std::int64_t type_id) {
  quarn_asn1_type_description type{};
  return quarn_asn1_type_describe(type_id, &type) == 1 ? type.name : "";
}

// The name of a type, with the registered one where several types have the same.
std::string full_name(std::int64_t type_id) {
  const std::string name = notation_of(type_id);
  std::int64_t first = 1;
  while (first < type_id && notation_of(first) != name) first++;
  return first == type_id ? name : name + " (" + registered_name(type_id) + ")";
}

// Where octets stop being what a type demands, and why.
Report report_of(const Decoded &tried, Octets octets) {
  Report report;
  report.records = tried.records();
  report.expected = expected_of(tried.type_id(), tried.records());
  if (report.records.empty()) {
    report.found = tried.reason();
  } else {
    const std::int64_t offset = innermost(report.records).offset;
    place_at(report, octets, static_cast<std::uint64_t>(std::max<std::int64_t>(offset, 0)));
  }
  if (!tried.path().empty()) report.path = tried.path();
  if (tried.too_deep()) blame_depth(report);
  return report;
}

bool nearer(const Tried &a, const Tried &b) {
  return a.offset > b.offset;
}

// Tries one type; whether it settles the matter.
bool try_type(Guess &result, std::int64_t type_id, Octets octets) {
  Decoded value(type_id, octets);
  if (value.get() == nullptr) {
    const Report report = report_of(value, octets);
    const std::string rule =
        report.records.empty() ? "" : ", " + printable(innermost(report.records).message);
    result.failed.push_back(
        {notation_of(type_id), report.offset, report.path, "found " + report.found + rule});
    return false;
  }
  if (result.value.get() == nullptr) {
    result.value = std::move(value);
  } else {
    result.others.push_back(type_id);
  }
  return true;
}

bool same_word(const std::string &a, const std::string &b) {
  return strcasecmp(a.c_str(), b.c_str()) == 0;
}

UsageError no_such_type(const std::string &command, const std::string &name) {
  std::vector<std::string> names;
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    names.push_back(registered_name(id));
    if (supported(id)) names.push_back(notation_of(id));
  }
  const std::string near = nearest(name, names);
  return {command,
          "there is no type " + in_quotes(name) +
              (near.empty() ? "; 'quarn types' lists them" : "; did you mean '" + near + "'?")};
}

}  // namespace

std::string expected_of(std::int64_t type_id, const std::vector<Record> &records) {
  const std::string whole = full_name(type_id);
  for (const Record &record : records) {
    for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
      quarn_asn1_type_description type{};
      static_cast<void>(quarn_asn1_type_describe(id, &type));
      if (type.error_code + 1 == record.code) return notation_of(id) + ", in a value of " + whole;
    }
  }
  return "a value of " + whole;
}

Guess guess(Octets octets, const std::string &label) {
  Guess result;
  for (const auto &candidate : kCandidates) {
    if (!has_label(candidate.labels, label)) continue;
    if (supported(candidate.type_id)) {
      static_cast<void>(try_type(result, candidate.type_id, octets));
    } else {
      result.named = candidate.type_id;
    }
    return result;
  }
  for (const auto &candidate : kCandidates) {
    if (candidate.sight == never || !supported(candidate.type_id)) continue;
    if (try_type(result, candidate.type_id, octets) && candidate.sight == sure) break;
  }
  std::stable_sort(result.failed.begin(), result.failed.end(), nearer);
  return result;
}

Decoded recognise(Octets octets, const std::string &label) {
  const bool told =
      std::any_of(std::begin(kCandidates), std::end(kCandidates),
                  [&](const auto &candidate) { return has_label(candidate.labels, label); });
  for (const auto &candidate : kCandidates) {
    const bool fits = told ? has_label(candidate.labels, label) : candidate.sight == sure;
    if (!fits || !supported(candidate.type_id)) continue;
    Decoded value(candidate.type_id, octets);
    if (value.get() != nullptr) return value;
  }
  return {};
}

Failure no_type(const Guess &guess, Octets octets) {
  if (guess.named >= 0) {
    return {kBadInput, "this version cannot decode the type " + notation_of(guess.named)};
  }
  Report report;
  report.found = "no value of these types";
  report.tried = guess.failed;
  const std::string count = counted(report.tried.size(), "type");
  if (report.tried.size() > kMostReasons) report.tried.resize(kMostReasons);
  if (!report.tried.empty()) report.offset = report.tried.front().offset;
  return failure_of(std::move(report), octets,
                    "is of none of the " + count + " tried; --type names another");
}

Decoded decode_as(std::int64_t type_id, Octets octets) {
  Decoded value(type_id, octets);
  if (value.get() != nullptr) return value;
  if (!well_formed(octets)) throw diagnose(octets, value.reason());
  throw failure_of(report_of(value, octets), octets);
}

std::string notation_of(std::int64_t type_id) {
  quarn_asn1_shape shape{};
  return quarn_asn1_type_shape(type_id, &shape) == 1 ? shape.name : "?";
}

std::int64_t find_type(const std::string &name) {
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (name == std::to_string(id) || same_word(name, registered_name(id))) return id;
  }
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (supported(id) && same_word(name, notation_of(id))) return id;
  }
  return -1;
}

std::int64_t type_named(const std::string &command, const std::string &name) {
  const std::int64_t found = find_type(name);
  if (found < 0) throw no_such_type(command, name);
  if (supported(found)) return found;
  throw UsageError(command, "this version cannot decode the type " + in_quotes(name));
}

}  // namespace quarn::cli

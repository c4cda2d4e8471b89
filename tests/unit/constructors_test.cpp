// Constructors, loaders, sorts and getters of structured types: the rules that go beyond copying
// what is given and lending what is held.
#include <deque>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

// A pointer to whatever type is asked for.
struct Lent {
  void *value;
  template <typename T>
  operator T *() const {  // NOLINT(google-explicit-constructor)
    return static_cast<T *>(value);
  }
};

// Arguments, which live until the end of a test.
class Given {
 public:
  explicit Given(const Allocation *allocation = nullptr) : allocation_(allocation) {}

  // The value that some octets encode; null when they do not decode.
  Lent operator()(std::int64_t type, const Octets &octets) {
    return {owned_.emplace_back(type, octets).get()};
  }
  Lent operator()(std::int64_t type, const std::string &octets) {
    return (*this)(type, hex(octets));
  }
  Lent own(std::int64_t type, void *value) { return {owned_.emplace_back(type, value).get()}; }

  // A constructor has made a value of some encoding, or none of "", unless memory was short.
  void makes(const char *what, std::int64_t type, void *value, const std::string &encoding) {
    const Octets made = owned_.emplace_back(type, value).encoding();
    if (allocation_ != nullptr && allocation_->failed()) return;
    EXPECT_EQ(value == nullptr, encoding.empty()) << what;
    EXPECT_EQ(made, hex(encoding)) << what;
  }

  Lent oid() { return (*this)(QUARN_ASN1_OID, "06 01 2A"); }
  Lent integer() { return (*this)(QUARN_ASN1_INTEGER, "02 01 05"); }
  Lent yes() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 01"); }
  Lent no() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 00"); }
  Lent bits() { return (*this)(QUARN_ASN1_BITSTRING, "03 02 06 40"); }
  Lent octets() { return (*this)(QUARN_ASN1_OCTETSTRING, "04 01 41"); }
  Lent any() { return (*this)(QUARN_ASN1_ANY, "05 00"); }
  Lent names() { return (*this)(QUARN_ASN1_X509GENERALNAMES, "30 00"); }
  Lent name() { return (*this)(QUARN_ASN1_X500NAME, "30 00"); }
  Lent algorithm() { return (*this)(QUARN_ASN1_X509ALGORITHMID, "30 03 06 01 2A"); }

 private:
  const Allocation *allocation_;
  std::deque<Held> owned_;
};

const std::string kAlgorithm = "30 03 06 01 2A ";
const std::string kSignature = "03 02 06 40 ";
const std::string kTime = R"(17 0D "240101000000Z" )";
const std::string kKey = "30 08 30 03 06 01 2A 03 01 00 ";

const std::string kCertificateBody =
    "30 36 02 01 05 " + kAlgorithm + "30 00 30 1E " + kTime + kTime + "30 00 " + kKey;
const std::string kListBody = "30 16 " + kAlgorithm + "30 00 " + kTime;
const std::string kRequestBody = "30 11 02 01 00 30 00 " + kKey + "A0 00 ";
const std::string kAttributesBody = "30 35 02 01 01 30 00 30 00 " + kAlgorithm +
                                    R"(02 01 05 30 22 (18 0F "20500101000000Z")*2 30 00 )";

const std::string kCertificate = "30 41 " + kCertificateBody + kAlgorithm + kSignature;
const std::string kList = "30 21 " + kListBody + kAlgorithm + kSignature;
const std::string kRequest = "30 1C " + kRequestBody + "30 03 06 01 2B " + kSignature;
const std::string kAttributes = "30 40 " + kAttributesBody + kAlgorithm + kSignature;

void names_and_algorithms(Given &g) {
  g.makes("an end-of-contents is no value", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g(QUARN_ASN1_ANY, "00 00"), nullptr, nullptr), "");
  g.makes("a value is primary unless it is said not to be", QUARN_ASN1_PKIXATTRTYPEVAL,
          quarn_pkixattrtypeval_new(g.oid(), g.any()), "30 05 06012A 0500");
  g.makes("an attribute", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g(QUARN_ASN1_ANYSET, "31 02 05 00")),
          "30 07 06012A 31020500");
  g.makes("an attribute has values", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g(QUARN_ASN1_ANYSET, "31 00")), "");
  g.makes("half a pair", QUARN_ASN1_X500UUIDPAIR,
          quarn_x500uuidpair_new(octets_of("0123456789abcdef"), nullptr), "");
  g.makes("parameters that are NULL", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_NULL, nullptr), "30 05 06012A 0500");
  g.makes("parameters of a type that the caller names", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_INTEGER, g.integer()), "30 06 06012A 020105");
  g.makes("no parameters", QUARN_ASN1_X509ALGORITHMID, quarn_x509algoid_new_without_param(g.oid()),
          kAlgorithm);
}

void signed_objects(Given &g) {
  g.makes("a list of version 1 says none, whatever is reserved", QUARN_ASN1_X509TBSCERTLIST,
          quarn_x509TBSCertList_new(nullptr, g.algorithm(), g.name(), g(QUARN_ASN1_TIME, kTime),
                                    nullptr, nullptr, 7, nullptr),
          kListBody);
  g.makes("a certificate's algorithm is that of its body", QUARN_ASN1_X509PUBKEYCERT,
          quarn_x509pubkeycert_create(g(QUARN_ASN1_X509TBSCERTIFICATE, kCertificateBody), g.bits()),
          kCertificate);
  g.makes("no certificate without a body", QUARN_ASN1_X509PUBKEYCERT,
          quarn_x509pubkeycert_create(nullptr, g.bits()), "");
  g.makes("a list's algorithm is that of its body", QUARN_ASN1_X509CRL,
          quarn_x509crl_create(g(QUARN_ASN1_X509TBSCERTLIST, kListBody), g.bits()), kList);
  g.makes("a request's algorithm is given", QUARN_ASN1_PKCS10CERTREQ,
          quarn_pkcs10certreq_create(g(QUARN_ASN1_PKCS10CERTREQINFO, kRequestBody),
                                     g(QUARN_ASN1_X509ALGORITHMID, "30 03 06 01 2B"), g.bits()),
          kRequest);
  g.makes("an attribute certificate's algorithm is that of its body",
          QUARN_ASN1_ATTRIBUTECERTIFICATE,
          quarn_attributecertificate_new(g(QUARN_ASN1_ATTRIBUTECERTIFICATEINFO, kAttributesBody),
                                         g.bits()),
          kAttributes);
}

void extensions(Given &g) {
  g.makes("an issuer calls for a serial number", QUARN_ASN1_X509AKID,
          quarn_x509akid_new(nullptr, g.names(), nullptr), "");
  g.makes("a serial number calls for nothing", QUARN_ASN1_X509AKID,
          quarn_x509akid_new(nullptr, nullptr, g.integer()), "30 03 820105");
  g.makes("only an authority has a path length", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(g.no(), g.integer()), "30 00");
  g.makes("an authority is one that says so", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(nullptr, g.integer()), "30 00");
  g.makes("an authority with a path length", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(g.yes(), g.integer()), "30 06 0101FF 020105");
  g.makes("semantics are an identifier, authorities", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, g.names()), "30 02 3000");
  g.makes("or nothing", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, nullptr), "");
  g.makes("arguments in another order than the components", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(g(QUARN_ASN1_X509DPNAME, "A000"), g.no(), g.yes(), g.no(), g.bits(),
                              g.yes()),
          "30 11 A002A000 81020640 8201FF 830100 850100");
  g.makes("each flag is its own", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(nullptr, g.yes(), g.no(), g.yes(), nullptr, g.no()), "30 03 840100");
}

void keys_and_certificates(Given &g) {
  g.makes(
      "a public key", QUARN_ASN1_PKCS8PRIVATEKEYINFO,
      quarn_pkcs8privatekeyinfo_newv2(g.integer(), g.algorithm(), g.octets(), nullptr, g.bits()),
      "30 0F 02 01 05 " + kAlgorithm + "04 01 41 81 02 06 40");
  g.makes("a salt that the type does not allow", QUARN_ASN1_PKCS5PBEPARAM,
          quarn_pkcs5pbeparam_new(g.octets(), g.integer()), "");
  const std::string digest = "30 0A " + kAlgorithm;
  const auto sign = quarn_cmsalgorithmprotection_newsign;
  const auto mac = quarn_cmsalgorithmprotection_newmac;
  constexpr auto kProtection = QUARN_ASN1_CMSALGORITHMPROTECTION;
  g.makes("signed", kProtection, sign(g.algorithm(), g.algorithm()), digest + "A1 03 06 01 2A");
  g.makes("with a code", kProtection, mac(g.algorithm(), g.algorithm()), digest + "A2 03 06 01 2A");
  g.makes("no signature", kProtection, sign(g.algorithm(), nullptr), "");
  g.makes("no code", kProtection, mac(g.algorithm(), nullptr), "");
}

void seals_and_stores(Given &g) {
  const std::string certs = "30 03 04 01 43 ";
  const std::string digests = "30 08 30 06 13 01 64 04 01 44 ";
  const std::string head = "02 01 05 0C 01 4E 02 01 ";
  const std::string times = R"((18 0F "20260101000000Z")*3)";
  const Lent name = g(QUARN_ASN1_UTF8STRING, "0C 01 4E");
  const Lent time = g(QUARN_ASN1_GENTIME, R"(18 0F "20260101000000Z")");
  constexpr auto kProperty = QUARN_ASN1_GB_SES_ESPROPERTYINFO;
  const auto of_certs = quarn_gb_ses_espropertyinfo_newcert;
  const auto of_digests = quarn_gb_ses_espropertyinfo_newcertdigest;
  g.makes("for certificates", kProperty,
          of_certs(g.integer(), name, g(QUARN_ASN1_OCTETSTRINGS, certs), time, time, time),
          "30 41 " + head + "01 " + certs + times);
  g.makes(
      "for digests", kProperty,
      of_digests(g.integer(), name, g(QUARN_ASN1_SES_CERTDIGESTLIST, digests), time, time, time),
      "30 46 " + head + "02 " + digests + times);
  g.makes("for none", kProperty, of_certs(g.integer(), name, nullptr, time, time, time), "");
  g.makes("a copy", QUARN_ASN1_CERTSTORE_KEYID,
          quarn_certstore_dup(g(QUARN_ASN1_CERTSTORE_KEYID, "A0 03 06 01 2A")), "A0 03 06 01 2A");
}

void messages(Given &g) {
  constexpr auto kMessage = QUARN_ASN1_LDAPMESSAGE;
  const auto message = quarn_ldapmessage_new;
  g.makes("abandon", kMessage, message(g.integer(), 16, g.integer(), nullptr),
          "30 06 02 01 05 50 01 05");
  g.makes("unbind", kMessage, message(g.integer(), 2, nullptr, nullptr), "30 05 02 01 05 42 00");
  g.makes("no such operation", kMessage, message(g.integer(), 17, g.integer(), nullptr), "");
  g.makes("nothing to abandon", kMessage, message(g.integer(), 16, nullptr, nullptr), "");
}

TEST(Constructors, make_what_the_rules_say_or_nothing) {
  for (const auto calls : {names_and_algorithms, signed_objects, extensions, keys_and_certificates,
                           seals_and_stores, messages}) {
    fail_each_allocation([calls](Allocation &allocation) {
      Given given(&allocation);
      calls(given);
    });
  }
}

TEST(Getters, tell_null_parameters_from_others) {
  Given g;
  for (const char *other : {"30 03 06 01 2A", "30 05 06 01 2A 04 00", "30 05 06 01 2A 85 00"}) {
    EXPECT_EQ(quarn_x509algoid_isnullparam(g(QUARN_ASN1_X509ALGORITHMID, other)), 0);
  }
  const Lent null = g(QUARN_ASN1_X509ALGORITHMID, "30 05 06 01 2A 05 00");
  EXPECT_EQ(quarn_x509algoid_isnullparam(null), 1);
}

TEST(Getters, of_what_has_no_name_of_its_own) {
  Given g;
  const auto *issuer = octets_of("0123456789abcdef");
  const auto *subject = octets_of("ghijklmnopqrstuv");
  const quarn_x500uuidpair *pair =
      g.own(QUARN_ASN1_X500UUIDPAIR, quarn_x500uuidpair_new(issuer, subject));
  Octets uuid(16);
  EXPECT_EQ(quarn_x500uuidpair_getsubjectuuid(pair, uuid.data()), 1);
  EXPECT_EQ(uuid, Octets(subject, subject + 16));
  EXPECT_EQ(quarn_x500uuidpair_getissueruuid(pair, uuid.data()), 1);
  EXPECT_EQ(uuid, Octets(issuer, issuer + 16));

  const quarn_ses_header *header = g(QUARN_ASN1_SES_HEADER, "30 09 16 01 49 02 01 04 16 01 56");
  EXPECT_EQ(encoding_of(QUARN_ASN1_INTEGER, quarn_ses_header_geversion(header)), hex("02 01 04"));
  const Lent certs =
      g(QUARN_ASN1_GB_SES_ESPROPERTYINFO,
        R"(30 41 02 01 01 0C 01 4E 02 01 01 30 03 04 01 43 (18 0F "20240101000000Z")*3)");
  EXPECT_EQ(quarn_gb_ses_espropertyinfo_getcertlistype(certs), 1U);

  const quarn_ldapmessage *abandon = g(QUARN_ASN1_LDAPMESSAGE, "30 06 02 01 06 50 01 05");
  EXPECT_EQ(quarn_ldapmessage_getoptype(abandon), 16U);
  EXPECT_NE(quarn_ldapmessage_getprotocolop(abandon), nullptr);
  const quarn_ldapmessage *unbind = g(QUARN_ASN1_LDAPMESSAGE, "30 05 02 01 06 42 00");
  EXPECT_EQ(quarn_ldapmessage_getoptype(unbind), 2U);
  EXPECT_EQ(quarn_ldapmessage_getprotocolop(unbind), nullptr);
}

TEST(Getters, find_nothing_in_an_element_that_is_laid_out_otherwise) {
  Given g;
  const quarn_envelopedkeypair *pair = g(QUARN_ASN1_ENVELOPEDKEYPAIR, "30 06 02 01 01 A2 01 41");
  const quarn_innerenvelopedkeypair *inner = quarn_envelopedkeypair_getkeypair(pair);
  ASSERT_NE(inner, nullptr) << "the version and an element";
  EXPECT_EQ(quarn_innerenvelopedkeypair_gettype(inner), UINT32_MAX);
  EXPECT_EQ(quarn_innerenvelopedkeypair_getrsa(inner), nullptr);
}

TEST(Names, take_steps_over_or_leave_them_to_the_caller_and_forget_their_octets) {
  fail_each_allocation([](Allocation &allocation) {
    const Held name(QUARN_ASN1_X500NAME, "30 81 00");
    auto *n = name.as<quarn_x500name>();
    for (const int copy : {1, 0}) {
      quarn_asn1_list *rdn = quarn_asn1_list_new();
      const int added = quarn_x500name_addrdn(n, rdn, copy);
      EXPECT_TRUE(added == 1 || allocation.failed());
      if (copy == 1 || added != 1) quarn_asn1_value_free(QUARN_ASN1_X500RDN, rdn);
    }
    const bool whole = !allocation.failed();
    allocation.never_fail();
    if (whole) {
      EXPECT_EQ(name.encoding(), hex("30 04 (31 00)*2"));
    }
  });
}

TEST(Sorting, goes_through_contexts_and_leaves_steps_where_they_are) {
  const std::string as_given = "30 07 06012B 31020500 30 07 06012A 31020500 ";
  const std::string sorted = "30 07 06012A 31020500 30 07 06012B 31020500 ";
  const std::string a = "30 05 06012A 0500 ";
  const std::string b = "30 1D 06012B 0500 31 16 30 14 31 12 ";
  const Held name(QUARN_ASN1_X500NAME, hex("30 31 31 26 " + b + as_given + a + "31 07 " + a));
  EXPECT_EQ(quarn_x500name_sort(name.as<quarn_x500name>()), 1);
  EXPECT_EQ(name.encoding(), hex("30 31 31 26 " + a + b + sorted + "31 07 " + a));

  const std::string contexts = "31 18 30 16 0500 31 12 ";
  const Held values(QUARN_ASN1_X500ATTRIBUTE,
                    hex("30 24 06012A 31 05 0500 0101FF " + contexts + as_given));
  EXPECT_EQ(quarn_x500attribute_sort(values.as<quarn_x500attribute>()), 1);
  EXPECT_EQ(values.encoding(), hex("30 24 06012A 31 05 0101FF 0500 " + contexts + sorted));
  EXPECT_NE(quarn_x500name_sort(nullptr), 1);
}

// PEM, or without a label base64.
std::string as_text(const char *label, const std::string &octets) {
  const auto count = static_cast<std::int64_t>(octets.size());
  char *text = nullptr;
  std::int64_t length = 0;
  label == nullptr ? quarn_base64encode(0, octets_of(octets.data()), count, &text, &length)
                   : quarn_pemencode(label, octets_of(octets.data()), count, &text, &length);
  return std::string(Memory<char>(text).get(), static_cast<size_t>(length));
}

template <auto kLoad>
void expect_loaded(std::int64_t type,
                   const std::string &encoding,
                   const std::vector<const char *> &labels) {
  const auto load = [](const std::string &file, quarn_err_ctx *ctx) {
    return kLoad(octets_of(file.data()), static_cast<std::int64_t>(file.size()), ctx);
  };
  const Octets expected = hex(encoding);
  const std::string octets(expected.begin(), expected.end());
  std::vector<std::string> good{octets, as_text(nullptr, octets)};
  for (const char *label : labels) good.push_back(as_text(label, octets));
  for (const std::string &file : good) {
    fail_each_allocation([&](Allocation &allocation) {
      const Held loaded(type, load(file, nullptr));
      EXPECT_TRUE(loaded.encoding() == expected || allocation.failed()) << file;
    });
  }
  const std::string pem = as_text(labels[0], octets);
  const std::string more = octets + '\0';
  for (const std::string &file :
       {std::string(), std::string("M"), std::string("-"), std::string("0"), " " + good[1],
        "\n" + pem, pem.substr(0, 60), as_text("PKCS7", octets), more, as_text(nullptr, more),
        as_text(labels[0], more)}) {
    EXPECT_EQ(load(file, nullptr), nullptr) << file;
  }
  const Context ctx(quarn_err_ctx_new());
  EXPECT_EQ(load(octets.substr(0, 9), ctx.get()), nullptr);
  EXPECT_FALSE(codes_in(ctx.get()).empty());
}

TEST(Loading, takes_octets_base64_and_pem_that_hold_one_object) {
  expect_loaded<quarn_x509pubkeycert_new>(QUARN_ASN1_X509PUBKEYCERT, kCertificate, {"CERTIFICATE"});
  expect_loaded<quarn_x509crl_new>(QUARN_ASN1_X509CRL, kList, {"X509 CRL", "CRL"});
  expect_loaded<quarn_pkcs10certreq_new>(QUARN_ASN1_PKCS10CERTREQ, kRequest,
                                         {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"});
  EXPECT_EQ(quarn_x509pubkeycert_new(nullptr, 4, nullptr), nullptr);
  EXPECT_EQ(quarn_x509pubkeycert_new(octets_of("M"), -1, nullptr), nullptr);
}

template <auto kBody>
void expect_body(const Lent &value, const std::string &expected) {
  Octets body(hex(expected).size());
  std::uint64_t length = body.size() - 1;
  EXPECT_EQ(kBody(value, body.data(), &length), 0) << "too small";
  EXPECT_EQ(body, Octets(body.size()));
  EXPECT_EQ(kBody(value, body.data(), &length), 1) << "of the length that was told";
  EXPECT_EQ(body, hex(expected));
}

TEST(Loading, tells_the_octets_that_were_signed) {
  Given g;
  expect_body<quarn_x509crl_gettbsocts>(g(QUARN_ASN1_X509CRL, kList), kListBody);
  const std::string request = "30 80 A0 03 02 01 00 30 00 00 00 ";
  expect_body<quarn_ocsp_ocsprequest_gettbsocts>(
      g(QUARN_ASN1_OCSP_OCSPREQUEST, "30 80 " + request + "00 00"), request);
  std::uint64_t length = 0;
  EXPECT_EQ(quarn_x509crl_gettbsocts(nullptr, nullptr, &length), 0);
}

}  // namespace
}  // namespace quarn::test

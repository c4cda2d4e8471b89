// Constructors, loaders, sorts and getters of structured types: the rules that go beyond copying
// what is given and lending what is held.
#include <gtest/gtest.h>

#include <deque>
#include <functional>

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
  Lent operator()(std::int64_t type, const std::string &octets) {
    return {owned_.emplace_back(type, octets.c_str()).get()};
  }
  Lent own(std::int64_t type, void *value) { return {owned_.emplace_back(type, value).get()}; }

  // A constructor has made a value of some encoding, or none of "", unless memory was short.
  void makes(const char *what, std::int64_t type, void *value, const std::string &encoding) {
    const Octets made = owned_.emplace_back(type, value).encoding();
    if (allocation_ != nullptr && allocation_->failed()) return;
    EXPECT_EQ(made, hex(encoding)) << what;
  }

  Lent oid() { return (*this)(QUARN_ASN1_OID, "06 01 2A"); }
  Lent integer() { return (*this)(QUARN_ASN1_INTEGER, "02 01 05"); }
  Lent yes() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 01"); }
  Lent no() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 00"); }
  Lent bits() { return (*this)(QUARN_ASN1_BITSTRING, "03 02 06 40"); }
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
const std::string kDays = R"((18 0F "20500101000000Z")*2 )";
const std::string kKey = "30 08 30 03 06 01 2A 03 01 00 ";

const std::string kCertificateBody =
    "30 36 02 01 05 " + kAlgorithm + "30 00 30 1E " + kTime + kTime + "30 00 " + kKey;
const std::string kListBody = "30 16 " + kAlgorithm + "30 00 " + kTime;
const std::string kRequestBody = "30 11 02 01 00 30 00 " + kKey + "A0 00 ";
const std::string kAttributesBody =
    "30 35 02 01 01 30 00 30 00 " + kAlgorithm + "02 01 05 30 22 " + kDays + "30 00 ";

const std::string kCertificate = "30 41 " + kCertificateBody + kAlgorithm + kSignature;
const std::string kList = "30 21 " + kListBody + kAlgorithm + kSignature;
const std::string kRequest = "30 1C " + kRequestBody + "30 03 06 01 2B " + kSignature;
const std::string kAttributes = "30 40 " + kAttributesBody + kAlgorithm + kSignature;

quarn_x500uuidpair *uuid_pair(const char *subject) {
  return quarn_x500uuidpair_new(octets_of("0123456789abcdef"), octets_of(subject));
}

quarn_x509TBSCertList *list_body(Given &g, void *version) {
  return quarn_x509TBSCertList_new(Lent{version}, g.algorithm(), g.name(),
                                   g(QUARN_ASN1_TIME, kTime), nullptr, nullptr, 7, nullptr);
}

void names_and_algorithms(Given &g) {
  g.makes("a value is primary unless it is said not to be", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g.any(), nullptr, nullptr), "30 05 06012A 0500");
  g.makes("an end-of-contents is no value", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g(QUARN_ASN1_ANY, "00 00"), nullptr, nullptr), "");
  g.makes("type and value alone", QUARN_ASN1_PKIXATTRTYPEVAL,
          quarn_pkixattrtypeval_new(g.oid(), g.any()), "30 05 06012A 0500");
  g.makes("an attribute", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g(QUARN_ASN1_ANYSET, "31 02 05 00")),
          "30 07 06012A 31020500");
  g.makes("an attribute has values", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g(QUARN_ASN1_ANYSET, "31 00")), "");
  g.makes("a name starts empty", QUARN_ASN1_X500NAME, quarn_x500name_new(), "30 00");
  g.makes("a pair has two UUIDs", QUARN_ASN1_X500UUIDPAIR, uuid_pair("ghijklmnopqrstuv"),
          R"(30 24 0410 "0123456789abcdef" 0410 "ghijklmnopqrstuv")");
  g.makes("half a pair", QUARN_ASN1_X500UUIDPAIR,
          quarn_x500uuidpair_new(octets_of("0123456789abcdef"), nullptr), "");
  g.makes("parameters that are NULL", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_NULL, nullptr), "30 05 06012A 0500");
  g.makes("parameters of a type that the caller names", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_INTEGER, g.integer()), "30 06 06012A 020105");
  g.makes("no INTEGER", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_INTEGER, nullptr), "");
  g.makes("parameters of no type", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), -1, g.integer()), "");
  g.makes("no parameters", QUARN_ASN1_X509ALGORITHMID, quarn_x509algoid_new_without_param(g.oid()),
          kAlgorithm);
  g.makes("no algorithm", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(nullptr, QUARN_ASN1_NULL, nullptr), "");
}

void signed_objects(Given &g) {
  g.makes("a list of version 1 says none", QUARN_ASN1_X509TBSCERTLIST, list_body(g, nullptr),
          kListBody);
  g.makes("a list of version 0 says so", QUARN_ASN1_X509TBSCERTLIST,
          list_body(g, g(QUARN_ASN1_INTEGER, "02 01 00")), "30 19 020100" + kListBody.substr(6));
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
  g.makes("an issuer with a serial number", QUARN_ASN1_X509AKID,
          quarn_x509akid_new(nullptr, g.names(), g.integer()), "30 05 A100 820105");
  g.makes("a serial number calls for nothing", QUARN_ASN1_X509AKID,
          quarn_x509akid_new(nullptr, nullptr, g.integer()), "30 03 820105");
  g.makes("only an authority has a path length", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(g.no(), g.integer()), "30 00");
  g.makes("an authority is one that says so", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(nullptr, g.integer()), "30 00");
  g.makes("an authority with a path length", QUARN_ASN1_X509BASICCONSTRAINTS,
          quarn_x509basicconstraints_new(g.yes(), g.integer()), "30 06 0101FF 020105");
  g.makes("semantics are an identifier", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(g.oid(), nullptr), kAlgorithm);
  g.makes("or authorities", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, g.names()), "30 02 3000");
  g.makes("or nothing", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, nullptr), "");
  g.makes("arguments in another order than the components", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(g(QUARN_ASN1_X509DPNAME, "A000"), g.no(), g.yes(), g.no(), g.bits(),
                              g.yes()),
          "30 11 A002A000 81020640 8201FF 830100 850100");
  g.makes("each flag is its own", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(nullptr, g.yes(), g.no(), g.yes(), nullptr, g.no()), "30 03 840100");
  g.makes("both lists under one tag", QUARN_ASN1_AC_AACONTROLS,
          quarn_ac_aacontrols_new(g.integer(), g(QUARN_ASN1_AC_ATTRSPEC, kAlgorithm),
                                  g(QUARN_ASN1_AC_ATTRSPEC, "30 00"), g.no()),
          "30 0D 020105 8003 06012A 8000 010100");
}

TEST(Constructors, make_what_the_rules_say_or_nothing) {
  for (const auto calls : {names_and_algorithms, signed_objects, extensions}) {
    fail_each_allocation([calls](Allocation &allocation) {
      Given given(&allocation);
      calls(given);
    });
  }
}

TEST(Strings, accept_the_tags_of_their_kind) {
  const Held octets(QUARN_ASN1_OCTETSTRING, "04 01 41");
  const std::uint64_t accepted = 0x50181000;  // bit n stands for universal tag n
  for (std::uint64_t tag = 0; tag < 64; tag++) {
    const Held made(QUARN_ASN1_X500DIRSTRING,
                    quarn_x500dirstring_new(tag, octets.as<quarn_asn1_octetstring>()));
    EXPECT_EQ(quarn_x500dirstring_gettype(made.as<quarn_x500dirstring>()),
              (accepted >> tag & 1) != 0 ? tag : 0);
  }
  EXPECT_EQ(quarn_x500dirstring_new(1ull << 32 | 12, octets.as<quarn_asn1_octetstring>()), nullptr);
}

TEST(Copies, of_a_lone_list_under_a_shared_tag_are_of_the_first) {
  Given g;
  quarn_ac_aacontrols *controls =
      g.own(QUARN_ASN1_AC_AACONTROLS,
            quarn_ac_aacontrols_new(nullptr, nullptr, g(QUARN_ASN1_AC_ATTRSPEC, "30 00"), nullptr));
  EXPECT_EQ(quarn_ac_aacontrols_haspermittedattrs(controls), 0);
  const quarn_ac_aacontrols *copy = g.own(
      QUARN_ASN1_AC_AACONTROLS, quarn_asn1_dupobject(QUARN_ASN1_AC_AACONTROLS, controls, nullptr));
  EXPECT_EQ(quarn_ac_aacontrols_haspermittedattrs(copy), 1);
  EXPECT_EQ(quarn_ac_aacontrols_hasexcludedattrs(copy), 0);
}

TEST(Getters, tell_what_the_encoding_leaves_out) {
  Given g;
  const quarn_x509aaidp *point = g(QUARN_ASN1_X509AAIDP, "30 00");
  EXPECT_EQ(quarn_asn1_boolean_istrue(quarn_x509aaidp_getcontainsaacerts(point)), 1);
  EXPECT_EQ(quarn_asn1_boolean_istrue(quarn_x509aaidp_getindirectcrl(point)), 0);
  const quarn_x509algoid *null = g(QUARN_ASN1_X509ALGORITHMID, "30 05 06 01 2A 05 00");
  const quarn_x509algoid *octets = g(QUARN_ASN1_X509ALGORITHMID, "30 05 06 01 2A 04 00");
  EXPECT_EQ(quarn_x509algoid_hasparam(null), 1);
  EXPECT_EQ(quarn_x509algoid_isnullparam(null), 1);
  EXPECT_EQ(quarn_x509algoid_hasparam(g.algorithm()), 0);
  EXPECT_EQ(quarn_x509algoid_isnullparam(g.algorithm()), 0);
  EXPECT_EQ(quarn_x509algoid_isnullparam(octets), 0);
  EXPECT_EQ(quarn_pkcs10certreq_hasattrs(g(QUARN_ASN1_PKCS10CERTREQ, kRequest)), 1) << "empty";
  std::uint8_t uuid[16] = {};
  EXPECT_EQ(quarn_x500uuidpair_getsubjectuuid(nullptr, uuid), 0);
  const quarn_x500uuidpair *pair = g.own(QUARN_ASN1_X500UUIDPAIR, uuid_pair("ghijklmnopqrstuv"));
  EXPECT_EQ(quarn_x500uuidpair_getsubjectuuid(pair, uuid), 1);
  EXPECT_EQ(uuid[15], 'v');
  EXPECT_EQ(quarn_x500uuidpair_getissueruuid(pair, uuid), 1);
  EXPECT_EQ(uuid[15], 'f');
}

TEST(Names, take_steps_over_or_leave_them_to_the_caller_and_forget_their_octets) {
  fail_each_allocation([](Allocation &allocation) {
    const Held name(QUARN_ASN1_X500NAME, "30 81 00");
    auto *n = name.as<quarn_x500name>();
    for (const int copy : {1, 0}) {
      void *rdn = nullptr;
      quarn_asn1_mem_decode(octets_of("\x31"), 2, QUARN_ASN1_X500RDN, &rdn);
      const int added = quarn_x500name_addrdn(n, Lent{rdn}, copy);
      EXPECT_TRUE(added == 1 || allocation.failed());
      if (copy == 1 || added != 1) quarn_asn1_value_free(QUARN_ASN1_X500RDN, rdn);
    }
    if (allocation.failed()) return;
    allocation.never_fail();
    EXPECT_EQ(name.encoding(), hex("30 04 (31 00)*2"));
    EXPECT_EQ(quarn_x500name_addrdn(n, nullptr, 1), 0);
    EXPECT_EQ(
        quarn_x500name_addrdn(nullptr, Held(QUARN_ASN1_X500RDN, "31 00").as<quarn_asn1_list>(), 1),
        0);
  });
}

TEST(Sorting, goes_through_contexts_and_leaves_steps_where_they_are) {
  const std::string a = "30 05 06012A 0500 ";
  const std::string b = "30 05 06012B 0500 ";
  const Held name(QUARN_ASN1_X500NAME, hex("30 19 31 0E " + b + a + "31 07 " + a));
  EXPECT_EQ(quarn_x500name_sort(name.as<quarn_x500name>()), 1);
  EXPECT_EQ(name.encoding(), hex("30 19 31 0E " + a + b + "31 07 " + a));
  EXPECT_NE(quarn_x500name_sort(nullptr), 1);

  const std::string contexts_as_given = "30 07 06012B 31020500 30 07 06012A 31020500 ";
  const std::string contexts_sorted = "30 07 06012A 31020500 30 07 06012B 31020500 ";
  const std::string rdn = "31 1F 30 1D 06012A 0500 31 16 30 14 31 12 ";
  const Held sorted(QUARN_ASN1_X500RDN, hex(rdn + contexts_as_given));
  EXPECT_EQ(quarn_x500RDN_sort(sorted.as<quarn_asn1_list>()), 1);
  EXPECT_EQ(sorted.encoding(), hex(rdn + contexts_sorted));

  const std::string with_contexts = "31 18 30 16 0500 31 12 ";
  const Held values(QUARN_ASN1_X500ATTRIBUTE,
                    hex("30 24 06012A 31 05 0500 0101FF" + with_contexts + contexts_as_given));
  EXPECT_EQ(quarn_x500attribute_sort(values.as<quarn_x500attribute>()), 1);
  EXPECT_EQ(values.encoding(),
            hex("30 24 06012A 31 05 0101FF 0500" + with_contexts + contexts_sorted));
}

// How a kind of signed object is loaded and asked for what was signed.
struct Signed {
  std::int64_t type;
  std::string octets;
  std::string body;
  std::vector<const char *> labels;
  std::function<void *(const std::string &, quarn_err_ctx *)> load;
  std::function<int(void *, std::uint8_t *, std::uint64_t *)> body_of;
};

template <auto Load, auto Body>
Signed signed_kind(std::int64_t type,
                   const std::string &octets,
                   const std::string &body,
                   std::vector<const char *> labels) {
  const auto load = [](const std::string &file, quarn_err_ctx *ctx) -> void * {
    return Load(octets_of(file.data()), static_cast<std::int64_t>(file.size()), ctx);
  };
  const auto body_of = [](void *value, std::uint8_t *buffer, std::uint64_t *length) {
    return Body(Lent{value}, buffer, length);
  };
  return {type, octets, body, std::move(labels), load, body_of};
}

std::vector<Signed> signed_kinds() {
  return {
      signed_kind<quarn_x509pubkeycert_new, quarn_x509pubkeycert_gettbsocts>(
          QUARN_ASN1_X509PUBKEYCERT, kCertificate, kCertificateBody, {"CERTIFICATE"}),
      signed_kind<quarn_x509crl_new, quarn_x509crl_gettbsocts>(QUARN_ASN1_X509CRL, kList, kListBody,
                                                               {"X509 CRL", "CRL"}),
      signed_kind<quarn_pkcs10certreq_new, quarn_pkcs10certreq_gettbsocts>(
          QUARN_ASN1_PKCS10CERTREQ, kRequest, kRequestBody,
          {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"}),
  };
}

std::string file_of(const std::string &octets) {
  const Octets file = hex(octets);
  return std::string(file.begin(), file.end());
}

// PEM, or without a label base64.
std::string as_text(const char *label, const std::string &octets) {
  const auto count = static_cast<std::int64_t>(octets.size());
  char *text = nullptr;
  std::int64_t length = 0;
  label == nullptr ? quarn_base64encode(0, octets_of(octets.data()), count, &text, &length)
                   : quarn_pemencode(label, octets_of(octets.data()), count, &text, &length);
  const Memory<char> owned(text);
  return text == nullptr ? "" : std::string(text, static_cast<size_t>(length));
}

TEST(Loading, takes_octets_base64_and_pem_that_hold_one_object) {
  for (const Signed &kind : signed_kinds()) {
    const std::string octets = file_of(kind.octets);
    std::vector<std::string> good{octets, as_text(nullptr, octets)};
    for (const char *label : kind.labels) good.push_back(as_text(label, octets));
    for (const std::string &file : good) {
      fail_each_allocation([&](Allocation &allocation) {
        const Held loaded(kind.type, kind.load(file, nullptr));
        EXPECT_TRUE(loaded.encoding() == hex(kind.octets) || allocation.failed()) << file;
      });
    }
    const std::string bad[] = {"",
                               octets + '\0',
                               " " + as_text(nullptr, octets),
                               "\n" + as_text(kind.labels[0], octets),
                               as_text("PKCS7", octets),
                               as_text(kind.labels[0], octets + '\0'),
                               as_text(kind.labels[0], octets).substr(0, 60),
                               as_text(nullptr, octets + '\0'),
                               "M",
                               "-",
                               "0"};
    for (const std::string &file : bad) EXPECT_EQ(kind.load(file, nullptr), nullptr) << file;
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(kind.load(octets.substr(0, 9), ctx.get()), nullptr);
    EXPECT_FALSE(codes_in(ctx.get()).empty());
  }
  EXPECT_EQ(quarn_x509pubkeycert_new(nullptr, 4, nullptr), nullptr);
  EXPECT_EQ(quarn_x509pubkeycert_new(octets_of("M"), -1, nullptr), nullptr);
}

TEST(Loading, tells_the_octets_that_were_signed) {
  std::vector<Signed> kinds = signed_kinds();
  // As it stood in the input, whatever that was.
  kinds.push_back(kinds[0]);
  kinds.back().body = "30 80 A0 03 02 01 00 " + kCertificateBody.substr(6) + "00 00 ";
  kinds.back().octets = "30 80 " + kinds.back().body + kAlgorithm + kSignature + "00 00";
  for (const Signed &kind : kinds) {
    const Octets body = hex(kind.body);
    const Held value(kind.type, hex(kind.octets));
    std::uint64_t length = 0;
    EXPECT_EQ(kind.body_of(value.get(), nullptr, &length), 1);
    EXPECT_EQ(length, body.size());
    Octets buffer(body.size());
    length--;
    EXPECT_EQ(kind.body_of(value.get(), buffer.data(), &length), 0) << "too small";
    EXPECT_EQ(length, body.size());
    EXPECT_EQ(buffer, Octets(body.size()));
    EXPECT_EQ(kind.body_of(value.get(), buffer.data(), &length), 1);
    EXPECT_EQ(buffer, body);
    EXPECT_EQ(kind.body_of(value.get(), buffer.data(), nullptr), 0);
    EXPECT_EQ(kind.body_of(nullptr, buffer.data(), &length), 0);
  }
  Given g;
  const Lent built = g.own(QUARN_ASN1_ATTRIBUTECERTIFICATE,
                           quarn_attributecertificate_new(
                               g(QUARN_ASN1_ATTRIBUTECERTIFICATEINFO, kAttributesBody), g.bits()));
  std::uint64_t length = 0;
  EXPECT_EQ(quarn_attributecertificate_gettbsocts(built, nullptr, &length), 1);
  EXPECT_EQ(length, hex(kAttributesBody).size()) << "of one that was built";
}

}  // namespace
}  // namespace quarn::test

// Constructors, loaders, sorts and getters of structured types: the rules that go beyond copying
// what is given and lending what is held.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/streams.h"
#include "tests/unit/given.h"

namespace quarn::test {
namespace {

const std::string kAlgorithm = "30 03 06 01 2A ";
const std::string kSignature = "03 02 06 40 ";
const std::string kTime = "17 0D 32 34 30 31 30 31 30 30 30 30 30 30 5A ";
const std::string kDay = "18 0F 32 30 35 30 30 31 30 31 30 30 30 30 30 30 5A ";
const std::string kValidity = "30 1E " + kTime + kTime;
const std::string kKey = "30 08 30 03 06 01 2A 03 01 00 ";

const std::string kCertificateBody =
    "30 36 02 01 05 " + kAlgorithm + "30 00 " + kValidity + "30 00 " + kKey;
const std::string kListBody = "30 16 " + kAlgorithm + "30 00 " + kTime;
const std::string kRequestBody = "30 11 02 01 00 30 00 " + kKey + "A0 00 ";
const std::string kAttributesBody =
    "30 35 02 01 01 30 00 30 00 " + kAlgorithm + "02 01 05 30 22 " + kDay + kDay + "30 00 ";

const std::string kCertificate = "30 41 " + kCertificateBody + kAlgorithm + kSignature;
const std::string kList = "30 21 " + kListBody + kAlgorithm + kSignature;
const std::string kRequest = "30 1C " + kRequestBody + "30 03 06 01 2B " + kSignature;
const std::string kAttributes = "30 40 " + kAttributesBody + kAlgorithm + kSignature;

quarn_x509TBSCertificate *certificate_body(Given &g, void *version, void *issuer) {
  return quarn_x509TBSCertificate_new(Lent{version}, g.integer(), g.algorithm(), Lent{issuer},
                                      g(QUARN_ASN1_X509VALIDITY, kValidity), g.name(),
                                      g(QUARN_ASN1_X509PUBLICKEYINFO, kKey), nullptr, nullptr,
                                      nullptr);
}

quarn_x509TBSCertList *list_body(Given &g, void *version, void *issuer) {
  return quarn_x509TBSCertList_new(Lent{version}, g.algorithm(), Lent{issuer},
                                   g(QUARN_ASN1_TIME, kTime), nullptr, nullptr, 7, nullptr);
}

void names_and_attributes(Given &g) {
  g.makes("fallback is FALSE", QUARN_ASN1_X500CONTEXT,
          quarn_x500context_new(g.oid(), g.list(QUARN_ASN1_ANYSET, "31 02 05 00"), nullptr),
          "30 07 06012A 31020500");
  g.makes("a context has values", QUARN_ASN1_X500CONTEXT,
          quarn_x500context_new(g.oid(), g.list(QUARN_ASN1_ANYSET, "31 00"), nullptr), "null");
  g.makes("a value is primary unless it is said not to be", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g.any(), nullptr, nullptr), "30 05 06012A 0500");
  g.makes("a value that is not primary", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g.any(), g.no(), nullptr),
          "30 08 06012A 0500 010100");
  g.makes("contexts are present also when there are none", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g.any(), nullptr, g.contexts()),
          "30 07 06012A 0500 3100");
  g.makes("an end-of-contents is no value", QUARN_ASN1_X500ATTRTYPEDISTVAL,
          quarn_x500attrtypedistval_new(g.oid(), g.nothing(), nullptr, nullptr), "null");
  g.makes("nor is it one of an INSTANCE OF", QUARN_ASN1_INSTANCEOFTYPEID,
          quarn_instanceoftypeid_new(g.oid(), g.nothing()), "null");
  g.makes("type and value alone", QUARN_ASN1_PKIXATTRTYPEVAL,
          quarn_pkixattrtypeval_new(g.oid(), g.any()), "30 05 06012A 0500");
  g.makes("an end-of-contents is no value with contexts", QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM,
          quarn_x500dnvalueswithcontextitem_new(g.nothing(), g.contexts()), "null");
  g.makes("contexts without a value", QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM,
          quarn_x500dnvalueswithcontextitem_new(nullptr, g.contexts()), "30 02 3100");
  g.makes("a value has contexts", QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM,
          quarn_x500dnvalueswithcontextitem_new(g.any(), nullptr), "null");
  g.makes("an attribute", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g.list(QUARN_ASN1_ANYSET, "31 02 05 00")),
          "30 07 06012A 31020500");
  g.makes("an attribute has values", QUARN_ASN1_X500ATTRIBUTE,
          quarn_x500attribute_new(g.oid(), g.list(QUARN_ASN1_ANYSET, "31 00")), "null");
  g.makes("a name starts empty", QUARN_ASN1_X500NAME, quarn_x500name_new(), "30 00");
  g.makes("a pair has two UUIDs", QUARN_ASN1_X500UUIDPAIR,
          quarn_x500uuidpair_new(octets_of("0123456789abcdef"), octets_of("ghijklmnopqrstuv")),
          "30 24 0410 30313233343536373839616263646566 0410 6768696A6B6C6D6E6F70717273747576");
  g.makes("half a pair", QUARN_ASN1_X500UUIDPAIR,
          quarn_x500uuidpair_new(octets_of("0123456789abcdef"), nullptr), "null");
}

void signed_objects(Given &g) {
  g.makes("parameters that are NULL", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_NULL, nullptr), "30 05 06012A 0500");
  g.makes("parameters of a type that the caller names", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_INTEGER, g.integer()), "30 06 06012A 020105");
  g.makes("no INTEGER", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), QUARN_ASN1_INTEGER, nullptr), "null");
  g.makes("parameters of no type", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(g.oid(), -1, g.integer()), "null");
  g.makes("no parameters", QUARN_ASN1_X509ALGORITHMID, quarn_x509algoid_new_without_param(g.oid()),
          "30 03 06012A");
  g.makes("no algorithm", QUARN_ASN1_X509ALGORITHMID,
          quarn_x509algoid_new(nullptr, QUARN_ASN1_NULL, nullptr), "null");
  g.makes("a certificate is of version 1", QUARN_ASN1_X509TBSCERTIFICATE,
          certificate_body(g, nullptr, g.name()), kCertificateBody);
  g.makes("a certificate has an issuer", QUARN_ASN1_X509TBSCERTIFICATE,
          certificate_body(g, nullptr, nullptr), "null");
  g.makes("a list of version 1 says none", QUARN_ASN1_X509TBSCERTLIST,
          list_body(g, nullptr, g.name()), kListBody);
  g.makes("a list of version 0 says so", QUARN_ASN1_X509TBSCERTLIST,
          list_body(g, g(QUARN_ASN1_INTEGER, "02 01 00"), g.name()),
          "30 19 020100" + kListBody.substr(6));
  g.makes("a list has an issuer", QUARN_ASN1_X509TBSCERTLIST, list_body(g, nullptr, nullptr),
          "null");
  g.makes("a certificate's algorithm is that of its body", QUARN_ASN1_X509PUBKEYCERT,
          quarn_x509pubkeycert_create(g(QUARN_ASN1_X509TBSCERTIFICATE, kCertificateBody), g.bits()),
          kCertificate);
  g.makes("no certificate without a body", QUARN_ASN1_X509PUBKEYCERT,
          quarn_x509pubkeycert_create(nullptr, g.bits()), "null");
  g.makes("a list's algorithm is that of its body", QUARN_ASN1_X509CRL,
          quarn_x509crl_create(g(QUARN_ASN1_X509TBSCERTLIST, kListBody), g.bits()), kList);
  g.makes("a request's algorithm is given", QUARN_ASN1_PKCS10CERTREQ,
          quarn_pkcs10certreq_create(g(QUARN_ASN1_PKCS10CERTREQINFO, kRequestBody),
                                     g(QUARN_ASN1_X509ALGORITHMID, "30 03 06 01 2B"), g.bits()),
          kRequest);
  g.makes(
      "a request has an algorithm", QUARN_ASN1_PKCS10CERTREQ,
      quarn_pkcs10certreq_create(g(QUARN_ASN1_PKCS10CERTREQINFO, kRequestBody), nullptr, g.bits()),
      "null");
  g.makes("an attribute certificate's algorithm is that of its body",
          QUARN_ASN1_ATTRIBUTECERTIFICATE,
          quarn_attributecertificate_new(g(QUARN_ASN1_ATTRIBUTECERTIFICATEINFO, kAttributesBody),
                                         g.bits()),
          kAttributes);
}

void extensions_and_values(Given &g) {
  g.makes("an issuer calls for a serial number", QUARN_ASN1_X509AKID,
          quarn_x509akid_new(nullptr, g.names(), nullptr), "null");
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
          quarn_semanticsinformation_new(g.oid(), nullptr), "30 03 06012A");
  g.makes("or authorities", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, g.names()), "30 02 3000");
  g.makes("or nothing", QUARN_ASN1_SEMANTICSINFORMATION,
          quarn_semanticsinformation_new(nullptr, nullptr), "null");
  g.makes("a point covers all unless it is said not to", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), "30 00");
  g.makes("arguments in another order than the components", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(g(QUARN_ASN1_X509DPNAME, "A000"), g.no(), g.yes(), g.no(), g.bits(),
                              g.yes()),
          "30 11 A002A000 81020640 8201FF 830100 850100");
  g.makes("each flag is its own", QUARN_ASN1_X509AAIDP,
          quarn_x509aaidp_new(nullptr, g.yes(), g.no(), g.yes(), nullptr, g.no()), "30 03 840100");
  g.makes("a UTF8String that goes out as an OCTET STRING", QUARN_ASN1_AC_IETFATTRSYNTAXVALUE,
          quarn_ac_ietfattrsyntaxvalue_newutf8(g.octets("04 03 616263")), "04 03 616263");
  g.makes("both lists under one tag", QUARN_ASN1_AC_AACONTROLS,
          quarn_ac_aacontrols_new(g.integer(), g.list(QUARN_ASN1_AC_ATTRSPEC, "30 03 06012A"),
                                  g.list(QUARN_ASN1_AC_ATTRSPEC), g.no()),
          "30 0D 020105 8003 06012A 8000 010100");
  g.makes("a clearance has a class list", QUARN_ASN1_AC_CLEARANCE,
          quarn_ac_clearance_new(g.oid(), nullptr, nullptr), "null");
  g.makes("a holder that is an entity", QUARN_ASN1_HOLDER,
          quarn_holder_new(nullptr, g.names(), nullptr), "30 02 A100");
  g.makes("a tag around a name", QUARN_ASN1_AC_TARGET, quarn_ac_target_newgroup(g.general_name()),
          "A1 03 820161");
  g.makes(
      "an item in the order of its parts", QUARN_ASN1_QUARNIDENTIFICATIONITEM,
      quarn_quarnidentificationitem_new(g.integer(), g(QUARN_ASN1_INTEGER, "02 01 06"), g.octets()),
      "30 09 020105 020106 040141");
}

TEST(Constructors, make_what_the_rules_say_or_nothing) {
  for (const auto calls : {names_and_attributes, signed_objects, extensions_and_values}) {
    fail_each_allocation([calls](Allocation &allocation) {
      Given given(&allocation);
      calls(given);
    });
  }
}

TEST(Restrictions, hold_for_content_that_is_encoded) {
  const std::string pair =
      "30 24 0410 30313233343536373839616263646566 "
      "0410 6768696A6B6C6D6E6F70717273747576";
  const struct {
    std::int64_t decoded_as;
    std::string encoding;
    std::int64_t type;
    std::int64_t length;
    int code;
  } rows[] = {
      {QUARN_ASN1_X500ATTRTYPEDISTVAL, "30 08 06012A 0500 010100", QUARN_ASN1_PKIXATTRTYPEVAL, 8,
       0x10274},
      {QUARN_ASN1_X509NAMECONSTAINTS, "30 02 A200", QUARN_ASN1_PKIXNAMECONSTAINTS, 2, 0x102ce},
      {QUARN_ASN1_X500UUIDPAIR, pair, QUARN_ASN1_X500UUIDPAIR, 35, QUARN_ERROR_RANGE},
  };
  for (const auto &row : rows) {
    Given g;
    const Context ctx(quarn_err_ctx_new());
    const Stream out(quarn_stream_new_mem(0, nullptr));
    EXPECT_EQ(quarn_asn1_encode_content(out.get(), row.type, g(row.decoded_as, row.encoding),
                                        row.length, nullptr, ctx.get()),
              0);
    EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{row.code});
  }
}

TEST(Strings, accept_the_tags_of_their_kind) {
  Given g;
  const quarn_asn1_octetstring *octets = g.octets();
  // Bit n stands for universal tag n.
  const struct {
    std::int64_t type;
    std::uint64_t tags;
    std::function<void *(std::uint64_t)> make;
    std::function<std::uint64_t(void *)> tag_of;
  } rows[] = {
      {QUARN_ASN1_X500DIRSTRING, 0x50181000,
       [&](std::uint64_t tag) { return quarn_x500dirstring_new(tag, octets); },
       [](void *value) { return quarn_x500dirstring_gettype(Lent{value}); }},
      {QUARN_ASN1_PKCS9STRING, 0x50581000,
       [&](std::uint64_t tag) { return quarn_pkcs9string_new(tag, octets); },
       [](void *value) { return quarn_pkcs9string_gettype(Lent{value}); }},
      {QUARN_ASN1_DISPLAYTEXT, 0x44401000,
       [&](std::uint64_t tag) { return quarn_disptext_new(tag, octets); },
       [](void *value) { return quarn_disptext_gettype(Lent{value}); }},
  };
  for (const auto &row : rows) {
    for (std::uint64_t tag = 0; tag < 64; tag++) {
      const Lent made = g.own(row.type, row.make(tag));
      const bool accepted = (row.tags >> tag & 1) != 0;
      EXPECT_EQ(made.value != nullptr, accepted) << tag;
      EXPECT_EQ(row.tag_of(made), accepted ? tag : 0);
    }
    EXPECT_EQ(row.make(UINT64_C(1) << 32 | 12), nullptr);
  }
}

TEST(Choices, have_the_numbers_that_callers_know) {
  Given g;
  const auto name = [&](const char *encoding) -> quarn_x509generalname * {
    return g(QUARN_ASN1_X509GENERALNAME, encoding);
  };
  EXPECT_EQ(quarn_x509generalname_gettype(name("86 01 75")), 6u);
  EXPECT_EQ(quarn_x509generalname_getdnsname(name("86 01 75")), nullptr);
  EXPECT_NE(quarn_x509generalname_geturi(name("86 01 75")), nullptr);
  EXPECT_EQ(quarn_x509generalname_gettype(nullptr), UINT32_MAX);
  const quarn_identitycode *number =
      g.own(QUARN_ASN1_IDENTITYCODE, quarn_identitycode_newpassportnumber(g.octets()));
  EXPECT_EQ(encoding_of(QUARN_ASN1_IDENTITYCODE, number), hex("82 01 41"));
  EXPECT_EQ(quarn_identitycode_gettype(number), 2u);
  const quarn_typeofbiometricdata *kind =
      g.own(QUARN_ASN1_TYPEOFBIOMETRICDATA, quarn_typeofbiometricdata_newoid(g.oid()));
  EXPECT_EQ(quarn_typeofbiometricdata_gettype(kind), 2u);
  EXPECT_EQ(quarn_typeofbiometricdata_getpredefined(kind), nullptr);
}

TEST(Copies, of_a_lone_list_under_a_shared_tag_are_of_the_first) {
  Given g;
  quarn_ac_aacontrols *controls =
      g.own(QUARN_ASN1_AC_AACONTROLS,
            quarn_ac_aacontrols_new(nullptr, nullptr, g.list(QUARN_ASN1_AC_ATTRSPEC), nullptr));
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
  EXPECT_EQ(quarn_x509algoid_hasparam(null), 1);
  EXPECT_EQ(quarn_x509algoid_isnullparam(null), 1);
  const quarn_x509algoid *absent = g.algorithm();
  EXPECT_EQ(quarn_x509algoid_hasparam(absent), 0);
  EXPECT_EQ(quarn_x509algoid_isnullparam(absent), 0);
  EXPECT_EQ(quarn_x509algoid_isnullparam(g(QUARN_ASN1_X509ALGORITHMID, "30 05 06 01 2A 04 00")), 0);
  EXPECT_EQ(quarn_pkcs10certreq_hasattrs(g(QUARN_ASN1_PKCS10CERTREQ, kRequest)), 1) << "empty";
  std::uint8_t uuid[16] = {};
  EXPECT_EQ(quarn_x500uuidpair_getsubjectuuid(nullptr, uuid), 0);
  const quarn_x500uuidpair *pair =
      g.own(QUARN_ASN1_X500UUIDPAIR,
            quarn_x500uuidpair_new(octets_of("0123456789abcdef"), octets_of("ghijklmnopqrstuv")));
  EXPECT_EQ(quarn_x500uuidpair_getsubjectuuid(pair, uuid), 1);
  EXPECT_EQ(uuid[15], 'v');
  EXPECT_EQ(quarn_x500uuidpair_getissueruuid(pair, uuid), 1);
  EXPECT_EQ(uuid[15], 'f');
}

TEST(Names, forget_their_octets_when_they_change) {
  const std::string step = "31 07 30 05 06 01 2A 05 00";
  Given g;
  quarn_x500name *name = g(QUARN_ASN1_X500NAME, "30 81 09 " + step);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, name), hex("30 81 09 " + step));
  EXPECT_EQ(quarn_x500name_addrdn(name, g(QUARN_ASN1_X500RDN, "31 00"), 1), 1);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, name), hex("30 0B " + step + "31 00"));
  void *rdn = nullptr;
  ASSERT_GT(quarn_asn1_mem_decode(octets_of("\x31"), 2, QUARN_ASN1_X500RDN, &rdn), 0);
  EXPECT_EQ(quarn_x500name_addrdn(name, Lent{rdn}, 0), 1) << "the name takes it over";
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, name), hex("30 0D " + step + "31 00 31 00"));
  EXPECT_EQ(quarn_x500name_addrdn(name, nullptr, 1), 0);
  EXPECT_EQ(quarn_x500name_addrdn(nullptr, g(QUARN_ASN1_X500RDN, "31 00"), 1), 0);
}

TEST(Names, are_taken_over_or_left_to_the_caller) {
  fail_each_allocation([](Allocation &allocation) {
    Given g;
    quarn_x500name *name = g(QUARN_ASN1_X500NAME, "30 81 00");
    for (const int copy : {1, 0}) {
      void *rdn = nullptr;
      quarn_asn1_mem_decode(octets_of("\x31"), 2, QUARN_ASN1_X500RDN, &rdn);
      const int added = quarn_x500name_addrdn(name, Lent{rdn}, copy);
      EXPECT_TRUE(added == 1 || allocation.failed());
      if (copy == 1 || added != 1) quarn_asn1_value_free(QUARN_ASN1_X500RDN, rdn);
    }
  });
}

TEST(Sorting, goes_through_contexts_and_leaves_steps_where_they_are) {
  const std::string a = "30 05 06 01 2A 05 00 ";
  const std::string b = "30 05 06 01 2B 05 00 ";
  const std::string contexts_as_given = "30 07 06 01 2B 31 02 05 00 30 07 06 01 2A 31 02 05 00 ";
  const std::string contexts_sorted = "30 07 06 01 2A 31 02 05 00 30 07 06 01 2B 31 02 05 00 ";
  Given g;
  quarn_x500name *name = g(QUARN_ASN1_X500NAME, "30 19 31 0E " + b + a + "31 07 " + a);
  EXPECT_EQ(quarn_x500name_sort(name), 1);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, name), hex("30 19 31 0E " + a + b + "31 07 " + a));
  EXPECT_EQ(quarn_x500name_sort(g.name()), 1);
  EXPECT_NE(quarn_x500name_sort(nullptr), 1);

  const auto rdn = [&](const std::string &contexts) {
    return "31 1F 30 1D 06 01 2A 05 00 31 16 30 14 31 12 " + contexts;
  };
  quarn_asn1_list *sorted = g(QUARN_ASN1_X500RDN, rdn(contexts_as_given));
  EXPECT_EQ(quarn_x500RDN_sort(sorted), 1);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500RDN, sorted), hex(rdn(contexts_sorted)));

  const auto attribute = [&](const std::string &values, const std::string &contexts) {
    return "30 24 06 01 2A 31 05 " + values + "31 18 30 16 05 00 31 12 " + contexts;
  };
  quarn_x500attribute *values =
      g(QUARN_ASN1_X500ATTRIBUTE, attribute("05 00 01 01 FF ", contexts_as_given));
  EXPECT_EQ(quarn_x500attribute_sort(values), 1);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500ATTRIBUTE, values),
            hex(attribute("01 01 FF 05 00 ", contexts_sorted)));
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
  return {type,
          octets,
          body,
          std::move(labels),
          [](const std::string &file, quarn_err_ctx *ctx) -> void * {
            return Load(reinterpret_cast<const std::uint8_t *>(file.data()),
                        static_cast<std::int64_t>(file.size()), ctx);
          },
          [](void *value, std::uint8_t *buffer, std::uint64_t *length) {
            return Body(Lent{value}, buffer, length);
          }};
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

// PEM, or without a label base64.
std::string as_text(const char *label, const std::string &octets) {
  const auto *data = reinterpret_cast<const std::uint8_t *>(octets.data());
  const auto count = static_cast<std::int64_t>(octets.size());
  char *text = nullptr;
  std::int64_t length = 0;
  label == nullptr ? quarn_base64encode(0, data, count, &text, &length)
                   : quarn_pemencode(label, data, count, &text, &length);
  const Memory<char> owned(text);
  return text == nullptr ? "" : std::string(text, static_cast<size_t>(length));
}

TEST(Loading, takes_octets_base64_and_pem_that_hold_one_object) {
  Given g;
  for (const Signed &kind : signed_kinds()) {
    const std::string octets = from_hex(kind.octets);
    std::vector<std::string> good{octets, as_text(nullptr, octets)};
    for (const char *label : kind.labels) good.push_back(as_text(label, octets));
    for (const std::string &file : good) {
      const Lent loaded = g.own(kind.type, kind.load(file, nullptr));
      EXPECT_EQ(encoding_of(kind.type, loaded), hex(kind.octets)) << file;
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
    EXPECT_EQ(quarn_x509pubkeycert_new(nullptr, 4, nullptr), nullptr);
    EXPECT_EQ(quarn_x509pubkeycert_new(octets_of("M"), -1, nullptr), nullptr);
    const Context ctx(quarn_err_ctx_new());
    EXPECT_EQ(kind.load(octets.substr(0, 9), ctx.get()), nullptr);
    EXPECT_FALSE(codes_in(ctx.get()).empty());
  }
}

TEST(Loading, survives_every_failed_allocation) {
  for (const Signed &kind : signed_kinds()) {
    const std::string octets = from_hex(kind.octets);
    for (const std::string &file :
         {octets, as_text(nullptr, octets), as_text(kind.labels.back(), octets)}) {
      fail_each_allocation([&](Allocation &allocation) {
        void *loaded = kind.load(file, nullptr);
        EXPECT_TRUE(loaded != nullptr || allocation.failed());
        quarn_asn1_value_free(kind.type, loaded);
      });
    }
  }
}

TEST(Loading, tells_the_octets_that_were_signed) {
  Given g;
  std::vector<Signed> kinds = signed_kinds();
  // As it stood in the input, whatever that was.
  kinds.push_back(kinds[0]);
  kinds.back().body = "30 80 A0 03 02 01 00 " + kCertificateBody.substr(6) + "00 00 ";
  kinds.back().octets = "30 80 " + kinds.back().body + kAlgorithm + kSignature + "00 00";
  for (const Signed &kind : kinds) {
    const std::string body = from_hex(kind.body);
    const Lent value = g(kind.type, kind.octets);
    std::uint64_t length = 0;
    EXPECT_EQ(kind.body_of(value, nullptr, &length), 1);
    EXPECT_EQ(length, body.size());
    std::string buffer(body.size(), '\0');
    auto *octets = reinterpret_cast<std::uint8_t *>(buffer.data());
    length--;
    EXPECT_EQ(kind.body_of(value, octets, &length), 0) << "too small";
    EXPECT_EQ(length, body.size());
    EXPECT_EQ(kind.body_of(value, octets, &length), 1);
    EXPECT_EQ(buffer, body);
    EXPECT_EQ(kind.body_of(value, octets, nullptr), 0);
    EXPECT_EQ(kind.body_of(nullptr, octets, &length), 0);
  }
  const Lent built = g.own(QUARN_ASN1_ATTRIBUTECERTIFICATE,
                           quarn_attributecertificate_new(
                               g(QUARN_ASN1_ATTRIBUTECERTIFICATEINFO, kAttributesBody), g.bits()));
  std::uint64_t length = 0;
  EXPECT_EQ(quarn_attributecertificate_gettbsocts(built, nullptr, &length), 1);
  EXPECT_EQ(length, from_hex(kAttributesBody).size()) << "of one that was built";
}

}  // namespace
}  // namespace quarn::test

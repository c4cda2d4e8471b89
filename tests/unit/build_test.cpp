// Constructors and getters over schemas, restrictions, defaults, and where failures are said to
// lie.
#include "core/build.h"

#include <gtest/gtest.h>

#include "core/engine.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Codes;
using test::Context;
using test::encoding_of;
using test::fail_each_allocation;
using test::growable;
using test::held_by;
using test::Octets;

class Decoded {
 public:
  Decoded(quarn_asn1_type_id id, const Octets &octets) : id_(id) {
    quarn_asn1_mem_decode(octets.data(), static_cast<std::int64_t>(octets.size()), id, &value_);
  }
  Decoded(quarn_asn1_type_id id, void *value) : id_(id), value_(value) {}
  Decoded(const Decoded &) = delete;
  Decoded &operator=(const Decoded &) = delete;
  ~Decoded() { quarn_asn1_value_free(id_, value_); }

  void *get() const { return value_; }
  Octets encoding() const { return encoding_of(id_, value_); }

 private:
  quarn_asn1_type_id id_;
  void *value_ = nullptr;
};

const Octets kOid{6, 1, 0x2A};

TEST(Build, a_record_copies_what_it_is_given_and_fills_in_defaults) {
  const Decoded oid(QUARN_ASN1_OID, kOid);
  const Decoded octets(QUARN_ASN1_OCTETSTRING, {4, 1, 'x'});
  const void *nothing = nullptr;
  const Decoded extension(QUARN_ASN1_X509EXTENSION,
                          build<void>(QUARN_ASN1_X509EXTENSION, oid.get(), nothing, octets.get()));
  EXPECT_EQ(extension.encoding(), (Octets{0x30, 6, 6, 1, 0x2A, 4, 1, 'x'}));
  EXPECT_NE(part<void>(extension.get(), 0), oid.get());
  EXPECT_EQ(has_part(extension.get(), 1), 1) << "the default is held";
  EXPECT_EQ(part<void>(nullptr, 1), nullptr);

  const Decoded constraints(QUARN_ASN1_X509BASICCONSTRAINTS,
                            build<void>(QUARN_ASN1_X509BASICCONSTRAINTS, nothing, nothing));
  EXPECT_EQ(constraints.encoding(), (Octets{0x30, 0}));
  EXPECT_EQ(has_part(constraints.get(), 1), 0);

  test::Allocation allocation;
  allocation.reset_count();
  EXPECT_EQ(build<void>(QUARN_ASN1_X509EXTENSION, oid.get(), nothing, nothing), nullptr);
  EXPECT_EQ(allocation.count(), 0u) << "what is mandatory is looked at first";
}

TEST(Build, a_choice_is_made_by_number) {
  const Decoded name(QUARN_ASN1_IA5STRING, {22, 1, 'a'});
  const auto *octets = static_cast<quarn_asn1_octetstring *>(name.get());
  const Decoded dns(QUARN_ASN1_X509GENERALNAME,
                    build_choice<void>(QUARN_ASN1_X509GENERALNAME, 2, name.get()));
  EXPECT_EQ(dns.encoding(), (Octets{0x82, 1, 'a'}));
  EXPECT_EQ(choice_number(QUARN_ASN1_X509GENERALNAME, dns.get()), 2u);
  EXPECT_EQ(choice_number(QUARN_ASN1_X509GENERALNAME, nullptr), UINT32_MAX);
  EXPECT_NE(choice_part<void>(QUARN_ASN1_X509GENERALNAME, dns.get(), 2), nullptr);
  EXPECT_EQ(choice_part<void>(QUARN_ASN1_X509GENERALNAME, dns.get(), 6), nullptr);
  EXPECT_EQ(build_choice<void>(QUARN_ASN1_X509GENERALNAME, 9, name.get()), nullptr);
  EXPECT_EQ(build_choice<void>(QUARN_ASN1_X509GENERALNAME, 2, nullptr), nullptr);

  const Decoded text(QUARN_ASN1_X500DIRSTRING,
                     build_choice<void>(QUARN_ASN1_X500DIRSTRING, 12, octets));
  EXPECT_EQ(text.encoding(), (Octets{12, 1, 'a'}));
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, text.get()), 12u);
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, nullptr), 0u);
  EXPECT_EQ(quarn_asn1_octetstring_getlength(string_part(text.get())), 1);
  EXPECT_EQ(build_choice<void>(QUARN_ASN1_X500DIRSTRING, 22, octets), nullptr);
  EXPECT_NE(
      Decoded(QUARN_ASN1_PKCS9STRING, build_choice<void>(QUARN_ASN1_PKCS9STRING, 22, octets)).get(),
      nullptr);
}

TEST(Build, strings_of_all_choices_are_one_type) {
  // An alternative that the other CHOICE does not have, and one that stands elsewhere in it.
  const Decoded ia5(QUARN_ASN1_PKCS9STRING, {22, 1, 'a'});
  const Decoded bmp(QUARN_ASN1_PKCS9STRING, {30, 2, 0, 'a'});
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, ia5.get()), 22u);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500DIRSTRING, ia5.get()), (Octets{22, 1, 'a'}));
  EXPECT_EQ(copy_of(QUARN_ASN1_X500DIRSTRING, ia5.get()), nullptr);
  const Decoded copy(QUARN_ASN1_DISPLAYTEXT, copy_of(QUARN_ASN1_DISPLAYTEXT, bmp.get()));
  EXPECT_EQ(copy.encoding(), (Octets{30, 2, 0, 'a'}));
}

TEST(Build, a_copy_is_what_the_encoding_decodes_to) {
  const Decoded string(QUARN_ASN1_AC_IETFATTRSYNTAXVALUE, {12, 1, 'a'});
  EXPECT_EQ(choice_number(QUARN_ASN1_AC_IETFATTRSYNTAXVALUE, string.get()), 2u);
  const Decoded copy(QUARN_ASN1_AC_IETFATTRSYNTAXVALUE,
                     copy_of(QUARN_ASN1_AC_IETFATTRSYNTAXVALUE, string.get()));
  EXPECT_EQ(choice_number(QUARN_ASN1_AC_IETFATTRSYNTAXVALUE, copy.get()), 0u);
}

TEST(Build, every_failed_allocation_makes_nothing) {
  fail_each_allocation([](test::Allocation &allocation) {
    const Decoded oid(QUARN_ASN1_OID, kOid);
    const Decoded octets(QUARN_ASN1_OCTETSTRING, {4, 1, 'x'});
    const void *nothing = nullptr;
    const Decoded built(QUARN_ASN1_X509EXTENSION,
                        build<void>(QUARN_ASN1_X509EXTENSION, oid.get(), nothing, octets.get()));
    const Decoded chosen(QUARN_ASN1_X509GENERALNAME,
                         build_choice<void>(QUARN_ASN1_X509GENERALNAME, 8, oid.get()));
    const bool all = built.get() != nullptr && chosen.get() != nullptr;
    EXPECT_TRUE(all || allocation.failed());
  });
}

Codes codes_of_encoding(quarn_asn1_type_id id, void *value, std::int64_t content_length) {
  const Context ctx(quarn_err_ctx_new());
  const test::Stream out = growable();
  const int result =
      content_length < 0
          ? quarn_asn1_encode(out.get(), id, value, nullptr, ctx.get())
          : quarn_asn1_encode_content(out.get(), id, value, content_length, nullptr, ctx.get());
  EXPECT_NE(result, 1);
  EXPECT_EQ(held_by(out).empty(), content_length >= 0 || id != QUARN_ASN1_PKIXATTRTYPEVAL);
  return test::codes_in(ctx.get());
}

TEST(Restriction, a_value_that_is_not_allowed_is_not_encoded) {
  const Decoded pair(QUARN_ASN1_X500ATTRTYPEDISTVAL, {0x30, 8, 6, 1, 0x55, 19, 1, 'A', 0x31, 0});
  EXPECT_EQ(quarn_asn1_content_length(QUARN_ASN1_PKIXATTRTYPEVAL, pair.get()), 8);
  EXPECT_EQ(codes_of_encoding(QUARN_ASN1_PKIXATTRTYPEVAL, pair.get(), -1), Codes{0x10274});
  EXPECT_EQ(codes_of_encoding(QUARN_ASN1_PKIXATTRTYPEVAL, pair.get(), 8), Codes{0x10274});

  const Decoded attribute(QUARN_ASN1_X500ATTRIBUTE,
                          {0x30, 10, 6, 1, 0x55, 0x31, 3, 19, 1, 'A', 0x31, 0});
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_PKCS10ATTRIBUTE, attribute.get()), -2);
  EXPECT_EQ(codes_of_encoding(QUARN_ASN1_PKCS10ATTRIBUTE, attribute.get(), -1), Codes{0x1020b});
  EXPECT_EQ(codes_of_encoding(QUARN_ASN1_PKCS10ATTRIBUTE, attribute.get(), 10), Codes{0x1027d});
}

TEST(Restriction, records_and_stages_are_the_restrictions_own) {
  const Unit unit{"build_test"};
  const Field element[] = {field("e", QUARN_ASN1_OID)};
  static const Restriction kNever{[](const void *) { return false; }, 0x102ce, true, false, true};
  const Schema schema = list("L", unit, element, restricted_by(kNever), at_least(1));
  const Type type{"l", type_of(QUARN_ASN1_X509EXKEYUSAGE).codec, &schema, 16, 0x1, 0, 0};
  const Context ctx(quarn_err_ctx_new());
  void *value = nullptr;
  Reader in(kOid.data(), kOid.size(), ctx.get());
  EXPECT_FALSE(decode_content(type, in, &value, false, 3));
  EXPECT_EQ(value, nullptr);
  ASSERT_EQ(test::codes_in(ctx.get()), Codes{0x102ce});
  EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->message, "") << "no general error has this code";
  EXPECT_EQ(quarn_err_ctx_offset(ctx.get(), 0), 3);

  const Decoded purposes(QUARN_ASN1_X509EXKEYUSAGE, {0x30, 3, 6, 1, 0x2A});
  const test::Stream out = growable();
  Writer writer(out.get(), ctx.get());
  EXPECT_TRUE(encode(type, writer, purposes.get())) << "only decoding asks";
}

TEST(Default, a_value_that_encodes_to_the_default_is_left_out) {
  static constexpr std::uint8_t kDefault[] = {0x30, 5, 6, 1, 0x2A, 5, 0};
  const Field algorithm =
      field("hash", QUARN_ASN1_X509ALGORITHMID, explicit_tag(0), default_encoding(kDefault));
  fail_each_allocation([&](test::Allocation &allocation) {
    void *made = nullptr;
    const bool taken = take_default(algorithm, &made);
    EXPECT_NE(taken, allocation.failed());
    const Decoded held(QUARN_ASN1_X509ALGORITHMID, made);
    EXPECT_TRUE(left_out(algorithm, made)) << "comparing takes no memory";
  });
  const auto is_left_out = [&algorithm](const Octets &octets) {
    return left_out(algorithm, Decoded(QUARN_ASN1_X509ALGORITHMID, octets).get());
  };
  EXPECT_TRUE(is_left_out({0x30, 0x80, 6, 1, 0x2A, 5, 0, 0, 0}));
  EXPECT_FALSE(is_left_out({0x30, 5, 6, 1, 0x2B, 5, 0}));
  EXPECT_FALSE(is_left_out({0x30, 6, 6, 1, 0x2A, 4, 1, 0}));
}

std::string path_of_decoding(quarn_asn1_type_id id, const Octets &octets, quarn_err_ctx *ctx) {
  const test::Stream in = test::memory_stream(octets);
  void *value = nullptr;
  EXPECT_NE(quarn_asn1_decode(in.get(), id, &value, nullptr, ctx), 1);
  return quarn_err_ctx_path(ctx);
}

TEST(Path, a_failure_names_the_components_it_lies_in) {
  const struct {
    quarn_asn1_type_id id;
    Octets octets;
    const char *path;
  } rows[] = {
      {QUARN_ASN1_X509EXTENSIONS,
       {0x30, 16, 0x30, 6, 6, 1, 0x2A, 4, 1, 'x', 0x30, 6, 6, 1, 0x2A, 5, 1, 'x'},
       "[1].extnValue"},
      {QUARN_ASN1_X509DISTPOINT,
       {0x30, 7, 0xA0, 5, 0xA0, 3, 0x88, 1, 0x80},
       "distributionPoint.fullName[0].registeredID"},
      {QUARN_ASN1_X509EXTENSION, {0x30, 3, 6, 1, 0x2A}, "extnValue"},
      {QUARN_ASN1_X509EXTENSION, {0x30, 6, 6, 1, 0x2A, 1, 1}, "critical"},
      {QUARN_ASN1_X509ALGORITHMID, {0x30, 4, 6, 1, 0x2A, 5}, "parameters"},
      {QUARN_ASN1_X500NAME, {0x30, 10, 0x31, 8, 0x30, 6, 2, 1, 0x55, 0x13, 1, 'A'}, "[0][0].type"},
      {QUARN_ASN1_PKCS10CERTREQ,
       {0x30, 16, 0x30, 14, 2, 1, 0, 0x30, 9, 0x31, 7, 0x30, 5, 6, 1, 0x80, 5, 0},
       "certificationRequestInfo.subject[0][0].type"},
  };
  const Context ctx(quarn_err_ctx_new());
  for (const auto &[id, octets, path] : rows) {
    EXPECT_EQ(path_of_decoding(id, octets, ctx.get()), path);
  }
  quarn_err_ctx_clear(ctx.get());
  EXPECT_EQ(path_of_decoding(QUARN_ASN1_X509EXTENSION, {0x31, 0}, ctx.get()), "")
      << "the value itself is another one";
}

}  // namespace
}  // namespace quarn::asn1

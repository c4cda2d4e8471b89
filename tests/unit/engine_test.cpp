// What octets cannot show of structured types: values, content functions, restrictions, where
// failures are said to lie.
#include "core/engine.h"

#include "core/build.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Codes;
using test::Context;
using test::encoding_of;
using test::growable;
using test::Held;
using test::hex;
using test::Octets;
using test::Stream;

TEST(Engine, alternatives_have_the_numbers_that_callers_know) {
  const struct {
    std::int64_t id;
    const char *octets;
    std::uint64_t number;
    std::uint64_t of_null;
  } rows[] = {
      {QUARN_ASN1_X509GENERALNAME, "86 01 75", 6, UINT32_MAX},
      {QUARN_ASN1_X500DIRSTRING, "13 01 75", 19, 0},
      {QUARN_ASN1_TYPEOFBIOMETRICDATA, "06 01 2A", 2, UINT32_MAX},
  };
  for (const auto &[id, octets, number, of_null] : rows) {
    const Held value(id, octets);
    const Type &type = *find_type(id);
    EXPECT_EQ(alternative_number(type, value.get()), number);
    EXPECT_NE(alternative(type, value.get(), number), nullptr);
    EXPECT_EQ(alternative(type, value.get(), number + 1), nullptr);
    EXPECT_EQ(alternative_number(type, nullptr), of_null);
    EXPECT_EQ(alternative(type, nullptr, number), nullptr);
    const auto type_id = static_cast<quarn_asn1_type_id>(id);
    const void *inside = alternative(type, value.get(), number);
    EXPECT_EQ(build_alternative(type_id, 99, inside), nullptr);
    EXPECT_EQ(build_alternative(type_id, 1ull << 32 | number, inside), nullptr);
  }
}

TEST(Engine, content_is_written_in_the_form_that_is_asked_for) {
  const struct {
    std::int64_t id;
    const char *octets;
    std::int64_t length;
    const char *content;
  } rows[] = {
      {QUARN_ASN1_X509ALGORITHMID, "30 03 06012A", 3, "06012A"},
      {QUARN_ASN1_X509ALGORITHMID, "30 03 06012A", -1, "06012A 0000"},
      {QUARN_ASN1_X509GENERALNAME, "88 01 2A", 1, "2A"},
      {QUARN_ASN1_X509DPNAME, "A0 03 88012A", 3, "88012A"},
  };
  for (const auto &[id, octets, length, content] : rows) {
    const Held value(id, octets);
    const Stream out = growable();
    std::uint64_t written = 0;
    EXPECT_EQ(quarn_asn1_encode_content(out.get(), id, value.get(), length, &written, nullptr), 1);
    EXPECT_EQ(test::held_by(out), hex(content));
    EXPECT_EQ(written, hex(content).size());
  }
}

constexpr std::int64_t kWhole = -9;

// The codes of a value that is not encoded, or whose content is not.
Codes refusal_of(std::int64_t id, void *value, std::int64_t length = kWhole) {
  const Context ctx(quarn_err_ctx_new());
  const Stream out = growable();
  const int result = length == kWhole ? quarn_asn1_encode(out.get(), id, value, nullptr, ctx.get())
                                      : quarn_asn1_encode_content(out.get(), id, value, length,
                                                                  nullptr, ctx.get());
  EXPECT_EQ(result, 0);
  return test::codes_in(ctx.get());
}

TEST(Engine, a_value_with_a_part_missing_is_refused) {
  const Value extension(type_of(QUARN_ASN1_X509EXTENSION),
                        new_record(*type_of(QUARN_ASN1_X509EXTENSION).schema));
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X509EXTENSION, extension.get()), -2);
  EXPECT_EQ(refusal_of(QUARN_ASN1_X509EXTENSION, extension.get()),
            Codes{QUARN_ASN1_ERROR_ITEM_LENGTH});
  const Value names(type_of(QUARN_ASN1_X509GENERALNAMES), quarn_asn1_list_new());
  auto *name = util::allocate<Choice>();
  name->index = 1;
  ASSERT_EQ(quarn_asn1_list_put(static_cast<quarn_asn1_list *>(names.get()), name), 1);
  EXPECT_EQ(refusal_of(QUARN_ASN1_X509GENERALNAME, name), Codes{QUARN_ASN1_ERROR_MEASURE});
  EXPECT_EQ(refusal_of(QUARN_ASN1_X509GENERALNAMES, names.get()),
            Codes{QUARN_ASN1_ERROR_ITEM_LENGTH});
}

TEST(Engine, strings_of_all_choices_are_one_type) {
  // An alternative that the other CHOICE does not have, and one that stands elsewhere in it.
  const Held ia5(QUARN_ASN1_PKCS9STRING, "16 01 61");
  const Held bmp(QUARN_ASN1_PKCS9STRING, "1E 02 0061");
  EXPECT_EQ(string_tag(QUARN_ASN1_X500DIRSTRING, ia5.get()), 22u);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500DIRSTRING, ia5.get()), hex("16 01 61"));
  EXPECT_EQ(quarn_asn1_dupobject(QUARN_ASN1_X500DIRSTRING, ia5.get(), nullptr), nullptr);
  const Held copy(QUARN_ASN1_DISPLAYTEXT,
                  quarn_asn1_dupobject(QUARN_ASN1_DISPLAYTEXT, bmp.get(), nullptr));
  EXPECT_EQ(copy.encoding(), hex("1E 02 0061"));
}

TEST(Engine, a_copy_is_what_the_encoding_decodes_to) {
  constexpr auto kId = QUARN_ASN1_AC_IETFATTRSYNTAXVALUE;
  const Held string(kId, "0C 01 61");
  EXPECT_EQ(choice_number(kId, string.get()), 2u);
  const Held copy(kId, quarn_asn1_dupobject(kId, string.get(), nullptr));
  EXPECT_EQ(choice_number(kId, copy.get()), 0u);
}

TEST(Engine, a_value_that_is_not_allowed_is_not_encoded) {
  const Held pair(QUARN_ASN1_X500ATTRTYPEDISTVAL, "30 08 060155 130141 3100");
  const Held attribute(QUARN_ASN1_X500ATTRIBUTE, "30 0A 060155 3103130141 3100");
  const Held names(QUARN_ASN1_X509NAMECONSTAINTS, "30 02 A200");
  const Held uuids(QUARN_ASN1_X500UUIDPAIR, "30 24 (04 10 (41)*16)*2");
  EXPECT_EQ(refusal_of(QUARN_ASN1_PKIXATTRTYPEVAL, pair.get()), Codes{0x10274});
  EXPECT_EQ(refusal_of(QUARN_ASN1_PKIXATTRTYPEVAL, pair.get(), 8), Codes{0x10274});
  EXPECT_EQ(refusal_of(QUARN_ASN1_PKCS10ATTRIBUTE, attribute.get()), Codes{0x1020b});
  EXPECT_EQ(refusal_of(QUARN_ASN1_PKCS10ATTRIBUTE, attribute.get(), 10), Codes{0x1027d});
  EXPECT_EQ(refusal_of(QUARN_ASN1_PKIXNAMECONSTAINTS, names.get(), 2), Codes{0x102ce});
  EXPECT_EQ(refusal_of(QUARN_ASN1_X500UUIDPAIR, uuids.get(), 35), Codes{QUARN_ERROR_RANGE});
}

TEST(Path, a_failure_names_the_components_it_lies_in) {
  const struct {
    quarn_asn1_type_id id;
    const char *octets;
    const char *path;
  } rows[] = {
      {QUARN_ASN1_X509EXTENSIONS, "30 10 3006 06012A 040178 3006 06012A 050178", "[1].extnValue"},
      {QUARN_ASN1_X509DISTPOINT, "30 07 A005 A003 880180",
       "distributionPoint.fullName[0].registeredID"},
      {QUARN_ASN1_PKCS10CERTREQ, "30 10 300E 020100 3009 3107 3005 060180 0500",
       "certificationRequestInfo.subject[0][0].type"},
      {QUARN_ASN1_X509EXTENSION, "31 00", ""},  // the value itself is another one
  };
  for (const auto &[id, octets, path] : rows) {
    const Context ctx(quarn_err_ctx_new());
    const Octets input = hex(octets);
    const Stream in = test::memory_stream(input);
    void *value = nullptr;
    EXPECT_NE(quarn_asn1_decode(in.get(), id, &value, nullptr, ctx.get()), 1);
    EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), path);
  }
}

TEST(Inspect, every_type_has_a_name_and_what_it_cannot_show_is_nothing) {
  quarn_asn1_shape shape{};
  quarn_asn1_type_description description{};
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    ASSERT_EQ(quarn_asn1_type_describe(id, &description), 1);
    EXPECT_EQ(quarn_asn1_type_find(description.name), id) << "names are distinct";
    ASSERT_EQ(quarn_asn1_type_shape(id, &shape), 1);
    EXPECT_STRNE(shape.name, "");
    EXPECT_NE(shape.kind, QUARN_ASN1_KIND_UNKNOWN) << shape.name;
    EXPECT_EQ(quarn_asn1_component_count(id, nullptr), 0);
  }
  EXPECT_EQ(quarn_asn1_type_shape(-1, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TYPE_COUNT, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TIME, nullptr), 0);
  quarn_asn1_component part{};
  const Held list(QUARN_ASN1_ANYLIST, "30 02 05 00");
  EXPECT_EQ(quarn_asn1_component_get(QUARN_ASN1_ANYLIST, list.get(), -1, &part), 0);
  EXPECT_EQ(quarn_asn1_component_get(-1, list.get(), 0, &part), 0);
}

}  // namespace
}  // namespace quarn::asn1

// Reflection: types and values as callers see them who know no type.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/values.h"

namespace quarn::asn1 {
namespace {

using test::Held;

// The value as one line: "{extnID=OBJECT IDENTIFIER critical~BOOLEAN extnValue=OCTET STRING}", with
// ~ before defaults, - for absent components, [] for lists, and name:type for a CHOICE; a tag of
// the component's own follows its name, with ! when it is explicit.
std::string name_of(const quarn_asn1_component &part) {
  if (part.tagging == QUARN_ASN1_TAGGING_NONE) return part.name;
  const char *mark = part.tagging == QUARN_ASN1_TAGGING_EXPLICIT ? "!" : "";
  return part.name + std::to_string(part.tag) + mark;
}

std::string outline(std::int64_t type_id, const void *value) {
  quarn_asn1_shape shape{};
  if (quarn_asn1_type_shape(type_id, &shape) != 1) return "?";
  if (shape.kind == QUARN_ASN1_KIND_PRIMITIVE) return shape.name;
  const std::int64_t count = quarn_asn1_component_count(type_id, value);
  std::string text;
  for (std::int64_t i = 0; i < count; i++) {
    quarn_asn1_component part{};
    EXPECT_EQ(quarn_asn1_component_get(type_id, value, i, &part), 1);
    const std::string inner = part.value == nullptr ? "" : outline(part.type_id, part.value);
    if (shape.kind == QUARN_ASN1_KIND_LIST) {
      text += " " + inner;
    } else if (shape.kind == QUARN_ASN1_KIND_RECORD) {
      text += " " + name_of(part);
      text += part.value == nullptr ? "-" : (part.is_default == 1 ? "~" : "=") + inner;
      EXPECT_TRUE(part.value != nullptr || part.optional == 1);
    } else {
      return name_of(part) + ":" + inner;
    }
  }
  return shape.kind == QUARN_ASN1_KIND_LIST ? "[" + text + " ]" : "{" + text + " }";
}

TEST(Inspect, every_kind_of_value_shows_its_components) {
  const struct {
    std::int64_t id;
    const char *octets;
    const char *expected;
  } rows[] = {
      {QUARN_ASN1_X509BASICCONSTRAINTS, "30 00", "{ cA~BOOLEAN pathLenConstraint- }"},
      {QUARN_ASN1_X509BASICCONSTRAINTS, "30 06 0101FF 020100",
       "{ cA=BOOLEAN pathLenConstraint=INTEGER }"},
      {QUARN_ASN1_X509ALGORITHMID, "30 06 06022A03 0500",
       "{ algorithm=OBJECT IDENTIFIER parameters=ANY }"},
      {QUARN_ASN1_X509GENERALNAMES, "30 0A 820161 88012A A4023000",
       "[ dNSName2:IA5String registeredID8:OBJECT IDENTIFIER directoryName4!:[ ] ]"},
      {QUARN_ASN1_X500DIRSTRING, "13 01 61", "printableString:PrintableString"},
      {QUARN_ASN1_ANYLIST, "30 04 0500 3000", "[ ANY ANY ]"},
      {QUARN_ASN1_ANYLIST, "30 00", "[ ]"},
      {QUARN_ASN1_LDAPABANDONREQUEST, "50 01 05", "INTEGER"},
      {QUARN_ASN1_RELATIVE_OID, "0D 01 05", "RELATIVE-OID"},
      {QUARN_ASN1_TIME, R"(17 0D "260101000000Z")", "utcTime:UTCTime"},
      {QUARN_ASN1_TIME, R"(18 0F "20260101000000Z")", "generalTime:GeneralizedTime"},
  };
  for (const auto &[id, octets, expected] : rows) {
    EXPECT_EQ(outline(id, Held(id, octets).get()), expected);
  }
}

TEST(Inspect, every_type_has_a_name_and_what_it_cannot_show_is_nothing) {
  quarn_asn1_shape shape{};
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    quarn_asn1_type_description type{};
    ASSERT_EQ(quarn_asn1_type_describe(id, &type), 1);
    ASSERT_EQ(quarn_asn1_type_shape(id, &shape), 1);
    EXPECT_STRNE(shape.name, "");
    EXPECT_NE(shape.kind, QUARN_ASN1_KIND_UNKNOWN) << type.name;
    EXPECT_EQ(quarn_asn1_component_count(id, nullptr), 0);
  }
  EXPECT_EQ(quarn_asn1_type_shape(-1, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TYPE_COUNT, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TIME, nullptr), 0);

  quarn_asn1_list *list = quarn_asn1_list_new();
  quarn_asn1_component part{};
  EXPECT_EQ(quarn_asn1_component_get(QUARN_ASN1_ANYLIST, list, 0, &part), 0);
  EXPECT_EQ(quarn_asn1_component_get(QUARN_ASN1_ANYLIST, list, -1, &part), 0);
  EXPECT_EQ(quarn_asn1_component_get(-1, list, 0, &part), 0);
  quarn_asn1_anylist_free(list);
}

}  // namespace
}  // namespace quarn::asn1

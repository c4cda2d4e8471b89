// Reflection: types and values as callers see them who know no type.
#include <gtest/gtest.h>

#include <tuple>

#include "tests/unit/values.h"

namespace quarn::asn1 {
namespace {

using test::Held;

TEST(Inspect, components_show_what_they_are) {
  const struct {
    std::int64_t id;
    const char *octets;
    quarn_asn1_component part;
  } rows[] = {
      {QUARN_ASN1_X509BASICCONSTRAINTS,
       "30 00",
       {"cA", nullptr, QUARN_ASN1_BOOLEAN, 1, 1, QUARN_ASN1_TAGGING_NONE, 0}},
      {QUARN_ASN1_X509BASICCONSTRAINTS,
       "30 03 0101FF",
       {"cA", nullptr, QUARN_ASN1_BOOLEAN, 1, 0, QUARN_ASN1_TAGGING_NONE, 0}},
      {QUARN_ASN1_X509GENERALNAME,
       "88012A",
       {"registeredID", nullptr, QUARN_ASN1_OID, 0, 0, QUARN_ASN1_TAGGING_IMPLICIT, 8}},
      {QUARN_ASN1_X509GENERALNAME,
       "A4023000",
       {"directoryName", nullptr, QUARN_ASN1_X500NAME, 0, 0, QUARN_ASN1_TAGGING_EXPLICIT, 4}},
      {QUARN_ASN1_X500DIRSTRING,
       "13 01 61",
       {"printableString", nullptr, QUARN_ASN1_PRINTABLESTRING, 0, 0, QUARN_ASN1_TAGGING_NONE, 0}},
      {QUARN_ASN1_TIME,
       R"(18 0F "20260101000000Z")",
       {"generalTime", nullptr, QUARN_ASN1_GENTIME, 0, 0, QUARN_ASN1_TAGGING_NONE, 0}},
  };
  for (const auto &[id, octets, expected] : rows) {
    const Held value(id, octets);
    quarn_asn1_component part{};
    EXPECT_EQ(quarn_asn1_component_get(id, value.get(), 0, &part), 1);
    EXPECT_STREQ(part.name, expected.name);
    EXPECT_NE(part.value, nullptr);
    EXPECT_EQ(part.type_id, expected.type_id);
    EXPECT_EQ(std::tie(part.optional, part.is_default, part.tagging, part.tag),
              std::tie(expected.optional, expected.is_default, expected.tagging, expected.tag));
  }
}

TEST(Inspect, every_type_has_a_name_and_what_it_cannot_show_is_nothing) {
  quarn_asn1_shape shape{};
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    ASSERT_EQ(quarn_asn1_type_shape(id, &shape), 1);
    EXPECT_STRNE(shape.name, "");
    EXPECT_NE(shape.kind, QUARN_ASN1_KIND_UNKNOWN) << shape.name;
    EXPECT_EQ(quarn_asn1_component_count(id, nullptr), 0);
  }
  EXPECT_EQ(quarn_asn1_type_shape(-1, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TYPE_COUNT, &shape), 0);
  EXPECT_EQ(quarn_asn1_type_shape(QUARN_ASN1_TIME, nullptr), 0);
  const Held list(QUARN_ASN1_ANYLIST, "30 00");
  quarn_asn1_component part{};
  EXPECT_EQ(quarn_asn1_component_get(QUARN_ASN1_ANYLIST, list.get(), 0, &part), 0);
  EXPECT_EQ(quarn_asn1_component_get(QUARN_ASN1_ANYLIST, list.get(), -1, &part), 0);
  EXPECT_EQ(quarn_asn1_component_get(-1, list.get(), 0, &part), 0);
}

}  // namespace
}  // namespace quarn::asn1

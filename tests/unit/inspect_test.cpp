// Reflection where there is nothing to show. What is shown is seen in docs/decoding.md and by the
// checks of the command.
#include "tests/unit/values.h"

namespace quarn::asn1 {
namespace {

using test::Held;

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

// What octets cannot show of structured types: values, content functions, lengths, schemas.
#include <gtest/gtest.h>

#include "core/engine.h"
#include "core/schema_check.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Context;
using test::Held;
using test::Stream;

TEST(Engine, a_default_is_held_and_an_absent_component_is_null) {
  const Held value(QUARN_ASN1_X509BASICCONSTRAINTS, "30 00");
  EXPECT_EQ(quarn_asn1_boolean_istrue(static_cast<quarn_asn1_boolean *>(component(value.get(), 0))),
            0);
  EXPECT_EQ(component(value.get(), 1), nullptr);
  const Held tree(QUARN_ASN1_X509GENERALTREE, "30 03 820161");
  std::int64_t minimum = -1;
  quarn_asn1_integer_getlong(static_cast<quarn_asn1_integer *>(component(tree.get(), 1)), &minimum);
  EXPECT_EQ(minimum, 0);
}

TEST(Engine, alternatives_have_the_numbers_that_callers_know) {
  const struct {
    std::int64_t id;
    const char *octets;
    std::uint64_t number;
    std::uint64_t of_null;
  } rows[] = {
      {QUARN_ASN1_X509GENERALNAME, "86 01 75", 6, UINT32_MAX},
      {QUARN_ASN1_X500DIRSTRING, "13 01 75", 19, 0},
      {QUARN_ASN1_IDENTITYCODE, "82 01 41", 2, UINT32_MAX},
      {QUARN_ASN1_TYPEOFBIOMETRICDATA, "02 01 05", 1, UINT32_MAX},
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
    const Stream out = test::growable();
    std::uint64_t written = 0;
    EXPECT_EQ(quarn_asn1_encode_content(out.get(), id, value.get(), length, &written, nullptr), 1);
    EXPECT_EQ(test::held_by(out), test::hex(content));
    EXPECT_EQ(written, test::hex(content).size());
  }
  void *value = &value;
  const Stream in = test::memory_stream({0x61});
  EXPECT_EQ(quarn_asn1_decode_content(in.get(), QUARN_ASN1_X509GENERALNAME, &value, 1, 1, nullptr,
                                      nullptr),
            0);
  EXPECT_EQ(value, nullptr) << "content alone does not tell the alternative";
}

TEST(Engine, a_value_with_a_part_missing_is_refused) {
  Value extension(type_of(QUARN_ASN1_X509EXTENSION),
                  new_record(*type_of(QUARN_ASN1_X509EXTENSION).schema));
  Value names(type_of(QUARN_ASN1_X509GENERALNAMES), quarn_asn1_list_new());
  const auto codes_of = [](std::int64_t id, void *value) {
    const Context ctx(quarn_err_ctx_new());
    const Stream out(quarn_stream_new_mem(0, nullptr));
    EXPECT_EQ(quarn_asn1_encode(out.get(), id, value, nullptr, ctx.get()), 0);
    return test::codes_in(ctx.get());
  };
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X509EXTENSION, extension.get()), -2);
  EXPECT_EQ(codes_of(QUARN_ASN1_X509EXTENSION, extension.get()),
            std::vector<int>{QUARN_ASN1_ERROR_ITEM_LENGTH});
  auto *name = util::allocate<Choice>();
  name->index = 1;
  ASSERT_EQ(quarn_asn1_list_put(static_cast<quarn_asn1_list *>(names.get()), name), 1);
  EXPECT_EQ(codes_of(QUARN_ASN1_X509GENERALNAME, name), std::vector<int>{QUARN_ASN1_ERROR_MEASURE});
  EXPECT_EQ(codes_of(QUARN_ASN1_X509GENERALNAMES, names.get()),
            std::vector<int>{QUARN_ASN1_ERROR_ITEM_LENGTH});
}

// Schemas that no decoder could follow are refused when the registry is compiled.
constexpr Codec kNothing{};
constexpr Unit kUnit{"engine_test"};
constexpr Field kEitherTag[] = {field("a", QUARN_ASN1_BOOLEAN, implicit_tag(0)),
                                field("b", QUARN_ASN1_BOOLEAN)};
constexpr Schema kEither = choice("Either", kUnit, kEitherTag);

struct Rows {
  Type rows[QUARN_ASN1_ANYSET + 1];
};
constexpr Rows small_registry() {
  Rows made{};
  for (Type &row : made.rows) row = {"", &kNothing, nullptr, 0, 0, 0, -1};
  made.rows[QUARN_ASN1_BOOLEAN].tag_number = 1;
  made.rows[QUARN_ASN1_INTEGER].tag_number = 2;
  made.rows[QUARN_ASN1_UTCTIME].tag_number = 23;
  made.rows[QUARN_ASN1_BOOLEAN].form = made.rows[QUARN_ASN1_INTEGER].form = 1;
  for (const auto id : {QUARN_ASN1_ANYLIST, QUARN_ASN1_ANYSET}) {
    made.rows[id].tag_number = 16;
    made.rows[id].form = 0;
  }
  made.rows[QUARN_ASN1_OID].schema = &kEither;  // stands for a CHOICE
  return made;
}
constexpr Rows kRows = small_registry();
constexpr auto kChoiceId = QUARN_ASN1_OID;

template <typename... Fields>
constexpr bool is_record(Fields... fields) {
  const Field all[] = {fields...};
  return SchemaCheck(kRows.rows).well_formed(record("", kUnit, all));
}

constexpr Field kBool = field("", QUARN_ASN1_BOOLEAN);
constexpr Field kBoolLater = field("", QUARN_ASN1_BOOLEAN, optional());
constexpr Field kInt = field("", QUARN_ASN1_INTEGER);
constexpr Field kIntLater = field("", QUARN_ASN1_INTEGER, optional());

static_assert(is_record(kIntLater, kBool));
static_assert(is_record(kBoolLater, kInt, kBoolLater), "a mandatory component parts the two");
static_assert(!is_record(kBoolLater, kBool));
static_assert(!is_record(kBoolLater, kIntLater, kBoolLater));
static_assert(!is_record(field("", QUARN_ASN1_TIME, optional()), field("", QUARN_ASN1_UTCTIME)));
static_assert(!is_record(kBoolLater, field("", kChoiceId)));
static_assert(!is_record(field("", kChoiceId, optional()),
                         field("", QUARN_ASN1_INTEGER, implicit_tag(0))));
static_assert(!is_record(field("", QUARN_ASN1_ANY, optional())), "an open type is decoded whole");
static_assert(!is_record(field("", kChoiceId, implicit_tag(1))), "a CHOICE has no tag to replace");
static_assert(is_record(field("", kChoiceId, explicit_tag(1))));
static_assert(!is_record(field("", QUARN_ASN1_INTEGER, defaults_to(true))));

constexpr Field shared(quarn_asn1_type_id type) {
  return field("", type, implicit_tag(0), primitive_form(), optional());
}
static_assert(is_record(shared(QUARN_ASN1_ANYLIST), shared(QUARN_ASN1_ANYLIST)));
static_assert(!is_record(shared(QUARN_ASN1_ANYLIST), shared(QUARN_ASN1_ANYSET)));
static_assert(!is_record(shared(QUARN_ASN1_ANYLIST),
                         field("", QUARN_ASN1_ANYLIST, implicit_tag(0), optional())));
static_assert(!is_record(shared(QUARN_ASN1_BOOLEAN)), "only lists and records have two forms");
static_assert(is_record(field("", QUARN_ASN1_BOOLEAN, written_tag(4))));
static_assert(!is_record(field("", kChoiceId, written_tag(4))));
constexpr std::uint8_t kTooLong[kMostDefaultOctets + 1] = {};
static_assert(!is_record(field("", QUARN_ASN1_ANYLIST, default_encoding(kTooLong))));
constexpr Field kSigned[] = {field("body", QUARN_ASN1_ANYLIST), field("", QUARN_ASN1_BITSTRING)};
static_assert(!SchemaCheck(kRows.rows).well_formed(record("", kUnit, kSigned, keep_body())),
              "a body has components");
static_assert(!SchemaCheck(kRows.rows).well_formed(record("", kUnit, kSigned, keep_encoding())));

}  // namespace
}  // namespace quarn::asn1

// Schemas that no decoder could follow are refused when the registry is compiled; so is this file
// when one of them is not.
#include "core/schema_check.h"

namespace quarn::asn1 {
namespace {

constexpr Unit kUnit{"schema_test"};
constexpr auto kChoice = QUARN_ASN1_OID;  // stands for one here
constexpr Field kAlternatives[] = {field("a", QUARN_ASN1_BOOLEAN, implicit_tag(0)),
                                   field("b", QUARN_ASN1_BOOLEAN)};
constexpr Schema kChoiceSchema = choice("Choice", kUnit, kAlternatives);

struct Rows {
  Type rows[QUARN_ASN1_ANYSET + 1] = {};

  constexpr Rows() {
    for (Type &row : rows) row.form = -1;
    rows[QUARN_ASN1_BOOLEAN].tag_number = 1;
    rows[QUARN_ASN1_INTEGER].tag_number = 2;
    rows[QUARN_ASN1_OCTETSTRING].tag_number = 4;
    rows[QUARN_ASN1_UTCTIME].tag_number = 23;
    rows[QUARN_ASN1_BOOLEAN].form = rows[QUARN_ASN1_INTEGER].form = 1;
    rows[QUARN_ASN1_ANYLIST].tag_number = rows[QUARN_ASN1_ANYSET].tag_number = 16;
    rows[QUARN_ASN1_ANYLIST].form = rows[QUARN_ASN1_ANYSET].form = 0;
    rows[kChoice].schema = &kChoiceSchema;
  }
};
constexpr Rows kRows;

constexpr bool good(const Schema &schema) {
  return SchemaCheck(kRows.rows).well_formed(schema);
}
template <typename... Fields>
constexpr bool good_record(Fields... fields) {
  const Field all[] = {fields...};
  return good(record("", kUnit, all));
}
template <typename... Fields>
constexpr bool good_choice(Fields... fields) {
  const Field all[] = {fields...};
  return good(choice("", kUnit, all));
}
template <typename... Notes>
constexpr Field of(quarn_asn1_type_id type, Notes... notes) {
  return field("", type, notes...);
}

constexpr Field kBoolean = of(QUARN_ASN1_BOOLEAN);
constexpr Field kMaybe = of(QUARN_ASN1_BOOLEAN, optional());
constexpr Field kInteger = of(QUARN_ASN1_INTEGER);

// Whatever comes next, one component can be meant.
static_assert(good_record(kMaybe, kInteger, kMaybe), "a mandatory component parts the two");
static_assert(!good_record(kMaybe, kBoolean));
static_assert(!good_record(of(QUARN_ASN1_TIME, optional()), of(QUARN_ASN1_UTCTIME)));
static_assert(!good_record(kMaybe, of(kChoice)));
static_assert(!good_record(of(kChoice, optional()), of(QUARN_ASN1_INTEGER, implicit_tag(0))));
static_assert(!good_record(of(QUARN_ASN1_ANY, optional())), "an open type is decoded whole");
static_assert(!good_record(kMaybe, of(QUARN_ASN1_BOOLEAN, selected_by(1))), "no number before it");
static_assert(good_record(kInteger, of(QUARN_ASN1_BOOLEAN, selected_by(1))));
static_assert(good_choice(kBoolean, kInteger));
static_assert(!good_choice(kBoolean, of(kChoice)));
static_assert(!good_choice(kBoolean, of(QUARN_ASN1_ANY)));

// Tags replace tags, and defaults are of their types.
static_assert(!good_record(of(kChoice, implicit_tag(1))), "a CHOICE has no tag to replace");
static_assert(good_record(of(kChoice, explicit_tag(1))));
static_assert(!good_record(of(QUARN_ASN1_INTEGER, defaults_to(true))));
constexpr std::uint8_t kTooLong[kMostDefaultOctets + 1] = {};
static_assert(!good_record(of(QUARN_ASN1_ANYLIST, default_encoding(kTooLong))));
static_assert(!good_record(of(QUARN_ASN1_INTEGER, octets(8))), "only strings have a size");

// Two lists may share a tag when both say so.
constexpr Field shared(quarn_asn1_type_id type) {
  return of(type, implicit_tag(0), primitive_form(), optional());
}
static_assert(good_record(shared(QUARN_ASN1_ANYLIST), shared(QUARN_ASN1_ANYLIST)));
static_assert(!good_record(shared(QUARN_ASN1_ANYLIST), shared(QUARN_ASN1_ANYSET)));
static_assert(!good_record(shared(QUARN_ASN1_BOOLEAN)), "only lists and records have two forms");

// What is kept or decoded apart has its place.
constexpr Field kSigned[] = {of(QUARN_ASN1_ANYLIST), of(QUARN_ASN1_BITSTRING)};
static_assert(!good(record("", kUnit, kSigned, keep_body())), "a body has components");
static_assert(!good(record("", kUnit, kSigned, keep_encoding())));
constexpr Field content_under(std::uint16_t tag) {
  return of(QUARN_ASN1_OCTETSTRING, explicit_tag(tag), content());
}
static_assert(good_record(kInteger, content_under(0)));
static_assert(!good_record(kInteger, content_under(0), content_under(1)));

}  // namespace
}  // namespace quarn::asn1

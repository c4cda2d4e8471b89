#include "cli/rules.h"

#include <cstddef>
#include <iterator>

namespace quarn::cli {

namespace {

constexpr RuleText kRules[] = {
    {Rule::whole_header, "whole-header", "8.1.1.1", "all octets of an identifier and length"},
    {Rule::length_fits, "length-fits", "8.1.3.3", "as much content as the length says"},
    {Rule::end_of_contents, "end-of-contents", "8.1.5", "the end-of-contents octets 00 00"},
    {Rule::no_end_of_contents, "no-end-of-contents", "8.1.5",
     "end-of-contents octets only after content of indefinite length"},
    {Rule::primitive_length, "primitive-length", "8.1.3.2",
     "a definite length; only constructed elements may leave it open"},
    {Rule::reserved_length, "reserved-length", "8.1.3.5", "00 to 7F, 80, or 81 to FE"},
    {Rule::tag_limit, "tag-limit", "8.1.2.4",
     "a number that fits 64 bits, a limit of this command"},
    {Rule::nothing_after, "nothing-after", "8.1.1.1", "nothing after the end of the encoding"},
    {Rule::short_tag, "short-tag", "8.1.2.2", "one identifier octet for tag numbers below 31"},
    {Rule::minimal_tag, "minimal-tag", "8.1.2.4.2", "a tag number without leading octets 80"},
    {Rule::reserved_tag, "reserved-tag", "8.1.5", "another tag; [UNIVERSAL 0] is end-of-contents"},
    {Rule::form, "form", "8.1.2.5", "the other form"},
    {Rule::segment, "segment", "8.7.3.2",
     "OCTET STRING as segments, and BIT STRING in a BIT STRING"},
    {Rule::definite_length, "definite-length", "10.1", "the definite form of length"},
    {Rule::minimal_length, "minimal-length", "10.1", "as few length octets as can be"},
    {Rule::primitive_string, "primitive-string", "10.2", "the primitive form of strings"},
    {Rule::set_order, "set-order", "10.3",
     "the components of a SET in the order of their tags, or all in that of their encodings "
     "(11.6)"},
    {Rule::set_of_order, "set-of-order", "11.6",
     "the components of a SET OF in ascending order of their encodings"},
    {Rule::default_value, "default-value", "11.5", "nothing, which stands for the default"},
    {Rule::boolean_length, "boolean-length", "8.2.1", "one octet of content"},
    {Rule::boolean_true, "boolean-true", "11.1", "FF for TRUE, 00 for FALSE"},
    {Rule::integer_octets, "integer-octets", "8.3.1", "at least one octet of content"},
    {Rule::integer_minimal, "integer-minimal", "8.3.2",
     "first nine bits that are neither all 0 nor all 1"},
    {Rule::bit_count, "bit-count", "8.6.2.2", "0 to 7 unused bits"},
    {Rule::bit_count_missing, "bit-count-missing", "8.6.2.1",
     "a first octet that counts the unused bits"},
    {Rule::bit_count_empty, "bit-count-empty", "8.6.2.3", "no unused bits in an empty string"},
    {Rule::bit_padding, "bit-padding", "11.2.1", "0 in each unused bit"},
    {Rule::named_bits, "named-bits", "11.2.2", "named bits without zeros at the end"},
    {Rule::null_content, "null-content", "8.8.2", "no content"},
    {Rule::oid_arcs, "oid-arcs", "8.19.2",
     "at least one arc, each complete and without leading octets 80"},
    {Rule::relative_oid_arcs, "relative-oid-arcs", "8.20.2",
     "at least one arc, each complete and without leading octets 80"},
    {Rule::real_form, "real-form", "8.5", "one of the forms of REAL"},
    {Rule::real_canonical, "real-canonical", "11.3",
     "base 2 with an odd mantissa, no scaling and no superfluous octets, or decimal NR3 without "
     "superfluous digits"},
    {Rule::alphabet, "alphabet", "8.23", "only characters of the type, which X.680, 41 lists"},
    {Rule::character_width, "character-width", "8.23",
     "two octets for each character of a "
     "BMPString, four for each of a UniversalString"},
    {Rule::utf8, "utf8", "8.23", "UTF-8, each character in as few octets as can be"},
    {Rule::time_form, "time-form", "8.25",
     "a time that exists, in a form that X.680, 46 and 47 describe"},
    {Rule::utctime_zone, "utctime-zone", "11.8.1", "Z at the end"},
    {Rule::utctime_seconds, "utctime-seconds", "11.8.2", "seconds"},
    {Rule::gentime_zone, "gentime-zone", "11.7.1", "Z at the end"},
    {Rule::gentime_seconds, "gentime-seconds", "11.7.2", "minutes and seconds"},
    {Rule::gentime_fraction, "gentime-fraction", "11.7.3", "a fraction without trailing zeros"},
    {Rule::gentime_point, "gentime-point", "11.7.4", "a full stop before the fraction"},
};

constexpr bool in_order() {
  for (std::size_t i = 0; i < std::size(kRules); i++) {
    if (static_cast<std::size_t>(kRules[i].rule) != i) return false;
  }
  return static_cast<std::size_t>(Rule::gentime_point) + 1 == std::size(kRules);
}
static_assert(in_order(), "the table is indexed by the rule");

}  // namespace

const RuleText &text_of(Rule rule) {
  return kRules[static_cast<std::size_t>(rule)];
}

}  // namespace quarn::cli

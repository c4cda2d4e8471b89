// The rules that an encoding can break: those of BER, which make it unreadable or doubtful, and
// those that DER adds. Each has a name for programs, its clause of X.690 (2021) and a text for
// people.
#ifndef QUARN_CLI_RULES_H
#define QUARN_CLI_RULES_H

namespace quarn::cli {

enum class Rule {
  whole_header,
  length_fits,
  end_of_contents,
  no_end_of_contents,
  primitive_length,
  reserved_length,
  tag_limit,
  nothing_after,
  short_tag,
  minimal_tag,
  reserved_tag,
  form,
  segment,
  definite_length,
  minimal_length,
  primitive_string,
  set_order,
  set_of_order,
  default_value,
  boolean_length,
  boolean_true,
  integer_octets,
  integer_minimal,
  bit_count,
  bit_count_missing,
  bit_count_empty,
  bit_padding,
  named_bits,
  null_content,
  oid_arcs,
  relative_oid_arcs,
  real_form,
  real_canonical,
  alphabet,
  character_width,
  utf8,
  time_form,
  utctime_zone,
  utctime_seconds,
  gentime_zone,
  gentime_seconds,
  gentime_fraction,
  gentime_point
};

struct RuleText {
  Rule rule;
  const char *name;
  const char *clause;
  const char *text;  // what should have been there
};

const RuleText &text_of(Rule rule);

}  // namespace quarn::cli

#endif

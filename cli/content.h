// What DER asks of the content of primitive elements, as far as the tag alone tells the type.
#ifndef QUARN_CLI_CONTENT_H
#define QUARN_CLI_CONTENT_H

#include <functional>
#include <string>

#include "cli/rules.h"
#include "cli/text.h"
#include "quarn_asn1/core.h"

namespace quarn::cli {

// Takes a departure from a rule: where in the content it is, and what is there.
using Departure = std::function<void(Rule rule, std::uint64_t at, const std::string &found)>;

// Judges the content of a primitive element of a universal type. Nothing is asked of types whose
// content is free or has to be known from a schema.
void check_content(std::uint64_t tag_number, Octets content, const Departure &departure);

}  // namespace quarn::cli

#endif

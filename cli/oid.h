// Object identifiers: dotted text and names.
#ifndef QUARN_CLI_OID_H
#define QUARN_CLI_OID_H

#include <optional>
#include <string>
#include <string_view>

#include "cli/text.h"

namespace quarn::cli {

struct OidName {
  const char *dotted;
  const char *name;
  const char *description;  // empty when the name says it
};

// Null when the identifier has no name here.
const OidName *find_oid(std::string_view dotted);

// Dotted text of the content octets of an OBJECT IDENTIFIER; nothing when they are none, or when an
// arc has more than 64 bits.
std::optional<std::string> dotted_oid(Octets content);
// The same of a RELATIVE-OID.
std::optional<std::string> dotted_relative_oid(Octets content);

}  // namespace quarn::cli

#endif

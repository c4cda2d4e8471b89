// The value of a primitive element, as a person wants to read it.
#ifndef QUARN_CLI_VALUE_H
#define QUARN_CLI_VALUE_H

#include <string>

#include "cli/walk.h"

namespace quarn::cli {

// One line, coloured, of at most `width` characters of content (0: all of it); empty when there is
// nothing to show.
std::string value_text(const quarn_asn1_header &header, Octets content, std::size_t width);

// Whether content can be that of a primitive element with this tag: what a value of the type must
// look like, for the universal types that are commonly found inside strings.
bool plausible(const quarn_asn1_header &header, Octets content);

}  // namespace quarn::cli

#endif

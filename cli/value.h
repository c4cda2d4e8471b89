// The value of a primitive element, as a person wants to read it.
#ifndef QUARN_CLI_VALUE_H
#define QUARN_CLI_VALUE_H

#include <optional>
#include <string>

#include "cli/walk.h"

namespace quarn::cli {

// One line, coloured, of at most `width` characters of content (0: all of it); empty when there is
// nothing to show.
std::string value_text(const quarn_asn1_header &header, Octets content, std::size_t width);

// Where the encodings inside the element that the walk stands at start in its content: it is an
// OCTET STRING or a BIT STRING that holds nothing else, and they make sense. Nothing when it holds
// none.
std::optional<std::uint64_t> encapsulated(const Walk &walk);

}  // namespace quarn::cli

#endif

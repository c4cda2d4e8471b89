// Values without components, as text for people and as JSON.
#ifndef QUARN_CLI_LEAF_H
#define QUARN_CLI_LEAF_H

#include <string>

#include "cli/typed.h"

namespace quarn::cli {

// One line, coloured; long values are cut after `width` characters, 0 shows them whole. Of an ANY
// the caller takes care.
std::string leaf_text(const Node &node, std::size_t width);
// A JSON value.
std::string leaf_json(const Node &node);

// A Name on one line (RFC 4514). What would not be plainly visible is escaped as octets.
std::string name_text(const Node &name);

// An object identifier as a JSON value.
std::string oid_json(const std::string &dotted);

// Lower-case digits without blanks.
std::string plain_hex(Octets octets);

}  // namespace quarn::cli

#endif

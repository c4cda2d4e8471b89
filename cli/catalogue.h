// What the types are made of, and where they stand: docs/types.md, for the command.
#ifndef QUARN_CLI_CATALOGUE_H
#define QUARN_CLI_CATALOGUE_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quarn::cli {

struct Component {
  const char *name;  // empty for the element of a list
  std::int64_t type_id;
  const char *tag;       // "[0] EXPLICIT", or empty
  const char *presence;  // "OPTIONAL", "DEFAULT 0", or empty
};

struct Definition {
  const char *name;
  const char *header;
  const char *standard;   // may be empty
  const char *text;       // paragraphs
  const char *asn1;       // lines
  const char *functions;  // names with blanks between them
  std::span<const Component> components;
};

// Null for universal and open types.
const Definition *definition_of(std::int64_t type_id);

// By its name, of which upper and lower case are the same; null when there is none.
const Definition *definition_named(const std::string &name);

// The ids that a definition serves. One that is only part of others has an id that callers do not
// know, from QUARN_ASN1_TYPE_COUNT on.
std::vector<std::int64_t> ids_of(const Definition &definition);

// "Certificate.tbsCertificate" for each place where one of the types stands.
std::vector<std::string> places_of(const std::vector<std::int64_t> &type_ids);

}  // namespace quarn::cli

#endif

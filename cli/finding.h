// A departure from DER, as `quarn check` reports it.
#ifndef QUARN_CLI_FINDING_H
#define QUARN_CLI_FINDING_H

#include <cstdint>
#include <string>

#include "cli/rules.h"

namespace quarn::cli {

struct Finding {
  Rule rule;
  std::uint64_t offset;  // from the start of the object
  std::string path;
  std::string found;
  std::string expected = text_of(rule).text;
  std::string clause = text_of(rule).clause;
};

}  // namespace quarn::cli

#endif

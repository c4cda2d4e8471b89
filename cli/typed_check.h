// What DER asks of a value beyond what universal tags tell: its type says which components hold
// their DEFAULT, which bits have names, and what stands under tags of its own.
//
//     30 0C | 06 03 55 1D 13 | 01 01 00 | 04 02 30 00     elements
//             extnID           critical   extnValue       components; critical is FALSE by default
//
// The value is walked beside the elements that it was decoded from. A default is always there in
// the value; an element with its tag tells that it was written. Where elements and components do
// not go together, which irregular types may do, nothing is said of what is left of their record.
#ifndef QUARN_CLI_TYPED_CHECK_H
#define QUARN_CLI_TYPED_CHECK_H

#include <cstdint>
#include <map>
#include <vector>

#include "cli/finding.h"
#include "cli/open.h"

namespace quarn::cli {

struct TypedFindings {
  std::vector<Finding> findings;
  // Strings whose type tells that they hold encodings: from the offset of the string to the octets
  // of its content that come before these.
  std::map<std::uint64_t, std::uint64_t> opened;
};

// Judges a value against all octets that it was decoded from. What universal tags tell is left out.
// Nothing inside strings is judged unless `dig` is set.
TypedFindings judge_typed(const Decoded &value, Octets octets, bool dig);

}  // namespace quarn::cli

#endif

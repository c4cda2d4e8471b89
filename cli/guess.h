// Which type an encoding is of: named by the caller, told by a PEM label, or found by trying.
#ifndef QUARN_CLI_GUESS_H
#define QUARN_CLI_GUESS_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "cli/diagnosis.h"
#include "cli/typed.h"

namespace quarn::cli {

// A type that octets are not of, and how far its decoder came.
struct Refusal {
  std::int64_t type_id;
  std::int64_t offset;
};

struct Guess {
  Decoded value;                     // null when nothing fits
  std::vector<std::int64_t> others;  // types that fit too
  std::vector<Refusal> failed;       // types that do not, the nearest first
};

// Tries the types that stand alone in files. `label` is that of the PEM block, or empty.
Guess guess(Octets octets, const std::string &label);

// The octets as a value of the type that the label tells, or that they are of beyond doubt; null
// when there is none.
Decoded recognise(Octets octets, const std::string &label);

// The failure of octets that fit none of the types tried.
Failure no_type(const Guess &guess, Octets octets);

// The type that should have stood where a decoder failed: that of the first record which is about a
// type, for which layers leave the code of the component that failed.
std::string expected_of(std::int64_t type_id, const std::vector<Record> &records);

// The octets as a value of one type. Throws Failure with the place of the fault.
Decoded decode_as(std::int64_t type_id, Octets octets);

// The id that a user means: a number, a name of the registry, or a name in ASN.1. Throws
// UsageError, with a near name when there is one.
std::int64_t type_named(const std::string &command, const std::string &name);

// The same; -1 when there is none.
std::int64_t find_type(const std::string &name);

}  // namespace quarn::cli

#endif

// The types that stand alone in files, and how each is told: by the label of a PEM block, or by the
// octets themselves.
#ifndef QUARN_CLI_CANDIDATES_H
#define QUARN_CLI_CANDIDATES_H

#include <cstdint>
#include <span>
#include <string>

#include "cli/typed.h"

namespace quarn::cli {

// What a value that was decoded as a type says about that type: `sure` leaves no room for another,
// as what it demands is met by no accident; `likely` does; `no` is met by too many other things.
enum class Sight { no, likely, sure };

struct Candidate {
  std::int64_t type_id;
  Sight (*sight)(const Node &value);
  const char *labels;  // of PEM blocks, separated by commas

  bool has_label(const std::string &label) const;
};

// In the order in which they are tried.
std::span<const Candidate> candidates();

}  // namespace quarn::cli

#endif

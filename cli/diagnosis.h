// What is wrong with an encoding: the first fault with its place, the octets around it, and the
// records that the library leaves.
#ifndef QUARN_CLI_DIAGNOSIS_H
#define QUARN_CLI_DIAGNOSIS_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "cli/failure.h"
#include "cli/text.h"
#include "cli/walk.h"
#include "quarn_util.h"

namespace quarn::cli {

// One record of an error context.
struct Record {
  int code;
  std::string message;
  std::string unit;
  int line;
  std::int64_t offset;  // -1 when unknown
};

// A type that an encoding was tried as, and is not of.
struct Tried {
  std::string type;
  std::uint64_t offset;
  std::string path;
  std::string reason;
};

struct Report {
  Exit code = kBadInput;     // or kLimit: good, but more than the library takes
  std::uint64_t offset = 0;  // from the start of the object
  std::string path;
  std::string found;
  std::string expected;
  std::uint64_t window_offset = 0;
  std::vector<std::uint8_t> window;  // octets around the offset
  std::vector<Record> records;       // innermost failure first
  std::vector<Tried> tried;          // the nearest first
};

std::vector<Record> records_of(const quarn_err_ctx *ctx);
// The innermost failure: before it may stand records of what was noted and accepted further in
// front. There is at least one record.
const Record &innermost(const std::vector<Record> &records);

// The failure of octets that should have been one encoding. When a walk over them finds no fault,
// `otherwise` says why they are refused.
Failure diagnose(Octets octets, const std::string &otherwise);
// The same for a walk that stands at a fault.
Failure failure_at(const Walk &walk, Octets octets);

// The same for a report that a caller has made; what it lacks of window and records is added.
Failure failure_of(Report report, Octets octets, const std::string &message = "");
// The same for a report that lacks nothing.
Failure failure_of(Report report, const std::string &message = "");
// Adds the window of octets, which are those behind the first `before` ones of the object.
void add_window(Report &report, Octets octets, std::uint64_t before);
// Puts the report at the element in which an offset of well-formed octets lies: its own offset and
// path, and its tag as what was found.
void place_at(Report &report, Octets octets, std::uint64_t offset);
// Says that the limit of nesting is the fault, in place of what each level around it says.
void blame_depth(Report &report);

// Lines of text below the message, indented, without a last line end.
std::string details(const Report &report);
// Members of a JSON object: "offset":136,...
std::string json_members(const Report &report);

}  // namespace quarn::cli

#endif

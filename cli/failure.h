// How the command ends, and the exception that carries a failure to where it is reported.
#ifndef QUARN_CLI_FAILURE_H
#define QUARN_CLI_FAILURE_H

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

namespace quarn::cli {

// Exit codes; documented in the man page, and never a count.
enum Exit : int {
  kGood = 0,
  kBadInput = 1,
  kUsage = 2,
  kFile = 3,
  kLimit = 4,
  kSomeFailed = 5,
  kInternal = 70
};

struct Report;  // diagnosis.h

// One input, or the whole run, failed. The message is ready to be printed: text from outside in it
// has been escaped.
class Failure : public std::runtime_error {
 public:
  Failure(Exit code, const std::string &message) : std::runtime_error(message), code_(code) {}
  Failure(Exit code, const std::string &message, std::shared_ptr<const Report> report)
      : std::runtime_error(message), code_(code), report_(std::move(report)) {}

  Exit code() const { return code_; }
  // Where and why an encoding is bad; null for other failures.
  const Report *report() const { return report_.get(); }

 private:
  Exit code_;
  std::shared_ptr<const Report> report_;
};

// A call to the system did not do what it should; `what` and the reason that errno names.
inline Failure system_failure(const std::string &what) {
  return {kFile, what + ": " + std::strerror(errno)};
}

// What the command writes cannot be written, which is the fault of no input: it ends the run with
// kFile.
class OutputFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The command line is wrong. The command's name, empty before one is known, says whose help to
// point at.
class UsageError : public std::runtime_error {
 public:
  UsageError(std::string command, const std::string &message)
      : std::runtime_error(message), command_(std::move(command)) {}
  const std::string &command() const { return command_; }

 private:
  std::string command_;
};

}  // namespace quarn::cli

#endif

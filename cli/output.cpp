#include "cli/output.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "cli/failure.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kBufferSize = 65536;

bool colored = false;

// Writes all of it; 0, or the error number.
int write_all(int descriptor, std::string_view text) noexcept {
  while (!text.empty()) {
    const ssize_t count = ::write(descriptor, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

bool set(const char *variable) {
  const char *value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

}  // namespace

void Output::empty_buffer(std::string_view more) {
  if (failed_ == 0) failed_ = write_all(descriptor_, buffer_);
  if (failed_ == 0) failed_ = write_all(descriptor_, more);
  buffer_.clear();
  if (failed_ == EPIPE) throw NobodyReads();
  if (failed_ != 0) {
    throw OutputFailure("cannot write to " + name_ + ": " + std::strerror(failed_));
  }
}

void Output::write(std::string_view text) {
  if (text.size() >= kBufferSize - buffer_.size() || failed_ != 0) return empty_buffer(text);
  buffer_.append(text);
}

void Output::flush() {
  empty_buffer({});
}

bool Output::try_write(std::string_view text) noexcept {
  try {
    write(text);
  } catch (...) {
    if (failed_ == 0) failed_ = ENOMEM;
    return false;
  }
  return true;
}

Output &standard_output() {
  static Output output(STDOUT_FILENO, "the standard output");
  return output;
}

void say(const std::string &line) {
  standard_output().flush();
  static_cast<void>(write_all(STDERR_FILENO, line + "\n"));
}

void choose_color(const std::string &when) {
  if (when != "auto") {
    colored = when == "always";
    return;
  }
  const char *terminal = std::getenv("TERM");
  const bool dumb = terminal != nullptr && std::strcmp(terminal, "dumb") == 0;
  const char *force = std::getenv("CLICOLOR_FORCE");
  const bool forced = force != nullptr && *force != '\0' && std::strcmp(force, "0") != 0;
  colored = !set("NO_COLOR") && (forced || (!dumb && isatty(STDOUT_FILENO) == 1));
}

std::string painted(Paint paint, std::string_view text) {
  if (!colored || paint == Paint::plain || text.empty()) return std::string(text);
  constexpr const char *kCodes[] = {"", "2", "1", "36", "32", "33", "1;31"};
  return std::string("\033[") + kCodes[static_cast<int>(paint)] + "m" + std::string(text) +
         "\033[0m";
}

}  // namespace quarn::cli

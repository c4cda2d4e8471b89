#include "cli/progress.h"

#include <unistd.h>

namespace quarn::cli {

namespace {

constexpr std::chrono::seconds kQuietTime{1};
constexpr std::chrono::milliseconds kBetweenLines{200};

void put(const std::string &text) {
  static_cast<void>(!::write(STDERR_FILENO, text.data(), text.size()));
}

}  // namespace

Progress::Progress(bool wanted) : shown_(wanted && isatty(STDERR_FILENO) == 1) {}

bool Progress::due() const {
  if (!shown_) return false;
  const auto now = std::chrono::steady_clock::now();
  return now - start_ >= kQuietTime && now - last_ >= kBetweenLines;
}

void Progress::show(const std::string &line) {
  last_ = std::chrono::steady_clock::now();
  put("\r\033[K" + line);
}

void Progress::clear() {
  if (last_ != start_) put("\r\033[K");
  last_ = start_;
}

}  // namespace quarn::cli

// Progress of a long run, for somebody who watches a terminal.
#ifndef QUARN_CLI_PROGRESS_H
#define QUARN_CLI_PROGRESS_H

#include <chrono>
#include <string>

namespace quarn::cli {

// One line on the standard error when that is a terminal, from the second second on; it is gone
// before anything else is written.
class Progress {
 public:
  // Nothing is ever shown unless `wanted`.
  explicit Progress(bool wanted);
  ~Progress() { clear(); }
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

  // Whether it is time for another line.
  bool due() const;
  void show(const std::string &line);
  void clear();

 private:
  bool shown_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point last_ = start_;
};

}  // namespace quarn::cli

#endif

// Standard output and standard error. Data goes to the first, talk to the second.
#ifndef QUARN_CLI_OUTPUT_H
#define QUARN_CLI_OUTPUT_H

#include <string>
#include <string_view>

namespace quarn::cli {

// A buffered descriptor. Failing to write throws OutputFailure; when nobody reads any more the run
// ends without a word.
class Output {
 public:
  Output(int descriptor, std::string name) : descriptor_(descriptor), name_(std::move(name)) {}

  void write(std::string_view text);
  void flush();

  // For stream callbacks, which cannot throw: writes and remembers a failure, thrown by the next
  // write() or flush().
  bool try_write(std::string_view text) noexcept;

 private:
  void empty_buffer(std::string_view more);

  int descriptor_;
  std::string name_;
  std::string buffer_;
  int failed_ = 0;
};

// The reader of the standard output has gone.
struct NobodyReads {};

Output &standard_output();

// Writes a line to standard error, after what has been written to standard output.
void say(const std::string &line);

enum class Paint { plain, dim, tag, name, text, number, fault };

// Decides about colour, from the value of --color, for standard output.
void choose_color(const std::string &when);
// Wraps text in colour when that is on.
std::string painted(Paint paint, std::string_view text);

}  // namespace quarn::cli

#endif

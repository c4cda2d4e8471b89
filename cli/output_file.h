// Where encodings are written: a file, or the standard output.
#ifndef QUARN_CLI_OUTPUT_FILE_H
#define QUARN_CLI_OUTPUT_FILE_H

#include <memory>
#include <string>

#include "cli/failure.h"
#include "cli/input.h"
#include "cli/options.h"
#include "cli/output.h"

namespace quarn::cli {

// A file that takes its name only when it is complete. What is no regular file, a device or a pipe,
// is written as it is.
class OutputFile {
 public:
  // Throws OutputFailure when the file cannot be made.
  explicit OutputFile(std::string path);
  ~OutputFile();
  OutputFile(const OutputFile &) = delete;
  OutputFile &operator=(const OutputFile &) = delete;

  Output &output() { return *output_; }
  // Gives the file its name. Throws OutputFailure.
  void commit();

 private:
  OutputFailure failure(const char *what) const;

  std::string path_;
  std::string temporary_;
  int descriptor_ = -1;
  std::unique_ptr<Output> output_;
};

// What --output names, or the standard output. Octets that are no text go to a terminal only when
// "-" asks for it.
class Target {
 public:
  // Throws UsageError for a terminal.
  Target(const char *command, const Arguments &arguments, Form form);

  Output &output() { return file_ ? file_->output() : standard_output(); }
  // Everything went well.
  void commit() {
    if (file_) file_->commit();
  }

 private:
  std::unique_ptr<OutputFile> file_;
};

// Writes octets in a form: as they are, as a PEM block with the label, or as a line of hexadecimal
// text.
void write_encoding(Output &output, Form form, const std::string &label, Octets octets);
// Text that the support library made, with a line end; throws std::bad_alloc when it made none.
void write_text(Output &output, char *text, std::int64_t length);

// Throws UsageError unless the text can be the label of a PEM block.
void check_label(const char *command, const std::string &label);

}  // namespace quarn::cli

#endif

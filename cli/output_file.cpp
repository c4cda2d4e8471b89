#include "cli/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "cli/text.h"

namespace quarn::cli {

namespace {

// The path of the file that is not complete yet, for when a signal ends the command.
char unfinished[PATH_MAX];

void remove_and_end(int number) {
  ::unlink(unfinished);
  static_cast<void>(std::raise(number));
}

// A signal that the parent process ignores stays ignored.
void remove_on_signals(const std::string &path) {
  if (path.size() >= sizeof unfinished) return;
  std::memcpy(unfinished, path.c_str(), path.size() + 1);
  for (const int number : {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM, SIGXCPU}) {
    struct sigaction action {};
    if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action.sa_handler = remove_and_end;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    static_cast<void>(::sigaction(number, &action, nullptr));
  }
}

// Opens a new file, whose name ends in XXXXXX until then; signals wait until they would remove it.
int make_temporary(std::string &path) {
  sigset_t all;
  sigset_t before;
  ::sigfillset(&all);
  static_cast<void>(::sigprocmask(SIG_BLOCK, &all, &before));
  const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
  if (descriptor >= 0) remove_on_signals(path);
  static_cast<void>(::sigprocmask(SIG_SETMASK, &before, nullptr));
  return descriptor;
}

}  // namespace

OutputFailure OutputFile::failure(const char *what) const {
  return OutputFailure(printable(path_) + ": " + what + ": " + std::strerror(errno));
}

OutputFile::OutputFile(std::string path) : path_(std::move(path)) {
  struct stat status {};
  const bool exists = ::stat(path_.c_str(), &status) == 0;
  if (exists && !S_ISREG(status.st_mode)) {
    descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
  } else {
    // A link stays a link: the file that it names is replaced.
    char *real = exists ? ::realpath(path_.c_str(), nullptr) : nullptr;
    if (real != nullptr) path_ = real;
    std::free(real);
    temporary_ = path_ + ".XXXXXX";
    descriptor_ = make_temporary(temporary_);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    const mode_t mode = exists ? status.st_mode & 07777 : 0666 & ~mask;
    if (descriptor_ >= 0 && ::fchmod(descriptor_, mode) != 0) {
      const OutputFailure refused = failure("cannot be made");
      ::unlink(temporary_.c_str());
      throw refused;
    }
  }
  if (descriptor_ < 0) {
    temporary_.clear();
    throw failure("cannot be written");
  }
  output_ = std::make_unique<Output>(descriptor_, printable(path_));
}

OutputFile::~OutputFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void OutputFile::commit() {
  output_->flush();
  const int descriptor = descriptor_;
  descriptor_ = -1;
  if (::close(descriptor) != 0) throw failure("cannot be written");
  if (temporary_.empty()) return;
  if (::rename(temporary_.c_str(), path_.c_str()) != 0) throw failure("cannot be replaced");
  temporary_.clear();
}

Target::Target(const char *command, const Arguments &arguments, Form form) {
  if (arguments.has(Opt::output) && arguments.value(Opt::output) != "-") {
    file_ = std::make_unique<OutputFile>(arguments.value(Opt::output));
  } else if (form == Form::der && !arguments.has(Opt::output) && isatty(STDOUT_FILENO) == 1) {
    throw UsageError(command,
                     "octets would garble the terminal; -o FILE writes a file, -o - the terminal");
  }
}

void write_text(Output &output, char *text, std::int64_t length) {
  const OwnedText owned(text);
  if (text == nullptr) throw std::bad_alloc();
  output.write({text, static_cast<std::size_t>(length)});
  if (length > 0 && text[length - 1] != '\n') output.write("\n");
}

void write_encoding(Output &output, Form form, const std::string &label, Octets octets) {
  if (form == Form::der) return output.write(as_text(octets));
  const auto count = static_cast<std::int64_t>(octets.size());
  char *text = nullptr;
  std::int64_t length = 0;
  if (form == Form::pem) {
    static_cast<void>(quarn_pemencode(label.c_str(), octets.data(), count, &text, &length));
  } else {
    static_cast<void>(quarn_hexencode(1, octets.data(), count, &text, &length));
  }
  write_text(output, text, length);
}

void check_label(const char *command, const std::string &label) {
  const bool good = std::all_of(label.begin(), label.end(),
                                [](char c) { return c >= 0x20 && c < 0x7F && c != '-'; });
  if (!good) throw UsageError(command, in_quotes(label) + " cannot be the label of a PEM block");
}

}  // namespace quarn::cli

// The `quarn` command: reads the command line, runs the sub-command, and turns every way in which
// it can end into a message and an exit code.
#include <fcntl.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <new>

#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/output.h"

namespace quarn::cli {

namespace {

int run(const Parsed &parsed) {
  const Arguments &arguments = parsed.arguments;
  choose_color(arguments.value(Opt::color, "auto"));
  if (arguments.has(Opt::version)) {
    standard_output().write(version_text());
    return kGood;
  }
  if (arguments.has(Opt::help)) {
    standard_output().write(help_text(parsed.command));
    return kGood;
  }
  if (parsed.command == nullptr) {
    say("quarn shows and builds ASN.1 encodings, BER and DER.\n\n"
        "  quarn decode FILE  a certificate, CRL or other known type, part by part\n"
        "  quarn dump FILE    the elements of any encoding\n"
        "  quarn json FILE    the same as a JSON document\n\n"
        "'quarn --help' lists all commands.");
    return kUsage;
  }
  return parsed.command->run(arguments);
}

int run_guarded(int argc, const char *const *argv) {
  try {
    int code = kGood;
    if (argc == 3 && std::strcmp(argv[1], "--generate") == 0) {
      const std::string text = generated(argv[2]);
      if (text.empty()) throw UsageError("", "--generate knows bash, zsh, fish and man");
      standard_output().write(text);
    } else {
      code = run(parse(argc, argv));
    }
    standard_output().flush();
    return code;
  } catch (const NobodyReads &) {
    return kFile;
  } catch (const UsageError &error) {
    const std::string name = error.command().empty() ? "quarn" : "quarn " + error.command();
    say(name + ": " + error.what() + " ('" + name + " --help' tells more)");
    return kUsage;
  } catch (const Failure &failure) {
    say(std::string("quarn: ") + failure.what());
    return failure.code();
  } catch (const OutputFailure &failure) {
    say(std::string("quarn: ") + failure.what());
    return kFile;
  } catch (const std::bad_alloc &) {
    say("quarn: not enough memory");
    return kLimit;
  }
}

// A file that is opened must not take the place of a standard stream that is closed: what goes to
// the one would end up in the other. Reading and writing go on failing.
void occupy_closed_streams() {
  for (const int descriptor : {0, 1, 2}) {
    if (::fcntl(descriptor, F_GETFD) >= 0) continue;
    static_cast<void>(::open("/dev/null", descriptor == 0 ? O_WRONLY : O_RDONLY));
  }
}

}  // namespace

}  // namespace quarn::cli

int main(int argc, char **argv) {
  // Whoever closes a pipe that this command writes to wants it to end without a word, also when the
  // parent process ignores the signal.
  static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
  // A file that may not grow any more fails as a full disk does.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  quarn::cli::occupy_closed_streams();
  try {
    return quarn::cli::run_guarded(argc, argv);
  } catch (const quarn::cli::NobodyReads &) {
    return quarn::cli::kFile;
  } catch (const quarn::cli::OutputFailure &failure) {
    // Standard output failed while a message was being written.
    static_cast<void>(std::fprintf(stderr, "quarn: %s\n", failure.what()));
    return quarn::cli::kFile;
  } catch (const std::exception &error) {
    static_cast<void>(
        std::fprintf(stderr, "quarn: internal error: %s; please report it\n", error.what()));
    return quarn::cli::kInternal;
  }
}

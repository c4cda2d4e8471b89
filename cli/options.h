// The table of sub-commands and options. Everything that knows them is made from it: the parser,
// the help, the man page and the completions.
#ifndef QUARN_CLI_OPTIONS_H
#define QUARN_CLI_OPTIONS_H

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quarn::cli {

enum class Opt {
  help,
  version,
  color,
  in_form,
  recursive,
  compact,
  lines,
  output,
  pem,
  hex,
  to,
  label,
  no_dig,
  depth,
  width,
  json,
  type,
  content
};

struct Option {
  Opt id;
  const char *names;    // "-o,--output"
  const char *value;    // what the option takes, for the help: "FILE", "N"; null for a flag
  const char *choices;  // the values it accepts, separated by commas; null when any will do
  const char *help;
};

// The command line as the sub-commands see it.
class Arguments {
 public:
  bool has(Opt option) const { return values_.count(option) != 0; }
  // The option's value; fallback when it is not given.
  std::string value(Opt option, const std::string &fallback = "") const;
  std::uint64_t number(Opt option, std::uint64_t fallback) const;
  // Characters after which values are cut; 0 for nowhere.
  std::size_t width() const;
  // Blanks by which JSON is indented; 0 for one line.
  int json_indent() const { return has(Opt::compact) ? 0 : 2; }

  void set(Opt option, std::string value) { values_[option] = std::move(value); }
  std::vector<std::string> operands;

 private:
  std::map<Opt, std::string> values_;
};

struct Example {
  const char *line;
  const char *what;
};

struct Command {
  const char *name;
  const char *operands;  // "[FILE...]"
  const char *summary;   // one line, for the list of commands
  const char *text;      // paragraphs, for its help and the man page
  std::vector<Opt> options;
  std::vector<Example> examples;
  std::size_t least_operands;
  std::size_t most_operands;
  int (*run)(const Arguments &);  // returns an exit code
};

const std::vector<Command> &commands();
const Command *find_command(std::string_view name);
const Option &option(Opt id);
// What the commands that read encodings accept as FILE.
const char *input_text();
// The options of the command and the common ones; those of `quarn` itself for null.
std::vector<const Option *> options_of(const Command *command);

// What the option does, with the values that it accepts.
std::string full_help(const Option &option);

struct ExitMeaning {
  int code;
  const char *meaning;
};
const std::vector<ExitMeaning> &exit_meanings();

// The names of an option: {"-o", "--output"}.
std::vector<std::string> names_of(const Option &option);
// The items of a list that commas separate.
std::vector<std::string> split(std::string_view list);

struct Parsed {
  const Command *command = nullptr;  // null when none was named
  Arguments arguments;
};

// Reads the command line; throws UsageError.
Parsed parse(int argc, const char *const *argv);

// The name in the list that is most like a misspelt word; empty when none is near.
std::string nearest(const std::string &word, const std::vector<std::string> &names);

}  // namespace quarn::cli

#endif

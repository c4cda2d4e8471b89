// Help for people, made from the table of options; and the version.
#include <algorithm>

#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/output.h"
#include "cli/text.h"
#include "quarn_asn1/core.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kWidth = 79;
constexpr std::size_t kColumn = 26;

std::string bold(const std::string &text) {
  return painted(Paint::tag, text);
}

// Paragraph of words, each line after `indent` blanks; the first follows what is written already.
std::string wrapped(const std::string &text, std::size_t indent, std::size_t used) {
  std::string out;
  std::size_t line = used;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    const std::size_t size = end - at;
    if (line > indent && line + 1 + size > kWidth) {
      out += "\n" + std::string(indent, ' ');
      line = indent;
    } else if (line > indent) {
      out += " ";
      line++;
    }
    out += text.substr(at, size);
    line += size;
    at = end + 1;
  }
  return out;
}

std::string paragraph(const std::string &text) {
  return wrapped(text, 0, 0) + "\n";
}

// "name          text", with the text going on below itself.
std::string entry(const std::string &name, const std::string &text) {
  std::string head = "  " + name;
  if (head.size() + 2 > kColumn) {
    return head + "\n" + std::string(kColumn, ' ') + wrapped(text, kColumn, kColumn) + "\n";
  }
  head.resize(kColumn, ' ');
  return head + wrapped(text, kColumn, kColumn) + "\n";
}

std::string option_entry(const Option &option) {
  std::string names = joined(names_of(option));
  if (names.rfind("--", 0) == 0) names = "    " + names;
  if (option.value != nullptr) names += std::string(" ") + option.value;
  return entry(names, full_help(option));
}

std::string overview() {
  std::string text = bold("Usage:") + " quarn COMMAND [OPTION...] [OPERAND...]\n\n";
  text += paragraph(
      "Shows and builds ASN.1 encodings: BER and DER files, as PEM, base64 and hexadecimal text "
      "too.");
  text += "\n" + bold("Commands:") + "\n";
  for (const Command &command : commands()) text += entry(command.name, command.summary);
  text += "\n" + bold("Options:") + "\n";
  for (const Option *option : options_of(nullptr)) text += option_entry(*option);
  text += "\n" + bold("Exit codes:") + "\n";
  for (const ExitMeaning &exit : exit_meanings()) {
    text += entry(std::to_string(exit.code), exit.meaning);
  }
  return text + "\n'quarn COMMAND --help' tells about a command.\n";
}

}  // namespace

std::string help_text(const Command *command) {
  if (command == nullptr) return overview();
  std::string text = bold("Usage:") + " quarn " + command->name + " [OPTION...] " +
                     command->operands + "\n\n" + paragraph(command->text);
  const std::vector<Opt> &options = command->options;
  if (std::find(options.begin(), options.end(), Opt::in_form) != options.end()) {
    text += "\n" + paragraph(input_text());
  }
  text += "\n" + bold("Options:") + "\n";
  for (const Option *option : options_of(command)) text += option_entry(*option);
  if (command->examples.empty()) return text;
  text += "\n" + bold("Examples:") + "\n";
  for (const Example &example : command->examples) {
    text += std::string("  ") + example.line + "\n      " + wrapped(example.what, 6, 6) + "\n";
  }
  return text;
}

std::string version_text() {
  return std::string("quarn ") + QUARN_CLI_VERSION + "\n" + quarn_asn1_version() +
         "\nlibquarn_util " + quarn_util_version() + "\n";
}

int run_help(const Arguments &arguments) {
  if (arguments.operands.empty()) {
    standard_output().write(overview());
    return kGood;
  }
  const std::string &name = arguments.operands[0];
  const Command *command = find_command(name);
  if (command == nullptr) {
    std::vector<std::string> names;
    for (const Command &each : commands()) names.emplace_back(each.name);
    const std::string near = nearest(name, names);
    throw UsageError("help", "unknown command " + in_quotes(name) +
                                 (near.empty() ? "" : "; did you mean '" + near + "'?"));
  }
  standard_output().write(help_text(command));
  return kGood;
}

}  // namespace quarn::cli

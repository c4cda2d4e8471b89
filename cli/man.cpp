// The man page, in man(7) macros, made from the table of options when the command is built.
#include <algorithm>

#include "cli/commands.h"

namespace quarn::cli {

namespace {

// Text for roff: nothing in it is taken for a request or an escape.
std::string roff(const std::string &text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\') {
      out += "\\e";
    } else if (c == '-') {
      out += "\\-";
    } else if (c == '\'') {
      out += "\\(aq";
    } else if (c == '`') {
      out += "\\(ga";
    } else if (c == '^') {
      out += "\\(ha";
    } else if (c == '~') {
      out += "\\(ti";
    } else {
      out.push_back(c);
    }
  }
  return out.empty() || out[0] != '.' ? out : "\\&" + out;
}

// `quarn der` in prose becomes bold.
std::string prose(const std::string &text) {
  std::string out;
  bool bold = false;
  std::size_t at = 0;
  for (;;) {
    const std::size_t tick = std::min(text.find('`', at), text.size());
    out += roff(text.substr(at, tick - at));
    if (tick == text.size()) return out;
    out += bold ? "\\fR" : "\\fB";
    bold = !bold;
    at = tick + 1;
  }
}

std::string entry(const std::string &tag, const std::string &text) {
  return ".TP\n" + tag + "\n" + prose(text) + "\n";
}

std::string option_entry(const Option &option) {
  std::string tag;
  for (const std::string &name : names_of(option)) {
    tag += (tag.empty() ? "" : ", ") + std::string("\\fB") + roff(name) + "\\fR";
  }
  if (option.value != nullptr) tag += std::string(" \\fI") + option.value + "\\fR";
  return entry(tag, full_help(option));
}

std::string command_section(const Command &command) {
  std::string text = std::string(".SS quarn ") + command.name + " " + roff("[OPTION...] ") +
                     roff(command.operands) + "\n" + prose(command.text) + "\n";
  for (const Opt id : command.options) text += option_entry(option(id));
  return text;
}

constexpr const char *kErrors =
    "For an encoding that is bad, a message names the file, the offset of the fault, what was "
    "found there and what was expected, the path of the element from the outermost inwards (each "
    "number in brackets is the place among the components of the element before it, counted from "
    "0), the octets around the fault, and the records that the library left, innermost first. "
    "`quarn error` explains their codes. With `--lines` the same is written as JSON.";

constexpr const char *kMemory =
    "All commands but `cms`, which leaves out the content of a message, hold each input file in "
    "memory, one at a time. `json` and `der` hold the document too, some tens of times the "
    "octets; `dump` needs memory only for the depth of the nesting, and so does `check` where it "
    "knows no type. Nesting may be of any depth, but `json` takes fewer than 128 elements of "
    "indefinite length directly inside one another, and `decode` and `cms` take 128 values inside "
    "one another, segments of strings among them. Links to directories are not followed with "
    "`--recursive`.";

}  // namespace

std::string man_page() {
  std::string text = std::string(".\\\" Made by quarn --generate man; do not edit.\n") +
                     ".TH QUARN 1 \"\" \"quarn " + QUARN_CLI_VERSION + "\" \"User Commands\"\n" +
                     ".SH NAME\nquarn \\- show and build ASN.1 encodings\n.SH SYNOPSIS\n";
  for (const Command &command : commands()) {
    text += std::string(".B quarn ") + command.name + "\n" + roff("[OPTION...] ") +
            roff(command.operands) + "\n.br\n";
  }
  text += ".SH DESCRIPTION\n";
  text += prose(
              "Shows BER and DER encodings as trees and as JSON documents, and makes the same "
              "octets from the documents again.") +
          "\n.PP\n" + prose(input_text()) + "\n";
  text += ".SH COMMANDS\n";
  for (const Command &command : commands()) text += command_section(command);
  text += ".SH OPTIONS\nFor all commands:\n";
  for (const Option *each : options_of(nullptr)) text += option_entry(*each);
  text += ".SH ERRORS\n" + prose(kErrors) + "\n.SH \"EXIT STATUS\"\n";
  for (const ExitMeaning &exit : exit_meanings()) {
    text += entry(std::to_string(exit.code), exit.meaning);
  }
  text += ".SH ENVIRONMENT\n" +
          entry("NO_COLOR", "When set and not empty, `--color=auto` means never.") +
          entry("CLICOLOR_FORCE",
                "When set, not empty and not 0, `--color=auto` means always, unless NO_COLOR is "
                "set.") +
          entry("TERM", "When it is dumb, `--color=auto` means never.");
  text += ".SH EXAMPLES\n";
  for (const Command &command : commands()) {
    for (const Example &example : command.examples) {
      text += std::string(".TP\n\\fB") + roff(example.line) + "\\fR\n" + prose(example.what) + "\n";
    }
  }
  return text + ".SH NOTES\n" + prose(kMemory) + "\n";
}

}  // namespace quarn::cli

// The sub-commands. Each has a file of its own.
#ifndef QUARN_CLI_COMMANDS_H
#define QUARN_CLI_COMMANDS_H

#include <string>

#include "cli/options.h"

namespace quarn::cli {

int run_json(const Arguments &arguments);
int run_der(const Arguments &arguments);
int run_decode(const Arguments &arguments);
int run_cms(const Arguments &arguments);
int run_dump(const Arguments &arguments);
int run_check(const Arguments &arguments);
int run_convert(const Arguments &arguments);
int run_types(const Arguments &arguments);
int run_error(const Arguments &arguments);
int run_help(const Arguments &arguments);

// Help of one command, or of all of them for null.
std::string help_text(const Command *command);
std::string version_text();
// Files made at build time: "bash", "zsh", "fish" or "man"; empty for another name.
std::string generated(const std::string &what);
std::string man_page();

}  // namespace quarn::cli

#endif

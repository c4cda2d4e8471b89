// Completions for shells, made from the table of options when the command is built.
#include "cli/commands.h"

namespace quarn::cli {

namespace {

std::string replaced(std::string text, const std::string &what, const std::string &with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

std::string choices_of(const Option &option) {
  return option.choices == nullptr ? "" : replaced(option.choices, ",", " ");
}

// The first sentence of a help text.
std::string brief(const Option &option) {
  const std::string text = option.help;
  return text.substr(0, text.find('.'));
}

bool takes_files(const Command &command) {
  return std::string_view(command.operands).find("FILE") != std::string_view::npos;
}

std::string command_names() {
  std::string names;
  for (const Command &command : commands()) {
    names += (names.empty() ? "" : " ") + std::string(command.name);
  }
  return names;
}

std::string option_names(const Command *command) {
  std::string list;
  for (const Option *each : options_of(command)) {
    for (const std::string &name : names_of(*each)) list += (list.empty() ? "" : " ") + name;
  }
  return list;
}

std::string bash_values() {
  std::string text;
  for (const Command &command : commands()) {
    for (const Option *each : options_of(&command)) {
      std::string label = "    ";
      label.append(replaced(each->names, ",", "|")).append(")");
      if (each->value == nullptr || text.find(label) != std::string::npos) continue;
      const bool file = std::string_view(each->value) == "FILE";
      text.append(label).append(" COMPREPLY=($(compgen ");
      text.append(file ? "-f" : "-W \"" + choices_of(*each) + "\"");
      text.append(" -- \"$cur\")); return ;;\n");
    }
  }
  return text;
}

std::string bash() {
  std::string text =
      "# bash completion for quarn; made from its table of options.\n"
      "_quarn() {\n"
      "  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} command= word\n"
      "  case $prev in\n" +
      bash_values() +
      "  esac\n"
      "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
      "    case $word in " +
      replaced(command_names(), " ", "|") +
      ") command=$word; break ;; esac\n"
      "  done\n"
      "  case $command in\n";
  for (const Command &command : commands()) {
    std::string operands;
    if (takes_files(command)) operands = "$(compgen -f -- \"$cur\")";
    if (std::string_view(command.name) == "help") {
      operands = "$(compgen -W \"" + command_names() + "\" -- \"$cur\")";
    }
    text += "    " + std::string(command.name) + ")\n      if [[ $cur == -?* ]]; then\n" +
            "        COMPREPLY=($(compgen -W \"" + option_names(&command) +
            "\" -- \"$cur\"))\n      else\n        COMPREPLY=(" + operands + ")\n      fi ;;\n";
  }
  return text + "    *) COMPREPLY=($(compgen -W \"" + command_names() + " " +
         option_names(nullptr) +
         "\" -- \"$cur\")) ;;\n  esac\n}\ncomplete -o filenames -o bashdefault -F _quarn quarn\n";
}

std::string zsh_quoted(const std::string &text) {
  std::string safe = replaced(text, "'", "'\\''");
  safe = replaced(safe, "[", "\\[");
  return replaced(replaced(safe, "]", "\\]"), ":", "\\:");
}

std::string zsh_option(const Option &option) {
  std::string names = option.names;
  std::string spec = names.find(',') == std::string::npos
                         ? "'" + names
                         : "'(" + replaced(names, ",", " ") + ")'{" + names + "}'";
  spec += "[" + zsh_quoted(brief(option)) + "]";
  if (option.value != nullptr) {
    spec += ":" + std::string(option.value) + ":";
    if (option.choices != nullptr) spec += "(" + choices_of(option) + ")";
    if (std::string_view(option.value) == "FILE") spec += "_files";
  }
  return spec + "'";
}

std::string zsh_arguments(const Command *command, const std::string &indent) {
  std::string text = "_arguments -s";
  for (const Option *each : options_of(command)) text += " \\\n" + indent + zsh_option(*each);
  return text;
}

std::string zsh() {
  std::string text =
      "#compdef quarn\n# zsh completion for quarn; made from its table of options.\n"
      "_quarn() {\n  local curcontext=$curcontext state line\n  typeset -A opt_args\n  local -a "
      "commands\n  commands=(\n";
  for (const Command &command : commands()) {
    text += "    '" + std::string(command.name) + ":" + zsh_quoted(command.summary) + "'\n";
  }
  text += "  )\n  " + zsh_arguments(nullptr, "    ") +
          " \\\n    '1:command:->command' '*::argument:->arguments'\n  case $state in\n"
          "    command) _describe command commands ;;\n    arguments)\n      case $line[1] in\n";
  for (const Command &command : commands()) {
    const std::string operand = takes_files(command) ? "'*:file:_files'" : "'*:operand:'";
    text += "        " + std::string(command.name) + ") " + zsh_arguments(&command, "          ") +
            " \\\n          " + operand + " ;;\n";
  }
  return text + "      esac ;;\n  esac\n}\n_quarn \"$@\"\n";
}

std::string fish_option(const Option &option, const std::string &condition) {
  std::string text = "complete -c quarn -n '" + condition + "'";
  for (const std::string &name : names_of(option)) {
    text += name.rfind("--", 0) == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  if (option.value != nullptr) {
    text += std::string_view(option.value) == "FILE" ? " -r -F" : " -x";
    if (option.choices != nullptr) text += " -a '" + choices_of(option) + "'";
  }
  return text + " -d '" + replaced(brief(option), "'", "\\'") + "'\n";
}

std::string fish() {
  std::string text = "# fish completion for quarn; made from its table of options.\n";
  const std::string none = "__fish_use_subcommand";
  for (const Command &command : commands()) {
    text += "complete -c quarn -f -n '" + none + "' -a " + command.name + " -d '" +
            command.summary + "'\n";
  }
  for (const Option *each : options_of(nullptr)) text += fish_option(*each, none);
  for (const Command &command : commands()) {
    const std::string here = "__fish_seen_subcommand_from " + std::string(command.name);
    if (!takes_files(command)) text += "complete -c quarn -f -n '" + here + "'\n";
    for (const Option *each : options_of(&command)) text += fish_option(*each, here);
  }
  return text + "complete -c quarn -n '__fish_seen_subcommand_from help' -a '" + command_names() +
         "'\n";
}

}  // namespace

std::string generated(const std::string &what) {
  if (what == "bash") return bash();
  if (what == "zsh") return zsh();
  if (what == "fish") return fish();
  return what == "man" ? man_page() : "";
}

}  // namespace quarn::cli

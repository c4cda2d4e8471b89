// From argv to a command and its arguments. CLI11 takes the words apart; what it does not know is
// collected, so that the message can name the word and the option that was probably meant.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "cli/failure.h"
#include "cli/options.h"
#include "cli/text.h"

namespace quarn::cli {

namespace {

bool same_letter(char a, char b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return lower(a) == lower(b);
}

// Edits that turn one word into the other: insertions, deletions, replacements. Upper and lower
// case are the same.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); j++) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); i++) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); j++) {
      const std::size_t replaced = diagonal + (same_letter(a[i - 1], b[j - 1]) ? 0u : 1u);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

void add_options(CLI::App &app, const Command *command, Arguments &arguments) {
  app.set_help_flag();
  app.allow_extras();
  for (const Option *each : options_of(command)) {
    const Opt id = each->id;
    if (each->value == nullptr) {
      app.add_flag_function(each->names, [&arguments, id](std::int64_t) { arguments.set(id, ""); })
          ->disable_flag_override();
      continue;
    }
    app.add_option_function<std::string>(
           each->names, [&arguments, id](const std::string &value) { arguments.set(id, value); })
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  }
}

std::string did_you_mean(const std::string &word, const std::vector<std::string> &names) {
  const std::string near = nearest(word, names);
  return near.empty() ? "" : "; did you mean '" + near + "'?";
}

void check_value(const Command *command, const Option &option, const std::string &value) {
  const std::string who = command == nullptr ? "" : command->name;
  const std::string name = names_of(option).back();
  if (option.choices != nullptr) {
    const std::vector<std::string> choices = split(option.choices);
    if (std::find(choices.begin(), choices.end(), value) != choices.end()) return;
    std::string list;
    for (const std::string &choice : choices) list += (list.empty() ? "" : ", ") + choice;
    throw UsageError(who, name + " cannot be " + in_quotes(value) + "; it is one of " + list);
  }
  if (std::string_view(option.value) != "N") return;
  std::uint64_t number = 0;
  const char *end = value.data() + value.size();
  const auto [stop, error] = std::from_chars(value.data(), end, number);
  if (value.empty() || error != std::errc() || stop != end) {
    throw UsageError(who, name + " needs a number from 0 up, not " + in_quotes(value));
  }
}

void check(const Command *command, const Arguments &arguments) {
  for (const Option *each : options_of(command)) {
    if (each->value != nullptr && arguments.has(each->id)) {
      check_value(command, *each, arguments.value(each->id));
    }
  }
  if (command == nullptr || arguments.has(Opt::help)) return;
  const std::size_t count = arguments.operands.size();
  if (count < command->least_operands) {
    throw UsageError(command->name, std::string("it needs ") + command->operands);
  }
  if (count > command->most_operands) {
    throw UsageError(command->name,
                     "unexpected operand " + in_quotes(arguments.operands[command->most_operands]));
  }
}

// Throws for the first word that no option of the command accounts for.
void refuse_extras(const CLI::App &app, const Command *command) {
  std::vector<std::string> known;
  for (const Option *each : options_of(command)) {
    for (const std::string &name : names_of(*each)) known.push_back(name);
  }
  for (const std::string &word : app.remaining()) {
    if (word == "--") continue;
    const std::string who = command == nullptr ? "" : command->name;
    if (word.size() > 1 && word[0] == '-') {
      const std::string name = word.substr(0, word.find('='));
      throw UsageError(who, "unknown option " + in_quotes(name) + did_you_mean(name, known));
    }
    if (command != nullptr) throw UsageError(who, "unexpected operand " + in_quotes(word));
    std::vector<std::string> names;
    for (const Command &each : commands()) names.emplace_back(each.name);
    throw UsageError("", "unknown command " + in_quotes(word) + did_you_mean(word, names));
  }
}

// CLI11's messages run over several lines and speak of things such as "1 required"; say less.
std::string short_message(const CLI::ParseError &error) {
  std::string text = error.what();
  text.resize(std::min(text.find('\n'), text.size()));
  const std::size_t missing = text.find(": 1 required");
  if (missing != std::string::npos) text.replace(missing, std::string::npos, " needs a value");
  const std::size_t flag = text.find(" was given a disallowed flag override");
  if (flag != std::string::npos) text = "--" + text.substr(0, flag) + " takes no value";
  return printable(text);
}

}  // namespace

std::string nearest(const std::string &word, const std::vector<std::string> &names) {
  std::string best;
  std::size_t least = word.size() <= 3 ? 2 : 3;
  for (const std::string &name : names) {
    if (name.size() < 3) continue;
    const bool shortened = word.size() >= 3 && name.compare(0, word.size(), word) == 0;
    const std::size_t edits = shortened ? 1 : distance(word, name);
    if (edits < least) {
      least = edits;
      best = name;
    }
  }
  return best;
}

Parsed parse(int argc, const char *const *argv) {
  Parsed parsed;
  CLI::App app;
  add_options(app, nullptr, parsed.arguments);
  app.require_subcommand(0, 1);
  for (const Command &command : commands()) {
    CLI::App *sub = app.add_subcommand(command.name);
    add_options(*sub, &command, parsed.arguments);
    sub->add_option("operands", parsed.arguments.operands);
    sub->preparse_callback([&parsed, &command](std::size_t) { parsed.command = &command; });
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    const std::string who = parsed.command == nullptr ? "" : parsed.command->name;
    throw UsageError(who, short_message(error));
  }
  refuse_extras(app, nullptr);
  for (const CLI::App *sub : app.get_subcommands()) refuse_extras(*sub, parsed.command);
  check(parsed.command, parsed.arguments);
  return parsed;
}

}  // namespace quarn::cli

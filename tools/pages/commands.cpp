// The table of commands, read out of the parser.
#include <CLI/CLI.hpp>
#include <sstream>

#include "tools/command_line.h"
#include "tools/pages/pages.h"

namespace kzdic::pages {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

// "FILE", "N:{2,3,5}", "{a,b}": a name for the value, and the words that it may be.
void read_type(const std::string& type, Option& option) {
  const std::size_t open = type.find('{');
  option.value_name = type.substr(0, std::min(type.find(':'), open));
  if (open != std::string::npos) {
    option.words = split(type.substr(open + 1, type.find('}', open) - open - 1), ',');
    option.value = Value::kWord;
    if (option.value_name.empty()) option.value_name = "WORD";
  } else if (option.value_name == "FILE") {
    option.value = Value::kFile;
  } else if (option.value_name == "DIRECTORY") {
    option.value = Value::kDirectory;
  } else {
    option.value = Value::kText;
  }
}

Option describe(const CLI::Option& source) {
  Option option;
  for (const std::string& name : source.get_snames()) option.names.push_back("-" + name);
  for (const std::string& name : source.get_lnames()) option.names.push_back("--" + name);
  option.description = source.get_description();
  option.environment = source.get_envname();
  option.required = source.get_required();
  option.repeated = source.get_expected_max() > 1;
  if (source.get_items_expected_max() > 0) read_type(source.get_type_name(), option);
  if (option.names.empty()) option.value_name = source.get_name(true);
  return option;
}

void add_commands(const CLI::App& app, const std::string& prefix, std::vector<Command>& commands) {
  for (const CLI::App* source : app.get_subcommands([](const CLI::App*) { return true; })) {
    Command command{prefix + source->get_name(), source->get_description(), {}, {}, false};
    for (const CLI::Option* option : source->get_options()) {
      (option->get_positional() ? command.arguments : command.options).push_back(describe(*option));
    }
    command.group = source->get_require_subcommand_min() > 0;
    commands.push_back(command);
    add_commands(*source, command.name + " ", commands);
  }
}

}  // namespace

std::vector<Command> all_commands() {
  Status status = Status::kOk;
  std::vector<Command> commands;
  add_commands(*make_command_line(status), "", commands);
  return commands;
}

}  // namespace kzdic::pages

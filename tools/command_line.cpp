// The commands of kzdic in the order of help.
#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <utility>
#include <vector>

#include "tools/streams.h"

namespace kzdic {
namespace {

// Before arguments after "--": the parser would take what begins with '-' for an option even
// there, once the command has all arguments that it must have.
constexpr char kWordMark = '\x01';

// The arguments in the parser's order, the last one first.
std::vector<std::string> arguments_of(int argc, char** argv) {
  std::vector<std::string> arguments;
  bool words = false;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    if (!words && argument == "--") {
      words = true;
      continue;
    }
    // "++" would end the command.
    const bool word = argument == "++" || argument.starts_with(kWordMark) ||
                      (words && argument.size() > 1 && argument[0] == '-');
    if (word) argument.insert(0, 1, kWordMark);
    arguments.push_back(std::move(argument));
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

void take_marks_off(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (!option->get_positional()) continue;
    option->transform(
        [](std::string text) {
          if (text.starts_with(kWordMark)) text.erase(0, 1);
          return text;
        },
        "");
  }
  for (CLI::App* command : app.get_subcommands([](CLI::App*) { return true; })) {
    take_marks_off(*command);
  }
}

std::string names_of_commands(const CLI::App& app) {
  std::string names;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    names += (names.empty() ? "" : ", ") + command->get_name();
  }
  return names;
}

// What is wrong with the arguments, on one line.
std::string describe(const CLI::App& app, const CLI::ParseError& error) {
  const CLI::App* command = &app;
  std::string names;
  while (!command->get_subcommands().empty()) {
    command = command->get_subcommands().front();
    names += command->get_name() + ' ';
  }
  const std::string see = " (see kzdic " + names + "--help)";
  if (command->get_require_subcommand_min() == 0) return error.what() + see;
  const std::vector<std::string> rest = app.remaining(true);
  const std::string there_are = " (there are " + names_of_commands(*command) + ")";
  if (rest.empty()) return "no " + names + "command is given" + there_are;
  if (rest[0].starts_with('-')) return "unknown option " + rest[0] + see;
  return "there is no " + names + "command '" + rest[0] + "'" + there_are;
}

}  // namespace

std::unique_ptr<CLI::App> make_command_line(Status& status) {
  auto app = std::make_unique<CLI::App>(
      "Builds and searches dictionaries, and does what their texts need.", "kzdic");
  app->require_subcommand(1);
  add_dictionary_commands(*app);
  add_lookup_command(*app, status);
  add_grammar_commands(*app, status);
  add_text_commands(*app, status);
  add_inflect_command(*app, status);
  take_marks_off(*app);
  return app;
}

int run_command_line(int argc, char** argv, const char* version) {
  Status status = Status::kOk;
  const auto app = make_command_line(status);
  app->set_version_flag("--version", version);
  try {
    app->parse(arguments_of(argc, argv));
  } catch (const CLI::ParseError& error) {
    // Help and version come this way, too.
    if (error.get_exit_code() != 0) throw Failure(Status::kUsage, describe(*app, error));
    app->exit(error);
    finish_output();
  }
  return static_cast<int>(status);
}

}  // namespace kzdic

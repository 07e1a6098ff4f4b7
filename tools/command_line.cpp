// The commands of kzdic in the order of help.
#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace kzdic {

std::unique_ptr<CLI::App> make_command_line(Status& status) {
  auto app = std::make_unique<CLI::App>(
      "Builds and searches dictionaries, and does what their texts need.", "kzdic");
  app->require_subcommand(1);
  add_dictionary_commands(*app);
  add_lookup_command(*app, status);
  add_grammar_commands(*app, status);
  add_text_commands(*app, status);
  add_inflect_command(*app, status);
  return app;
}

int run_command_line(int argc, char** argv, const char* version) {
  Status status = Status::kOk;
  const auto app = make_command_line(status);
  app->set_version_flag("--version", version);
  try {
    app->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help and version come this way, too.
    if (app->exit(error) != 0) status = Status::kUsage;
    if (!std::cout.flush()) throw Failure(Status::kFile, "cannot write to standard output");
  }
  return static_cast<int>(status);
}

}  // namespace kzdic

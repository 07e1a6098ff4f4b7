// The commands of kzdic in the order of help.
#include "tools/command_line.h"

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

}  // namespace kzdic

// Options of kzdic inflect.
#include <CLI/CLI.hpp>

#include "tools/command_line.h"
#include "tools/inflect_command.h"

namespace kzdic {

void add_inflect_command(CLI::App& app, Status& status) {
  const auto stored = std::make_shared<InflectOptions>();
  InflectOptions& options = *stored;
  CLI::App* command = app.add_subcommand("inflect", "Find the known endings of words");
  command->add_option("TABLE", options.table, "Inflection table, a .Dat file")
      ->type_name("FILE")
      ->required();
  command
      ->add_option("WORD", options.words,
                   "A word in any of its forms; - is the lines of standard input")
      ->type_name("WORD");
  command
      ->add_option("--build", options.source,
                   "Make the table first, from a text in UTF-8; it replaces one that is there")
      ->type_name("FILE");
  command->add_flag("--all", options.all, "Shorter known endings too");
  command->add_flag("--json", options.json, "One JSON object per word");
  command->callback([stored, &status] { status = inflect(*stored); });
}

}  // namespace kzdic

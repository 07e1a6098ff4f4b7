// Options of kzdic lookup.
#include <CLI/CLI.hpp>

#include "tools/command_line.h"
#include "tools/lookup_command.h"
#include "tools/option_checks.h"

namespace kzdic {

void add_lookup_command(CLI::App& app, Status& status) {
  struct Stored {
    LookupOptions options;
    std::vector<std::string> arguments;
  };
  const auto stored = std::make_shared<Stored>();
  LookupOptions& options = stored->options;
  CLI::App* command = app.add_subcommand("lookup", "Look words up");
  command
      ->add_option("-d,--dictionary", options.dictionaries,
                   "A dictionary; all arguments are words then")
      ->type_name("FILE")
      ->allow_extra_args(false);
  command
      ->add_option("ARGUMENT", stored->arguments,
                   "FILE... WORD...: the first is a dictionary, and so are those after it that "
                   "end in .dic, .dis, .dit, .dih or .dig; - is the lines of standard input")
      ->type_name("FILE")
      ->required();
  CLI::Option* set =
      command
          ->add_option("--set", options.set.directory,
                       "Directory of a set of dictionaries; all arguments are words then")
          ->type_name("DIRECTORY");
  command->add_option("--direction", options.set.direction, "Direction of the set")
      ->type_name("{ENRU,RUEN,DERU,RUDE,FRRU,RUFR}")
      ->needs(set);
  command
      ->add_option("--config", options.set.config,
                   "Parameter string of the set (default: the base dictionaries)")
      ->type_name("STRING")
      ->needs(set);
  command->add_flag("--first", options.first, "Only the first dictionary that has the word");
  CLI::Option* prefix =
      command->add_flag("--prefix", options.prefix, "All headwords that begin with the word");
  command->add_option("--next", options.next, "Also show this many of the records that follow")
      ->type_name("N")
      ->check(whole_number());
  command
      ->add_option("--inflected", options.inflected,
                   "Inflection table that leads from a Russian form to its headwords")
      ->type_name("FILE")
      ->excludes(prefix);
  CLI::Option* raw =
      command->add_flag("--raw", options.raw, "Show entries as the dictionary has them");
  command->add_flag("--json", options.json, "One JSON object per word")->excludes(raw);
  command->add_flag("--grammar", options.grammar, "Also the grammar of the words, in words")
      ->excludes(raw);
  command->callback([stored, &status] {
    split_arguments(stored->arguments, stored->options);
    status = lookup(stored->options);
  });
}

}  // namespace kzdic

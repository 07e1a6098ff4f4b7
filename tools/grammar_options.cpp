// Options of the commands on grammar.
#include <CLI/CLI.hpp>

#include "tools/command_line.h"
#include "tools/grammar_command.h"

namespace kzdic {
namespace {

struct Command {
  CLI::App* app;
  std::shared_ptr<GrammarOptions> options;
};

Command add_command(CLI::App& group, const char* name, const char* description) {
  return {group.add_subcommand(name, description), std::make_shared<GrammarOptions>()};
}

void add_json(const Command& command, const char* description) {
  command.app->add_flag("--json", command.options->json, description);
}

// Tag strings begin with "-" as easily as options do: what no option is named is one.
void take_dashes(const Command& command) {
  for (const std::string& text : command.app->remaining()) {
    if (text.starts_with("--")) throw Failure(Status::kUsage, "unknown option " + text);
    command.options->texts.push_back(text);
  }
}

void add_decode(CLI::App& group, Status& status) {
  const Command command = add_command(group, "decode", "Describe a tag string");
  command.app->allow_extras();
  command.app
      ->add_option("CODE", command.options->code,
                   "The part-of-speech code, one character; - is lines \"CODE TAGS\" of standard "
                   "input")
      ->type_name("CODE")
      ->required();
  command.app->add_option("TAGS", command.options->texts, "The tag string")
      ->type_name("TAGS")
      ->expected(0, 1);
  add_json(command, "One JSON object");
  command.app->callback([command, &status] {
    take_dashes(command);
    status = decode_grammar(*command.options);
  });
}

void add_encode(CLI::App& group, Status& status) {
  const Command command = add_command(group, "encode", "Write a tag string that says the fields");
  command.app
      ->add_option("CODE", command.options->code,
                   "The part-of-speech code, one character; - is lines \"CODE FIELD...\" of "
                   "standard input, or what decode --json printed")
      ->type_name("CODE")
      ->required();
  command.app
      ->add_option("FIELD", command.options->texts,
                   "A field as decode prints it: NAME=VALUE, NAME=VALUE,VALUE or a word alone")
      ->type_name("FIELD");
  add_json(command, "One JSON object, of the tag string decoded");
  command.app->callback([command, &status] { status = encode_grammar(*command.options); });
}

void add_name(CLI::App& group, Status& status) {
  const Command command = add_command(group, "name", "Look names of compact attributes up");
  command.app->add_option("KIND", command.options->kind, "Which table of names")
      ->type_name("{0,1,2,class,addition,change}")
      ->required();
  command.app
      ->add_option("NAME", command.options->texts,
                   "A name or an index; - is the lines of standard input")
      ->type_name("NAME")
      ->required();
  add_json(command, "One JSON object per name");
  command.app->callback([command, &status] { status = name_grammar(*command.options); });
}

}  // namespace

void add_grammar_commands(CLI::App& app, Status& status) {
  CLI::App* group =
      app.add_subcommand("grammar", "Describe grammar in words, and write it as tags");
  group->require_subcommand(1);
  add_decode(*group, status);
  add_encode(*group, status);
  add_name(*group, status);
}

}  // namespace kzdic

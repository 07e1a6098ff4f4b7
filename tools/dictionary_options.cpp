// Options of the commands on whole dictionaries.
#include <CLI/CLI.hpp>

#include "tools/command_line.h"
#include "tools/dictionary_commands.h"
#include "tools/option_checks.h"

namespace kzdic {
namespace {

// An option that states a property of the dictionary, be it the empty text.
CLI::Option* add_property(CLI::App& command, const char* name, Property& property,
                          const char* description) {
  return command.add_option_function<std::string>(
      name, [&property](const std::string& value) { property.value = value; }, description);
}

void add_build(CLI::App& app) {
  const auto stored = std::make_shared<BuildOptions>();
  BuildOptions& options = *stored;
  CLI::App* command = app.add_subcommand("build", "Compile source text to a dictionary");
  command
      ->add_option("SOURCE", options.sources,
                   "Source text, UTF-8, one entry per line; - is standard input")
      ->type_name("FILE")
      ->required();
  command->add_option("-o,--output", options.output, "The dictionary file to write")
      ->type_name("FILE")
      ->required();
  Properties& properties = options.properties;
  add_property(*command, "--language", properties.language,
               "Language pair or language of the dictionary")
      ->type_name("{ENRU,RUEN,DERU,RUDE,FRRU,RUFR,EN,RU,DE,FR}");
  add_property(*command, "--type", properties.type,
               "Type letter (default: from the name of the output)")
      ->type_name("{C,S,T,H,G}");
  add_property(*command, "--title", properties.title, "Title, at most 40 characters")
      ->type_name("TEXT");
  add_property(*command, "--label", properties.label, "Label, at most 8 characters")
      ->type_name("TEXT");
  command->add_option("--password", options.form.password, "Password, at most 8 characters");
  CLI::Option* packed = command->add_flag("--packed", options.form.packed, "Front-coded records");
  command
      ->add_flag_callback(
          "--plain", [] {}, "Records as plain lines (the default)")
      ->excludes(packed);
  CLI::Option* shared = command->add_flag_callback(
      "--shared", [&options] { options.form.shared = true; },
      "Store equal bodies once, in a shared-text block (default when packed)");
  command
      ->add_flag_callback(
          "--no-shared", [&options] { options.form.shared = false; }, "No shared-text block")
      ->excludes(shared);
  command->add_option("--depth", options.form.depth, "Depth of the letter index (default: by size)")
      ->type_name("N")
      ->check(CLI::IsMember({2, 3, 5}));
  command->add_flag("--skip-bad", options.form.skip_bad,
                    "Leave out and count entries that the format cannot hold");
  command->add_flag("--fold-yo", options.form.fold_yo, "Write the letter ё of headwords as е");
  command
      ->add_option("--timestamp", options.form.time_stamp,
                   "Time in the header, in seconds since 1970 (default: 0)")
      ->type_name("SECONDS")
      ->check(whole_number())
      ->envname("SOURCE_DATE_EPOCH");
  command->add_flag("-q,--quiet", options.quiet, "No summary");
  command->callback([stored] { build(*stored); });
}

void add_import(CLI::App& app) {
  const auto stored = std::make_shared<ImportOptions>();
  ImportOptions& options = *stored;
  CLI::App* command = app.add_subcommand("import", "Turn another program's database into source");
  command->add_option("--from", options.from, "Kind of database")
      ->required()
      ->type_name("{dictd}")
      ->check(one_of({"dictd"}));
  command->add_option("BASE", options.base, "Database, with or without .index, .dict or .dict.dz")
      ->type_name("FILE")
      ->required();
  command
      ->add_option("-o,--output", options.output, "The source text to write; - is standard output")
      ->type_name("FILE")
      ->required();
  command
      ->add_option("--language", options.language, "Language pair (default: derived from the data)")
      ->type_name("{ENRU,RUEN,DERU,RUDE,FRRU,RUFR}")
      ->check(one_of({"ENRU", "RUEN", "DERU", "RUDE", "FRRU", "RUFR"}));
  command->add_flag("-q,--quiet", options.quiet, "No summary");
  command->callback([stored] { import_database(*stored); });
}

void add_dump(CLI::App& app) {
  const auto stored = std::make_shared<DumpOptions>();
  DumpOptions& options = *stored;
  CLI::App* command = app.add_subcommand("dump", "Print a dictionary as source text");
  command->add_option("FILE", options.dictionary, "The dictionary")->type_name("FILE")->required();
  command->add_option("--from", options.range.first, "First letter of the first entries")
      ->type_name("LETTER");
  command->add_option("--to", options.range.last, "First letter of the last entries")
      ->type_name("LETTER");
  CLI::Option* code = command
                          ->add_option("--code", options.range.part_codes,
                                       "Only entries with one of these part codes")
                          ->type_name("LETTERS");
  command
      ->add_option_function<std::string>(
          "--not-code",
          [&options](const std::string& codes) {
            options.range.part_codes = codes;
            options.range.other_codes = true;
          },
          "Only entries with none of these part codes")
      ->type_name("LETTERS")
      ->excludes(code);
  command->callback([stored] { dump(*stored); });
}

void add_info(CLI::App& app) {
  const auto path = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("info", "Describe a dictionary");
  command->add_option("FILE", *path, "The dictionary")->type_name("FILE")->required();
  command->callback([path] { info(*path); });
}

}  // namespace

void add_dictionary_commands(CLI::App& app) {
  add_build(app);
  add_import(app);
  add_dump(app);
  add_info(app);
}

}  // namespace kzdic

// kzdic: builds, imports, dumps, describes and searches dictionaries.
#include <CLI/CLI.hpp>
#include <iostream>
#include <new>

#include "tools/build_command.h"
#include "tools/dump_command.h"
#include "tools/import_command.h"
#include "tools/info_command.h"
#include "tools/lookup_command.h"
#include "tools/status.h"

namespace {

using kzdic::Status;

void add_build(CLI::App& app, kzdic::BuildOptions& options) {
  CLI::App* command = app.add_subcommand("build", "Compile source text to a dictionary");
  command
      ->add_option("SOURCE", options.sources,
                   "Source text, UTF-8, one entry per line; - is "
                   "standard input")
      ->required();
  command->add_option("-o,--output", options.output, "The dictionary file to write")->required();
  command->add_option("--language", options.properties.language,
                      "Language pair (ENRU, RUEN, DERU, RUDE, FRRU, RUFR) or language (EN, ...)");
  command->add_option("--type", options.properties.type,
                      "Type letter C, S, T, H or G (default: from the name of the output)");
  command->add_option("--title", options.properties.title, "Title, at most 40 characters");
  command->add_option("--label", options.properties.label, "Label, at most 8 characters");
  command->add_option("--password", options.password, "Password, at most 8 characters");
  command->add_flag("--packed,!--plain", options.packed, "Front-coded records (default: plain)");
  CLI::Option* shared =
      command->add_flag("--shared", options.shared,
                        "Equal bodies stand once, in a shared-text block (default when packed)");
  command->add_flag("--no-shared", options.no_shared, "No shared-text block")->excludes(shared);
  command->add_option("--depth", options.depth, "Depth of the letter index (default: by size)")
      ->check(CLI::IsMember({2, 3, 5}));
  command->add_flag("--skip-bad", options.skip_bad,
                    "Leave out and count entries that the format cannot hold");
  command->add_flag("--fold-yo", options.fold_yo, "Write the letter ё of headwords as е");
  command
      ->add_option("--timestamp", options.time_stamp,
                   "Time in the header, in seconds since 1970 (default: 0)")
      ->envname("SOURCE_DATE_EPOCH");
  command->add_flag("-q,--quiet", options.quiet, "No summary");
}

void add_import(CLI::App& app, kzdic::ImportOptions& options, std::string& from) {
  CLI::App* command = app.add_subcommand("import", "Turn another program's database into source");
  command->add_option("--from", from, "Kind of database")
      ->required()
      ->check(CLI::IsMember({"dictd"}));
  command->add_option("BASE", options.base, "Database, without .index, .dict or .dict.dz")
      ->required();
  command
      ->add_option("-o,--output", options.output,
                   "The source text to write; - is standard "
                   "output")
      ->required();
  command->add_option("--language", options.language,
                      "Language pair (default: told from the data)");
  command->add_flag("-q,--quiet", options.quiet, "No summary");
}

void add_dump(CLI::App& app, kzdic::DumpOptions& options) {
  CLI::App* command = app.add_subcommand("dump", "Print a dictionary as source text");
  command->add_option("FILE", options.dictionary, "The dictionary")->required();
  command->add_option("--from", options.from, "First letter of the first entries");
  command->add_option("--to", options.to, "First letter of the last entries");
  CLI::Option* code =
      command->add_option("--code", options.codes, "Only entries with one of these part codes");
  command
      ->add_option_function<std::string>(
          "--not-code",
          [&options](const std::string& codes) {
            options.codes = codes;
            options.not_codes = true;
          },
          "Only entries with none of these part codes")
      ->excludes(code);
}

void add_lookup(CLI::App& app, kzdic::LookupOptions& options, std::vector<std::string>& arguments) {
  CLI::App* command = app.add_subcommand("lookup", "Look words up");
  command
      ->add_option("-d,--dictionary", options.dictionaries,
                   "A dictionary; all arguments are words then")
      ->expected(1);
  command
      ->add_option("ARGUMENT", arguments,
                   "FILE... WORD...: the first is a dictionary, and so are those behind it that "
                   "end in .dic, .dis, .dit, .dih or .dig; - is the lines of standard input")
      ->required();
  CLI::Option* set =
      command
          ->add_option("--set", options.set.directory,
                       "Directory of a set of dictionaries; all arguments are words then")
          ->check(CLI::ExistingDirectory);
  command->add_option("--direction", options.set.direction, "Direction of the set: ENRU, RUEN, ...")
      ->needs(set);
  command
      ->add_option("--config", options.set.config,
                   "Parameter string of the set (default: the base dictionaries)")
      ->needs(set);
  command->add_flag("--first", options.first, "Only the first dictionary that has the word");
  command->add_flag("--prefix", options.prefix, "All headwords that begin with the word");
  command->add_option("--next", options.next, "Also the records behind it, so many");
  CLI::Option* raw = command->add_flag("--raw", options.raw, "Entries as they stand");
  command->add_flag("--json", options.json, "One JSON object per word")->excludes(raw);
}

int run(int argc, char** argv) {
  CLI::App app("Builds and searches dictionaries.", "kzdic");
  app.set_version_flag("--version", "kzdic " KZ_VERSION);
  app.require_subcommand(1);
  kzdic::BuildOptions build_options;
  kzdic::ImportOptions import_options;
  kzdic::DumpOptions dump_options;
  kzdic::LookupOptions lookup_options;
  std::string from;
  std::string info_path;
  std::vector<std::string> arguments;
  add_build(app, build_options);
  add_import(app, import_options, from);
  add_dump(app, dump_options);
  app.add_subcommand("info", "Describe a dictionary")
      ->add_option("FILE", info_path, "The dictionary")
      ->required();
  add_lookup(app, lookup_options, arguments);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : static_cast<int>(Status::kUsage);
  }
  if (app.got_subcommand("build")) {
    kzdic::build(build_options);
  } else if (app.got_subcommand("import")) {
    kzdic::import_dictd(import_options);
  } else if (app.got_subcommand("dump")) {
    kzdic::dump(dump_options);
  } else if (app.got_subcommand("info")) {
    kzdic::info(info_path);
  } else {
    kzdic::split_arguments(arguments, lookup_options);
    return static_cast<int>(kzdic::lookup(lookup_options));
  }
  return static_cast<int>(Status::kOk);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const kzdic::Failure& failure) {
    std::cerr << "kzdic: " << failure.what() << '\n';
    return static_cast<int>(failure.status());
  } catch (const std::exception& error) {
    std::cerr << "kzdic: " << error.what() << '\n';
    return static_cast<int>(Status::kFile);
  }
}

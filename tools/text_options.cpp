// Options of the filters of texts.
#include <CLI/CLI.hpp>

#include <iostream>

#include "lexicon/text/text_encoding.h"
#include "tools/alphabet_commands.h"
#include "tools/command_line.h"
#include "tools/convert_command.h"
#include "tools/replace_command.h"
#include "tools/status.h"

namespace kzdic {
namespace {

void add_filter_options(CLI::App& command, FilterOptions& options) {
  command.add_option("FILE", options.files, "Text to read instead of standard input, which is -")
      ->type_name("FILE");
  command.add_flag("--json", options.json, "One JSON object per line");
}

std::string code_page_type() {
  std::string type = "CODEPAGE:{";
  for (const Encoding& encoding : encodings()) {
    type += type.back() == '{' ? "" : ",";
    type += encoding.name;
  }
  return type + "}";
}

void add_convert(CLI::App& app, Status& status) {
  const auto stored = std::make_shared<ConvertOptions>();
  ConvertOptions& options = *stored;
  CLI::App* command = app.add_subcommand("convert", "Convert text between code pages");
  command->add_option("--from", options.from, "Code page of the text")
      ->required()
      ->type_name(code_page_type());
  command->add_option("--to", options.to, "Code page to convert it to")
      ->required()
      ->type_name(code_page_type());
  CLI::Option* narrow = command->add_flag(
      "--narrow", options.narrow,
      "Convert letters, some punctuation and box drawing only, as the library does");
  CLI::Option* check = command
                           ->add_flag("--check", options.check,
                                      "Report the characters that the target lacks, write no text")
                           ->excludes(narrow);
  command
      ->add_option("--replace", options.replace, "Write this for a character that the target lacks")
      ->type_name("TEXT")
      ->excludes(narrow)
      ->excludes(check);
  command
      ->add_flag_callback(
          "--list",
          [] {
            list_code_pages(std::cout);
            throw CLI::Success();
          },
          "List the code pages, their other names and the narrow conversions")
      ->trigger_on_parse();
  add_filter_options(*command, options.filter);
  command->callback([stored, &status] { status = convert(*stored); });
}

CLI::Option* add_target(CLI::App& command, std::string& to) {
  return command.add_option("--to", to, "Letters to write")
      ->required()
      ->type_name("{latin,russian}")
      ->check(CLI::IsMember({"latin", "russian"}).description(""));
}

void add_translit(CLI::App& app) {
  const auto stored = std::make_shared<TranslitOptions>();
  TranslitOptions& options = *stored;
  CLI::App* command = app.add_subcommand("translit", "Transliterate text, Russian or Latin");
  add_target(*command, options.to);
  command->add_flag("--capitals", options.capitals,
                    "To Latin: write capitals only, and plain brackets");
  CLI::Option* smart =
      command->add_flag("--smart", options.smart, "To Russian: write English words as they sound");
  command->add_flag("--small", options.small_letters, "Small letters for capitals")->needs(smart);
  command
      ->add_option("--language", options.language,
                   "To Russian: language of the text, for its accented letters (default: FR)")
      ->type_name("{DE,FR}")
      ->check(CLI::IsMember({"DE", "FR"}).description(""))
      ->excludes(smart);
  add_filter_options(*command, options.filter);
  command->callback([stored] { translit(*stored); });
}

void add_layout(CLI::App& app) {
  const auto stored = std::make_shared<LayoutOptions>();
  LayoutOptions& options = *stored;
  CLI::App* command = app.add_subcommand("layout", "Repair text typed with the wrong keyboard");
  add_target(*command, options.to);
  command->add_flag("--look-alike", options.look_alike,
                    "Letters that look the same, instead of those on the same key");
  add_filter_options(*command, options.filter);
  command->callback([stored] { layout(*stored); });
}

void add_replace(CLI::App& app) {
  const auto stored = std::make_shared<ReplaceOptions>();
  ReplaceOptions& options = *stored;
  CLI::App* command = app.add_subcommand("replace", "Replace the words of a list in text");
  command->add_option("BUFFER", options.buffer, "Replacement buffer, Windows-1251")
      ->type_name("FILE")
      ->required();
  add_filter_options(*command, options.filter);
  command->callback([stored] { replace(*stored); });
}

}  // namespace

void add_text_commands(CLI::App& app, Status& status) {
  add_convert(app, status);
  add_translit(app);
  add_layout(app);
  add_replace(app);
}

}  // namespace kzdic

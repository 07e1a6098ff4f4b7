// The filters of texts: their options, and the library's filters for them.
#include <CLI/CLI.hpp>

#include "kzlexicon/output.h"
#include "kzlexicon/text.h"
#include "tools/command_line.h"
#include "tools/convert_command.h"
#include "tools/line_filter.h"
#include "tools/option_checks.h"
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
            list_code_pages();
            throw CLI::Success();
          },
          "List the code pages, their other names and the narrow conversions")
      ->trigger_on_parse();
  add_filter_options(*command, options.filter);
  command->callback([stored, &status] { status = convert(*stored); });
}

void run(std::unique_ptr<TextFilter> filter, const FilterOptions& options) {
  TextLineFilter lines(std::move(filter));
  run_filter(lines, options);
}

void add_target(CLI::App& command, Alphabet& to) {
  command
      .add_option_function<std::string>(
          "--to",
          [&to](const std::string& text) {
            to = text == "latin" ? Alphabet::kLatin : Alphabet::kRussian;
          },
          "Letters to write")
      ->required()
      ->type_name("{latin,russian}")
      ->check(one_of({"latin", "russian"}));
}

template <typename Options>
struct Stored {
  Options options;
  FilterOptions filter;
};

void check(const TransliterationOptions& options) {
  const bool latin = options.to == Alphabet::kLatin;
  if (latin && (options.smart || !options.language.empty())) {
    throw Failure(Status::kUsage, "--smart and --language are for Latin text: --to russian");
  }
  if (!latin && options.capitals) {
    throw Failure(Status::kUsage, "--capitals is for Russian text: --to latin");
  }
}

void add_translit(CLI::App& app) {
  const auto stored = std::make_shared<Stored<TransliterationOptions>>();
  TransliterationOptions& options = stored->options;
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
      ->check(one_of({"DE", "FR"}))
      ->excludes(smart);
  add_filter_options(*command, stored->filter);
  command->callback([stored] {
    check(stored->options);
    run(transliteration(stored->options), stored->filter);
  });
}

void add_layout(CLI::App& app) {
  const auto stored = std::make_shared<Stored<LayoutOptions>>();
  CLI::App* command = app.add_subcommand("layout", "Repair text typed with the wrong keyboard");
  add_target(*command, stored->options.to);
  command->add_flag("--look-alike", stored->options.look_alike,
                    "Letters that look the same, instead of those on the same key");
  add_filter_options(*command, stored->filter);
  command->callback([stored] { run(keyboard_layout(stored->options), stored->filter); });
}

void add_replace(CLI::App& app) {
  const auto stored = std::make_shared<Stored<std::string>>();
  CLI::App* command = app.add_subcommand("replace", "Replace the words of a list in text");
  command->add_option("BUFFER", stored->options, "Replacement buffer, Windows-1251")
      ->type_name("FILE")
      ->required();
  add_filter_options(*command, stored->filter);
  command->callback([stored] {
    refuse_inputs_as_output("-", {stored->options});
    run(replacement(stored->options), stored->filter);
  });
}

}  // namespace

void add_text_commands(CLI::App& app, Status& status) {
  add_convert(app, status);
  add_translit(app);
  add_layout(app);
  add_replace(app);
}

}  // namespace kzdic

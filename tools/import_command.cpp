// Import of databases of other programs.
#include <iostream>

#include "kzlexicon/importers.h"
#include "kzlexicon/output.h"
#include "tools/dictionary_commands.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

void report(const ImportSummary& summary) {
  std::cerr << summary.name << ": " << summary.articles << " articles, " << summary.entries
            << " entries in " << summary.language << '\n';
  const auto count = [](std::size_t number, const char* what) {
    if (number != 0) std::cerr << "  " << number << ' ' << what << '\n';
  };
  count(summary.plain_headwords,
        "headwords written in plain letters: a character is not in the code page");
  count(summary.bad_characters, "headwords left out: a character is not in the code page");
  count(summary.unindexed, "headwords left out: without a letter, or too long");
  count(summary.empty, "articles left out: no translation is left");
  count(summary.losses.characters, "characters of translations written otherwise or dropped");
  count(summary.losses.definitions, "definitions dropped: too long");
  count(summary.losses.meanings, "meanings dropped: without a translation");
}

// Reports, and throws when the database left nothing to write.
void write_source(const ImportOptions& options, std::ostream& out) {
  const ImportSummary summary = import_dictd(options.base, options.language, out);
  if (!options.quiet || summary.entries == 0) report(summary);
  if (summary.entries == 0) throw Failure(Status::kDamaged, summary.name + ": no entry is left");
}

}  // namespace

void import_database(const ImportOptions& options) {
  refuse_inputs_as_output(options.output, dictd_files(options.base));
  if (options.output == "-") {
    write_source(options, std::cout);
    return finish_output();
  }
  OutputFile output(options.output);
  write_source(options, output.stream());
  output.commit();
}

}  // namespace kzdic

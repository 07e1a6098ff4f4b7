// Build of a dictionary from source text.
#include <iostream>
#include <utility>

#include "kzlexicon/builder.h"
#include "kzlexicon/output.h"
#include "tools/dictionary_commands.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

constexpr std::size_t kShown = 20;

// Reports errors and notes; of many errors the first ones only. Returns the number of errors.
std::size_t report(const std::vector<Diagnostic>& diagnostics) {
  std::size_t errors = 0;
  for (const Diagnostic& diagnostic : diagnostics) {
    const bool error = diagnostic.severity == Diagnostic::Severity::kError;
    if (error && ++errors > kShown) {
      if (errors == kShown + 1) std::cerr << "kzdic: more lines like these are only counted\n";
      continue;
    }
    std::cerr << "kzdic: " << at_place(diagnostic.place, diagnostic.message) << '\n';
  }
  return errors;
}

SourceText read_sources(const BuildOptions& options) {
  SourceReader reader(options.properties);
  for (const std::string& path : options.sources) {
    if (path == "-") {
      reader.add(std::cin, "(standard input)");
      check_standard_input();
    } else {
      reader.add_file(path);
    }
  }
  return reader.take();
}

kz::lexicon::BuildOptions settle(const BuildOptions& options, const Properties& properties) {
  if (!properties.language.value) {
    throw Failure(Status::kUsage,
                  "no language: use --language or a line '*: language ENRU' in the source");
  }
  kz::lexicon::BuildOptions settled = with_properties(options.form, properties);
  if (settled.type.empty()) settled.type = type_of_file_name(options.output);
  return settled;
}

BuildSummary write(Builder& builder, const BuildOptions& options) {
  try {
    const BuildSummary summary = builder.write(options.output);
    report(builder.diagnostics());
    return summary;
  } catch (const Error& error) {
    if (report(builder.diagnostics()) == 0 || options.form.skip_bad) throw;
    throw Failure(status_of(error),
                  std::string(error.what()) + " (--skip-bad leaves such entries out)");
  }
}

}  // namespace

void build(const BuildOptions& options) {
  refuse_inputs_as_output(options.output, options.sources);
  const SourceText source = read_sources(options);
  Builder builder(settle(options, source.properties));
  builder.add_source(source);
  const BuildSummary summary = write(builder, options);
  if (options.quiet) return;
  std::cerr << options.output << ": " << summary.headwords << " headwords, " << summary.records
            << " records in " << summary.blocks << " blocks at depth " << summary.depth << "; "
            << summary.file_bytes << " bytes (records " << summary.record_bytes << ", index "
            << summary.index_bytes << ", shared text " << summary.shared_bytes << "); "
            << summary.referring_records << " records refer to " << summary.shared_texts
            << " shared texts";
  if (summary.left_out != 0) std::cerr << "; " << summary.left_out << " entries left out";
  std::cerr << '\n';
}

}  // namespace kzdic

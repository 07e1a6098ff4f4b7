// A dictionary as source text.
#include <iostream>

#include "kzlexicon/output.h"
#include "kzlexicon/source.h"
#include "tools/dictionary_commands.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

constexpr std::size_t kShown = 20;

}  // namespace

void dump(const DumpOptions& options) {
  refuse_inputs_as_output("-", {options.dictionary});
  const Dictionary dictionary(options.dictionary);
  const SourceFormatter formatter(dictionary.header());
  Dictionary::Walk walk = dictionary.entries(options.range);
  std::cout << formatter.directives();
  std::size_t bad = 0;
  for (const Entry& entry : walk) {
    const SourceFormatter::Line line = formatter.line(entry);
    std::cout << line.text << '\n';
    if (!line.exact && ++bad <= kShown) {
      std::cerr << "kzdic: " << options.dictionary
                << ": not the source text of its entry: " << line.text << '\n';
    }
  }
  finish_output();
  if (bad != 0) {
    throw Failure(Status::kDamaged, std::to_string(bad) + (bad == 1 ? " entry" : " entries") +
                                        " cannot be written as source text");
  }
}

}  // namespace kzdic

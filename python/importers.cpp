// Databases of other programs.
#include "kzlexicon/importers.h"

#include <sstream>

#include "python/bindings.h"

namespace kz::python {

void bind_importers(py::module_& module) {
  module.def(
      "import_dictd",
      [](const Path& base, const Text& language) {
        std::ostringstream out;
        lexicon::ImportSummary summary = lexicon::import_dictd(base.value, language.value, out);
        return std::pair(Text{std::move(out).str()}, std::move(summary));
      },
      py::arg("base"), py::arg("language") = Text{}, Released(),
      "Source text of a database of dictd, and what was read, written and left out.\n\n"
      "The base is one of its files, or their name without an extension. When the language of\n"
      "the dictionary (\"ENRU\") is empty, it is derived from the name and the data.");
  module.def(
      "dictd_files", [](const Path& base) { return lexicon::dictd_files(base.value); },
      py::arg("base"),
      "The files that a database of dictd can have, whether they are there or not.");
}

}  // namespace kz::python

// Sets of dictionaries.
#include "kzlexicon/dictionary_set.h"

#include "python/bindings.h"
#include "python/open_dictionary.h"

namespace kz::python {
namespace {

// The set and its dictionaries as Python holds them; each keeps the set open.
struct OpenSet {
  explicit OpenSet(const lexicon::SetOptions& options) {
    const auto set = std::make_shared<lexicon::DictionarySet>(options);
    missing = set->missing();
    for (lexicon::Dictionary& dictionary : set->dictionaries()) {
      dictionaries.push_back(std::make_shared<OpenDictionary>(dictionary, set));
    }
  }

  void close() const {
    for (const auto& dictionary : dictionaries) dictionary->close();
  }

  std::vector<std::shared_ptr<OpenDictionary>> dictionaries;
  std::vector<lexicon::MissingDictionary> missing;
};

}  // namespace

void bind_dictionary_set(py::module_& module) {
  py::class_<OpenSet>(
      module, "DictionarySet",
      "The dictionaries of a direction, opened together as a translation engine opens them.\n\n"
      "directory has the base dictionaries and relative paths; direction (\"ENRU\") may be empty\n"
      "when config, a parameter string, names one. A sequence of the dictionaries, in the order\n"
      "of a search; each keeps the set open. A context manager, which closes them all.")
      .def(py::init([](const Path& directory, const Text& direction, const Text& config) {
             return OpenSet({directory.value, direction.value, config.value});
           }),
           py::arg("directory"), py::arg("direction") = Text{}, py::arg("config") = Text{},
           Released())
      .def_readonly("dictionaries", &OpenSet::dictionaries, "In the order of a search.")
      .def_readonly("missing", &OpenSet::missing,
                    "The dictionaries that are not where they should be.")
      .def("close", &OpenSet::close, Released(), "Closes the dictionaries.")
      .def("__len__", [](const OpenSet& self) { return self.dictionaries.size(); })
      .def(
          "__getitem__",
          [](const OpenSet& self, std::ptrdiff_t index) {
            const auto size = static_cast<std::ptrdiff_t>(self.dictionaries.size());
            const std::ptrdiff_t at = index < 0 ? index + size : index;
            if (at < 0 || at >= size) throw py::index_error("the set has no such dictionary");
            return self.dictionaries[static_cast<std::size_t>(at)];
          },
          py::arg("index"))
      .def(
          "__enter__", [](OpenSet& self) -> OpenSet& { return self; },
          py::return_value_policy::reference)
      .def("__exit__", [](const OpenSet& self, const py::args&) { self.close(); })
      .def("__repr__", [](const OpenSet& self) {
        return "<kzlexicon.DictionarySet of " + std::to_string(self.dictionaries.size()) +
               " dictionaries>";
      });
}

}  // namespace kz::python

// Dictionaries and walks over them.
#include "kzlexicon/dictionary.h"

#include "python/bindings.h"
#include "python/open_dictionary.h"

namespace kz::python {
namespace {

using lexicon::Dictionary;
using lexicon::Entry;

using Entries = Guarded<Dictionary::Walk>;

std::shared_ptr<Entries> walk(OpenDictionary& self, const lexicon::WalkRange& range) {
  return self.use(
      [&](Dictionary& dictionary) { return std::make_shared<Entries>(dictionary.entries(range)); });
}

Entry next(Entries& self) {
  std::optional<Entry> entry;
  {
    const py::gil_scoped_release released;
    entry = self.use([](Dictionary::Walk& walk) {
      const auto at = walk.begin();
      return at == walk.end() ? std::nullopt : std::optional(*at);
    });
  }
  if (!entry) throw py::stop_iteration();
  return *std::move(entry);
}

std::string repr(OpenDictionary& self) {
  if (self.closed()) return "<kzlexicon.Dictionary, closed>";
  return self.use([](const Dictionary& dictionary) {
    return "<kzlexicon.Dictionary '" + dictionary.path() + "' " + dictionary.language() + ">";
  });
}

void bind_walk(py::module_& module) {
  py::class_<Entries, std::shared_ptr<Entries>>(
      module, "Entries",
      "The entries of a part of a dictionary, in the order of the file; an iterator.\n\n"
      "It has a place of its own: searches do not disturb it, and it may outlive the dictionary.")
      .def(
          "__iter__", [](Entries& self) -> Entries& { return self; },
          py::return_value_policy::reference)
      .def("__next__", &next);
}

}  // namespace

void bind_dictionary(py::module_& module) {
  bind_walk(module);
  py::class_<OpenDictionary, std::shared_ptr<OpenDictionary>>(
      module, "Dictionary",
      "A dictionary file, open for searches and walks.\n\n"
      "Threads may share a Dictionary but take turns; open one for each thread to search at the\n"
      "same time. A context manager, which closes the file.")
      .def(py::init([](const Path& path) {
             return std::make_shared<OpenDictionary>(Dictionary(path.value));
           }),
           py::arg("path"), Released())
      .def_static(
          "from_bytes",
          [](const Bytes& data, const Text& name) {
            return std::make_shared<OpenDictionary>(
                Dictionary::from_memory(data.value, name.value));
          },
          py::arg("data"), py::arg("name") = Text{"(memory)"}, Released(),
          "Opens the bytes of a dictionary file, such as Builder.to_bytes gives.\n\n"
          "Messages call it by the name.")
      .def_property_readonly(
          "path",
          [](OpenDictionary& self) {
            return self.use([](const Dictionary& d) { return to_str(d.path()); });
          },
          "The path, or the name of a dictionary in memory.")
      .def_property_readonly(
          "language",
          [](OpenDictionary& self) {
            return self.use([](const Dictionary& d) { return d.language(); });
          },
          "\"ENRU\"; empty when unknown.")
      .def_property_readonly(
          "header",
          [](OpenDictionary& self) {
            return self.use([](const Dictionary& d) { return d.header(); });
          },
          "What the header of the file states.")
      .def_property_readonly("closed", &OpenDictionary::closed)
      .def(
          "statistics",
          [](OpenDictionary& self) {
            return self.use([](const Dictionary& d) { return d.statistics(); });
          },
          Released(), "Reads the whole dictionary and counts.")
      .def(
          "find",
          [](OpenDictionary& self, const Text& word, std::size_t next) {
            return self.use([&](Dictionary& d) { return d.find(word.value, next); });
          },
          py::arg("word"), py::arg("next") = 0, Released(),
          "The entries of a headword, and so many of the entries that follow them.")
      .def(
          "find_prefix",
          [](OpenDictionary& self, const Text& word) {
            return self.use([&](Dictionary& d) { return d.find_prefix(word.value); });
          },
          py::arg("word"), Released(), "All entries whose headword begins with the word.")
      .def(
          "find_inflected",
          [](OpenDictionary& self, const Text& word, const lexicon::Inflector& inflector) {
            return self.use([&](Dictionary& d) { return d.find_inflected(word.value, inflector); });
          },
          py::arg("word"), py::arg("inflector"), Released(),
          "An answer for each headword that the word may be a form of, the most likely first.\n\n"
          "Only dictionaries from Russian have any.")
      .def(
          "entries",
          [](OpenDictionary& self, const Text& first, const Text& last, const Text& part_codes,
             bool other_codes) {
            return walk(self, {first.value, last.value, part_codes.value, other_codes});
          },
          py::kw_only(), py::arg("first") = Text{}, py::arg("last") = Text{},
          py::arg("part_codes") = Text{}, py::arg("other_codes") = false, Released(),
          "An iterator over the entries.\n\n"
          "first and last are the first letters of the first and the last headwords. part_codes\n"
          "limits the walk to entries with one of these part codes, or, with other_codes, with\n"
          "none of them.")
      .def("close", &OpenDictionary::close, Released(),
           "Closes the file; searches raise ArgumentError from then on.")
      .def(
          "__iter__", [](OpenDictionary& self) { return walk(self, {}); }, Released())
      .def(
          "__contains__",
          [](OpenDictionary& self, const Text& word) {
            return self.use([&](Dictionary& d) { return static_cast<bool>(d.find(word.value)); });
          },
          py::arg("word"), Released(), "True for a word that find() finds.")
      .def(
          "__enter__", [](OpenDictionary& self) -> OpenDictionary& { return self; },
          py::return_value_policy::reference)
      .def("__exit__", [](OpenDictionary& self, const py::args&) { self.close(); })
      .def("__repr__", &repr);
}

}  // namespace kz::python

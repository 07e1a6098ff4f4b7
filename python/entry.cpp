// Entries, and what their attribute blocks say.
#include "kzlexicon/entry.h"

#include "kzlexicon/dictionary.h"
#include "python/bindings.h"

namespace kz::python {
namespace {

using lexicon::Entry;

bool same(const Entry& a, const Entry& b) {
  return a.record() == b.record() && a.language() == b.language();
}

}  // namespace

void bind_entry(py::module_& module) {
  py::class_<Entry>(module, "Entry",
                    "An entry of a dictionary; a value of its own, which needs no open dictionary.")
      .def(py::init([](const Bytes& record, const Text& language) {
             return Entry(std::string(record.value), language.value);
           }),
           py::arg("record"), py::arg("language"))
      .def_property_readonly("text", &Entry::text, "The entry as the dictionary has it.")
      .def_property_readonly("headword", &Entry::headword, "The headword, as it is stored.")
      .def_property_readonly(
          "record", [](const Entry& self) { return py::bytes(self.record()); },
          "The record in the code pages of the dictionary.")
      .def_property_readonly("language", &Entry::language, "The language of the dictionary.")
      .def("view", &Entry::view, "The entry taken apart.")
      .def("__eq__", &same, py::arg("other"), py::is_operator())
      .def("__hash__", [](const Entry& self) { return std::hash<std::string>()(self.record()); })
      .def("__str__", &Entry::text)
      .def("__repr__", [](const Entry& self) {
        return "<kzlexicon.Entry " + std::string(py::repr(py::cast(self.text()))) + ">";
      });

  module.def(
      "part_name", [](const Text& code) { return lexicon::part_name(code.value); }, py::arg("code"),
      "The name of a part code (\"N\"), \"noun\"; empty for one without a name.");
  module.def(
      "view_entry",
      [](const Text& text, const Text& language) {
        return lexicon::view_entry(text.value, language.value);
      },
      py::arg("text"), py::arg("language"),
      "Takes the text of an entry apart, of a dictionary of the language (\"ENRU\").");
  module.def("entry_grammar", &lexicon::entry_grammar, py::arg("entry"),
             "What the attribute block of an entry says of its headword and its translation.");
  module.def("meaning_grammar", &lexicon::meaning_grammar, py::arg("entry"), py::arg("meaning"),
             "What the attribute blocks of a meaning of the entry say.");
  module.def(
      "describe_grammar",
      [](const std::vector<lexicon::WordGrammar>& words, const Text& language) {
        return lexicon::describe(words, language.value);
      },
      py::arg("words"), py::arg("language"), "\"English: no-plural; Russian: feminine\"");
}

}  // namespace kz::python

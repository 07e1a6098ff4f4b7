// Inflection tables.
#include "kzlexicon/inflector.h"

#include <sstream>

#include "python/bindings.h"

namespace kz::python {

using lexicon::Inflector;

void bind_inflector(py::module_& module) {
  py::class_<Inflector>(module, "Inflector",
                        "A compiled inflection table. Any number of threads may use one.")
      .def(py::init([](const Path& path) { return Inflector(path.value); }), py::arg("path"),
           Released())
      .def_static(
          "compile",
          [](const Text& text, const Path& path, const Text& name) {
            std::istringstream in(text.value);
            Inflector::compile(in, name.value, path.value);
          },
          py::arg("text"), py::arg("path"), py::arg("name") = Text{"(text)"}, Released(),
          "Compiles the text of a table into a file whose name ends in \".Dat\".\n\n"
          "Writes the text in Windows-1251 beside it. The name is that of the text in messages.")
      .def_static(
          "compile_file",
          [](const Path& text, const Path& path) {
            Inflector::compile_file(text.value, path.value);
          },
          py::arg("text_path"), py::arg("path"), Released(), "Compiles the text of a file.")
      .def_static(
          "text_path", [](const Path& path) { return to_str(Inflector::text_path(path.value)); },
          py::arg("path"), "The name of the text beside a compiled table.")
      .def(
          "endings",
          [](const Inflector& self, const Text& word) { return self.endings(word.value); },
          py::arg("word"), Released(), "The known endings of a word, the longest first.")
      .def(
          "headwords",
          [](const Inflector& self, const Text& word) { return self.headwords(word.value); },
          py::arg("word"), Released(),
          "The headwords to look for, the most likely first. Most of them are no words: a\n"
          "dictionary decides.")
      .def("__repr__", [](const Inflector&) { return "<kzlexicon.Inflector>"; });
}

}  // namespace kz::python

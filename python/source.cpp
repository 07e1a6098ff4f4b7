// Source text: read, written, and made of dictionaries.
#include "kzlexicon/source.h"

#include "python/bindings.h"

namespace kz::python {
namespace {

using lexicon::SourceText;

using Reader = Guarded<lexicon::SourceReader>;
using Writer = Guarded<lexicon::SourceWriter>;
using Formatter = Guarded<lexicon::SourceFormatter>;

lexicon::Property stated(std::optional<std::string> value) { return {std::move(value), {}}; }

void bind_reader(py::module_& module) {
  py::class_<SourceText>(module, "SourceText",
                         "Source text taken apart: its lines with entries, and the properties that "
                         "directives state.")
      .def_property_readonly(
          "files",
          [](const SourceText& self) {
            std::vector<Text> files;
            for (const std::string& file : self.files) files.push_back({file});
            return files;
          },
          "The names of the texts; a line has an index into them.")
      .def_readonly("lines", &SourceText::lines, "The lines with entries; not yet checked.")
      .def_readonly("properties", &SourceText::properties)
      .def("place", &SourceText::place, py::arg("line"), "File and line.")
      .def("__len__", [](const SourceText& self) { return self.lines.size(); })
      .def("__repr__", [](const SourceText& self) {
        return "<kzlexicon.SourceText of " + std::to_string(self.lines.size()) + " lines>";
      });

  py::class_<Reader>(
      module, "SourceReader",
      "Takes source text apart.\n\n"
      "Properties that are given win over all directives. A text may repeat the directives of\n"
      "those before but not contradict them.")
      .def(py::init([](std::optional<std::string> language, std::optional<std::string> type,
                       std::optional<std::string> title, std::optional<std::string> label) {
             return std::make_unique<Reader>(
                 lexicon::SourceReader({stated(std::move(language)), stated(std::move(type)),
                                        stated(std::move(title)), stated(std::move(label))}));
           }),
           py::kw_only(), py::arg("language") = py::none(), py::arg("type") = py::none(),
           py::arg("title") = py::none(), py::arg("label") = py::none())
      .def(
          "add",
          [](Reader& self, const Text& text, const Text& name) -> Reader& {
            self.use([&](lexicon::SourceReader& reader) { reader.add(text.value, name.value); });
            return self;
          },
          py::arg("text"), py::arg("name"), py::return_value_policy::reference, Released(),
          "Adds a text, which messages call by the name; returns the reader.")
      .def(
          "add_file",
          [](Reader& self, const Path& path) -> Reader& {
            self.use([&](lexicon::SourceReader& reader) { reader.add_file(path.value); });
            return self;
          },
          py::arg("path"), py::return_value_policy::reference, Released(),
          "Adds a file of UTF-8; returns the reader.")
      .def(
          "take",
          [](Reader& self) {
            return self.use([](lexicon::SourceReader& reader) { return reader.take(); });
          },
          Released(), "What was read; the reader is empty afterwards.");
}

}  // namespace

void bind_source(py::module_& module) {
  bind_reader(module);
  py::class_<Writer>(module, "SourceWriter",
                     "Makes source lines of plain entries, for dictionaries of a language.")
      .def(py::init([](const Text& language) {
             return std::make_unique<Writer>(lexicon::SourceWriter(language.value));
           }),
           py::arg("language"))
      .def(
          "lines",
          [](Writer& self, const lexicon::PlainEntry& entry) {
            return self.use([&](lexicon::SourceWriter& writer) { return writer.lines(entry); });
          },
          py::arg("entry"), Released(),
          "The entry as source lines: several when it does not fit one, none when no meaning is\n"
          "left of it.")
      .def_property_readonly(
          "losses",
          [](Writer& self) {
            return self.use([](const lexicon::SourceWriter& writer) { return writer.losses(); });
          },
          "What could not be kept.");

  py::class_<Formatter>(module, "SourceFormatter",
                        "Turns the entries of a dictionary back into the lines of which they were "
                        "built.")
      .def(py::init([](const lexicon::Header& header) {
             return std::make_unique<Formatter>(lexicon::SourceFormatter(header));
           }),
           py::arg("header"))
      .def(
          "directives",
          [](Formatter& self) {
            return self.use(
                [](const lexicon::SourceFormatter& formatter) { return formatter.directives(); });
          },
          "The directives that state the properties of the dictionary.")
      .def(
          "line",
          [](Formatter& self, const lexicon::Entry& entry) {
            return self.use(
                [&](const lexicon::SourceFormatter& formatter) { return formatter.line(entry); });
          },
          py::arg("entry"), Released(),
          "The line of an entry. A headword that was stored in lower case has its spelling\n"
          "again.");
}

}  // namespace kz::python

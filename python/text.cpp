// Texts made from texts: filters, and conversions between encodings.
#include "kzlexicon/text.h"

#include "python/bindings.h"

namespace kz::python {
namespace {

using lexicon::Conversion;
using lexicon::TextFilter;

void bind_filters(py::module_& module) {
  py::class_<TextFilter>(module, "TextFilter",
                         "Turns text into text, line by line. Any number of threads may use one.")
      .def(
          "apply",
          [](const TextFilter& self, const Text& text) { return Text{self.apply(text.value)}; },
          py::arg("text"), Released(), "The text that the filter makes of a text of any lines.");
  module.def(
      "transliteration",
      [](lexicon::Alphabet to, bool capitals, bool smart, bool small_letters,
         const Text& language) {
        return lexicon::transliteration({to, capitals, smart, small_letters, language.value});
      },
      py::kw_only(), py::arg_v("to", lexicon::Alphabet::kLatin, "Alphabet.LATIN"),
      py::arg("capitals") = false, py::arg("smart") = false, py::arg("small_letters") = false,
      py::arg("language") = Text{},
      "A filter between Latin and Russian letters.\n\n"
      "To Latin: capitals makes both letters of a pair such as \"Sh\" capitals. To Russian: smart\n"
      "follows English pronunciation, small_letters then gives up capitals; otherwise language\n"
      "is the direction whose accented letters the text has, empty for \"FRRU\".");
  module.def(
      "keyboard_layout",
      [](lexicon::Alphabet to, bool look_alike) {
        return lexicon::keyboard_layout({to, look_alike});
      },
      py::kw_only(), py::arg_v("to", lexicon::Alphabet::kRussian, "Alphabet.RUSSIAN"),
      py::arg("look_alike") = false,
      "A filter for text that was typed with the other layout of the keyboard.\n\n"
      "look_alike writes letters that look alike, instead of those of the same key.");
  module.def(
      "replacement", [](const Path& path) { return lexicon::replacement(path.value); },
      py::arg("path"), Released(), "A filter that replaces the words of a replacement buffer.");
}

}  // namespace

void bind_text(py::module_& module) {
  bind_filters(module);
  py::class_<Conversion>(module, "Conversion",
                         "Converts text between encodings, by name or alias, through Unicode. Any\n"
                         "number of threads may use one.")
      .def(py::init([](const Text& source, const Text& target) {
             return Conversion(source.value, target.value);
           }),
           py::arg("source"), py::arg("target"))
      .def(
          "apply",
          [](const Conversion& self, const Bytes& data) {
            std::string answer;
            {
              const py::gil_scoped_release released;
              answer = self.apply(data.value);
            }
            return py::bytes(answer);
          },
          py::arg("data"),
          "Raises CodePageError for a character that the target lacks, DataError for bytes that\n"
          "are no character.")
      .def("__repr__", [](const Conversion& self) {
        return "<kzlexicon.Conversion from " + std::string(self.from().name) + " to " +
               std::string(self.to().name) + ">";
      });
  module.def(
      "encodings",
      [] {
        std::vector<std::string_view> names;
        for (const lexicon::Encoding& encoding : lexicon::encodings()) {
          names.push_back(encoding.name);
        }
        return names;
      },
      "The names of the encodings that a Conversion takes.");
  module.def(
      "convert_narrow",
      [](const Bytes& data, const Text& source, const Text& target) {
        const auto filter = lexicon::narrow_conversion(lexicon::find_encoding(source.value),
                                                       lexicon::find_encoding(target.value));
        return py::bytes(filter->apply(data.value));
      },
      py::arg("data"), py::arg("source"), py::arg("target"),
      "Bytes of a code page in another, letter by letter: libkzcommon's own conversions of\n"
      "letters, some punctuation and box drawing.");
}

}  // namespace kz::python

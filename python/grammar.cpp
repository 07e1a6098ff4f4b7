// Grammar in words.
#include "kzlexicon/grammar.h"

#include "python/bindings.h"

namespace kz::python {

void bind_grammar(py::module_& module) {
  module.def(
      "decode_tags",
      [](const Text& code, const Text& tags) {
        return lexicon::decode_tags(code.value, tags.value);
      },
      py::arg("code"), py::arg("tags"),
      "What a tag string (\"MS@\") of a part of speech (\"N\") says, field by field.");
  module.def(
      "encode_fields",
      [](const Text& code, const std::vector<std::string>& fields) {
        return lexicon::encode_fields(code.value, fields);
      },
      py::arg("code"), py::arg("fields"),
      "A tag string that says all the fields (\"masculine\", \"case=genitive,dative\").");
  module.def(
      "tag_group", [](const Text& code) { return lexicon::tag_group_of(code.value); },
      py::arg("code"),
      "The group whose tags a part of speech uses: \"noun\", \"adjective\", \"verb\", \"I\" or\n"
      "\"pronoun\"; empty when it has only those that all have.");
  module.def(
      "find_attribute",
      [](int kind, const Text& name) { return lexicon::find_attribute(kind, name.value); },
      py::arg("kind"), py::arg("name_or_index"),
      "A compact attribute, by name or by index in digits.\n\n"
      "Kind 0 has classes (\"NMa\"), kind 1 additions, kind 2 stem changes. The index of the\n"
      "result is -1 for a name that is none.");
  module.def("summarize_fields", &lexicon::summary, py::arg("fields"),
             "\"masculine, animate, person 1, flag x\"");
}

}  // namespace kz::python

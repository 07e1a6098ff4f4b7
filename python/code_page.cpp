// Text in the code pages of dictionaries.
#include "kzlexicon/code_page.h"

#include "python/bindings.h"

namespace kz::python {

void bind_code_page(py::module_& module) {
  module.def(
      "encode",
      [](const Text& text, lexicon::CodePage page) {
        return py::bytes(lexicon::encode_utf8(text.value, page));
      },
      py::arg("text"), py::arg("page"),
      "The bytes of a text in a code page.\n\n"
      "Strict: raises CodePageError for a character that the code page lacks.");
  module.def(
      "decode",
      [](const Bytes& data, lexicon::CodePage page) {
        return lexicon::decode_utf8(data.value, page);
      },
      py::arg("data"), py::arg("page"),
      "The text of bytes in a code page; bytes without a character become U+FFFD.");
  module.def("code_page_name", &lexicon::name_of, py::arg("page"),
             "The usual name of a code page, \"Windows-1251\".");
}

}  // namespace kz::python

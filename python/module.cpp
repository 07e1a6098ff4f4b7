// The module kzlexicon._native, of which the package kzlexicon makes its interface.
#include "python/bindings.h"

// A table of the interpreter's, and the entry point that it looks for.
PYBIND11_MODULE(_native, module) {
  namespace python = kz::python;
  module.doc() = "Bindings of libkzlexicon.";
  python::declare_values();
  python::translate_errors();
  // Types before the functions that return them.
  python::bind_code_page(module);
  python::bind_grammar(module);
  python::bind_entry(module);
  python::bind_inflector(module);
  python::bind_dictionary(module);
  python::bind_dictionary_set(module);
  python::bind_source(module);
  python::bind_builder(module);
  python::bind_importers(module);
  python::bind_output(module);
  python::bind_text(module);
}

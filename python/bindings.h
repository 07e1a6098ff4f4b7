// The families of the module, and what they share.
#ifndef PYTHON_BINDINGS_H
#define PYTHON_BINDINGS_H

#include <pybind11/pybind11.h>

#include <mutex>
#include <utility>

#include "python/arguments.h"
#include "python/value_fields.h"

namespace kz::python {

// Other threads of Python run while a function works.
using Released = py::call_guard<py::gil_scoped_release>;

// An object of the library that serves one thread at a time: threads of Python take turns. The
// interpreter lock is never taken while the object is held.
template <typename T>
class Guarded {
 public:
  explicit Guarded(T object) : object_(std::move(object)) {}

  template <typename Work>
  auto use(Work work) {
    const std::lock_guard lock(mutex_);
    return work(object_);
  }

 private:
  std::mutex mutex_;
  T object_;
};

// Reads the data classes and enumerations of the package. Throws ImportError for one that differs
// from the library.
void declare_values();
void translate_errors();

void bind_builder(py::module_& module);
void bind_code_page(py::module_& module);
void bind_dictionary(py::module_& module);
void bind_dictionary_set(py::module_& module);
void bind_entry(py::module_& module);
void bind_grammar(py::module_& module);
void bind_importers(py::module_& module);
void bind_inflector(py::module_& module);
void bind_output(py::module_& module);
void bind_source(py::module_& module);
void bind_text(py::module_& module);

}  // namespace kz::python

#endif  // PYTHON_BINDINGS_H

// Texts and paths between Python and the library.
#include "python/arguments.h"

namespace kz::python {

py::str to_str(std::string_view text) {
  PyObject* const str =
      PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
  if (str == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(str);
}

bool read_text(py::handle object, std::string& text) {
  if (!object || PyUnicode_Check(object.ptr()) == 0) return false;
  Py_ssize_t size = 0;
  if (const char* const utf8 = PyUnicode_AsUTF8AndSize(object.ptr(), &size)) {
    text.assign(utf8, static_cast<std::size_t>(size));
    return true;
  }
  PyErr_Clear();
  PyObject* const bytes = PyUnicode_AsEncodedString(object.ptr(), "utf-8", "surrogateescape");
  if (bytes == nullptr) throw py::error_already_set();
  text = std::string(py::reinterpret_steal<py::bytes>(bytes));
  return true;
}

bool read_path(py::handle object, std::string& path) {
  if (!object || (PyUnicode_Check(object.ptr()) == 0 && !py::hasattr(object, "__fspath__"))) {
    return false;
  }
  PyObject* bytes = nullptr;
  if (PyUnicode_FSConverter(object.ptr(), static_cast<void*>(&bytes)) == 0) {
    throw py::error_already_set();
  }
  path = std::string(py::reinterpret_steal<py::bytes>(bytes));
  return true;
}

}  // namespace kz::python

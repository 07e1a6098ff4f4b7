// Arguments as Python gives them: texts, paths and bytes.
//
// Python keeps bytes of a file name or of input that are no UTF-8 as lone surrogates. They become
// those bytes again here, and the library says what is wrong with them.
#ifndef PYTHON_ARGUMENTS_H
#define PYTHON_ARGUMENTS_H

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

namespace kz::python {

namespace py = pybind11;

// A str.
struct Text {
  std::string value;
};

// A str or a path object.
struct Path {
  std::string value;
};

// Bytes of any object that has them, such as bytes or a memory map; they are not copied.
struct Bytes {
  std::string_view value;
};

// A str of UTF-8, with lone surrogates for what is none.
py::str to_str(std::string_view text);
// False, without a Python error, for an object that is no str.
bool read_text(py::handle object, std::string& text);
bool read_path(py::handle object, std::string& path);

}  // namespace kz::python

namespace pybind11::detail {

template <>
struct type_caster<kz::python::Text> {
  PYBIND11_TYPE_CASTER(kz::python::Text, const_name("str"));
  bool load(handle source, bool) { return kz::python::read_text(source, value.value); }
  static handle cast(const kz::python::Text& text, return_value_policy, handle) {
    return kz::python::to_str(text.value).release();
  }
};

template <>
struct type_caster<kz::python::Path> {
  PYBIND11_TYPE_CASTER(kz::python::Path, const_name("StrPath"));
  bool load(handle source, bool) { return kz::python::read_path(source, value.value); }
  static handle cast(const kz::python::Path& path, return_value_policy, handle) {
    return kz::python::to_str(path.value).release();
  }
};

template <>
struct type_caster<kz::python::Bytes> {
  PYBIND11_TYPE_CASTER(kz::python::Bytes, const_name("Buffer"));
  type_caster() = default;
  type_caster(const type_caster&) = delete;
  type_caster& operator=(const type_caster&) = delete;
  ~type_caster() { PyBuffer_Release(&view_); }

  bool load(handle source, bool) {
    if (PyObject_CheckBuffer(source.ptr()) == 0) return false;
    if (PyObject_GetBuffer(source.ptr(), &view_, PyBUF_SIMPLE) != 0) throw error_already_set();
    value.value = {static_cast<const char*>(view_.buf), static_cast<std::size_t>(view_.len)};
    return true;
  }
  static handle cast(const kz::python::Bytes& bytes, return_value_policy, handle) {
    return pybind11::bytes(bytes.value.data(), bytes.value.size()).release();
  }

 private:
  Py_buffer view_{};
};

}  // namespace pybind11::detail

#endif  // PYTHON_ARGUMENTS_H

// Records of the library as data classes of Python (kzlexicon/_values.py), in both directions.
//
// A Value names the data class of a record and its fields in their order. Both directions come from
// it, and declare_values() checks it against the data classes when the module is loaded.
#ifndef PYTHON_VALUES_H
#define PYTHON_VALUES_H

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "python/arguments.h"

namespace kz::python {

// A field: where it is in the record, or, for data classes that are only results, a function that
// computes it.
template <typename Member>
struct Field {
  const char* name;
  Member member;
};
template <typename Member>
constexpr Field<Member> field(const char* name, Member member) {
  return {name, member};
}

// Specializations have kName, and kFields for a record or kMembers for an enumeration.
template <typename T>
struct Value;

template <typename T>
concept Record = requires {
  Value<T>::kFields;
};
template <typename T>
concept Enumeration = requires {
  Value<T>::kMembers;
};

// The Python class of a value. It lives as long as the process.
template <typename T>
inline PyObject* class_of = nullptr;

template <typename M>
PyObject* field_to_python(const M& value) {
  if constexpr (std::is_same_v<M, std::string>) return to_str(value).release().ptr();
  return py::cast(value).release().ptr();
}

template <typename M>
void field_from_python(py::handle object, const char* name, M& value) {
  if constexpr (std::is_same_v<M, std::string>) {
    if (read_text(object, value)) return;
  } else {
    py::detail::make_caster<M> caster;
    if (caster.load(object, true)) {
      value = py::detail::cast_op<M&&>(std::move(caster));
      return;
    }
  }
  throw py::type_error(std::string("the field ") + name + " cannot be " +
                       std::string(py::repr(object)));
}

template <Record T>
py::handle record_to_python(const T& record) {
  return std::apply(
      [&](const auto&... fields) {
        std::array<py::object, sizeof...(fields)> values{py::reinterpret_steal<py::object>(
            field_to_python(std::invoke(fields.member, record)))...};
        std::array<PyObject*, sizeof...(fields)> arguments;
        for (std::size_t i = 0; i < values.size(); ++i) arguments[i] = values[i].ptr();
        PyObject* const object =
            PyObject_Vectorcall(class_of<T>, arguments.data(), arguments.size(), nullptr);
        if (object == nullptr) throw py::error_already_set();
        return py::handle(object);
      },
      Value<T>::kFields);
}

template <Record T>
bool record_from_python(py::handle object, T& record) {
  if (PyObject_IsInstance(object.ptr(), class_of<T>) != 1) return false;
  const auto read = [&](const auto& field) {
    if constexpr (std::is_member_object_pointer_v<decltype(field.member)>) {
      field_from_python(py::getattr(object, field.name), field.name, record.*field.member);
    }
  };
  std::apply([&](const auto&... fields) { (read(fields), ...); }, Value<T>::kFields);
  return true;
}

}  // namespace kz::python

namespace pybind11::detail {

template <typename T>
struct type_caster<T, enable_if_t<kz::python::Record<T>>> {
  PYBIND11_TYPE_CASTER(T, kz::python::Value<T>::kName);
  bool load(handle source, bool) { return kz::python::record_from_python(source, value); }
  static handle cast(const T& record, return_value_policy, handle) {
    return kz::python::record_to_python(record);
  }
};

template <typename T>
struct type_caster<T, enable_if_t<kz::python::Enumeration<T>>> {
  PYBIND11_TYPE_CASTER(T, kz::python::Value<T>::kName);
  bool load(handle source, bool) {
    if (PyObject_IsInstance(source.ptr(), kz::python::class_of<T>) != 1) return false;
    value = static_cast<T>(source.attr("value").cast<int>());
    return true;
  }
  static handle cast(T member, return_value_policy, handle) {
    return handle(kz::python::class_of<T>)(static_cast<int>(member)).release();
  }
};

}  // namespace pybind11::detail

#endif  // PYTHON_VALUES_H

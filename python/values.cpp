// The data classes and enumerations of the package, checked against the records of the library.
#include "python/values.h"

#include <algorithm>
#include <string>

#include "python/bindings.h"

namespace kz::python {
namespace {

[[noreturn]] void differs(const char* name) {
  throw py::import_error(std::string("kzlexicon.") + name + " differs from the library");
}

template <typename T>
py::object named(const py::module_& values) {
  return values.attr(Value<T>::kName.text);
}

template <Record T>
void declare(const py::module_& values) {
  py::object found = named<T>(values);
  py::list names;
  std::apply([&](const auto&... fields) { (names.append(fields.name), ...); }, Value<T>::kFields);
  if (!py::tuple(names).equal(found.attr("__match_args__"))) differs(Value<T>::kName.text);
  class_of<T> = found.release().ptr();
}

template <Enumeration T>
void declare(const py::module_& values) {
  py::object found = named<T>(values);
  py::list members;
  for (const auto& [name, member] : Value<T>::kMembers) {
    members.append(py::make_tuple(name, static_cast<int>(member)));
  }
  py::list stated;
  for (const py::handle member : found) {
    stated.append(py::make_tuple(member.attr("name"), member.attr("value")));
  }
  if (!members.equal(stated)) differs(Value<T>::kName.text);
  class_of<T> = found.release().ptr();
}

template <typename... T>
void declare_all(const py::module_& values) {
  (declare<T>(values), ...);
}

}  // namespace

void declare_values() {
  using namespace lexicon;
  declare_all<ErrorCode, Place, CodePage, lexicon::Field::Kind, lexicon::Field, Decoded,
              AttributeName, SynonymBlock, MeaningView, EntryView, WordGrammar::Side, WordGrammar,
              Header, Statistics, Step, Answer, MissingDictionary, InflectionReading, Ending,
              WordGroup, HeadwordForm, SourceLine, Property, Properties, PlainMeaning, PlainEntry,
              Losses, SourceFormatter::Line, Diagnostic::Severity, Diagnostic, BuildSummary,
              ImportSummary, Alphabet>(py::module_::import("kzlexicon._values"));
}

}  // namespace kz::python

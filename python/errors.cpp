// Exceptions of the library as those of kzlexicon/_errors.py.
#include <exception>

#include "kzlexicon/code_page.h"
#include "kzlexicon/error.h"
#include "python/bindings.h"

namespace kz::python {
namespace {

const char* class_name(lexicon::ErrorCode code) {
  switch (code) {
    case lexicon::ErrorCode::kArgument: return "ArgumentError";
    case lexicon::ErrorCode::kFile: return "FileError";
    case lexicon::ErrorCode::kData: return "DataError";
    case lexicon::ErrorCode::kCodePage: return "CodePageError";
  }
  return "Error";
}

void raise(const lexicon::Error& error) {
  lexicon::Place place = error.place();
  py::dict more;
  if (const auto* const bad = dynamic_cast<const lexicon::BadText*>(&error)) {
    place.offset = static_cast<long long>(bad->offset);
  } else if (const auto* const missing = dynamic_cast<const lexicon::Unmappable*>(&error)) {
    more["character"] = py::cast(missing->character);
    more["page"] = py::cast(missing->page);
  }
  const py::object type = py::module_::import("kzlexicon._errors").attr(class_name(error.code()));
  const py::object exception = type(to_str(error.message()), place, to_str(error.what()), **more);
  PyErr_SetObject(type.ptr(), exception.ptr());
}

}  // namespace

void translate_errors() {
  py::register_local_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(std::move(thrown));
    } catch (const lexicon::Error& error) {
      raise(error);
    }
  });
}

}  // namespace kz::python

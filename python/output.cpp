// Output files that take their place when they are finished.
#include "kzlexicon/output.h"

#include <memory>

#include "python/bindings.h"

namespace kz::python {
namespace {

class Output {
 public:
  explicit Output(const std::string& target)
      : file_(std::make_unique<lexicon::OutputFile>(target)) {}

  void write(std::string_view text) { file().stream() << text; }
  void commit() {
    file().commit();
    discard();
  }
  void discard() { file_.reset(); }
  bool open() const { return file_ != nullptr; }

 private:
  lexicon::OutputFile& file() {
    if (file_) return *file_;
    throw lexicon::Error(lexicon::ErrorCode::kArgument, "the output file is finished");
  }

  std::unique_ptr<lexicon::OutputFile> file_;
};

using OutputFile = Guarded<Output>;

}  // namespace

void bind_output(py::module_& module) {
  py::class_<OutputFile>(
      module, "OutputFile",
      "A file that takes the place of its target when it is complete.\n\n"
      "A context manager: leaving it commits, leaving it by an exception discards.")
      .def(py::init([](const Path& target) {
             return std::make_unique<OutputFile>(Output(target.value));
           }),
           py::arg("target"), Released())
      .def(
          "write",
          [](OutputFile& self, const Text& text) {
            self.use([&](Output& output) { output.write(text.value); });
          },
          py::arg("text"), Released(), "Adds a text, as UTF-8.")
      .def(
          "commit", [](OutputFile& self) { self.use([](Output& output) { output.commit(); }); },
          Released(), "Puts the contents in the place of the target.")
      .def(
          "discard", [](OutputFile& self) { self.use([](Output& output) { output.discard(); }); },
          "Leaves the target as it was.")
      .def(
          "__enter__", [](OutputFile& self) -> OutputFile& { return self; },
          py::return_value_policy::reference)
      .def("__exit__", [](OutputFile& self, const py::args& exception) {
        const bool failed = !exception.empty() && !exception[0].is_none();
        const py::gil_scoped_release released;
        self.use([&](Output& output) {
          if (failed) return output.discard();
          if (output.open()) output.commit();
        });
      });

  module.def(
      "refuse_inputs_as_output",
      [](const Path& output, const std::vector<Path>& inputs) {
        std::vector<std::string> paths;
        paths.reserve(inputs.size());
        for (const Path& input : inputs) paths.push_back(input.value);
        lexicon::refuse_inputs_as_output(output.value, paths);
      },
      py::arg("output"), py::arg("inputs"),
      "Raises ArgumentError when the output is the same file as one of the inputs.");
}

}  // namespace kz::python

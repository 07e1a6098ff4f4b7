// Building dictionaries.
#include "kzlexicon/builder.h"

#include "python/bindings.h"

namespace kz::python {
namespace {

using lexicon::BuildSummary;

// A builder writes once; what it wrote is kept for summary().
class OneBuild {
 public:
  explicit OneBuild(const lexicon::BuildOptions& options)
      : language_(options.language), builder_(options) {}

  const std::string& language() const { return language_; }

  lexicon::Builder& adding() {
    if (summary_) throw lexicon::Error(lexicon::ErrorCode::kArgument, "the dictionary is written");
    return builder_;
  }
  BuildSummary write(const std::string& path) {
    summary_ = adding().write(path);
    return *summary_;
  }
  std::string to_bytes() {
    BuildSummary summary;
    std::string bytes = adding().to_memory(&summary);
    summary_ = summary;
    return bytes;
  }
  const std::optional<BuildSummary>& summary() const { return summary_; }
  const std::vector<lexicon::Diagnostic>& diagnostics() const { return builder_.diagnostics(); }

 private:
  std::string language_;
  lexicon::Builder builder_;
  std::optional<BuildSummary> summary_;
};

using Builder = Guarded<OneBuild>;

std::unique_ptr<Builder> make_builder(const Text& language, const Text& type, const Text& title,
                                      const Text& label, const Text& password,
                                      std::int32_t time_stamp, bool packed,
                                      std::optional<bool> shared, int depth, bool skip_bad,
                                      bool fold_yo, const lexicon::Properties& properties) {
  lexicon::BuildOptions options;
  options.language = language.value;
  options.type = type.value;
  options.title = title.value;
  options.label = label.value;
  options.password = password.value;
  options.time_stamp = time_stamp;
  options.packed = packed;
  options.shared = shared;
  options.depth = depth;
  options.skip_bad = skip_bad;
  options.fold_yo = fold_yo;
  return std::make_unique<Builder>(OneBuild(lexicon::with_properties(options, properties)));
}

// Adds to the builder without the interpreter lock; the call returns the builder.
template <typename Work>
Builder& adding(Builder& self, Work work) {
  const py::gil_scoped_release released;
  self.use([&](OneBuild& build) { work(build.adding()); });
  return self;
}

}  // namespace

void bind_builder(py::module_& module) {
  py::class_<Builder>(
      module, "Builder",
      "Makes a dictionary file of entries or source text.\n\n"
      "language is \"ENRU\", or \"EN\" for a dictionary of one language. type is one of the\n"
      "letters C, S, T, H and G; empty: C for a pair of languages, G for one. packed front-codes\n"
      "the records; shared stores equal bodies once (None: when packed). depth is that of the\n"
      "letter index, 2, 3 or 5; 0: by size. skip_bad leaves out entries that the format cannot\n"
      "hold. fold_yo writes the letter ё of headwords as е. properties are those of a\n"
      "SourceText; what they state replaces the other arguments.\n\n"
      "Entries are checked as they are added. One that the format cannot hold becomes a\n"
      "diagnostic; unless such entries are to be skipped, write and to_bytes then raise.")
      .def(py::init(&make_builder), py::arg("language") = Text{}, py::kw_only(),
           py::arg("type") = Text{}, py::arg("title") = Text{}, py::arg("label") = Text{},
           py::arg("password") = Text{}, py::arg("time_stamp") = 0, py::arg("packed") = false,
           py::arg("shared") = py::none(), py::arg("depth") = 0, py::arg("skip_bad") = false,
           py::arg("fold_yo") = false,
           py::arg_v("properties", lexicon::Properties{}, "Properties()"))
      .def(
          "add",
          [](Builder& self, const lexicon::PlainEntry& entry) -> Builder& {
            return adding(self, [&](lexicon::Builder& builder) { builder.add(entry); });
          },
          py::arg("entry"), py::return_value_policy::reference,
          "Adds an entry; returns the builder.")
      .def(
          "add_line",
          [](Builder& self, const Text& line, const lexicon::Place& place) -> Builder& {
            return adding(self,
                          [&](lexicon::Builder& builder) { builder.add_line(line.value, place); });
          },
          py::arg("line"), py::arg_v("place", lexicon::Place{}, "Place()"),
          py::return_value_policy::reference,
          "Adds a source line; the place is that of its diagnostics. Returns the builder.")
      .def(
          "add_source",
          [](Builder& self, const lexicon::SourceText& source) -> Builder& {
            return adding(self, [&](lexicon::Builder& builder) { builder.add_source(source); });
          },
          py::arg("source"), py::return_value_policy::reference,
          "Adds the entries of source text; returns the builder.")
      .def(
          "write",
          [](Builder& self, const Path& path) {
            return self.use([&](OneBuild& build) { return build.write(path.value); });
          },
          py::arg("path"), Released(),
          "Writes the dictionary and proves that every entry comes back.\n\n"
          "The file appears under its name when it is complete. A builder writes once.")
      .def(
          "to_bytes",
          [](Builder& self) {
            std::string bytes;
            {
              const py::gil_scoped_release released;
              bytes = self.use([](OneBuild& build) { return build.to_bytes(); });
            }
            return py::bytes(bytes);
          },
          "The bytes of the dictionary file, in place of write.")
      .def_property_readonly(
          "summary",
          [](Builder& self) {
            return self.use([](const OneBuild& build) { return build.summary(); });
          },
          "What was written; None before.")
      .def_property_readonly(
          "diagnostics",
          [](Builder& self) {
            return self.use([](const OneBuild& build) { return build.diagnostics(); });
          },
          "What there is to say about entries, in the order in which it was found.")
      .def("__repr__", [](Builder& self) {
        return self.use([](const OneBuild& build) {
          return "<kzlexicon.Builder of '" + build.language() + "'>";
        });
      });

  module.def(
      "type_of_file_name", [](const Path& path) { return lexicon::type_of_file_name(path.value); },
      py::arg("path"), "The type letter for an extension, \"S\" for \".dis\"; empty for others.");
}

}  // namespace kz::python

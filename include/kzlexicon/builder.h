// Building dictionaries: entries or source text in, a dictionary file out.
//
//     using namespace kz::lexicon;
//     Builder builder({.language = "ENRU", .title = "Pets"});
//     builder.add({.headword = "cat", .part_code = "N", .meanings = {{.synonyms = {"кот"}}}});
//     builder.add_line("dog*Nсобака;пёс[M]");
//     Dictionary dictionary = Dictionary::from_memory(builder.to_memory());
//     std::cout << dictionary.find("dog").entries[0].text() << '\n';
//     // Output: dog*Nсобака;пёс[M]
#ifndef KZLEXICON_BUILDER_H
#define KZLEXICON_BUILDER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/error.h"
#include "kzlexicon/export.h"
#include "kzlexicon/source.h"

namespace kz::lexicon {

struct BuildOptions {
  std::string language{};  // "ENRU", or "EN" for a dictionary of one language
  std::string type{};      // C, S, T, H or G; empty: C for a pair of languages, G for one
  std::string title{};     // at most 40 characters
  std::string label{};     // at most 8 characters
  std::string password{};  // at most 8 characters
  std::int32_t time_stamp = 0;
  bool packed = false;           // front-coded records
  std::optional<bool> shared{};  // equal bodies stored once; without a value: when packed
  int depth = 0;                 // of the letter index: 2, 3 or 5; 0: by size
  bool skip_bad = false;         // leave out entries that the format cannot hold
  bool fold_yo = false;          // write the letter ё of headwords as е
};

// The options with the properties that directives state. Throws Error, with the place of the
// directive, for properties that no dictionary has.
KZL_API BuildOptions with_properties(BuildOptions options, const Properties& properties);

// The type letter for the extension of a file name, "S" for ".dis"; empty for other extensions.
KZL_API std::string type_of_file_name(const std::string& path);

// One thing to say about one entry.
struct Diagnostic {
  enum class Severity { kNote, kWarning, kError };
  Severity severity = Severity::kError;
  ErrorCode code = ErrorCode::kData;  // of an error
  Place place;
  std::string message;
};

struct BuildSummary {
  int depth = 0;
  std::size_t headwords = 0;
  std::size_t records = 0;
  std::size_t blocks = 0;
  std::size_t file_bytes = 0;
  std::size_t record_bytes = 0;
  std::size_t index_bytes = 0;
  std::size_t shared_bytes = 0;
  std::size_t shared_texts = 0;
  std::size_t referring_records = 0;
  std::size_t left_out = 0;  // entries that the format cannot hold
};

class KZL_API Builder {
 public:
  // Throws Error for properties that no dictionary has.
  explicit Builder(BuildOptions options);
  ~Builder();
  Builder(Builder&& other) noexcept;
  Builder& operator=(Builder&& other) noexcept;

  // Entries are checked as they are added. One that the format cannot hold becomes a diagnostic;
  // unless such entries are to be skipped, write and to_memory then throw.
  Builder& add(const PlainEntry& entry);
  Builder& add_line(std::string_view line, const Place& place = {});
  // Entries of source text; its properties are left to with_properties.
  Builder& add_source(const SourceText& source);

  // Sorts, writes and proves the dictionary: every entry has to come back. The file appears under
  // its name when it is complete. The same entries in the same order give the same bytes. Both may
  // be called once; a failure leaves the builder as it was.
  BuildSummary write(const std::string& path);
  std::string to_memory(BuildSummary* summary = nullptr);

  const std::vector<Diagnostic>& diagnostics() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_BUILDER_H

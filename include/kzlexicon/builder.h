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

// What the dictionary is to be. Texts are UTF-8, of characters that its code page has.
struct BuildOptions {
  std::string language{};  // "ENRU", or "EN" for a dictionary of one language
  std::string type{};      // C, S, T, H or G (docs/dictionary-format.md); empty: C for a pair of
                           // languages, G for one
  std::string title{};     // at most 40 characters
  std::string label{};     // at most 8 characters
  std::string password{};  // at most 8 characters; stored, it protects nothing
  std::int32_t time_stamp = 0;   // seconds since 1970; 0 leaves equal builds equal
  bool packed = false;           // front-coded records
  std::optional<bool> shared{};  // equal bodies stored once; without a value: when packed
  int depth = 0;                 // of the letter index: 2, 3 or 5; 0: by size
  bool skip_bad = false;         // leave out entries that the format cannot hold
  bool fold_yo = false;          // write the letter ё of headwords as е
};

// The options with the properties that directives state. Throws Error (kData, kCodePage), with the
// place of the directive, for properties that no dictionary has.
KZL_API BuildOptions with_properties(BuildOptions options, const Properties& properties);

// The type letter for the extension of a file name, "S" for ".dis"; empty for other extensions.
KZL_API std::string type_of_file_name(const std::string& path);

// One thing to say about one entry.
struct Diagnostic {
  enum class Severity {
    kNote,     // a repeated entry is left out
    kWarning,  // a plain entry loses something
    kError,    // the format cannot hold the entry
  };
  Severity severity = Severity::kError;
  ErrorCode code = ErrorCode::kData;  // of an error
  Place place;                        // that the entry was added with
  std::string message;
};

// What was written.
struct BuildSummary {
  int depth = 0;  // of the letter index
  std::size_t headwords = 0;
  std::size_t records = 0;
  std::size_t blocks = 0;  // of records, that the index names
  std::size_t file_bytes = 0;
  std::size_t record_bytes = 0;
  std::size_t index_bytes = 0;
  std::size_t shared_bytes = 0;
  std::size_t shared_texts = 0;
  std::size_t referring_records = 0;  // whose body is a shared text
  std::size_t left_out = 0;           // entries that the format cannot hold
};

// Collects entries in memory and makes one dictionary of them.
class KZL_API Builder {
 public:
  // Throws Error (kArgument, kCodePage, kData) for properties that no dictionary has.
  explicit Builder(BuildOptions options);
  ~Builder();
  Builder(Builder&& other) noexcept;
  Builder& operator=(Builder&& other) noexcept;

  // Entries are checked as they are added, and `place` is where messages say that they are. One
  // that the format cannot hold becomes a diagnostic; unless such entries are to be skipped, write
  // and to_memory then throw.

  // An entry of plain text: SourceWriter says what becomes of it and which Errors it throws. What
  // it loses becomes a diagnostic.
  Builder& add(const PlainEntry& entry, const Place& place = {});
  // A line of source text (docs/sources.md), without a line feed; comments and directives are none.
  Builder& add_line(std::string_view line, const Place& place = {});
  // Entries of source text; its properties are left to with_properties.
  Builder& add_source(const SourceText& source);

  // Sorts, writes and proves the dictionary: every entry has to come back. The same entries in the
  // same order give the same bytes. Throws Error: the code of the first entry that cannot be
  // stored, kData without any entry, kFile when the file cannot be written; no file is left then,
  // and one that was there before stays as it was.
  //
  // A builder makes one dictionary: after either call, successful or not, everything but
  // diagnostics() throws Error (kArgument).
  BuildSummary write(const std::string& path);
  // The bytes of the file; Dictionary::from_memory opens them. `summary` may be null.
  std::string to_memory(BuildSummary* summary = nullptr);

  // Everything that was said so far, in the order of adding, then that of writing. Valid until the
  // next call.
  const std::vector<Diagnostic>& diagnostics() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_BUILDER_H

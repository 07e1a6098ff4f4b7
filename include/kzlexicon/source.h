// Source text: the UTF-8 form of a dictionary, one entry per line (docs/sources.md).
//
// Lines that are empty or begin with '*' are no entries. A line "*: name value" is a directive that
// states a property of the dictionary. SourceReader takes such text apart, SourceWriter makes lines
// of a plain entry, and SourceFormatter those of the entries of a dictionary.
//
//     using namespace kz::lexicon;
//     const SourceText source = SourceReader().add("*: language ENRU\ncat*Nкот\n", "pets").take();
//     std::cout << *source.properties.language.value << ' ' << source.lines[0].text << '\n';
//     SourceWriter writer("ENRU");
//     std::cout << writer.lines({.headword = "bow", .part_code = "N",
//                                .meanings = {{.synonyms = {"лук", "поклон (fig.)"}}}})[0] << '\n';
//     // Output: ENRU cat*Nкот
//     // Output: bow*Nлук;поклон ({fig.})
#ifndef KZLEXICON_SOURCE_H
#define KZLEXICON_SOURCE_H

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kzlexicon/dictionary.h"
#include "kzlexicon/error.h"
#include "kzlexicon/export.h"

namespace kz::lexicon {

// A line with an entry.
struct SourceLine {
  std::size_t file = 0;  // index into SourceText::files
  std::size_t line = 0;  // counted from 1
  std::string text;      // UTF-8, not yet checked
};

// What an option or a directive states; no value where nothing is stated.
struct Property {
  std::optional<std::string> value{};
  Place place{};  // of a directive; without a file for an option
};

// The properties of a dictionary; BuildOptions describes the values.
struct Properties {
  Property language{};
  Property type{};
  Property title{};
  Property label{};
};

// Source text of one or several files.
struct SourceText {
  std::vector<std::string> files;  // paths, or the names that the caller gave
  std::vector<SourceLine> lines;
  Properties properties;

  Place place(const SourceLine& line) const { return {files[line.file], line.line}; }
};

// Parts source text into lines and directives. It checks directives; Builder checks the entries.
class KZL_API SourceReader {
 public:
  // Properties that options state win over all directives.
  explicit SourceReader(Properties options = {});

  // Adds a text; `name` stands for it in messages. A text may repeat the directives of those before
  // but not contradict them. Throws Error: kFile for a file or stream that cannot be read, kData
  // for a directive that is unknown or contradicts; what was added before the failure stays.
  SourceReader& add(std::string_view text, const std::string& name);
  SourceReader& add(std::istream& text, const std::string& name);
  SourceReader& add_file(const std::string& path);

  // Everything that was added. The reader is used up.
  SourceText take() { return std::move(source_); }

 private:
  SourceText source_;
};

// An entry in plain text, of which nothing is a mark of the format. Remarks in parentheses are kept
// apart from the words of a synonym: "поклон (fig.)".
struct PlainMeaning {
  int number = 0;                       // 0: without a number
  std::string definition{};             // which of the meanings it is: "furniture"
  std::vector<std::string> synonyms{};  // the translations
};

struct PlainEntry {
  std::string headword;    // in any case
  std::string spelling{};  // as written, where that differs from the headword by more than case
  std::string part_code = "W";  // one character, "N"; "W" is a phrase
  std::string attribute{};      // tags without brackets (kzlexicon/grammar.h)
  std::vector<PlainMeaning> meanings{};
};

// What a SourceWriter could not keep.
struct Losses {
  std::size_t characters = 0;   // written otherwise or dropped: the code page lacks them
  std::size_t definitions = 0;  // too long, dropped
  std::size_t synonyms = 0;     // empty after cleaning
  std::size_t meanings = 0;     // without any synonym
};

// Makes source lines of plain entries, and counts what they cannot hold.
class KZL_API SourceWriter {
 public:
  // `language` is that of the dictionary, "ENRU".
  explicit SourceWriter(const std::string& language);
  ~SourceWriter();
  SourceWriter(SourceWriter&& other) noexcept;
  SourceWriter& operator=(SourceWriter&& other) noexcept;

  // The entry as source lines: several with the same headword when it does not fit one, none when
  // no meaning is left of it. Throws Error: kArgument for a part code that is not one character,
  // kCodePage for one that Windows-1251 lacks, BadUtf8.
  std::vector<std::string> lines(const PlainEntry& entry);
  // Of all entries so far; as long as the writer.
  const Losses& losses() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// Turns the entries of a dictionary back into the lines of which they were built.
class KZL_API SourceFormatter {
 public:
  // `header` is that of the dictionary; it is copied.
  explicit SourceFormatter(const Header& header);
  ~SourceFormatter();
  SourceFormatter(SourceFormatter&& other) noexcept;
  SourceFormatter& operator=(SourceFormatter&& other) noexcept;

  // The lines of the directives that state the properties of the dictionary.
  std::string directives() const;

  struct Line {
    std::string text;   // without a line feed
    bool exact = true;  // a build makes the same entry of it
  };
  // The line of an entry of this dictionary. A headword that was stored in lower case has its
  // spelling again.
  Line line(const Entry& entry) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace kz::lexicon

#endif  // KZLEXICON_SOURCE_H

// The source text of a dictionary: UTF-8, one entry per line.
//
// Empty lines and lines that begin with '*' are comments. A comment of the form "*: name value" is
// a directive that states a property of the dictionary: language, type, title or label.
#ifndef KZ_LEXICON_SOURCE_TEXT_H
#define KZ_LEXICON_SOURCE_TEXT_H

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kz::lexicon {

struct SourceLine {
  std::size_t file;  // index into SourceText::files
  std::size_t line;  // counted from 1
  std::string text;  // UTF-8, not yet checked
};

// What an option or a directive states; no value where nothing is stated.
struct Property {
  std::optional<std::string> value;
  std::string place;  // "file:line: " of a directive, empty for an option
};

struct Properties {
  Property language;
  Property type;
  Property title;
  Property label;
};

struct SourceText {
  std::vector<std::string> files;
  std::vector<SourceLine> lines;
  Properties properties;

  // "file:line: message"
  std::string place(const SourceLine& line, const std::string& message) const;
};

// What a line that begins with "*:" is.
enum class Marked { kDirective, kComment };

// Reads the files in order; "-" is `standard_input`, if given. Files may repeat a directive but not
// contradict one another; directives on what options state are passed over. Throws Error.
SourceText read_source(const std::vector<std::string>& paths, Marked marked = Marked::kDirective,
                       const Properties& options = {}, std::istream* standard_input = nullptr);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SOURCE_TEXT_H

// The source text of a dictionary: UTF-8, one entry per line.
//
// Empty lines and lines that begin with '*' are comments. A comment of the form "*: name value" is
// a directive that states a property of the dictionary: language, type, title or label.
#ifndef KZ_LEXICON_SOURCE_TEXT_H
#define KZ_LEXICON_SOURCE_TEXT_H

#include <iosfwd>
#include <string>

#include "kzlexicon/source.h"

namespace kz::lexicon {

// What a line that begins with "*:" is.
enum class Marked { kDirective, kComment };

// Adds the lines of a text; `name` stands for it in messages. Throws Error.
void read_source(std::istream& text, const std::string& name, Marked marked, SourceText& source);
void read_source_file(const std::string& path, Marked marked, SourceText& source);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_SOURCE_TEXT_H

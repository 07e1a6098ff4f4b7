// Reader of dictionary source text.
#include "lexicon/source/source_text.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <string_view>

#include "kzlexicon/error.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view trim(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

Property* property(Properties& properties, std::string_view name) {
  if (name == "language") return &properties.language;
  if (name == "type") return &properties.type;
  if (name == "title") return &properties.title;
  if (name == "label") return &properties.label;
  return nullptr;
}

void take_directive(SourceText& source, const SourceLine& line) {
  const std::string_view text = trim(std::string_view(line.text).substr(2));
  const std::size_t name_end = std::min(text.find_first_of(kBlanks), text.size());
  const std::string_view name = text.substr(0, name_end);
  const std::string_view value = trim(text.substr(name_end));
  Property* const stated = property(source.properties, name);
  if (stated == nullptr) {
    throw Error(
        ErrorCode::kData,
        "unknown directive '" + std::string(name) + "' (there are language, type, title and label)",
        {source.files[line.file], line.line});
  }
  // An option has no place.
  if (stated->value && stated->place.empty()) return;
  if (stated->value && *stated->value != value) {
    throw Error(ErrorCode::kData,
                std::string(name) + " was stated before as '" + *stated->value + "'",
                {source.files[line.file], line.line});
  }
  *stated = {std::string(value), source.place(line, "")};
}

void read_lines(SourceText& source, std::istream& in, Marked marked) {
  SourceLine line{source.files.size() - 1, 0, {}};
  while (std::getline(in, line.text)) {
    ++line.line;
    if (line.line == 1) line.text.erase(0, byte_order_mark(line.text));
    if (line.text.ends_with('\r')) line.text.pop_back();
    if (marked == Marked::kDirective && line.text.starts_with("*:")) {
      take_directive(source, line);
    } else if (!line.text.empty() && line.text[0] != '*') {
      source.lines.push_back(line);
    }
  }
}

}  // namespace

std::string SourceText::place(const SourceLine& line, const std::string& message) const {
  return at_place({files[line.file], line.line}, message);
}

SourceText read_source(const std::vector<std::string>& paths, Marked marked,
                       const Properties& options, std::istream* standard_input) {
  SourceText source;
  source.properties = options;
  for (const std::string& path : paths) {
    if (path == "-" && standard_input != nullptr) {
      source.files.emplace_back("(standard input)");
      read_lines(source, *standard_input, marked);
      continue;
    }
    source.files.push_back(path);
    errno = 0;
    std::ifstream in(path, std::ios::binary);
    if (!in)
      throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
    read_lines(source, in, marked);
    if (in.bad())
      throw Error(ErrorCode::kFile, std::string("cannot read: ") + std::strerror(errno), {path});
  }
  return source;
}

}  // namespace kz::lexicon

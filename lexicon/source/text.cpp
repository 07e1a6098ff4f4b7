// Reader of dictionary source text.
#include "lexicon/source/text.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <sstream>
#include <string_view>
#include <utility>

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
        source.place(line));
  }
  // An option has no place.
  if (stated->value && stated->place.file.empty()) return;
  if (stated->value && *stated->value != value) {
    throw Error(ErrorCode::kData,
                std::string(name) + " was stated before as '" + *stated->value + "'",
                source.place(line));
  }
  *stated = {std::string(value), source.place(line)};
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
      // A copy has no room to spare; a long line is not held twice.
      if (line.text.size() > kTooLong) {
        source.lines.push_back({line.file, line.line, std::exchange(line.text, {})});
      } else {
        source.lines.push_back(line);
      }
    }
  }
}

}  // namespace

void read_source(std::istream& text, const std::string& name, Marked marked, SourceText& source) {
  source.files.push_back(name);
  read_lines(source, text, marked);
  if (text.bad()) {
    throw Error(ErrorCode::kFile, std::string("cannot read: ") + std::strerror(errno), {name});
  }
}

void read_source_file(const std::string& path, Marked marked, SourceText& source) {
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw Error(ErrorCode::kFile, std::string("cannot open: ") + std::strerror(errno), {path});
  }
  read_source(in, path, marked, source);
}

SourceReader::SourceReader(Properties options) { source_.properties = std::move(options); }

SourceReader& SourceReader::add(std::string_view text, const std::string& name) {
  std::istringstream in{std::string(text)};
  return add(in, name);
}

SourceReader& SourceReader::add(std::istream& text, const std::string& name) {
  read_source(text, name, Marked::kDirective, source_);
  return *this;
}

SourceReader& SourceReader::add_file(const std::string& path) {
  read_source_file(path, Marked::kDirective, source_);
  return *this;
}

}  // namespace kz::lexicon

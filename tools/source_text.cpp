// Reader of dictionary source text.
#include "tools/source_text.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string_view>

#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";

std::string_view trim(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::string* property(Properties& properties, std::string_view name) {
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
  std::string* stated = property(source.properties, name);
  if (stated == nullptr) {
    throw Failure(Status::kDamaged,
                  source.place(line, "unknown directive '" + std::string(name) +
                                         "' (there are language, type, title and label)"));
  }
  if (!stated->empty() && *stated != value) {
    throw Failure(
        Status::kDamaged,
        source.place(line, std::string(name) + " was stated before as '" + *stated + "'"));
  }
  *stated = value;
}

void read_lines(SourceText& source, std::istream& in, Marked marked) {
  SourceLine line{source.files.size() - 1, 0, {}};
  while (std::getline(in, line.text)) {
    ++line.line;
    if (line.line == 1 && line.text.starts_with(kByteOrderMark)) {
      line.text.erase(0, kByteOrderMark.size());
    }
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
  return at_line(files[line.file], line.line, message);
}

SourceText read_source(const std::vector<std::string>& paths, Marked marked) {
  SourceText source;
  for (const std::string& path : paths) {
    if (path == "-") {
      source.files.emplace_back("(standard input)");
      read_lines(source, std::cin, marked);
      continue;
    }
    source.files.push_back(path);
    errno = 0;
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(Status::kFile, path + ": cannot open: " + std::strerror(errno));
    read_lines(source, in, marked);
    if (in.bad()) throw Failure(Status::kFile, path + ": cannot read: " + std::strerror(errno));
  }
  return source;
}

}  // namespace kzdic

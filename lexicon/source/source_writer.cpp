// Source lines of records, and directives of headers.
#include "lexicon/source/source_writer.h"

#include <array>
#include <utility>

#include "kzlexicon/error.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

bool is_word_list(const FileHeader& header) { return header.type == "S"; }

}  // namespace

SourceWriter::SourceWriter(const FileHeader& header)
    : header_(header),
      reader_({header.language, is_word_list(header), header.packed(), /*fold_yo=*/false,
               header.depth}) {}

std::string SourceWriter::directives() const {
  const CodePage page = header_page(header_.language);
  const std::array<std::pair<const char*, std::string>, 4> values = {
      {{"language", header_.language},
       {"type", header_.type},
       {"title", to_utf8(decode(header_.title, page))},
       {"label", to_utf8(decode(header_.label, page))}}};
  std::string text;
  for (const auto& [name, value] : values) {
    if (!value.empty()) text += std::string("*: ") + name + ' ' + value + '\n';
  }
  return text;
}

bool SourceWriter::reads_as(const std::string& line, const std::string& record) const {
  // A line that begins so is a comment.
  if (line.empty() || line[0] == '*') return false;
  try {
    return reader_.read(line).text == record;
  } catch (const Error&) {
    return false;
  }
}

SourceWriter::Line SourceWriter::line(const std::string& record) const {
  const EntryLayout at = layout_of(std::string_view(record));
  std::string shorter;
  if (at.source_word < record.size()) {
    shorter = record.substr(at.source_word + 2) +
              record.substr(at.head_end, at.source_word - at.head_end);
  } else if (is_word_list(header_) && record.ends_with('*')) {
    shorter = record.substr(0, at.head_end);
  }
  if (!shorter.empty()) {
    std::string text = decode_entry(shorter, header_.language);
    if (reads_as(text, record)) return {std::move(text), true};
  }
  std::string text = decode_entry(record, header_.language);
  const bool exact = reads_as(text, record);
  return {std::move(text), exact};
}

}  // namespace kz::lexicon

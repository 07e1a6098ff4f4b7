// Source lines of entries, and directives of headers.
#include <array>
#include <utility>

#include "kzlexicon/source.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/entry_reader.h"

namespace kz::lexicon {

struct SourceFormatter::Impl {
  explicit Impl(const Header& stated)
      : header(stated),
        reader({stated.language, stated.type == "S", stated.packed, /*fold_yo=*/false,
                stated.depth}) {}

  bool reads_as(const std::string& line, const std::string& record) const {
    // A line that begins so is a comment.
    if (line.empty() || line[0] == '*') return false;
    try {
      return reader.read(line).text == record;
    } catch (const Error&) {
      return false;
    }
  }

  Header header;
  EntryReader reader;
};

SourceFormatter::SourceFormatter(const Header& header) : impl_(std::make_unique<Impl>(header)) {}
SourceFormatter::~SourceFormatter() = default;
SourceFormatter::SourceFormatter(SourceFormatter&& other) noexcept = default;
SourceFormatter& SourceFormatter::operator=(SourceFormatter&& other) noexcept = default;

std::string SourceFormatter::directives() const {
  const std::array<std::pair<const char*, const std::string*>, 4> values = {
      {{"language", &impl_->header.language},
       {"type", &impl_->header.type},
       {"title", &impl_->header.title},
       {"label", &impl_->header.label}}};
  std::string text;
  for (const auto& [name, value] : values) {
    if (!value->empty()) text += std::string("*: ") + name + ' ' + *value + '\n';
  }
  return text;
}

SourceFormatter::Line SourceFormatter::line(const Entry& entry) const {
  const std::string& record = entry.record();
  const std::string& language = impl_->header.language;
  const EntryLayout at = layout_of(std::string_view(record));
  std::string shorter;
  if (at.source_word < record.size()) {
    shorter = record.substr(at.source_word + 2) +
              record.substr(at.head_end, at.source_word - at.head_end);
  } else if (impl_->header.type == "S" && record.ends_with('*')) {
    shorter = record.substr(0, at.head_end);
  }
  if (!shorter.empty()) {
    std::string text = decode_entry(shorter, language);
    if (impl_->reads_as(text, record)) return {std::move(text), true};
  }
  std::string text = decode_entry(record, language);
  const bool exact = impl_->reads_as(text, record);
  return {std::move(text), exact};
}

}  // namespace kz::lexicon

// Plain entries as source lines.
#include <utility>

#include "kzlexicon/source.h"
#include "lexicon/source/body_writer.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {

struct SourceWriter::Impl {
  BodyWriter writer;
};

SourceWriter::SourceWriter(const std::string& language)
    : impl_(std::make_unique<Impl>(Impl{BodyWriter(language)})) {}
SourceWriter::~SourceWriter() = default;
SourceWriter::SourceWriter(SourceWriter&& other) noexcept = default;
SourceWriter& SourceWriter::operator=(SourceWriter&& other) noexcept = default;

std::vector<std::string> SourceWriter::lines(const PlainEntry& entry) {
  EntryDraft draft;
  draft.headword = from_utf8(entry.headword);
  draft.spelling = from_utf8(entry.spelling);
  const std::string part = encode_utf8(entry.part_code, CodePage::kRussian);
  if (part.size() != 1) {
    throw Error(ErrorCode::kArgument,
                "the part code '" + entry.part_code + "' is not one character");
  }
  draft.part = part[0];
  draft.attribute = entry.attribute;
  for (const PlainMeaning& meaning : entry.meanings) {
    MeaningDraft& copy = draft.meanings.emplace_back();
    copy.number = meaning.number;
    copy.definition = from_utf8(meaning.definition);
    for (const std::string& synonym : meaning.synonyms) {
      copy.synonyms.push_back(from_utf8(synonym));
    }
  }
  return impl_->writer.lines(draft);
}

const Losses& SourceWriter::losses() const { return impl_->writer.losses(); }

}  // namespace kz::lexicon

// Entries without their marks.
#include "lexicon/entry/record_view.h"

#include <algorithm>
#include <memory>

#include "kz/entry.h"
#include "lexicon/entry/blocks.h"
#include "lexicon/entry/marks.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

struct CloseEntry {
  void operator()(CDicEntry* entry) const { DicEntryClose(entry); }
};
using EntryHandle = std::unique_ptr<CDicEntry, CloseEntry>;

bool is_latin(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Adds a character to a text in which blanks neither double nor are inside parentheses' edges,
// nor beside joins.
void add_tidily(std::u32string& text, char32_t c) {
  constexpr auto kJoined = static_cast<char32_t>(kJoin);
  if (c == kJoined && text.ends_with(U' ')) text.pop_back();
  if (text.ends_with(kJoined)) {
    if (c == U' ') return;
    text.pop_back();
  }
  const bool after_blank = text.empty() || text.back() == ' ';
  if (c == ' ' && (after_blank || text.back() == '(')) return;
  if (c == ')' && !text.empty() && after_blank) text.pop_back();
  text += c;
}

// A synonym in the spaced form of the library, where grammar codes stand alone, without attribute
// blocks, code letters and the marks of literal and brace groups.
std::u32string plain_synonym(std::u32string_view synonym, bool target_is_russian) {
  std::u32string text;
  for (std::size_t i = 0; i < synonym.size(); ++i) {
    const char32_t c = synonym[i];
    const char32_t next = i + 1 < synonym.size() ? synonym[i + 1] : U' ';
    const bool starts = i == 0 || synonym[i - 1] == ' ';
    if (c == '[') {
      i = std::min(synonym.find(U']', i), synonym.size());
    } else if (c == '{') {
      const std::size_t end = std::min(synonym.find(U'}', i), synonym.size());
      for (const char32_t inner : synonym.substr(i + 1, end - i - 1)) add_tidily(text, inner);
      i = end;
    } else if (starts && is_latin(c) && next == ' ') {
      // A code letter. In a Russian translation it is no text; elsewhere it is the capital of the
      // word that the spaced form has parted from it.
      if (!target_is_russian) {
        add_tidily(text, c);
        ++i;
      }
    } else if (c != '#' && c != '|') {
      add_tidily(text, c);
    }
  }
  while (text.ends_with(U' ') || text.ends_with(static_cast<char32_t>(kJoin))) text.pop_back();
  if (text.starts_with(U"= ")) text.erase(1, 1);
  return text;
}

class Viewer {
 public:
  Viewer(const std::string& entry, const std::string& language)
      : language_(language),
        handle_(DicEntryOpen(with_marks(entry, language).c_str(), DIC_PART_IN_TEXT, nullptr,
                             nullptr, language.c_str(), DIC_KIND_SPACED)) {}

  EntryView view(const std::string& entry) const {
    EntryView view;
    view.text = decode_entry(entry, language_);
    view.language = language_;
    if (!handle_) return view;
    const CodePage source = source_page(language_);
    view.headword = text(DicEntryGetInWord(handle_.get(), nullptr), source);
    view.spelling = text(DicEntryGetSrcWord(handle_.get(), nullptr), source);
    const int part = DicEntryGetPart(handle_.get(), nullptr);
    if (part != 0) {
      view.part_code = text(std::string(1, static_cast<char>(part)).c_str(), CodePage::kRussian);
    }
    view.part_of_speech = part_name(view.part_code);
    view.attribute = text(head_block(entry).c_str(), CodePage::kRussian);
    view.reference = text(DicEntryGetSrcRef(handle_.get(), nullptr), source);
    for (std::int16_t i = 0; i < DicEntryGetMeaningsSize(handle_.get()); ++i) {
      view.meanings.push_back(meaning(i));
    }
    add_meaning_blocks(entry, view);
    return view;
  }

 private:
  static std::string with_marks(std::string entry, const std::string& language) {
    const EntryLayout at = layout_of(entry);
    if (at.part >= entry.size()) return entry;
    const std::string_view body = std::string_view(entry).substr(at.body, at.source - at.body);
    const std::string marked = marked_body(body, entry[at.part], language);
    return entry.replace(at.body, body.size(), marked);
  }

  static std::string text(const char* bytes, CodePage page) {
    if (bytes == nullptr) return {};
    std::string text = bytes;
    std::erase(text, kJoin);
    return to_utf8(decode(text, page));
  }

  // Gives every block before a meaning to the next meaning with its label.
  void add_meaning_blocks(const std::string& entry, EntryView& view) const {
    const EntryLayout at = layout_of(entry);
    const std::string body = entry.substr(at.body, at.source - at.body);
    auto next = view.meanings.begin();
    for (const MeaningBlock& block : meaning_blocks(body)) {
      const auto found = std::find_if(next, view.meanings.end(), [&block](const MeaningView& it) {
        return it.part_code == block.label || it.number.starts_with(block.label);
      });
      if (found == view.meanings.end()) continue;
      found->block = text(block.tags.c_str(), target_page(language_));
      next = found + 1;
    }
  }

  MeaningView meaning(std::int16_t i) const {
    const CodePage target = target_page(language_);
    MeaningView view;
    const std::string tag = text(DicEntryGetMeaningTag(handle_.get(), i, nullptr), target);
    const bool numbered = !tag.empty() && tag[0] >= '0' && tag[0] <= '9';
    if (numbered) {
      view.number = tag;
    } else if (!tag.empty()) {
      view.part_code = tag;
      view.part_of_speech = part_name(tag).empty() ? tag : part_name(tag);
    }
    view.definition = text(DicEntryGetMeaningDefinition(handle_.get(), i, nullptr), target);
    const bool russian = language_.empty() || language_.ends_with("RU");
    for (std::int16_t j = 0; j < DicEntryGetSynonymsSize(handle_.get(), i); ++j) {
      const char* synonym = DicEntryGetSynonym(handle_.get(), i, j, nullptr);
      if (synonym == nullptr) continue;
      const std::u32string spaced = decode(synonym, target);
      const std::u32string plain = plain_synonym(spaced, russian);
      if (plain.empty()) continue;
      view.synonyms.push_back(to_utf8(plain));
      const InnerBlock block = synonym_block(spaced);
      if (block.tags.empty()) continue;
      const std::u32string code(russian && block.part_code != 0 ? 1 : 0, block.part_code);
      view.synonym_blocks.push_back({view.synonyms.back(), to_utf8(code), to_utf8(block.tags)});
    }
    return view;
  }

  std::string language_;
  EntryHandle handle_;
};

}  // namespace

EntryView view_record(const std::string& record, const std::string& language) {
  return Viewer(record, language).view(record);
}

EntryView view_entry(std::string_view text, std::string_view language) {
  return view_record(encode_entry(from_utf8(text), language), std::string(language));
}

}  // namespace kz::lexicon

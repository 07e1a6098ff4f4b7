// Attribute blocks, decoded by side and part of speech.
#include "kzlexicon/entry.h"

#include <array>
#include <utility>

#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

using Side = WordGrammar::Side;

void add(Side side, const std::string& synonym, const std::string& part_code,
         const std::string& tags, std::vector<WordGrammar>& words) {
  if (part_code.empty() || tags.empty()) return;
  try {
    Decoded grammar = decode_tags(part_code, tags);
    if (!grammar.fields.empty()) words.push_back({side, synonym, std::move(grammar)});
  } catch (const Error&) {
    // A block with characters that are no tags at all.
  }
}

// Where the tags of the one side end at "|", or npos. After "%" a "|" is passed over like any
// other character that is no semantic letter.
std::size_t find_bar(const std::string& part_code, const std::string& tags) {
  try {
    const std::size_t end = tags.size() - decode_tags(part_code, tags).unread.size();
    const bool closed = end > 0 && tags[end - 1] == ')';
    return end < tags.size() && tags[end] == '|' && !closed ? end : std::string::npos;
  } catch (const Error&) {
    return std::string::npos;
  }
}

// A block parts the sides with "|". Without one it tells of `lone`.
void add_block(Side lone, const std::string& part_code, const std::string& tags,
               std::vector<WordGrammar>& words) {
  if (part_code.empty()) return;
  const std::size_t bar = find_bar(part_code, tags);
  if (bar == std::string::npos) {
    add(lone, "", part_code, tags, words);
  } else {
    add(Side::kSource, "", part_code, tags.substr(0, bar), words);
    add(Side::kTarget, "", part_code, tags.substr(bar + 1), words);
  }
}

std::string language_name(Side side, const std::string& language) {
  constexpr std::array<std::pair<std::string_view, const char*>, 4> kNames = {
      {{"EN", "English"}, {"RU", "Russian"}, {"DE", "German"}, {"FR", "French"}}};
  const std::size_t at = side == Side::kTarget ? 2 : 0;
  const std::string code = language.size() > at ? language.substr(at, 2) : "";
  for (const auto& [known, name] : kNames) {
    if (code == known) return name;
  }
  return side == Side::kTarget ? "target" : "source";
}

}  // namespace

std::vector<WordGrammar> entry_grammar(const EntryView& entry) {
  std::vector<WordGrammar> words;
  add_block(Side::kSource, entry.part_code, entry.attribute, words);
  return words;
}

std::vector<WordGrammar> meaning_grammar(const EntryView& entry, const MeaningView& meaning) {
  std::vector<WordGrammar> words;
  const std::string& part = meaning.part_code.empty() ? entry.part_code : meaning.part_code;
  // Before a meaning, tags alone are those of the Russian word.
  const bool into_russian = entry.language.size() == 4 && entry.language.ends_with("RU");
  add_block(into_russian ? Side::kTarget : Side::kSource, part, meaning.block, words);
  for (const SynonymBlock& block : meaning.synonym_blocks) {
    add(Side::kSynonym, block.synonym, block.part_code.empty() ? part : block.part_code, block.tags,
        words);
  }
  return words;
}

std::string describe(const std::vector<WordGrammar>& words, const std::string& language) {
  std::string text;
  for (const WordGrammar& word : words) {
    text += text.empty() ? "" : "; ";
    text += word.side == Side::kSynonym ? word.synonym : language_name(word.side, language);
    text += ": " + summary(word.grammar.fields);
  }
  return text;
}

}  // namespace kz::lexicon

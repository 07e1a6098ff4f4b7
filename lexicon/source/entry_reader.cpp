// Reading of one entry of source text.
#include "lexicon/source/entry_reader.h"

#include <algorithm>

#include "kzlexicon/error.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/index_headword.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

// Longest entry that a look-up gives back.
constexpr std::size_t kEntryMax = 2049;

std::string one_character(char32_t c, CodePage page) {
  return encode(std::u32string_view(&c, 1), page);
}

[[noreturn]] void refuse(const std::string& reason) { throw Error(ErrorCode::kData, reason); }

[[noreturn]] void refuse_length(std::size_t characters) {
  refuse("the entry has " + std::to_string(characters) + " characters, more than " +
         std::to_string(kEntryMax));
}

}  // namespace

// The line with exactly one '*' after its headword. Word lists are written without any, and
// stored without one when packed.
std::string EntryReader::star_checked(std::string_view utf8) const {
  std::string text(utf8);
  const auto stars = std::count(text.begin(), text.end(), '*');
  if (stars > 1) refuse("the entry holds more than one '*'");
  const bool bare = stars == 0;
  if (!options_.word_list) {
    if (bare) refuse("no '*' ends the headword");
    return text;
  }
  if (bare && !options_.packed) text += '*';
  if (!bare && options_.packed) {
    if (text.back() != '*') refuse("a packed word list holds words only");
    text.pop_back();
  }
  return text;
}

std::string EntryReader::folded(std::string text) const {
  if (!options_.fold_yo || !options_.language.starts_with("RU")) return text;
  static const std::string kYo = one_character(U'ё', CodePage::kRussian);
  static const std::string kYe = one_character(U'е', CodePage::kRussian);
  static const std::string kCapitalYo = one_character(U'Ё', CodePage::kRussian);
  static const std::string kCapitalYe = one_character(U'Е', CodePage::kRussian);
  std::replace(text.begin(), text.end(), kYo[0], kYe[0]);
  std::replace(text.begin(), text.end(), kCapitalYo[0], kCapitalYe[0]);
  return text;
}

// Without a part of speech there is no place for a source word.
bool EntryReader::can_add_spelling(const std::string& text) const {
  const EntryLayout at = layout_of(text);
  return at.part < text.size() && at.source_word == text.size();
}

void EntryReader::add_spelling(Record& record, const std::string& spelling) const {
  if (spelling == record.headword || !can_add_spelling(record.text)) return;
  const std::size_t end = record.text.size();
  record.text += "\\\\" + spelling;
  if (layout_of(record.text).source_word != end) {
    refuse("the spelling of the headword cannot be kept after a final backslash");
  }
}

Record EntryReader::read(std::string_view utf8) const {
  Record record;
  try {
    if (utf8.size() > kTooLong) refuse_length(count_characters(utf8));
    const std::u32string text = from_utf8(star_checked(utf8));
    if (std::any_of(text.begin(), text.end(), [](char32_t c) { return c < 32 || c == 127; })) {
      refuse("the entry holds a control character");
    }
    record.text = encode_entry(text, options_.language);
  } catch (const BadUtf8& error) {
    refuse("byte " + std::to_string(error.offset + 1) + " of the line is not UTF-8");
  } catch (const Unmappable& error) {
    throw Error(ErrorCode::kCodePage, error.what());
  }
  const EntryLayout at = layout_of(record.text);
  std::string spelling = record.text.substr(0, at.head_end);
  if (spelling.ends_with(' ')) refuse("the headword ends with a blank");
  record.headword = folded(lower_case(spelling, options_.language));
  if (order_.refusal(record.headword) && can_add_spelling(record.text)) {
    const auto other = index_headword(record.headword, order_, ForeignLetters::kDropped);
    record.shortened = other.has_value();
    if (other) record.headword = *other;
  }
  std::string body = record.text.substr(at.head_end);
  if (options_.packed) {
    // What stays in a packed record has to be storable; the body can move out of it.
    const std::size_t sources = at.source - at.head_end;
    const std::size_t body_begin = at.body - at.head_end;
    spelling = folded(std::move(spelling));
    body = folded(body.substr(0, body_begin)) + body.substr(body_begin, sources - body_begin) +
           folded(body.substr(sources));
  }
  record.text = record.headword + body;
  add_spelling(record, spelling);
  if (record.text.size() > kEntryMax) refuse_length(record.text.size());
  return record;
}

}  // namespace kz::lexicon

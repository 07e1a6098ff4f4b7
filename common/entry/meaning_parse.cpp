// Cutting the body of an entry into meanings.
#include "entry/meaning_parse.h"

#include "entry/group.h"

namespace kz {

using entry::char_at;
using entry::CodeLetterTest;
using entry::in_set;
using entry::kDigit;

namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

std::size_t or_end(std::size_t found, std::string_view text) {
  return found == kNotFound ? text.size() : found;
}

// "1." to "99.".
bool is_number_at(std::string_view text, std::size_t i) {
  if (!in_set(char_at(text, i), kDigit)) return false;
  const char next = char_at(text, i + 1);
  return next == '.' || (in_set(next, kDigit) && char_at(text, i + 2) == '.');
}

}  // namespace

CodeLetterTest synonym_part_test(const MeaningContext& context) {
  if (context.kind != 'C' && context.kind != 'c') return {};
  if (context.part == 'W' || context.part == 'w') return {};
  return entry::synonym_part_test(entry::LanguagePair(context.language));
}

MeaningParser::MeaningParser(std::string_view body, const MeaningContext& context)
    : body_(body),
      code_(synonym_part_test(context)),
      tag_codes_(context.kind == 'c'),
      first_tag_(context.kind == 'c' ? entry::synonym_part_code(context.part_text) : '\0') {
  // A part text that is nothing but this code says it already.
  if (context.part_text == std::string_view(&first_tag_, 1)) first_tag_ = 0;
}

bool MeaningParser::next(MeaningParts& meaning) {
  meaning = {};
  if (pos_ == 0 && first_tag_ != 0) meaning.tag = {&first_tag_, 1};
  bool after_code = false;
  while (pos_ < body_.size()) {
    if (body_[pos_] == '{') {
      meaning.definition = take_group();
      continue;
    }
    if (body_[pos_] == '[') {
      const std::string_view block = take_group();
      if (attr_.empty()) attr_ = block;
      continue;
    }
    if (!is_number_at(body_, pos_)) {
      after_code = code_.holds_at(body_, pos_);
      if (!after_code || body_[pos_] == 'W') {
        meaning.text = take_text(after_code);
        return true;
      }
    }
    // After a code label a number is a label of the same short form.
    const std::string_view label = after_code ? take_code_label() : take_number_label();
    if (!after_code || tag_codes_) meaning.tag = label;
    step_over_colon();
    if (pos_ == body_.size())
      return !meaning.tag.empty() || !attr_.empty() || !meaning.definition.empty();
  }
  return false;
}

std::string_view MeaningParser::take_group() {
  const std::string_view contents = body_.substr(pos_ + 1);
  const char closing = entry::closing_of(body_[pos_]);
  pos_ = entry::group_end(body_, pos_);
  return contents.substr(0, contents.find(closing));
}

std::string_view MeaningParser::take_number_label() {
  const std::size_t begin = pos_;
  pos_ = body_.find('.', begin) + 1;
  if (char_at(body_, pos_) == ' ') pos_ = or_end(body_.find_first_of(":{", pos_ + 1), body_);
  return body_.substr(begin, pos_ - begin);
}

std::string_view MeaningParser::take_code_label() {
  const std::size_t begin = pos_++;
  if (char_at(body_, pos_) == '.') ++pos_;
  if (char_at(body_, pos_) == ' ') ++pos_;
  return body_.substr(begin, pos_ == body_.size() ? 1 : pos_ - begin);
}

void MeaningParser::step_over_colon() {
  if (char_at(body_, pos_) == ':') ++pos_;
}

// The text of a meaning, up to the next meaning; leaves the position where that one starts. With
// `phrases`, every 'W' opens a run of phrases whose slashes do not end the meaning.
std::string_view MeaningParser::take_text(bool phrases) {
  std::size_t i = pos_;
  while (i < body_.size()) {
    const char c = body_[i];
    if (c == '/' || c == '\\') break;
    if (phrases && c == 'W') {
      i = end_of_phrase_run(i);
    } else if (entry::closing_of(c) != 0) {
      i = entry::group_end(body_, i);
    } else if (code_.holds_at(body_, i) || is_number_at(body_, i)) {
      break;
    } else {
      ++i;
    }
  }
  const std::string_view text = body_.substr(pos_, i - pos_);
  if (char_at(body_, i) == '\\')
    pos_ = body_.size();
  else
    pos_ = char_at(body_, i) == '/' ? i + 1 : i;
  return text;
}

// After the slash that closes the run of phrases at position i; a backslash or the end close it
// too. "/;" goes on with the next phrase.
std::size_t MeaningParser::end_of_phrase_run(std::size_t i) const {
  for (;;) {
    i = or_end(body_.find_first_of("/\\", i), body_);
    if (char_at(body_, i) != '/') return i;
    if (char_at(body_, ++i) != ';' || !phrase_starts(i + 1)) return i;
  }
}

// 'W', with up to two code letters before it.
bool MeaningParser::phrase_starts(std::size_t i) const {
  for (int codes = 0; codes <= 2; ++codes, ++i) {
    if (char_at(body_, i) == 'W') return true;
    if (!code_.holds_at(body_, i)) return false;
  }
  return false;
}

}  // namespace kz

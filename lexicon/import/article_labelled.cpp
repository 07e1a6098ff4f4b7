// The labelled layout: pronunciation in brackets, parts of speech as "_n.", numbered meanings.
#include <algorithm>
#include <array>
#include <utility>

#include "lexicon/import/article.h"

namespace kz::lexicon {
namespace {

struct PartLabel {
  std::u32string_view label;
  char code;
};

constexpr std::array<PartLabel, 13> kParts = {{{U"_n.", 'N'},
                                               {U"_v.", 'V'},
                                               {U"_a.", 'A'},
                                               {U"_adv.", 'D'},
                                               {U"_prep.", 'P'},
                                               {U"_cj.", 'C'},
                                               {U"_conj.", 'M'},
                                               {U"_pron.", 'M'},
                                               {U"_interj.", 'J'},
                                               {U"_int.", 'J'},
                                               {U"_num.", 'I'},
                                               {U"_n-card.", 'I'},
                                               {U"_n-ord.", 'I'}}};

bool is_digit(char32_t c) { return c >= U'0' && c <= U'9'; }
bool is_russian(char32_t c) { return c >= U'а' && c <= U'я'; }

// Length of a homonym's number at the beginning of the text: "_II", not a label such as "_I.". 0
// without one.
std::size_t homonym_length(std::u32string_view text) {
  if (!text.starts_with(U'_')) return 0;
  const std::size_t end = std::min(text.find_first_not_of(U"IVX", 1), text.size());
  const std::u32string_view after = text.substr(end, 1);
  const bool ends = after.empty() || std::u32string_view(U" [=_(").find(after[0]) != after.npos;
  return end > 1 && ends ? end : 0;
}

// The position of the next homonym's number after the beginning of the text, or the text's length.
std::size_t find_homonym(std::u32string_view text) {
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at - 1] == U' ' && homonym_length(text.substr(at)) > 0) return at;
  }
  return text.size();
}

enum class Item { kText, kHomonym, kPart, kMeaning, kSub };

// What a line begins: "_II" a homonym, "1. _n." a part of speech, "1)" a meaning, "а)" a shade of
// one. Cuts the number off; other lines continue the one before them.
Item take_item(std::u32string_view& line, int& number) {
  std::size_t digits = 0;
  number = 0;
  if (const std::size_t homonym = homonym_length(line); homonym > 0) {
    line.remove_prefix(homonym);
    return Item::kHomonym;
  }
  while (digits < line.size() && is_digit(line[digits])) {
    number = number * 10 + static_cast<int>(line[digits++] - U'0');
  }
  const char32_t mark = digits < line.size() ? line[digits] : U'\0';
  const char32_t behind = digits + 1 < line.size() ? line[digits + 1] : U' ';
  if (digits > 0 && digits < 3 && mark == U')') {
    line.remove_prefix(digits + 1);
    return Item::kMeaning;
  }
  if (digits > 0 && digits < 3 && mark == U'.' && behind == U' ') {
    line.remove_prefix(digits + 1);
    return Item::kPart;
  }
  if (line.size() > 1 && is_russian(line[0]) && line[1] == U')') {
    line.remove_prefix(2);
    return Item::kSub;
  }
  return Item::kText;
}

// Pronunciations are in brackets.
std::u32string without_pronunciation(std::u32string_view text) {
  std::u32string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t close = text[i] == U'[' ? text.find(U']', i) : std::u32string_view::npos;
    if (close == std::u32string_view::npos) {
      result += text[i];
    } else {
      i = close;
    }
  }
  return trimmed(result);
}

// Labels lose the mark that makes them labels; blanks do not double.
std::u32string plain(std::u32string_view text) {
  std::u32string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool starts = i == 0 || text[i - 1] == U' ' || text[i - 1] == U'(' || text[i - 1] == U')';
    const bool doubles = text[i] == U' ' && (result.empty() || result.back() == U' ');
    if (!doubles && (text[i] != U'_' || !starts)) result += text[i];
  }
  return trimmed(result);
}

// Reads the article line by line; texts gather in the meaning, or before the first one in the
// introduction of the part.
class LabelledReader {
 public:
  explicit LabelledReader(std::u32string headword) : headword_(std::move(headword)) {}

  void take(std::u32string_view line) {
    int number = 0;
    switch (take_item(line, number)) {
      case Item::kHomonym: open_homonym(); return take(trimmed(line));
      case Item::kPart: open_part(); break;
      case Item::kMeaning: open_meaning(number); break;
      case Item::kSub: append(U";"); break;
      case Item::kText: break;
    }
    append(line);
  }

  std::vector<EntryDraft> finish() {
    close_part();
    return std::move(entries_);
  }

 private:
  struct Meaning {
    int number;
    std::u32string text;
  };

  // A homonym shares nothing with the one before it.
  void open_homonym() {
    close_part();
    prefix_.clear();
    in_part_ = false;
  }

  // What is before the first part without being a part, such as a label, holds for all parts.
  void open_part() {
    if (!in_part_ && meanings_.empty()) {
      prefix_ = without_pronunciation(std::exchange(intro_, {}));
    }
    close_part();
    in_part_ = true;
  }

  void open_meaning(int number) { meanings_.push_back({number, {}}); }

  void append(std::u32string_view text) {
    std::u32string& target = meanings_.empty() ? intro_ : meanings_.back().text;
    const std::u32string piece = trimmed(text);
    // Lines end at blanks and after hyphens.
    const bool hyphen = target.ends_with(U'-') && !target.ends_with(U" -");
    if (!target.empty() && !hyphen && piece != U";") target += U' ';
    target += piece;
  }

  // Takes out the first part-of-speech label near the beginning and gives its code, 0 without one.
  static char take_part(std::u32string& intro) {
    std::size_t first = std::u32string::npos;
    const PartLabel* found = nullptr;
    for (const PartLabel& part : kParts) {
      const std::size_t at = intro.find(part.label);
      if (at < first) {
        first = at;
        found = &part;
      }
    }
    // Further inside the text a label belongs to a remark.
    constexpr std::size_t kReach = 40;
    if (found == nullptr || first > kReach) return '\0';
    intro.erase(first, found->label.size());
    return found->code;
  }

  void close_part() {
    std::u32string intro = without_pronunciation(std::exchange(intro_, {}));
    const std::vector<Meaning> meanings = std::exchange(meanings_, {});
    if (intro.empty() && meanings.empty()) return;
    EntryDraft entry;
    entry.headword = headword_;
    std::u32string prefix = prefix_;
    char part = take_part(intro);
    if (part == '\0') part = take_part(prefix);
    if (part != '\0') entry.part = part;
    std::u32string text = plain(trimmed(prefix + U' ' + intro));
    if (meanings.empty()) {
      entry.meanings.push_back({0, {}, split_outside_parentheses(text, U";")});
    }
    for (const Meaning& meaning : meanings) {
      const std::u32string meaning_text = plain(without_pronunciation(meaning.text));
      entry.meanings.push_back(
          {meaning.number, std::exchange(text, {}), split_outside_parentheses(meaning_text, U";")});
    }
    entries_.push_back(std::move(entry));
  }

  std::u32string headword_;
  std::u32string prefix_;
  std::u32string intro_;
  std::vector<Meaning> meanings_;
  std::vector<EntryDraft> entries_;
  bool in_part_ = false;
};

}  // namespace

std::vector<EntryDraft> read_labelled(const std::vector<std::u32string>& lines) {
  LabelledReader reader(trimmed(lines[0]));
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::u32string line = trimmed(lines[i]);
    for (std::u32string_view rest = line; !rest.empty();) {
      const std::size_t end = find_homonym(rest);
      reader.take(trimmed(rest.substr(0, end)));
      rest.remove_prefix(end);
    }
  }
  return reader.finish();
}

}  // namespace kz::lexicon

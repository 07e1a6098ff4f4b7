// Layout of an article, and the marked layout.
#include "lexicon/import/article.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kz::lexicon {
namespace {

constexpr std::u32string_view kDigits = U"0123456789";

std::vector<std::u32string> lines_of(std::u32string_view article) {
  std::vector<std::u32string> lines;
  for (std::size_t begin = 0; begin < article.size();) {
    const std::size_t end = std::min(article.find(U'\n', begin), article.size());
    const std::u32string_view line = article.substr(begin, end - begin);
    if (!trimmed(line).empty()) lines.emplace_back(line);
    begin = end + 1;
  }
  return lines;
}

struct PartName {
  std::u32string_view name;
  char code;
};

constexpr std::array<PartName, 15> kParts = {{{U"n", 'N'},
                                              {U"pn", 'N'},
                                              {U"v", 'V'},
                                              {U"adj", 'A'},
                                              {U"adv", 'D'},
                                              {U"numeral", 'I'},
                                              {U"num", 'I'},
                                              {U"preposition", 'P'},
                                              {U"postposition", 'P'},
                                              {U"interjection", 'J'},
                                              {U"particle", 'J'},
                                              {U"conjunction", 'C'},
                                              {U"conj", 'C'},
                                              {U"pronoun", 'M'},
                                              {U"pron", 'M'}}};

constexpr std::array<std::pair<std::u32string_view, std::string_view>, 3> kGenders = {
    {{U"masc", "M|"}, {U"fem", "F|"}, {U"neut", "N|"}}};

// "<n, fem>": the part of speech and the gender of the head word.
void take_grammar(std::u32string_view grammar, EntryDraft& entry) {
  for (const std::u32string& mark : split_outside_parentheses(grammar, U",")) {
    for (const PartName& part : kParts) {
      if (mark == part.name) entry.part = part.code;
    }
    for (const auto& [name, tag] : kGenders) {
      if (mark == name) entry.attribute = tag;
    }
  }
  // A gender alone is that of a noun; only a noun has one here.
  if (!entry.attribute.empty() && entry.part == 'W') entry.part = 'N';
  if (entry.part != 'N') entry.attribute.clear();
}

// Cuts a number with its point off the start of a line; 0 when there is none.
int take_number(std::u32string_view& line) {
  const std::size_t digits = std::min(line.find_first_not_of(kDigits), line.size());
  if (digits == 0 || digits > 2 || digits >= line.size() || line[digits] != U'.') return 0;
  int number = 0;
  for (const char32_t c : line.substr(0, digits)) number = number * 10 + static_cast<int>(c - '0');
  line.remove_prefix(digits + 1);
  return number;
}

// Cuts a trailing " 2." off, which announces another sense of the same translations.
void drop_trailing_number(std::u32string_view& line) {
  if (line.empty() || line.back() != U'.') return;
  const std::size_t before = line.find_last_not_of(kDigits, line.size() - 2);
  if (before != std::u32string_view::npos && before + 2 < line.size() && line[before] == U' ') {
    line = line.substr(0, before);
  }
}

void add_definition(std::u32string& definition, std::u32string_view gloss) {
  if (gloss.starts_with(U"1|")) gloss.remove_prefix(2);
  if (!definition.empty()) definition += U"; ";
  definition += gloss;
}

}  // namespace

bool is_marked(std::u32string_view first_line) {
  return first_line.find(U" /") != std::u32string_view::npos ||
         first_line.find(U" <") != std::u32string_view::npos;
}

std::vector<EntryDraft> read_marked(const std::vector<std::u32string>& lines) {
  EntryDraft entry;
  const std::u32string_view first = lines[0];
  const std::size_t head_end = std::min(first.find(U" /"), first.find(U" <"));
  entry.headword = trimmed(first.substr(0, head_end));
  const std::size_t grammar = first.rfind(U'<');
  if (grammar != std::u32string_view::npos && first.ends_with(U'>')) {
    take_grammar(first.substr(grammar + 1, first.size() - grammar - 2), entry);
  }
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::u32string whole = trimmed(lines[i]);
    std::u32string_view line = whole;
    const int number = take_number(line);
    drop_trailing_number(line);
    const std::u32string text = trimmed(line);
    if (text.empty()) continue;
    if (number > 0 || i == 1) {
      entry.meanings.push_back({number, {}, split_outside_parentheses(text, U",;")});
    } else {
      add_definition(entry.meanings.back().definition, text);
    }
  }
  return {entry};
}

std::vector<EntryDraft> read_article(std::u32string_view article) {
  if (article.starts_with(U'\uFEFF')) article.remove_prefix(1);
  const std::vector<std::u32string> lines = lines_of(article);
  if (lines.empty()) return {};
  return is_marked(lines[0]) ? read_marked(lines) : read_labelled(lines);
}

}  // namespace kz::lexicon

// Free text as entry bodies.
//
// In a body a letter of the other alphabet can be a grammar code, a number with a point begins a
// meaning, and '/', '#' and others have their own meaning. Words that hold such characters are put
// into braces, which every reader passes over as a whole. Only ';' parts synonyms there, too: a
// comma takes its place.
#include "lexicon/source/body_writer.h"

#include <algorithm>
#include <array>
#include <utility>

#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"

namespace kz::lexicon {
namespace {

constexpr std::size_t kBodyMax = 1800;
constexpr std::size_t kDefinitionMax = 600;
// A synonym of an entry object has at most 355 characters; braces and blanks need some of them.
constexpr std::size_t kSynonymMax = 280;

// German letters have plain ones of their own.
constexpr std::array<std::pair<char32_t, std::u32string_view>, 6> kUmlauts = {
    {{U'ä', U"ae"}, {U'ö', U"oe"}, {U'ü', U"ue"}, {U'Ä', U"Ae"}, {U'Ö', U"Oe"}, {U'Ü', U"Ue"}}};

// Marks of the format for which there is a plain character.
char32_t unmarked(char32_t c) {
  switch (c) {
    case U'[':
    case U'{': return U'(';
    case U']':
    case U'}': return U')';
    case U'\\': return U'/';
    case U'\n':
    case U'\t':
    case U'\u00A0': return U' ';
    default: return c;
  }
}

constexpr std::u32string_view kBlank = U" ";
constexpr std::u32string_view kLeading = U"(\"«„“'";
constexpr std::u32string_view kTrailing = U")\"»“”',:!?";

bool is_latin(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool is_digit(char32_t c) { return c >= '0' && c <= '9'; }

// Calls visit(c) for each character outside brace groups; it answers whether to keep the character.
template <typename Visit>
std::u32string filter_outside_braces(std::u32string_view text, Visit visit) {
  std::u32string result;
  bool inside = false;
  for (const char32_t c : text) {
    inside = c == U'{' || (inside && c != U'}');
    if (inside || visit(c)) result += c;
  }
  return result;
}

// Parentheses that do not pair up would swallow what follows them.
std::u32string with_paired_parentheses(const std::u32string& text) {
  int open = 0;
  bool paired = true;
  filter_outside_braces(text, [&](char32_t c) {
    open += c == U'(' ? 1 : c == U')' ? -1 : 0;
    paired = paired && open >= 0 && open <= 1;
    return true;
  });
  if (paired && open == 0) return text;
  return filter_outside_braces(text, [](char32_t c) { return c != U'(' && c != U')'; });
}

// Cuts a text into pieces of at most `limit` characters at blanks.
std::vector<std::u32string> cut(std::u32string_view text, std::size_t limit) {
  std::vector<std::u32string> pieces;
  while (text.size() > limit) {
    std::size_t end = text.rfind(U' ', limit);
    if (end == std::u32string_view::npos || end == 0) end = limit;
    pieces.push_back(trimmed(text.substr(0, end)));
    text.remove_prefix(end);
  }
  pieces.push_back(trimmed(text));
  return pieces;
}

}  // namespace

std::u32string trimmed(std::u32string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlank);
  if (begin == std::u32string_view::npos) return {};
  return std::u32string(text.substr(begin, text.find_last_not_of(kBlank) - begin + 1));
}

std::vector<std::u32string> split_outside_parentheses(std::u32string_view text,
                                                      std::u32string_view separators) {
  std::vector<std::u32string> pieces;
  int open = 0;
  std::size_t begin = 0;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size()) {
      if (text[i] == U'(') ++open;
      if (text[i] == U')' && open > 0) --open;
      if (open > 0 || separators.find(text[i]) == std::u32string_view::npos) continue;
    }
    std::u32string piece = trimmed(text.substr(begin, i - begin));
    if (!piece.empty()) pieces.push_back(std::move(piece));
    begin = i + 1;
  }
  return pieces;
}

BodyWriter::BodyWriter(std::string language) : language_(std::move(language)) {}

// The text in characters that the body can hold, without the marks that have a plain substitute.
std::u32string BodyWriter::storable(std::u32string_view text) {
  const CodePage page = target_page(language_);
  std::u32string result;
  for (char32_t c : text) {
    c = unmarked(c);
    if (c < 32) continue;
    if (c != U'*' && can_encode(c, page)) {
      if (c != U' ' || (!result.empty() && result.back() != U' ')) result += c;
      continue;
    }
    const auto umlaut = std::find_if(kUmlauts.begin(), kUmlauts.end(),
                                     [c](const auto& other) { return other.first == c; });
    result += umlaut != kUmlauts.end() ? std::u32string(umlaut->second)
                                       : plain_letters(c).value_or(std::u32string());
    // A stress mark is no part of the spelling.
    if (c != U'\u0301') ++losses_.characters;
  }
  return trimmed(result);
}

bool BodyWriter::is_code_letter(char32_t c) const {
  const char target = language_.size() > 2 ? language_[2] : language_[0];
  if (target == 'R') return is_latin(c);
  const bool russian_capital = (c >= U'А' && c <= U'Я') || c == U'Ё';
  return (c >= 'A' && c <= 'Z') || (target == 'E' && russian_capital);
}

bool BodyWriter::needs_braces(std::u32string_view word) const {
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (is_code_letter(word[i])) return true;
    if (std::u32string_view(U"/#|~&").find(word[i]) != std::u32string_view::npos) return true;
    // A number with its point, also when parentheses between them go.
    const std::size_t next = is_digit(word[i]) ? word.find_first_not_of(U"()", i + 1) : word.size();
    if (next < word.size() && word[next] == U'.') return true;
  }
  return word.starts_with(U'=');
}

std::u32string BodyWriter::protect(std::u32string_view text) const {
  std::u32string result;
  bool joins = false;       // the last word is in braces, and nothing is after them
  std::ptrdiff_t open = 0;  // parentheses outside braces
  const auto add = [&](std::u32string_view outside) {
    result += outside;
    open += std::count(outside.begin(), outside.end(), U'(') -
            std::count(outside.begin(), outside.end(), U')');
  };
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(U' ', begin), text.size());
    const std::u32string_view word = text.substr(begin, end - begin);
    begin = end + 1;
    const std::size_t core = std::min(word.find_first_not_of(kLeading), word.size());
    const std::size_t tail = std::max(word.find_last_not_of(kTrailing) + 1, core);
    std::u32string inner(word.substr(core, tail - core));
    if (!needs_braces(inner)) {
      if (!result.empty()) result += U' ';
      add(word);
      joins = false;
      continue;
    }
    if (joins && core == 0) {
      result.back() = U' ';
    } else {
      if (!result.empty()) result += U' ';
      add(word.substr(0, core));
      result += U'{';
    }
    // The first ')' after a '(' ends the group, also within braces.
    if (open != 0) std::erase_if(inner, [](char32_t c) { return c == U'(' || c == U')'; });
    (result += inner) += U'}';
    add(word.substr(tail));
    joins = tail == word.size();
  }
  return result;
}

// The meaning as one or more texts of at most kBodyMax characters.
std::vector<std::u32string> BodyWriter::meaning_texts(const MeaningDraft& meaning) {
  std::u32string lead;
  if (meaning.number > 0) {
    for (const char c : std::to_string(meaning.number) + ".") lead += static_cast<char32_t>(c);
  }
  const std::u32string definition = storable(meaning.definition);
  std::u32string first = lead;
  if (definition.size() > kDefinitionMax) {
    ++losses_.definitions;
  } else if (!definition.empty()) {
    ((first += U'{') += definition) += U'}';
  }
  std::vector<std::u32string> texts;
  for (const std::u32string& synonym : meaning.synonyms) {
    std::u32string whole = storable(synonym);
    std::replace(whole.begin(), whole.end(), U';', U',');
    for (const std::u32string& piece : cut(whole, kSynonymMax)) {
      // "= word" refers to another word.
      const bool reference = piece.starts_with(U"= ") && texts.empty() && piece.size() > 2;
      std::u32string text =
          trimmed(with_paired_parentheses(protect(piece.substr(reference ? 2 : 0))));
      if (reference && !text.empty()) text.insert(0, 1, U'=');
      // A brace group at the start of a meaning is its definition, which cannot stand alone.
      if (texts.empty() && text.starts_with(U'{') && text.find(U'}') + 1 == text.size()) {
        std::erase_if(text, [](char32_t c) { return c == U'(' || c == U')'; });
        (text.insert(0, 1, U'(')) += U')';
      }
      if (text.empty()) {
        ++losses_.synonyms;
      } else if (texts.empty() || texts.back().size() + text.size() > kBodyMax) {
        texts.push_back((texts.empty() ? first : lead) + text);
      } else {
        (texts.back() += U';') += text;
      }
    }
  }
  if (texts.empty()) ++losses_.meanings;
  return texts;
}

std::vector<std::string> BodyWriter::lines(const EntryDraft& entry) {
  std::vector<std::u32string> bodies;
  for (const MeaningDraft& meaning : entry.meanings) {
    for (const std::u32string& text : meaning_texts(meaning)) {
      if (bodies.empty() || bodies.back().size() + 1 + text.size() > kBodyMax) {
        bodies.push_back(text);
      } else {
        (bodies.back() += U'/') += text;
      }
    }
  }
  std::vector<std::string> result;
  for (const std::u32string& body : bodies) {
    std::string line = to_utf8(entry.headword) + '*' + entry.part;
    if (!entry.attribute.empty()) line += '[' + entry.attribute + ']';
    line += to_utf8(body);
    if (!entry.spelling.empty()) line += "\\\\" + to_utf8(entry.spelling);
    result.push_back(line);
  }
  return result;
}

}  // namespace kz::lexicon

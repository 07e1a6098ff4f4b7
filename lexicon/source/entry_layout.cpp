// Sections of an entry and their code pages.
#include "lexicon/source/entry_layout.h"

#include <algorithm>
#include <array>

#include "kz/charclass.h"

namespace kz::lexicon {
namespace {

constexpr std::array<std::string_view, 10> kLanguages = {"EN",   "RU",   "DE",   "FR",   "ENRU",
                                                         "RUEN", "DERU", "RUDE", "FRRU", "RUFR"};

// Characters after the part code among which an attribute block may begin.
constexpr std::size_t kExtensionReach = 8;

template <typename Char>
EntryLayout layout(std::basic_string_view<Char> entry) {
  constexpr auto kNone = std::basic_string_view<Char>::npos;
  EntryLayout result;
  const std::size_t size = entry.size();
  result.head_end = std::min(entry.rfind(Char{'*'}), size);
  result.part = result.body = result.source = result.source_word = size;
  if (result.head_end == size) return result;
  result.part = result.head_end + 1;
  if (result.part == size) return result;
  const Char part_code = entry[result.part];
  const std::size_t rest = result.part + 1;

  constexpr std::array<Char, 2> kTwo = {'\\', '\\'};
  const std::size_t two = entry.find(std::basic_string_view<Char>(kTwo.data(), 2), rest);
  if (two != kNone && two + 2 < size) result.source_word = two;
  result.source = result.source_word;
  if (part_code != '$') {
    const std::size_t one = entry.find(Char{'\\'}, rest);
    if (one != kNone) result.source = std::min(one, result.source_word);
  }
  result.body = std::min(rest, result.source);
  if (part_code == 'W' || part_code == 'w' || part_code == '$') return result;

  const std::basic_string_view<Char> text = entry.substr(0, result.source);
  const std::size_t reach = std::min(rest + kExtensionReach, result.source);
  for (std::size_t at = rest; at < reach; ++at) {
    if (text[at] != '[' && text[at] != ' ' && text[at] != '{') continue;
    const std::size_t close = text.find(Char{']'}, rest);
    if (close != kNone && close > at) result.body = close + 1;
    break;
  }
  return result;
}

bool source_is_russian_or_english(std::string_view language) {
  return !language.empty() && (language[0] == 'R' || language[0] == 'E');
}

// Calls visit(begin, end, page) for each section.
template <typename Visit>
void for_each_section(const EntryLayout& at, std::size_t size, std::string_view language,
                      Visit visit) {
  visit(std::size_t{0}, at.head_end, source_page(language));
  visit(at.head_end, at.body, CodePage::kRussian);
  visit(at.body, at.source, target_page(language));
  visit(at.source, size, source_page(language));
}

}  // namespace

EntryLayout layout_of(std::string_view entry) { return layout(entry); }
EntryLayout layout_of(std::u32string_view entry) { return layout(entry); }

bool is_language(std::string_view language) {
  return std::find(kLanguages.begin(), kLanguages.end(), language) != kLanguages.end();
}

int alphabet_size(std::string_view language) {
  if (language.starts_with("EN")) return 26;
  return language.starts_with("RU") ? 32 : 43;
}

CodePage source_page(std::string_view language) {
  return source_is_russian_or_english(language) ? CodePage::kRussian : CodePage::kWestern;
}

CodePage target_page(std::string_view language) {
  const char target = language.size() > 2 ? language[2] : '\0';
  if (target == 'D') return CodePage::kMixed;
  if (target == 'R' || target == 'E') return CodePage::kRussian;
  return target == '\0' ? source_page(language) : CodePage::kWestern;
}

CodePage header_page(std::string_view language) {
  return language == "DE" || language == "FR" ? CodePage::kWestern : CodePage::kRussian;
}

std::string encode_entry(std::u32string_view entry, std::string_view language) {
  std::string bytes;
  for_each_section(layout_of(entry), entry.size(), language,
                   [&](std::size_t begin, std::size_t end, CodePage page) {
                     bytes += encode(entry.substr(begin, end - begin), page);
                   });
  return bytes;
}

std::string decode_entry(std::string_view entry, std::string_view language) {
  std::u32string text;
  for_each_section(layout_of(entry), entry.size(), language,
                   [&](std::size_t begin, std::size_t end, CodePage page) {
                     text += decode(entry.substr(begin, end - begin), page);
                   });
  return to_utf8(text);
}

std::string lower_case(std::string word, std::string_view language) {
  const bool russian = source_is_russian_or_english(language);
  for (char& c : word) {
    c = static_cast<char>(russian ? toruansilower(c) : toansilower(c));
  }
  return word;
}

}  // namespace kz::lexicon

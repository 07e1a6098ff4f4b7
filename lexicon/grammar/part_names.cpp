// Names of parts of speech, for entries, tags and the endings of inflection tables alike.
#include <array>
#include <utility>

#include "kzlexicon/entry.h"

namespace kz::lexicon {
namespace {

constexpr std::array<std::pair<std::string_view, const char*>, 28> kParts = {{
    {"N", "noun"},
    {"n", "noun"},
    {"#", "noun"},
    {"A", "adjective"},
    {"a", "adjective"},
    {"d", "adjective"},
    {"V", "verb"},
    {"v", "verb"},
    {"U", "verb"},
    {"X", "verb"},
    {"Y", "verb"},
    {"Z", "verb"},
    {"E", "participle"},
    {"G", "participle"},
    {"д", "gerund"},
    {"D", "adverb"},
    {"R", "personal pronoun"},
    {"M", "pronoun"},
    {"O", "pronoun"},
    {"I", "numeral"},
    {"P", "preposition"},
    {"C", "conjunction"},
    {"J", "interjection"},
    {"Я", "predicative"},
    {"Ы", "parenthetical word"},
    {"W", "phrase"},
    {"w", "phrase"},
    {"=", "reference"},
}};

}  // namespace

std::string part_name(std::string_view code) {
  for (const auto& [part, name] : kParts) {
    if (part == code) return name;
  }
  return {};
}

}  // namespace kz::lexicon

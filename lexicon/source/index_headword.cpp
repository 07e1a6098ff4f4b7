// Words by what an index holds of them.
#include "lexicon/source/index_headword.h"

#include <algorithm>
#include <array>

#include "kz/charclass.h"
#include "kz/dic_index.h"
#include "kz/translit.h"
#include "kzlexicon/error.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"

namespace kz::lexicon {
namespace {

// What the index can hold for a character, perhaps nothing.
std::string indexable(char c, const SortOrder& order, ForeignLetters foreign) {
  if (order.is_letter(c) || kz_dict_is_valid_char(c) != 0) return std::string(1, c);
  const std::string& language = order.language();
  std::string letters;
  const auto plain = plain_letters(decode(std::string_view(&c, 1), source_page(language)).front());
  if (plain) {
    for (const char32_t letter : *plain) letters += static_cast<char>(letter);
  } else if (foreign == ForeignLetters::kTransliterated) {
    std::array<char, 4> room{};
    const bool russian = language.starts_with("RU");
    letters = russian ? ::translit(c, room.data(), "FRRU", 0) : translitru(c, room.data());
  }
  letters = lower_case(letters, language);
  std::erase_if(letters, [&order](char letter) { return !order.is_letter(letter); });
  return letters;
}

}  // namespace

std::optional<std::string> index_headword(std::string_view word, const SortOrder& order,
                                          ForeignLetters foreign) {
  std::string headword;
  for (const char c : word) headword += indexable(c, order, foreign);
  const auto first = std::find_if(headword.begin(), headword.end(), [&order](char c) {
    return order.is_letter(c) || _isdigit(c) != 0;
  });
  headword.erase(headword.begin(), first);
  if (order.refusal(headword)) return std::nullopt;
  return headword;
}

}  // namespace kz::lexicon

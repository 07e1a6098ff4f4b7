// Tables of plain letters by Unicode block.
#include "lexicon/text/plain_letters.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kz::lexicon {
namespace {

// The base letters of a run of characters; '?' for one without.
struct Block {
  char32_t first;
  std::u32string_view letters;
};

constexpr std::array<Block, 4> kBlocks = {
    {{0xC0, U"AAAAAA?CEEEEIIII?NOOOOO?OUUUUY??aaaaaa?ceeeeiiii?nooooo?ouuuuy?y"},
     {0x100,
      U"AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi??JjKk?LlLlLlLlLlNnNnNn???"
      U"OoOoOo??RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"},
     {0x218, U"SsTt"},
     {0x1E00,
      U"AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNn"
      U"OoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwyasss??"
      U"AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy"
      U"????Yy"}}};

constexpr std::array<std::pair<char32_t, std::u32string_view>, 15> kSpecial = {
    {{U'Æ', U"Ae"},
     {U'æ', U"ae"},
     {U'Œ', U"Oe"},
     {U'œ', U"oe"},
     {U'ß', U"ss"},
     {U'Þ', U"Th"},
     {U'þ', U"th"},
     {U'Ð', U"D"},
     {U'ð', U"d"},
     {U'Ĳ', U"IJ"},
     {U'ĳ', U"ij"},
     {U'Ŋ', U"Ng"},
     {U'ŋ', U"ng"},
     {U'×', U"x"},
     {U'\u01C3', U"!"}}};  // a click

constexpr std::array<std::u32string_view, 25> kGreek = {
    U"alpha", U"beta",   U"gamma",   U"delta", U"epsilon", U"zeta",    U"eta",  U"theta", U"iota",
    U"kappa", U"lambda", U"mu",      U"nu",    U"xi",      U"omicron", U"pi",   U"rho",   U"sigma",
    U"sigma", U"tau",    U"upsilon", U"phi",   U"chi",     U"psi",     U"omega"};
constexpr char32_t kAlpha = 0x3B1;
constexpr char32_t kCapitalAlpha = 0x391;

}  // namespace

std::optional<std::u32string> plain_letters(char32_t c) {
  for (const Block& block : kBlocks) {
    if (c < block.first || c >= block.first + block.letters.size()) continue;
    const char32_t letter = block.letters[c - block.first];
    if (letter != U'?') return std::u32string(1, letter);
  }
  for (const auto& [character, letters] : kSpecial) {
    if (c == character) return std::u32string(letters);
  }
  for (const char32_t first : {kAlpha, kCapitalAlpha}) {
    if (c >= first && c - first < kGreek.size()) return std::u32string(kGreek.at(c - first));
  }
  if ((c >= 0x300 && c < 0x370) || c == 0xAD) return std::u32string();
  return std::nullopt;
}

std::u32string plain_punctuation(std::u32string_view text) {
  std::u32string result;
  for (const char32_t c : text) {
    switch (c) {
      case U'’':
      case U'‘':
      case U'ʼ': result += U'\''; break;
      case U'\u2010':
      case U'\u2011': result += U'-'; break;
      case U'\u00A0': result += U' '; break;
      case U'…': result += U"..."; break;
      default: result += c;
    }
  }
  return result;
}

std::optional<std::u32string> in_plain_letters(std::u32string_view text, CodePage page) {
  std::u32string result;
  for (const char32_t c : text) {
    if (can_encode(c, page)) {
      result += c;
      continue;
    }
    const auto plain = plain_letters(c);
    if (!plain) return std::nullopt;
    result += *plain;
  }
  return result;
}

}  // namespace kz::lexicon

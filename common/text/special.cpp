// Special letters, their ASCII notation, and grammatical case letters.
#include "kz/special.h"

#include <array>
#include <bit>
#include <cstddef>
#include <span>

#include "text/base_letters.h"
#include "text/byte_map.h"
#include "text/case_letters.h"
#include "text/case_maps.h"
#include "text/language.h"
#include "text/literal.h"

namespace kz {
namespace {

bool equal_ignoring_case(const char* a, const char* b) {
  for (; kAsciiCase.upper[*a] == kAsciiCase.upper[*b]; ++a, ++b) {
    if (*a == '\0') return true;
  }
  return false;
}

// True when both texts begin with the code of the same language.
bool same_language(const char* a, const char* b) {
  const auto both = [&](const char(&code)[3]) {
    return is_language(a, code) && is_language(b, code);
  };
  return both(code::kEn) || both(code::kDe) || both(code::kFr) || both(code::kRu);
}

// A letter in ASCII notation: a plain letter, then a mark.
struct Digraph {
  char plain, mark;
  unsigned char letter;
};

constexpr Digraph kGermanDigraphs[] = {
    {'a', '"', U'ä'_1252}, {'A', '"', U'Ä'_1252}, {'o', '"', U'ö'_1252}, {'O', '"', U'Ö'_1252},
    {'u', '"', U'ü'_1252}, {'U', '"', U'Ü'_1252}, {'S', 's', U'ß'_1252},
};
constexpr Digraph kFrenchDigraphs[] = {
    {'a', '`', U'à'_1252},  {'A', '`', U'À'_1252},  {'a', '^', U'â'_1252}, {'A', '^', U'Â'_1252},
    {'c', '~', U'ç'_1252},  {'C', '~', U'Ç'_1252},  {'e', '`', U'è'_1252}, {'E', '`', U'È'_1252},
    {'e', '\'', U'é'_1252}, {'E', '\'', U'É'_1252}, {'e', '^', U'ê'_1252}, {'E', '^', U'Ê'_1252},
    {'e', '"', U'ë'_1252},  {'E', '"', U'Ë'_1252},  {'i', '^', U'î'_1252}, {'I', '^', U'Î'_1252},
    {'i', '"', U'ï'_1252},  {'I', '"', U'Ï'_1252},  {'o', '^', U'ô'_1252}, {'O', '^', U'Ô'_1252},
    {'u', '`', U'ù'_1252},  {'U', '`', U'Ù'_1252},  {'u', '^', U'û'_1252}, {'U', '^', U'Û'_1252},
};

// Digraphs by mark and plain letter; row 0 is that of all characters that are no mark.
struct DigraphTable {
  std::array<unsigned char, 256> row_of_mark{};
  std::array<std::array<unsigned char, 256>, 6> letters{};

  consteval explicit DigraphTable(std::span<const Digraph> digraphs) {
    unsigned char rows = 1;
    for (const Digraph& digraph : digraphs) {
      unsigned char& row = row_of_mark[static_cast<unsigned char>(digraph.mark)];
      if (row == 0) row = rows++;
      letters[row][static_cast<unsigned char>(digraph.plain)] = digraph.letter;
    }
  }

  // The letter that the two characters stand for, 0 if they are no digraph.
  unsigned char find(char plain, char mark) const {
    return letters[row_of_mark[static_cast<unsigned char>(mark)]]
                  [static_cast<unsigned char>(plain)];
  }
};

constexpr DigraphTable kGermanNotation{kGermanDigraphs};
constexpr DigraphTable kFrenchNotation{kFrenchDigraphs};

// The notation that a direction from or to the language uses, null if it has none.
const DigraphTable* notation_of(const char* language) {
  if (is_language(language, code::kDe) || equal_ignoring_case(language, code::kRude)) {
    return &kGermanNotation;
  }
  if (is_language(language, code::kFr) || equal_ignoring_case(language, code::kRufr)) {
    return &kFrenchNotation;
  }
  return nullptr;
}

}  // namespace
}  // namespace kz

int16_t kz_codr_is_language(const char* language, const char* code) {
  if (language == nullptr || code == nullptr || *language == '\0' || *code == '\0') return 0;
  const bool is = kz::same_language(language, code) || kz::equal_ignoring_case(language, code);
  return is ? static_cast<unsigned char>(*language) : int16_t{0};
}

int kz_codr_is_spec_char(int character, const char* language) {
  const auto c = static_cast<unsigned char>(character);
  const bool is_special = c >= 128 && kz::base_letters_of(kz::language_of(language))[c] != c;
  return is_special ? c : 0;
}

int kz_codr_base_member(int character, const char* language) {
  return kz::base_letters_of(kz::language_of(language))[static_cast<unsigned char>(character)];
}

char* kz_codr_create_spec_chars(char* destination, const char* source, const char* language) {
  if (destination == nullptr || source == nullptr || language == nullptr) return nullptr;
  const kz::DigraphTable* notation = kz::notation_of(language);
  if (notation == nullptr) return nullptr;
  while (*source != '\0') {
    const unsigned char letter = notation->find(source[0], source[1]);
    *destination++ = letter != 0 ? static_cast<char>(letter) : *source;
    source += letter != 0 ? 2 : 1;
  }
  *destination = '\0';
  return destination;
}

int16_t x_case(unsigned mask) {
  const unsigned oblique = mask & 0x3E;
  return static_cast<int16_t>(oblique != 0 ? std::countr_zero(oblique) : 0);
}

char* c_case(int mask, char* out) {
  for (std::size_t i = 0; i < kz::kCaseLetters.size(); ++i) {
    if ((mask >> i & 1) != 0) *out++ = kz::kCaseLetters[i];
  }
  return out;
}

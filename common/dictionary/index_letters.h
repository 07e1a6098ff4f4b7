// The alphabets of the letter index.
#ifndef KZ_DICTIONARY_INDEX_LETTERS_H
#define KZ_DICTIONARY_INDEX_LETTERS_H

#include <array>
#include <cstdint>
#include <string_view>

namespace kz {

// Numbers the letters of an alphabet. A character that is no letter of it has the slot `size`.
struct Alphabet {
  int size;
  std::string_view letters;
  std::array<std::uint8_t, 256> slots;

  int slot(char c) const { return slots[static_cast<std::uint8_t>(c)]; }
  char letter(int slot) const { return letters[static_cast<std::size_t>(slot)]; }
};

// The alphabet of 26, 32 or 43 letters; null for any other size.
const Alphabet* find_alphabet(int size);

// A digit or punctuation that a headword may hold beside its letters (kz_dict_is_valid_char).
bool is_headword_mark(char c);

inline bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The headword ends at the zero byte or, inside a record, at '*'.
inline bool ends_word(char c) { return c == 0 || c == '*'; }

// What a character at the beginning of a word means to the index of a dictionary.
enum class PrefixRole : std::uint8_t { kLetter, kDigit, kMark, kEnd, kOther };

// The roles of all characters: letters are the lower-case ones of the dictionary's language, given
// by its first letter. A dictionary without a language, as an upgraded one may be, has the letters
// of its alphabet.
std::array<PrefixRole, 256> prefix_roles(char language, const Alphabet& alphabet);

}  // namespace kz

#endif  // KZ_DICTIONARY_INDEX_LETTERS_H

// Byte-to-byte maps of 256 codes, and their application to texts.
//
// A conversion or a change of case is one ByteMap, computed at compile time: one table access for a
// character, one pass for a text. Translation adds what the vector code needs to apply a map to 32
// or 64 bytes at a time.
#ifndef KZ_TEXT_BYTE_MAP_H
#define KZ_TEXT_BYTE_MAP_H

#include <array>
#include <cstddef>

namespace kz {

using ByteMap = std::array<unsigned char, 256>;

constexpr ByteMap identity_map() {
  ByteMap map{};
  for (std::size_t c = 0; c < map.size(); ++c) map[c] = static_cast<unsigned char>(c);
  return map;
}

// A map that leaves the codes below 64 alone, ready for the vector code.
struct Translation {
  static constexpr std::size_t kFirstRow = 4;  // rows of 16 codes; those below map to themselves

  ByteMap codes;
  // What to change (by exclusive or) in the codes of each row, beyond what the rows before it in
  // the same half, below or above 128, have changed already: the sum over the rows from the half's
  // first to a code's own gives the code's change.
  alignas(16) std::array<std::array<unsigned char, 16>, 16> row_changes{};
  bool keeps_ascii = true;

  consteval explicit Translation(const ByteMap& map) : codes(map) {
    for (std::size_t row = 0; row < row_changes.size(); ++row) {
      const bool starts_half = row == kFirstRow || row == 8;
      for (std::size_t i = 0; i < 16; ++i) {
        row_changes[row][i] = change(row * 16 + i);
        if (row < kFirstRow && row_changes[row][i] != 0) throw "codes below 64 must stay";
        if (row > kFirstRow && !starts_half) row_changes[row][i] ^= change(row * 16 + i - 16);
        if (row < 8 && row_changes[row][i] != 0) keeps_ascii = false;
      }
    }
  }

  unsigned char operator[](int character) const {
    return codes[static_cast<unsigned char>(character)];
  }

 private:
  constexpr unsigned char change(std::size_t c) const {
    return static_cast<unsigned char>(codes[c] ^ c);
  }
};

// Translates `size` bytes. The destination may be the source or begin before it.
void translate(const char* source, char* destination, std::size_t size,
               const Translation& translation);

// Translates a zero-terminated text and returns a pointer to the zero stored after it. The
// destination may be the source or begin before it.
char* translate_text(const char* source, char* destination, const Translation& translation);

}  // namespace kz

#endif  // KZ_TEXT_BYTE_MAP_H

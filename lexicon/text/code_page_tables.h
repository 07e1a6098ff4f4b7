// Tables between the bytes of a code page and Unicode, both ways.
#ifndef KZ_LEXICON_CODE_PAGE_TABLES_H
#define KZ_LEXICON_CODE_PAGE_TABLES_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "lexicon/text/code_page.h"

namespace kz::lexicon {

inline constexpr char16_t kNoCharacter = 0xFFFD;

struct PageTable {
  std::array<char16_t, 256> characters;  // by byte; kNoCharacter for none
  // Bytes by character: the upper half of the character gives the number of a block, the lower half
  // the place in it. Block 0 is empty.
  std::array<std::uint8_t, 256> block_of;
  std::array<std::array<std::uint8_t, 256>, 8> blocks;

  // 0 when the page lacks the character.
  constexpr unsigned char byte_of(char32_t c) const {
    return c > 0xFFFF ? std::uint8_t{0} : blocks[block_of[c >> 8]][c & 0xFF];
  }
};

// Not for the mixed page.
const PageTable& table_of(CodePage page);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_CODE_PAGE_TABLES_H

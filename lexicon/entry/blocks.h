// Attribute blocks within an entry: after the part code, before meanings, after synonyms.
#ifndef KZ_LEXICON_ENTRY_BLOCKS_H
#define KZ_LEXICON_ENTRY_BLOCKS_H

#include <string>
#include <string_view>
#include <vector>

namespace kz::lexicon {

// The inside of the block directly after the part code, in the bytes of the entry. The library
// gives a block of the body for it when there is one.
std::string head_block(std::string_view entry);

// A block before the text of a meaning, with the number ("2.") or the part code that labels
// the meaning.
struct MeaningBlock {
  std::string label;
  std::string tags;
};
// Those of a body, in its order.
std::vector<MeaningBlock> meaning_blocks(std::string_view body);

// The block of a synonym in the library's spaced form, and the code letter that stands alone in
// front of it (none when 0).
struct InnerBlock {
  char32_t part_code = 0;
  std::u32string tags;
};
InnerBlock synonym_block(std::u32string_view synonym);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_ENTRY_BLOCKS_H

// A table of what becomes of each byte.
#include "tools/character_filter.h"

#include "lexicon/text/code_page_tables.h"
#include "tools/status.h"

namespace kzdic {

CharacterFilter::CharacterFilter(CodePage page, const Conversion& conversion) : page_(page) {
  for (std::size_t byte = 1; byte < outputs_.size(); ++byte) {
    const std::optional<std::string> output = conversion(static_cast<int>(byte));
    outputs_[byte] = output ? decode(*output, CodePage::kRussian)
                            : std::u32string(1, table_of(page).characters[byte]);
  }
}

void CharacterFilter::answer(const Block& block, std::string& out) {
  std::u32string text;
  text.reserve(block.text.size());
  for (const char32_t c : from_utf8(block.text)) {
    const unsigned char byte = table_of(page_).byte_of(c);
    if (byte == 0) {
      text += c;
    } else {
      text += outputs_[byte];
    }
  }
  out += to_utf8(text);
}

}  // namespace kzdic

// Windows-1251 and the characters that it lacks.
#include "lexicon/text/russian_text.h"

#include "lexicon/text/code_page.h"
#include "lexicon/text/code_page_tables.h"

namespace kz::lexicon {

RussianText::RussianText(std::string_view utf8) {
  const std::u32string text = from_utf8(utf8);
  bytes_.reserve(text.size());
  for (const char32_t c : text) {
    const unsigned char byte = table_of(CodePage::kRussian).byte_of(c);
    bytes_ += byte != 0 ? static_cast<char>(byte) : kForeign;
    if (byte == 0) foreign_ += c;
  }
}

std::string RussianText::restore(std::string_view made) const {
  std::u32string text = decode(made, CodePage::kRussian);
  auto foreign = foreign_.begin();
  for (char32_t& c : text) {
    if (c == kNoCharacter && foreign != foreign_.end()) c = *foreign++;
  }
  return to_utf8(text);
}

}  // namespace kz::lexicon

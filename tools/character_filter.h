// Filters that convert text character by character.
#ifndef KZ_TOOLS_CHARACTER_FILTER_H
#define KZ_TOOLS_CHARACTER_FILTER_H

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "lexicon/text/code_page.h"
#include "tools/line_filter.h"
#include "tools/status.h"

namespace kzdic {

class CharacterFilter : public LineFilter {
 public:
  // What the library makes of one byte of a code page: text of Windows-1251, or nothing when the
  // character stays as it is.
  using Conversion = std::function<std::optional<std::string>(int byte)>;

  // Characters that the page lacks stay.
  CharacterFilter(CodePage page, const Conversion& conversion);

  void answer(const Block& block, std::string& out) override;

 private:
  CodePage page_;
  std::array<std::u32string, 256> outputs_;
};

}  // namespace kzdic

#endif  // KZ_TOOLS_CHARACTER_FILTER_H

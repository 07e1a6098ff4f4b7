// Names of compact attributes, and what the classes stand for.
#include <array>
#include <charconv>
#include <cstdint>

#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kzlexicon/error.h"
#include "kzlexicon/grammar.h"
#include "lexicon/grammar/fields.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr int kKinds = 3;

std::int16_t count_of(std::int16_t kind) {
  std::int16_t count = 0;
  while (GetAttrNameStr(kind, count) != nullptr) ++count;
  return count;
}

// No names are numbers: digits are an index. -1 for a name that is none.
std::int16_t index_of(std::int16_t kind, std::string_view text) {
  if (text.find_first_not_of("-0123456789") != std::string_view::npos || text.empty()) {
    return GetAttrNameIndex(kind, std::string(text).c_str());
  }
  int index = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
  const int last = count_of(kind) - 1;
  if (error != std::errc() || end != text.data() + text.size() || index < 0 || index > last) {
    throw Error(ErrorCode::kArgument, "no index " + std::string(text) + ": those of kind " +
                                          std::to_string(kind) + " are 0 to " +
                                          std::to_string(last));
  }
  return static_cast<std::int16_t>(index);
}

}  // namespace

AttributeName find_attribute(int kind, std::string_view name_or_index) {
  if (kind < 0 || kind >= kKinds) {
    throw Error(ErrorCode::kArgument, "no kind " + std::to_string(kind) + ": the kinds are 0 to 2");
  }
  const auto narrow = static_cast<std::int16_t>(kind);
  const std::int16_t index = index_of(narrow, name_or_index);
  AttributeName attribute{kind, index, std::string(name_or_index), {}, {}};
  if (index < 0) return attribute;
  attribute.name = GetAttrNameStr(narrow, index);
  if (kind == kKinds - 1) return attribute;
  const std::array<std::uint32_t, 2> compact = {
      static_cast<std::uint32_t>(index) << (kind == 0 ? 0 : 8), 0};
  Grammar grammar;
  SetGrSrcAttr(&grammar.gram, compact.data());
  const char code = static_cast<char>(grammar.gram.word[2] >> GRAM_CODE_SHIFT);
  if (code != 0) attribute.code = russian_to_utf8(std::string_view(&code, 1));
  // Code and indices are given above, and there is no paradigm.
  grammar.gram.word[2] &= 0xFF;
  grammar.gram.word[3] = no_grammar().gram.word[3];
  attribute.fields = fields_of(code, grammar);
  return attribute;
}

}  // namespace kz::lexicon

// Index order of headwords.
#include "lexicon/build/sort_order.h"

#include <algorithm>

#include "kz/charclass.h"
#include "kz/dic_index.h"
#include "lexicon/source/entry_layout.h"

namespace kz::lexicon {
namespace {

constexpr std::size_t kKeyLength = 5;

// Six-bit code of a character in a depth-5 key; 0 for what has none.
std::uint32_t key_code(char character) {
  switch (character) {
    case ' ': return 1;
    case '\'': return 2;
    case ')': return 3;
    case '-': return 4;
    case '.': return 5;
    case '/': return 6;
    case '`': return 7;
    default: break;
  }
  const auto byte = static_cast<unsigned char>(character);
  return byte >= 224 ? byte - 224u + 8u : 0u;
}

}  // namespace

SortOrder::SortOrder(std::string_view language, int depth)
    : language_(language), depth_(depth), alphabet_size_(kz::lexicon::alphabet_size(language)) {}

bool SortOrder::is_letter(char c) const {
  switch (language_[0]) {
    case 'E': return _islower(c) != 0;
    case 'R': return isruansilower(c) != 0;
    default: return isansilower(c) != 0;
  }
}

std::optional<std::string> SortOrder::refusal(std::string_view word) const {
  if (word.empty()) return "the headword is empty";
  if (word.size() > kHeadwordMax) {
    return "the headword has " + std::to_string(word.size()) + " characters, more than " +
           std::to_string(kHeadwordMax);
  }
  if (!is_letter(word[0]) && _isdigit(word[0]) == 0) {
    return "the headword begins with neither a letter of its language nor a digit";
  }
  const std::size_t indexed =
      std::min(word.size(), depth_ == 5 ? kKeyLength : static_cast<std::size_t>(depth_));
  for (std::size_t i = 1; i < indexed; ++i) {
    if (is_letter(word[i]) || kz_dict_is_valid_char(word[i]) != 0) continue;
    return "character " + std::to_string(i + 1) + " of the headword cannot be indexed at depth " +
           std::to_string(depth_);
  }
  return std::nullopt;
}

std::uint32_t SortOrder::slot(std::string_view word, std::size_t position) const {
  const char c = position < word.size() ? word[position] : '\0';
  const auto found = static_cast<std::uint32_t>(Index1(c, language_.c_str(), alphabet_size_));
  return found == static_cast<std::uint32_t>(alphabet_size_) ? 0 : found + 1;
}

std::uint32_t SortOrder::key(std::string_view word) const {
  std::uint32_t result = 0;
  for (std::size_t i = 0; i < kKeyLength; ++i) {
    result = (result << 6) | (i < word.size() ? key_code(word[i]) : 0);
  }
  return result;
}

std::uint32_t SortOrder::group(std::string_view word) const {
  if (depth_ == 5) return key(word);
  const std::uint32_t first = slot(word, 0);
  if (first == 0) return 0;
  const auto base = static_cast<std::uint32_t>(alphabet_size_ + 1);
  std::uint32_t result = first * base + slot(word, 1);
  if (depth_ == 3) result = result * base + slot(word, 2);
  return result;
}

bool SortOrder::same_beginning(std::string_view prefix, std::string_view word) const {
  const std::size_t indexed = std::min(prefix.size(), static_cast<std::size_t>(depth_));
  for (std::size_t i = 0; i < indexed; ++i) {
    if (slot(prefix, i) != slot(word, i)) return false;
  }
  return true;
}

}  // namespace kz::lexicon

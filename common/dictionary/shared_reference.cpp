// Bodies that are numbers.
#include "dictionary/shared_reference.h"

#include <charconv>
#include <cstddef>

#include "entry/split.h"
#include "kz/charclass.h"

namespace kz {

SharedReference find_shared_reference(std::string_view entry, std::uint32_t shared_size) {
  constexpr std::size_t kDigitsMax = 10;
  // Most entries have no source sections and do not end in a digit: nothing need be taken apart.
  if (entry.empty() || (!_isxdigit(entry.back()) && entry.find('\\') == std::string_view::npos)) {
    return {};
  }
  const EntryParts parts = split_entry(entry);
  const std::string_view body = parts.body;
  const std::string_view digits = body.substr(0, kDigitsMax);
  std::uint64_t offset = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), offset, 16);
  if (error != std::errc()) return {};
  const auto length = static_cast<std::size_t>(end - digits.data());
  if (length < body.size() && body[length] != '\\') return {};
  if (offset >= shared_size) return {};
  const auto start = static_cast<std::size_t>(body.data() - entry.data());
  // A source mark without a text is not given back when an entry is joined.
  const bool ends_entry = parts.src_ref.empty() && parts.src_word.empty();
  const std::size_t replaced = ends_entry ? entry.size() - start : body.size();
  return {static_cast<std::uint32_t>(offset), static_cast<std::uint16_t>(start),
          static_cast<std::uint16_t>(replaced)};
}

}  // namespace kz

// Plain records: lines of text in sorted order.
#include <algorithm>
#include <array>

#include "dictionary/records.h"

namespace kz {
namespace {

constexpr char kLineFeed = '\n';

}  // namespace

std::int32_t find_plain(RecordRange& range, std::string_view key) {
  std::array<char, 128> pattern;
  if (key.size() + 1 > pattern.size()) return -1;
  pattern[0] = kLineFeed;
  std::copy(key.begin(), key.end(), pattern.begin() + 1);
  const std::int32_t found = range.find(std::string_view(pattern.data(), key.size() + 1));
  return found < 0 ? -1 : found + 1;
}

bool read_plain(RecordRange& range, std::int32_t offset, PlainRecord& record) {
  const std::string_view ahead = range.at(offset, kEntryTextMax + 1);
  const std::size_t line_feed = ahead.find(kLineFeed);
  const bool seen_whole = line_feed != std::string_view::npos;
  record.end =
      seen_whole ? offset + static_cast<std::int32_t>(line_feed) : range.find(kLineFeed, offset);
  const std::int32_t length = std::min(record.end - offset, kEntryTextMax);
  if (length <= 0) return false;
  record.text = range.at(offset, length).substr(0, static_cast<std::size_t>(length));
  return !range.failed();
}

}  // namespace kz

// Records in a range: plain ones are lines of text, packed ones are front-coded with a count byte.
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

namespace {

// The byte that, after a count of 0, ends a record area.
constexpr unsigned char kEndMark = 26;

bool is_count(char c) { return static_cast<unsigned char>(c) < kStoredTextMin; }

bool is_end_marker(std::string_view bytes) {
  return bytes.size() >= 2 && bytes[0] == 0 && static_cast<unsigned char>(bytes[1]) == kEndMark;
}

// Number of leading characters that two texts share.
std::size_t shared_length(std::string_view a, std::string_view b) {
  const auto end = a.begin() + static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()));
  return static_cast<std::size_t>(std::mismatch(a.begin(), end, b.begin()).first - a.begin());
}

}  // namespace

bool read_packed(RecordRange& range, std::int32_t offset, PackedRecord& record) {
  // The record itself, and the two bytes after it for the end marker.
  const std::string_view ahead = range.at(offset, 1 + kPackedTextMax + 2);
  if (ahead.empty() || !is_count(ahead[0]) || is_end_marker(ahead)) return false;
  record.count = static_cast<unsigned char>(ahead[0]);
  const std::string_view room =
      ahead.substr(1, static_cast<std::size_t>(kPackedTextMax - record.count));
  const auto next = std::find_if(room.begin(), room.end(), is_count);
  const auto length = static_cast<std::size_t>(next - room.begin());
  const std::string_view behind = ahead.substr(1 + length);
  if (!behind.empty() && !is_count(behind[0])) return false;
  record.stored = room.substr(0, length);
  record.end = offset + 1 + static_cast<std::int32_t>(length);
  record.before_marker = is_end_marker(behind);
  return true;
}

bool find_packed(RecordRange& range, std::string_view stored_key, bool whole,
                 PackedRecord& record) {
  std::size_t matched = 0;
  for (std::int32_t offset = 0; read_packed(range, offset, record); offset = record.end) {
    const auto count = static_cast<std::size_t>(record.count);
    if (offset == 0) {
      if (count > stored_key.size()) return false;
      matched = count;
    }
    if (count < matched) return false;
    if (count > matched) continue;
    matched += shared_length(record.stored, stored_key.substr(matched));
    const bool ends_with_key = count + record.stored.size() == stored_key.size();
    if (matched == stored_key.size() && (ends_with_key || !whole)) return !record.before_marker;
  }
  return false;
}

}  // namespace kz

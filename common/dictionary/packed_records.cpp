// Packed records: front coding with a count byte.
#include <algorithm>

#include "dictionary/records.h"

namespace kz {
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

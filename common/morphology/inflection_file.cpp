// Compiled inflection tables: decoded with checks, encoded.
#include "morphology/inflection_file.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "foundation/text_key.h"

namespace kz {
namespace {

using Bytes = std::span<const std::uint8_t>;

// Takes bytes off the front of what is left of a file. Nothing is left after a failure.
class Reader {
 public:
  explicit Reader(Bytes bytes) : rest_(bytes) {}

  bool take(std::size_t count, Bytes& bytes) {
    if (count > rest_.size()) return false;
    bytes = rest_.first(count);
    rest_ = rest_.subspan(count);
    return true;
  }

  bool take_u8(std::uint8_t& value) {
    Bytes bytes;
    if (!take(1, bytes)) return false;
    value = bytes[0];
    return true;
  }

  bool take_u16(std::size_t& value) {
    Bytes bytes;
    if (!take(2, bytes)) return false;
    value = static_cast<std::size_t>(bytes[0] | bytes[1] << 8);
    return true;
  }

  bool take_u32(std::uint32_t& value) {
    Bytes bytes;
    if (!take(4, bytes)) return false;
    value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | bytes[i];
    return true;
  }

 private:
  Bytes rest_;
};

bool read_records(Reader& file, CGrSrcWordObj& entry) {
  if (!file.take_u8(entry.count)) return false;
  if (entry.count < 1 || entry.count > std::size(entry.attributes)) return false;
  for (std::size_t i = 0; i < entry.count; ++i) {
    for (std::uint32_t& word : entry.attributes[i]) {
      if (!file.take_u32(word)) return false;
    }
  }
  return true;
}

char with_key(std::uint8_t byte) { return static_cast<char>(byte ^ kTextKey); }

bool read_ending(Reader& file, CGrSrcWordObj& entry) {
  Bytes bytes;
  if (!file.take_u8(entry.length) || entry.length > kLongestEnding) return false;
  if (!file.take(entry.length, bytes)) return false;
  char* const end = std::transform(bytes.begin(), bytes.end(), entry.ending, with_key);
  return std::find(entry.ending, end, '\0') == end;
}

void append_u32(std::string& file, std::uint32_t value) {
  for (int i = 0; i < 4; ++i, value >>= 8) file += static_cast<char>(value);
}

}  // namespace

std::optional<InflectionEntries> decode_inflection(std::span<const std::uint8_t> file) {
  Reader reader(file);
  std::size_t count = 0;
  if (!reader.take_u16(count)) return std::nullopt;
  InflectionEntries entries;
  for (; count > 0; --count) {
    auto entry = std::make_unique<CGrSrcWordObj>();
    if (!read_records(reader, *entry) || !read_ending(reader, *entry)) return std::nullopt;
    entries.push_back(std::move(entry));
  }
  return entries;
}

void append_count(std::string& file, std::size_t count) {
  file += static_cast<char>(count);
  file += static_cast<char>(count >> 8);
}

void append_entry(std::string& file, const CGrSrcWordObj& entry) {
  file += static_cast<char>(entry.count);
  for (std::size_t i = 0; i < entry.count; ++i) {
    for (const std::uint32_t word : entry.attributes[i]) append_u32(file, word);
  }
  const std::string_view ending = entry.ending;
  file += static_cast<char>(ending.size());
  for (const char c : ending) file += with_key(static_cast<std::uint8_t>(c));
}

}  // namespace kz

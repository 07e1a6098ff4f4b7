// The format of dictionary files, read off docs/dictionary-format.md.
#include "tests/tools/dictionary_reader.h"

#include <algorithm>

namespace {

constexpr std::size_t kNone = std::string::npos;

std::size_t number(const std::string& bytes, std::size_t at, std::size_t width) {
  std::size_t value = 0;
  for (std::size_t i = 0; i < width; ++i) {
    value |= static_cast<std::size_t>(static_cast<unsigned char>(bytes.at(at + i))) << (8 * i);
  }
  return value;
}

void read_plain(const std::string& area, std::size_t offset, ReadDictionary& result) {
  std::size_t at = 0;
  while (area.at(at) == '\n' && area.at(at + 1) != '\n') {
    const std::size_t end = area.find('\n', at + 1);
    result.records.push_back({offset + at, 0, area.substr(at + 1, end - at - 1), {}});
    at = end;
  }
}

void read_packed(const std::string& area, std::size_t offset, ReadDictionary& result) {
  std::string text;
  for (std::size_t at = 0; at < area.size();) {
    const std::size_t position = at;
    const auto count = static_cast<unsigned char>(area[at++]);
    text.resize(count);
    while (at < area.size() && static_cast<unsigned char>(area[at]) >= 64) {
      text += static_cast<char>(area[at++] ^ '\x80');
    }
    result.records.push_back({offset + position, count, text, {}});
  }
}

// The head word, a part code, perhaps brackets, then a hexadecimal number up to a backslash.
std::string resolve(const std::string& stored, const std::string& shared) {
  std::size_t body = stored.rfind('*') + 2;
  if (stored.size() > body && stored[body] == '[') body = stored.find(']', body) + 1;
  const std::size_t end = std::min(stored.find('\\', body), stored.size());
  const std::string digits = stored.substr(std::min(body, stored.size()), end - body);
  if (shared.empty() || digits.empty() ||
      digits.find_first_not_of("0123456789abcdefABCDEF") != kNone) {
    return stored;
  }
  const std::size_t offset = std::stoul(digits, nullptr, 16);
  return stored.substr(0, body) + (shared.c_str() + offset) + stored.substr(end);
}

const std::string& alphabet(std::size_t letters) {
  static const std::string latin = "abcdefghijklmnopqrstuvwxyz";
  static const std::string western =
      "a\xE0\xE2\xE4"
      "bc\xE7"
      "de\xE8\xE9\xEA\xEB"
      "fghi\xEE\xEF"
      "jklmno\xF4\xF6\x9C"
      "pqrs\xDF"
      "tu\xF9\xFB\xFC"
      "vwxyz";
  static const std::string russian = [] {
    std::string result;
    for (int c = 224; c < 256; ++c) result += static_cast<char>(c);
    return result;
  }();
  return letters == 26 ? latin : letters == 32 ? russian : western;
}

std::size_t slot(const std::string& word, std::size_t at, std::size_t letters) {
  if (at >= word.size()) return letters;
  const char c = letters == 32 && word[at] == '\xB8' ? '\xE5' : word[at];
  return std::min(alphabet(letters).find(c), letters);
}

unsigned key(const std::string& word) {
  unsigned result = 0;
  for (std::size_t i = 0; i < 5; ++i) {
    unsigned code = 0;
    if (i < word.size()) {
      const auto c = static_cast<unsigned char>(word[i]);
      const std::size_t mark = std::string(" ')-./`").find(word[i]);
      code = c >= 224 ? c - 216u : mark != kNone ? static_cast<unsigned>(mark) + 1 : 0;
    }
    result = result * 64 + code;
  }
  return result;
}

}  // namespace

std::pair<std::size_t, std::size_t> ReadDictionary::block(const std::string& word) const {
  std::size_t start = kNone;
  std::size_t end = index_offset;
  if (depth == 5) {
    for (const auto& [value, position] : keys) {
      if (value == key(word)) start = position;
    }
    for (const auto& [value, position] : keys) {
      if (start != kNone && position > start) end = std::min(end, position);
    }
  } else {
    const std::size_t row = letters + 1;
    std::vector<std::size_t> at = {slot(word, 0, letters), slot(word, 1, letters),
                                   slot(word, 2, letters)};
    const auto cell = [&](std::size_t i, std::size_t j, std::size_t k) {
      return cells.at(depth == 2 ? i * row + j : (i * row + j) * row + k);
    };
    if (at[0] == letters) {
      for (at[0] = 0; cell(at[0], letters, letters) == kNone; ++at[0]) {
      }
      at[1] = at[2] = letters;
    }
    start = cell(at[0], at[1], at[2]);
    for (const std::size_t position : cells) {
      if (start != kNone && position != kNone && position > start) end = std::min(end, position);
    }
  }
  return start == kNone ? std::pair(std::size_t{0}, std::size_t{0}) : std::pair(start, end);
}

ReadDictionary read_dictionary(const std::string& bytes) {
  ReadDictionary result;
  result.depth = static_cast<int>(number(bytes, 115, 2));
  result.letters = number(bytes, 117, 2);
  result.index_offset = number(bytes, 119, 4);
  result.data_offset = number(bytes, 123, 4);
  const std::size_t packing = number(bytes, 141, 1);
  result.packed = packing % 2 == 1;
  if (packing >= 2) result.shared = bytes.substr(number(bytes, 142, 4), number(bytes, 150, 4));
  const std::string area =
      bytes.substr(result.data_offset, result.index_offset - result.data_offset);
  (result.packed ? read_packed : read_plain)(area, result.data_offset, result);
  for (ReadRecord& record : result.records) record.entry = resolve(record.stored, result.shared);

  const std::size_t row = result.letters + 1;
  const std::size_t cells = result.letters * row * (result.depth == 3 ? row : 1);
  if (result.depth == 5) {
    for (std::size_t i = 0; i < number(bytes, 146, 4); ++i) {
      const std::size_t at = result.index_offset + 8 * i;
      result.keys.emplace_back(static_cast<unsigned>(number(bytes, at, 4)),
                               number(bytes, at + 4, 4));
    }
  } else {
    for (std::size_t i = 0; i < cells; ++i) {
      const std::size_t position = number(bytes, result.index_offset + 4 * i, 4);
      result.cells.push_back(position == 0xFFFFFFFF ? kNone : position);
    }
  }
  return result;
}

// Attributes of endings: read from a line, written as text.
#include "morphology/inflection_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "grammar/compact_record.h"
#include "kz/charclass.h"
#include "kz/gram_codec.h"
#include "util/lexer.h"
#include "util/list_file.h"

namespace kz {
namespace {

using compact_record::kBaseKind;
using compact_record::kLetter;
using compact_record::kNames;
using compact_record::kNumber;

void read_paradigm(std::string_view token, std::uint32_t* record) {
  std::uint32_t number = 0;
  std::size_t i = 0;
  for (; i < token.size() && _isdigit(token[i]) != 0; ++i) {
    number = number * 10 + static_cast<std::uint32_t>(token[i] - '0');
  }
  kNumber.set(record, number);
  kLetter.set(record, i < token.size() ? static_cast<unsigned char>(token[i]) : 0);
}

char* append(char* output, std::string_view text) {
  return std::copy(text.begin(), text.end(), output);
}

// A name and what follows it; nothing for index 0.
char* append_name(char* output, std::size_t kind, int index, std::string_view behind) {
  if (index == 0) return output;
  const char* const name =
      GetAttrNameStr(static_cast<std::int16_t>(kind), static_cast<std::int16_t>(index));
  return append(append(output, name != nullptr ? name : "?"), behind);
}

char* append_record(char* output, const std::uint32_t* record) {
  output = append_name(output, 0, static_cast<int>(kNames[0].get(record)), " ");
  output = append_name(output, 1, compact_record::addition_of(record), " ");
  if (const std::uint32_t number = kNumber.get(record); number != 0) {
    output = std::to_chars(output, output + 5, number).ptr;
    *output++ = ' ';
  }
  return append_name(output, kBaseKind, static_cast<int>(kNames[kBaseKind].get(record)), "");
}

}  // namespace

bool read_attributes(std::string_view text, CGrSrcWordObj& entry) {
  std::string_view token = next_token(text, kTableBlanks);
  if (token.empty()) return false;
  std::size_t number = 0;
  std::size_t kind = 0;
  for (; !token.empty(); token = next_token(text, kTableBlanks)) {
    if (token.front() == '|') {
      if (number + 1 == std::size(entry.attributes)) break;
      ++number;
      kind = 0;
    } else if (_isalpha(token.front()) != 0) {
      if (kind < kNames.size()) {
        const std::string name(token);
        const int index = GetAttrNameIndex(static_cast<std::int16_t>(kind), name.c_str());
        kNames[kind].set(entry.attributes[number], static_cast<std::uint32_t>(index));
      }
      ++kind;
    } else if (_isdigit(token.front()) != 0) {
      read_paradigm(token, entry.attributes[number]);
      kind = kBaseKind;
    } else {
      break;
    }
  }
  entry.count = static_cast<std::uint8_t>(number + 1);
  return true;
}

void write_entry(const CGrSrcWordObj& entry, char* output) {
  std::string_view ending(entry.ending, sizeof entry.ending);
  ending = ending.substr(0, ending.find('\0'));
  for (std::size_t i = 0; i < std::size(entry.attributes); ++i) {
    const std::uint32_t* const record = entry.attributes[i];
    if (kNames[0].get(record) == 0) break;
    output = i == 0 ? append(append(output, ending), " ") : append(output, " | ");
    output = append_record(output, record);
  }
  *output = '\0';
}

}  // namespace kz

// Writes small dictionary files for tests, byte by byte and without the library.
#ifndef KZ_TESTS_DICTIONARY_FILE_H
#define KZ_TESTS_DICTIONARY_FILE_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "text/literal.h"

namespace kz::test {

// The letters of the index alphabets, in slot order.
inline std::string alphabet(int n) {
  std::string letters;
  if (n == 26) {
    for (char c = 'a'; c <= 'z'; ++c) letters += c;
  } else if (n == 32) {
    for (int c = 224; c <= 255; ++c) letters += static_cast<char>(c);
  } else {
    letters = U"aàâäbcçdeèéêëfghiîïjklmnoôöœpqrsßtuùûüvwxyz"_1252;
  }
  return letters;
}

// Slot of a character, n when it is no letter of the alphabet.
inline int slot(char c, int n) {
  if (n == 32 && c == static_cast<char>(U'ё'_1251)) c = static_cast<char>(U'е'_1251);
  const std::size_t found = c == 0 ? std::string::npos : alphabet(n).find(c);
  return found == std::string::npos ? n : static_cast<int>(found);
}

inline std::uint32_t five_character_key(const std::string& word) {
  std::uint32_t key = 0;
  for (std::size_t i = 0; i < 5; ++i) {
    std::uint32_t code = 0;
    if (i < word.size()) {
      const auto c = static_cast<unsigned char>(word[i]);
      const std::size_t mark = std::string(" ')-./`").find(word[i]);
      if (mark != std::string::npos) code = static_cast<std::uint32_t>(mark) + 1;
      if (c >= 224) code = c - 224u + 8;
    }
    key = key << 6 | code;
  }
  return key;
}

struct Record {
  std::string word;
  std::string rest;  // what follows the '*'
};

struct DictionaryFile {
  std::string language = "ENRU";
  char type = 'C';
  int depth = 2;
  int alphabet_size = 26;
  int version = 600;
  int packing = 0;
  bool fresh_groups = true;       // packed: front coding starts afresh in every group
  std::size_t shared_max = 63;    // packed: characters that a record takes over at most
  std::string end_pair_before{};  // packed: the word in front of which the pair 0, 26 stands
  std::string shared{};           // texts, each with its zero
  std::vector<Record> records{};

  bool packed() const { return version >= 539 && (packing == 1 || packing == 3); }

  // Place of a word in the file: its group (digits, then slots with "no letter" first, or the
  // five-character key), then its bytes.
  std::array<std::int64_t, 3> group(const std::string& word) const {
    if (depth == 5) return {five_character_key(word), 0, 0};
    std::array<std::int64_t, 3> result = {-1, -1, -1};
    for (std::size_t i = 0; i < static_cast<std::size_t>(depth) && i < word.size(); ++i) {
      const int s = slot(word[i], alphabet_size);
      result[i] = s == alphabet_size ? -1 : s;
      if (i == 0 && result[0] == -1) break;  // digits go together
    }
    return result;
  }

  void sort() {
    std::stable_sort(records.begin(), records.end(), [this](const Record& a, const Record& b) {
      const auto ga = group(a.word), gb = group(b.word);
      return ga != gb ? ga < gb : a.word < b.word;
    });
  }

  std::string bytes() {
    sort();
    std::string out(154, '\0');
    std::map<std::array<std::int64_t, 3>, std::int32_t> groups;  // position of the first record
    std::string previous;
    for (const Record& record : records) {
      const auto g = group(record.word);
      const bool opens = !groups.contains(g);
      if (opens) groups[g] = static_cast<std::int32_t>(out.size());
      const std::string text =
          type == 'S' && packed() ? record.word : record.word + '*' + record.rest;
      if (packed()) {
        if (opens && fresh_groups) previous.clear();
        std::size_t count = 0;
        while (count < shared_max && count < text.size() && count < previous.size() &&
               text[count] == previous[count]) {
          ++count;
        }
        if (record.word == end_pair_before) out += std::string("\0\x1A", 2);
        out += static_cast<char>(count);
        for (const char c : text.substr(count)) out += static_cast<char>(c ^ '\x80');
        previous = text;
      } else {
        out += '\n' + text;
      }
    }
    if (!packed()) out += "\n\n";
    const auto index_offset = static_cast<std::int32_t>(out.size());
    out += index(groups);
    const auto shared_offset = static_cast<std::int32_t>(out.size());
    out += shared;
    write_header(out, index_offset, shared_offset, static_cast<std::int32_t>(groups.size()));
    return out;
  }

  std::string write(const std::string& path) {
    const std::string all = bytes();
    std::ofstream(path, std::ios::binary) << all;
    return all;
  }

 private:
  static void put32(std::string& out, std::size_t at, std::int32_t value) {
    for (std::size_t i = 0; i < 4; ++i) {
      out[at + i] = static_cast<char>(static_cast<std::uint32_t>(value) >> 8 * i);
    }
  }
  static void put16(std::string& out, std::size_t at, int value) {
    out[at] = static_cast<char>(value);
    out[at + 1] = static_cast<char>(value >> 8);
  }

  std::string index(const std::map<std::array<std::int64_t, 3>, std::int32_t>& groups) const {
    if (depth == 5) {
      std::string image(groups.size() * 8, '\0');
      std::size_t at = 0;
      for (const auto& [g, position] : groups) {
        put32(image, at, static_cast<std::int32_t>(g[0]));
        put32(image, at + 4, position);
        at += 8;
      }
      return image;
    }
    const int n = alphabet_size;
    std::string image(static_cast<std::size_t>(n * (n + 1) * (depth == 3 ? n + 1 : 1)) * 4, '\xFF');
    const auto offer = [&](std::int64_t i, std::int64_t j, std::int64_t k, std::int32_t position) {
      const std::int64_t number = depth == 3 ? (i * (n + 1) + j) * (n + 1) + k : i * (n + 1) + j;
      const auto at = static_cast<std::size_t>(number) * 4;
      if (image.compare(at, 4, "\xFF\xFF\xFF\xFF") == 0) put32(image, at, position);
    };
    std::int32_t digits = -1;
    for (const auto& [g, position] : groups) {  // in file order: the first one stays
      if (g[0] < 0) {
        digits = position;
        continue;
      }
      const auto or_n = [n](std::int64_t s) { return s < 0 ? n : s; };
      offer(g[0], n, n, digits >= 0 ? digits : position);
      digits = -1;
      if (g[1] >= 0) offer(g[0], g[1], n, position);
      offer(g[0], or_n(g[1]), or_n(g[2]), position);
    }
    return image;
  }

  void write_header(std::string& out, std::int32_t index_offset, std::int32_t shared_offset,
                    std::int32_t count) const {
    const auto put = [&out](std::size_t at, const std::string& text) {
      out.replace(at, text.size(), text);
    };
    put(0, "KZ Dictionary 3.00 (C) 1997-1998 Corvane    ");
    put(56, language);
    out[61] = type;
    put16(out, 113, version);
    put16(out, 115, depth);
    put16(out, 117, alphabet_size);
    put32(out, 119, index_offset);
    put32(out, 123, 154);
    put32(out, 127, static_cast<std::int32_t>(out.size()));
    out[141] = static_cast<char>(packing);
    put32(out, 142, shared_offset);
    put32(out, 146, depth == 5 ? count : 0);
    put32(out, 150, static_cast<std::int32_t>(shared.size()));
  }
};

}  // namespace kz::test

#endif  // KZ_TESTS_DICTIONARY_FILE_H

// Writes small dictionary files for tests, byte by byte and without the library.
#ifndef KZ_TESTS_DICTIONARY_FILE_H
#define KZ_TESTS_DICTIONARY_FILE_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
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

// Slot of a character of a word, n when there is none or it is no letter of the alphabet.
inline int slot(const std::string& word, std::size_t at, int n) {
  if (at >= word.size() || word[at] == 0) return n;
  const bool yo = n == 32 && word[at] == static_cast<char>(U'ё'_1251);
  const std::size_t found = alphabet(n).find(yo ? static_cast<char>(U'е'_1251) : word[at]);
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

inline void put_number(std::string& out, std::size_t at, std::size_t width, std::int64_t value) {
  out.resize(std::max(out.size(), at + width));
  for (std::size_t i = 0; i < width; ++i) out[at + i] = static_cast<char>(value >> 8 * i);
}

// The index over words at positions in a file. The first word of a group has its cell; words that
// begin with digits belong to the letter after them.
inline std::string index_image(int depth, int n,
                               const std::vector<std::pair<std::string, std::int64_t>>& words) {
  std::string image;
  if (depth == 5) {
    std::int64_t last = -1;
    for (const auto& [word, position] : words) {
      const std::int64_t key = five_character_key(word);
      if (key == last) continue;
      put_number(image, image.size(), 4, last = key);
      put_number(image, image.size(), 4, position);
    }
    return image;
  }
  image.assign(static_cast<std::size_t>(n * (n + 1) * (depth == 3 ? n + 1 : 1)) * 4, '\xFF');
  const auto offer = [&](int i, int j, int k, std::int64_t position) {
    const int number = depth == 3 ? (i * (n + 1) + j) * (n + 1) + k : i * (n + 1) + j;
    const auto at = static_cast<std::size_t>(number) * 4;
    if (image.compare(at, 4, "\xFF\xFF\xFF\xFF") == 0) put_number(image, at, 4, position);
  };
  std::int64_t digits = -1;
  for (const auto& [word, position] : words) {
    const int i = slot(word, 0, n), j = slot(word, 1, n);
    if (i == n) {
      if (digits < 0) digits = position;
      continue;
    }
    offer(i, n, n, digits >= 0 ? digits : position);
    digits = -1;
    if (j != n) offer(i, j, n, position);
    offer(i, j, depth == 3 ? slot(word, 2, n) : n, position);
  }
  return image;
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
  std::string end_pair_before{};  // packed: the word that follows the pair 0, 26
  std::string shared{};           // texts, each with its zero
  std::vector<Record> records{};

  bool packed() const { return version >= 539 && (packing == 1 || packing == 3); }

  // Where the group of a word is among the others: digits go together, "no letter" comes first.
  std::array<std::int64_t, 3> group(const std::string& word) const {
    if (depth == 5) return {five_character_key(word), 0, 0};
    std::array<std::int64_t, 3> result = {-1, -1, -1};
    for (std::size_t i = 0; i < static_cast<std::size_t>(depth); ++i) {
      const int s = slot(word, i, alphabet_size);
      result[i] = s == alphabet_size ? -1 : s;
      if (result[0] == -1) break;
    }
    return result;
  }

  std::string bytes() {
    std::stable_sort(records.begin(), records.end(), [this](const Record& a, const Record& b) {
      const auto ga = group(a.word), gb = group(b.word);
      return ga != gb ? ga < gb : a.word < b.word;
    });
    std::string out(154, '\0');
    std::vector<std::pair<std::string, std::int64_t>> places;
    std::string previous;
    for (const Record& record : records) {
      const bool opens = places.empty() || group(places.back().first) != group(record.word);
      places.emplace_back(record.word, out.size());
      const std::string text =
          type == 'S' && packed() ? record.word : record.word + '*' + record.rest;
      if (!packed()) {
        out += '\n' + text;
        continue;
      }
      if (opens && fresh_groups) previous.clear();
      const std::size_t limit = std::min({shared_max, text.size(), previous.size()});
      const auto same = static_cast<std::size_t>(
          std::mismatch(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(limit),
                        previous.begin())
              .first -
          text.begin());
      if (record.word == end_pair_before) out += std::string("\0\x1A", 2);
      out += static_cast<char>(same);
      for (const char c : text.substr(same)) out += static_cast<char>(c ^ '\x80');
      previous = text;
    }
    if (!packed()) out += "\n\n";
    const std::size_t index_offset = out.size();
    out += index_image(depth, alphabet_size, places);
    const std::size_t shared_offset = out.size();
    out += shared;

    out.replace(0, 44, "KZ Dictionary 3.00 (C) 1997-1998 Corvane    ");
    out.replace(56, language.size(), language);
    out[61] = type;
    out[141] = static_cast<char>(packing);
    const std::size_t numbers[][3] = {{113, 2, static_cast<std::size_t>(version)},
                                      {115, 2, static_cast<std::size_t>(depth)},
                                      {117, 2, static_cast<std::size_t>(alphabet_size)},
                                      {119, 4, index_offset},
                                      {123, 4, 154},
                                      {127, 4, out.size()},
                                      {142, 4, shared_offset},
                                      {146, 4, depth == 5 ? (shared_offset - index_offset) / 8 : 0},
                                      {150, 4, shared.size()}};
    for (const auto& [at, width, value] : numbers) {
      put_number(out, at, width, static_cast<std::int64_t>(value));
    }
    return out;
  }

  std::string write(const std::string& path) {
    const std::string all = bytes();
    std::ofstream(path, std::ios::binary) << all;
    return all;
  }
};

}  // namespace kz::test

#endif  // KZ_TESTS_DICTIONARY_FILE_H

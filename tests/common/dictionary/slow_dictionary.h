// A slow and obvious reader of dictionary files: what a search finds, by definition.
//
// It works on the bytes of the whole file, with linear scans and no caches, and shares no code with
// the library but the letter tests.
#ifndef KZ_TESTS_SLOW_DICTIONARY_H
#define KZ_TESTS_SLOW_DICTIONARY_H

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kz/charclass.h"
#include "tests/common/dictionary/dictionary_file.h"

namespace kz::test {

class SlowDictionary {
 public:
  explicit SlowDictionary(std::string bytes) : b_(std::move(bytes)) {
    language_ = b_[56];
    type_ = b_[61];
    version_ = static_cast<int>(number(113, 2));
    depth_ = static_cast<int>(number(115, 2));
    n_ = static_cast<int>(number(117, 2));
    index_ = number(119, 4);
    data_ = number(123, 4);
    packing_ = b_[141];
    count_ = number(146, 4);
    list_groups();
    packed_ = version_ >= 539 && (packing_ == 1 || packing_ == 3);
    if (type_ != 'S' && version_ > 538 && (packing_ == 2 || packing_ == 3)) {
      shared_ = b_.substr(static_cast<std::size_t>(number(142, 4)),
                          static_cast<std::size_t>(number(150, 4)));
    }
  }

  std::optional<std::string> find(const char* word, int mode) {
    alive_ = false;
    std::string key = word != nullptr ? word : "";
    std::int64_t from = data_;
    std::int64_t size = index_ - data_;
    if (word != nullptr) {
      if (key.empty() || key.size() > 77) return std::nullopt;
      if (!block(key, mode, from, size)) return std::nullopt;
      if (mode == -1) size = index_ - from;
      if (size < 1) size = 2048;
    }
    at_ = from;
    end_ = std::min(from + size, index_);
    if (from > index_) return std::nullopt;
    return packed_ ? find_packed(key, word != nullptr && mode == 0)
                   : find_plain(key, word == nullptr, mode == 0);
  }

  // The place of the word's block, and its size; -1 when it has none.
  std::pair<std::int64_t, std::int64_t> place(const std::string& word) const {
    std::int64_t from = 0, size = 0;
    if (!block(word, 0, from, size)) return {-1, -1};
    return {from, std::max<std::int64_t>(size, 0)};
  }

  // A line for each group of the index: position, letters, size.
  std::string listing() const {
    std::string text;
    for (auto group = groups_.begin(); group != groups_.end(); ++group) {
      if (!points_inside(group->position)) continue;
      const std::int64_t size = std::max<std::int64_t>(end_of(group, false) - group->position, 0);
      char line[64];
      std::snprintf(line, sizeof line, "*%-7d '%s' %-7d\n", static_cast<int>(group->position),
                    group->letters.c_str(), static_cast<int>(size));
      text += line;
    }
    return text;
  }

  std::optional<std::string> next() {
    if (!alive_) return std::nullopt;
    return packed_ ? next_packed() : next_plain();
  }

 private:
  struct Group {
    int i, j, k;
    std::int64_t position;
    std::string letters;
    std::uint32_t key;
  };

  std::int64_t number(std::size_t at, std::size_t width) const {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
      value |= std::uint32_t{static_cast<unsigned char>(b_[at + i])} << 8 * i;
    }
    return static_cast<std::int32_t>(value);
  }
  int byte(std::int64_t at) const {
    return static_cast<unsigned char>(b_[static_cast<std::size_t>(at)]);
  }
  std::string bytes(std::int64_t from, std::int64_t to) const {
    return b_.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  }

  bool is_letter(char c) const {
    if (language_ == 0) return slot({c}, 0, n_) != n_;
    if (language_ == 'E') return c >= 'a' && c <= 'z';
    return language_ == 'R' ? isruansilower(c) != 0 : isansilower(c) != 0;
  }
  static bool is_digit(char c) { return c >= '0' && c <= '9'; }
  static bool is_mark(char c) {
    return is_digit(c) || std::string(" \"#$%&'()+,-./:;<=>@[]~").find(c) != std::string::npos;
  }
  static bool ends(const std::string& word, std::size_t i) {
    return i >= word.size() || word[i] == '*';
  }

  std::int64_t cell(std::int64_t i, std::int64_t j, std::int64_t k) const {
    const std::int64_t m = n_ + 1;
    const std::int64_t c = depth_ == 3 ? (i * m + j) * m + k : i * m + j;
    return number(static_cast<std::size_t>(index_ + c * 4), 4);
  }
  bool points_inside(std::int64_t position) const { return position >= 124 && position <= index_; }

  // Up to five characters that the index knows a word by; none when it cannot be looked up.
  std::optional<std::string> prefix(const std::string& word) const {
    std::string result;
    for (std::size_t i = 0; i < static_cast<std::size_t>(depth_) && !ends(word, i); ++i) {
      const bool letter = is_letter(word[i]);
      if (!letter && (i == 0 ? !is_digit(word[i]) : !is_mark(word[i]))) return std::nullopt;
      result += letter || depth_ == 5 ? word[i] : '\0';
    }
    if (depth_ != 5 && result.empty()) return std::nullopt;
    return result;
  }

  // The block of a word. False when it has none.
  bool block(const std::string& word, int mode, std::int64_t& from, std::int64_t& size) const {
    const auto letters = prefix(word);
    if (!letters) return false;
    const int i = slot(*letters, 0, n_), j = slot(*letters, 1, n_), k = slot(*letters, 2, n_);
    const std::uint32_t key = five_character_key(*letters);
    const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const Group& g) {
      if (depth_ == 5) return g.key == key;
      // A digit leads to the head of the first row in use.
      if (i == n_) return g.j == n_ && g.k == n_;
      return g.i == i && g.j == j && (depth_ == 2 || g.k == k);
    });
    if (group == groups_.end() || !points_inside(group->position)) return false;
    const bool is_short = depth_ == 5 ? letters->size() < 5
                                      : depth_ == 3 && (letters->size() < 3 || (*letters)[2] == 0);
    from = group->position;
    size = end_of(group, is_short && (mode == 2 || (mode > 2 && depth_ == 5))) - from;
    return true;
  }

  // The first greater position after the group; after the row for the head of one, at the next
  // pair when it is widened.
  template <typename At>
  std::int64_t end_of(At group, bool wide) const {
    if (depth_ == 5) {
      const bool last = wide || group + 1 == groups_.end();
      return last ? index_ : std::min(group[1].position, index_);
    }
    const bool row_head = depth_ == 3 && group->j == n_ && group->k == n_;
    for (auto next = group + 1; next != groups_.end(); ++next) {
      const bool counts = (!row_head || next->i > group->i) && (!wide || next->k == n_);
      if (counts && next->position > group->position) return std::min(next->position, index_);
    }
    return index_;
  }

  // The groups that are not empty, in index order.
  void list_groups() {
    for (std::int64_t r = 0; depth_ == 5 && r < count_; ++r) {
      const auto at = static_cast<std::size_t>(index_ + r * 8);
      std::string letters;
      for (const int shift : {24, 18, 12}) {
        const auto code = static_cast<std::size_t>(number(at, 4) >> shift & 63);
        letters += code >= 8 ? alphabet(32)[code - 8] : "  ')-./`"[code];
      }
      groups_.push_back(
          {0, 0, 0, number(at + 4, 4), letters, static_cast<std::uint32_t>(number(at, 4))});
    }
    if (depth_ == 5) return;
    std::vector<int> order = {n_};
    for (int slot = 0; slot < n_; ++slot) order.push_back(slot);
    const std::string letters = alphabet(n_) + ' ';
    for (int i = 0; i < n_; ++i) {
      for (const int j : order) {
        for (const int k : order) {
          if ((depth_ == 2 && k != n_) || cell(i, j, k) == -1) continue;
          std::string name;
          for (const int slot : {i, j, k}) name += letters[static_cast<std::size_t>(slot)];
          groups_.push_back({i, j, k, cell(i, j, k), name, 0});
        }
      }
    }
  }

  std::optional<std::string> find_plain(const std::string& key, bool first, bool exact) {
    std::int64_t at = at_;
    if (first) {
      if (at < end_ && byte(at) == '\n') ++at;
    } else {
      const std::string pattern = '\n' + key + (exact ? "*" : "");
      const std::size_t found = bytes(at_, end_).find(pattern);
      if (found == std::string::npos) return std::nullopt;
      at = at_ + static_cast<std::int64_t>(found) + 1;
    }
    return line(at);
  }
  std::optional<std::string> next_plain() {
    if (at_ >= end_) return std::nullopt;
    return line(at_ + 1);
  }
  std::optional<std::string> line(std::int64_t from) {
    std::int64_t to = from;
    while (to < end_ && byte(to) != '\n') ++to;
    alive_ = to > from;
    if (!alive_) return std::nullopt;
    at_ = to;
    return resolve(bytes(from, to).substr(0, 2049));
  }

  // The record at at_: its count and text.
  std::optional<std::pair<std::size_t, std::string>> packed_record() {
    if (at_ >= end_ || byte(at_) >= 64) return std::nullopt;
    if (byte(at_) == 0 && at_ + 1 < end_ && byte(at_ + 1) == 26) return std::nullopt;
    const auto count = static_cast<std::size_t>(byte(at_++));
    std::string text;
    while (at_ < end_ && byte(at_) >= 64) text += static_cast<char>(byte(at_++) ^ 0x80);
    if (count + text.size() > 259) return std::nullopt;
    return std::pair{count, text};
  }
  std::optional<std::string> find_packed(std::string key, bool exact) {
    const bool whole = exact && type_ == 'S';
    if (exact && !whole) key += '*';
    std::size_t matched = 0;
    for (bool first = true;; first = false) {
      const auto record = packed_record();
      if (!record) return std::nullopt;
      const auto& [count, text] = *record;
      if (first) matched = count;
      if (matched > key.size() || count < matched) return std::nullopt;
      if (count > matched) continue;
      for (std::size_t i = 0; i < text.size() && matched < key.size(); ++i, ++matched) {
        if (text[i] != key[matched]) break;
      }
      if (matched < key.size() || (whole && count + text.size() != key.size())) continue;
      if (at_ + 1 < end_ && byte(at_) == 0 && byte(at_ + 1) == 26) return std::nullopt;
      alive_ = true;
      full_ = key.substr(0, count) + text;
      return resolve(full_);
    }
  }
  std::optional<std::string> next_packed() {
    const auto record = packed_record();
    alive_ = record && record->first <= full_.size();
    if (!alive_) return std::nullopt;
    full_ = full_.substr(0, record->first) + record->second;
    return resolve(full_);
  }

  // Replaces a body that is a number by the shared text there. Entries of the tests have a part
  // code of one letter, no attribute block and no source sections where they have such a body.
  std::string resolve(std::string entry) const {
    const std::size_t star = entry.rfind('*');
    if (shared_.empty() || star == std::string::npos || star + 2 > entry.size()) return entry;
    const std::string body = entry.substr(star + 2);
    if (body.empty() || body.size() > 10 ||
        body.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
      return entry;
    }
    const auto offset = std::stoull(body, nullptr, 16);
    if (offset >= shared_.size()) return entry;
    const std::size_t from = static_cast<std::size_t>(offset);
    return entry.substr(0, star + 2) + shared_.substr(from, shared_.find('\0', from) - from);
  }

  std::string b_;
  std::vector<Group> groups_;
  char language_, type_;
  int version_, depth_, n_, packing_;
  std::int64_t index_, data_, count_;
  bool packed_;
  std::string shared_;
  std::int64_t at_ = 0, end_ = 0;  // next record, end of the range
  std::string full_;               // text of the found packed record
  bool alive_ = false;
};

}  // namespace kz::test

#endif  // KZ_TESTS_SLOW_DICTIONARY_H

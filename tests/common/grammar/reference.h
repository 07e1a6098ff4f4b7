// The tables of docs/grammar.md, and a slow and obvious reader and writer of tag strings by them.
#ifndef KZ_TESTS_GRAMMAR_REFERENCE_H
#define KZ_TESTS_GRAMMAR_REFERENCE_H

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "kz/gram_record.h"
#include "tests/support/source_tree.h"
#include "tests/support/utf8.h"

namespace reference {

using kz::test::encoded_1251;

// All texts are in Windows-1251.
struct Bit {
  unsigned word, bit;
};
struct Group {
  std::string codes;
  std::vector<std::string> written;  // tags and names of fields
  std::set<std::string> read;
  std::map<std::string, Bit> flags;  // by tag
};
struct Class {
  std::string name, code, effects;
};
struct Field {
  std::string name, type;  // of the word record
  std::size_t offset;
};
struct Page {
  std::map<std::string, std::vector<std::string>> blocks;  // fenced lines, by the fence's name
  std::map<char, Group> groups;                            // by letter: N, A, V, I, R
  std::map<std::string, Bit> named;                        // the flags with a meaning
  std::vector<Class> classes[2];                           // by kind
  std::vector<Field> fields;
  std::map<std::string, std::string> mapped;  // the codes of a mapping function
};

inline std::vector<std::string> words_of(const std::string& text) {
  std::vector<std::string> words;
  std::istringstream in(text);
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

inline std::vector<std::string> cells_of(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream in(row.substr(1));
  for (std::string cell; std::getline(in, cell, '|');) {
    std::erase_if(cell, [](char c) { return c == '`'; });
    cells.push_back(cell.size() < 3 ? "" : cell.substr(1, cell.size() - 2));
  }
  return cells;
}

inline void add_row(Page& page, const std::string& heading, const std::vector<std::string>& cells) {
  const bool is_numbered = cells[0].find_first_not_of("0123456789") == std::string::npos;
  if (heading == "The word record" && cells[0] != "Field" && cells[0] != "---") {
    page.fields.push_back({cells[0], cells[2], std::stoul(cells[1])});
  } else if (is_numbered && cells.size() == 8) {
    const Bit bit{static_cast<unsigned>(std::stoi(cells[0])),
                  static_cast<unsigned>(std::stoi(cells[1]))};
    if (!cells[2].empty()) page.named[cells[2]] = bit;
    for (std::size_t i = 0; i < 5; ++i) {
      if (!cells[3 + i].empty()) page.groups["NAVIR"[i]].flags[cells[3 + i]] = bit;
    }
  } else if (is_numbered && cells.size() == 4) {
    page.classes[page.classes[0].size() == 66 ? 1 : 0].push_back({cells[1], cells[2], cells[3]});
  }
}

inline Page read_page() {
  Page page;
  std::ifstream in(kz::test::source_tree() / "docs/grammar.md");
  std::string fence, heading;
  for (std::string utf8; std::getline(in, utf8);) {
    const std::string line = encoded_1251(utf8);
    if (line.starts_with("```")) {
      fence = line.substr(3);
    } else if (!fence.empty()) {
      page.blocks[fence].push_back(line);
    } else if (line.starts_with('#')) {
      heading = line.substr(line.find(' ') + 1);
    } else if (line.starts_with("| `")) {
      page.mapped[heading] += cells_of(line)[0];
    } else if (line.starts_with("| ")) {
      add_row(page, heading, cells_of(line));
    }
  }
  for (const std::string& line : page.blocks["codes"]) page.groups[line[0]].codes = line.substr(2);
  for (const std::string& line : page.blocks["written"]) {
    page.groups[line[0]].written = words_of(line.substr(2));
  }
  for (const std::string& line : page.blocks["read"]) {
    for (const std::string& tag : words_of(line.substr(2))) page.groups[line[0]].read.insert(tag);
  }
  return page;
}

inline const Page& page() {
  static const Page the_page = read_page();
  return the_page;
}

inline bool among(char c, const std::string& letters) {
  return c != 0 && letters.find(c) != std::string::npos;
}

// The letter of the group of a part-of-speech code, 0 if it has none.
inline char group_of(char code) {
  for (const auto& [letter, group] : page().groups) {
    if (among(code, group.codes)) return letter;
  }
  return 0;
}

inline const std::string latin = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
inline const std::string small_letters = encoded_1251("абвгдеёжзийклмнопрстуфхцчшщъыьэюя");
inline const std::string capitals = encoded_1251("АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ");
inline const std::string case_letters = encoded_1251("ИРДВТП");
inline const std::string case_capitals = encoded_1251("ВГДЕЖЗИЙКЛМНОПРСТ");
inline const std::string replacing_cases = encoded_1251("ИРТ");  // of the verbs
inline const std::string marked_cases = encoded_1251("РДВТП");   // after "&"

// Semantic letters from bit 0 on.
inline const std::string& semantic_letters() { return page().blocks.at("semantics")[0]; }

inline unsigned bits(std::uint32_t word, unsigned low, unsigned count) {
  return word >> low & ((1u << count) - 1);
}
inline void put(std::uint32_t& word, unsigned low, unsigned count, unsigned value) {
  const std::uint32_t mask = ((1u << count) - 1) << low;
  word = (word & ~mask) | (value << low & mask);
}

inline std::string cases(unsigned set) {
  std::string result;
  for (std::size_t i = 0; i < 6; ++i) {
    if ((set >> i & 1) != 0) result += case_letters[i];
  }
  return result;
}

inline std::string paradigm(std::uint32_t word) {
  if (bits(word, 8, 16) == 65535) return "";
  std::string out = "#" + std::to_string(bits(word, 8, 16));
  if (word >> 24 != 0) out += static_cast<char>(word >> 24);
  const auto base = static_cast<signed char>(word);
  return base == 0 || base == -1 ? out : out + ":" + std::to_string(base);
}

inline std::string format(char code, const GRAMINFO& gram, std::uint32_t semantics) {
  const auto& word = gram.word;
  const unsigned set = bits(word[1], 16, 6), second = bits(word[2], 0, 6);
  const unsigned third = bits(word[4], 8, 6), person = bits(word[5], 16, 2);
  std::string out;
  if (bits(word[0], 0, 1) != 0) out += "$";
  if (bits(word[0], 3, 1) != 0) out += ".";
  if (bits(word[6], 19, 5) != 0) out.append("&").append(std::to_string(bits(word[6], 19, 5)));
  if (const char letter = group_of(code); letter != 0) {
    const Group& group = page().groups.at(letter);
    for (const std::string& item : group.written) {
      if (item == "person") {
        if (person != 0) out += std::to_string(person);
      } else if (item == "cases" || item == "oblique") {
        if (item == "cases" || set != 1) out += cases(set);
      } else if (item == "more") {
        if (second != 0) out.append("C").append(cases(second));
        if (third != 0) out.append(second != 0 ? ":" : "C:").append(cases(third));
      } else if (item == "paradigm") {
        out += paradigm(word[3]);
      } else if (const Bit bit = group.flags.at(item); bits(word[bit.word], bit.bit, 1) != 0) {
        out += item;
      }
    }
  }
  if (semantics != 0) out += "%";
  for (const char letter : page().blocks.at("order")[0]) {
    if ((semantics >> semantic_letters().find(letter) & 1) != 0) out += letter;
  }
  return out;
}

// Reads a tag string step by step, each character by comparing it with the tables. A function that
// reads an item leaves the position at its last character.
struct Reader {
  std::string text;
  GRAMINFO gram{};
  std::uint32_t semantics = 0;
  char code_out = 0;
  std::string area = std::string(2, '\0');
  std::size_t position = 0;

  char peek(std::size_t ahead = 0) const {
    return position + ahead < text.size() ? text[position + ahead] : '\0';
  }
  char next() { return text[++position]; }
  bool stops() const { return peek() == 0 || among(peek(), ")]\\"); }
  bool digit(std::size_t ahead) const { return among(peek(ahead), "0123456789"); }
  std::uint32_t number() {  // whose first digit is next
    double value = 0;
    while (digit(1)) value = value * 10 + (next() - '0');
    return value > 4294967295.0 ? 0xFFFFFFFF : static_cast<std::uint32_t>(value);
  }

  std::size_t read_all(char code) {
    for (; !stops(); ++position) {
      read_item(code);
      if (peek() == '|') return position;
      if (stops()) break;
    }
    return peek() == 0 ? position : position + 1;
  }

  std::size_t read_item(char code) {
    for (bool negated = false; !stops() && peek() != '|'; ++position) {
      if (peek() == '-') {
        negated = true;
        continue;
      }
      if (peek() == '$') {
        gram.word[0] |= 1u << 0;
      } else if (peek() == '.') {
        gram.word[0] |= 1u << 3;
      } else if (peek() == '%') {
        for (++position; !stops(); ++position) {
          const std::size_t bit = semantic_letters().find(peek());
          if (bit != std::string::npos) semantics |= 1u << bit;
        }
      } else if (peek() == '=') {
        ++position;
        code = peek();
      } else if (peek() == '&') {
        read_extra();
      } else if (group_of(code) != 0) {
        code_out = code;
        read_letter(group_of(code), negated);
      }
      if (stops() || !negated) break;
    }
    return position;
  }

  void read_extra() {
    if (among(peek(1), latin)) {
      area[0] = next();
      if (digit(1)) area[1] = next();
      return;
    }
    if (among(peek(1), small_letters)) {
      put(gram.word[6], 0, 8, static_cast<unsigned char>(next()));
    }
    if (among(peek(1), capitals)) {
      const std::size_t mark = marked_cases.find(next());
      if (mark != std::string::npos) gram.word[6] |= 1u << (14 + mark);
    }
    if (digit(1)) put(gram.word[6], 19, 5, number());
  }

  void read_letter(char letter, bool& negated) {
    const Group& group = page().groups.at(letter);
    const char c = peek();
    std::string tag(1, c);
    if (c == '#' && group.read.contains("paradigm")) return read_paradigm();
    if (c == 'C' && group.read.contains("more")) return read_more_cases();
    if (among(c, case_letters)) {
      if (letter == 'I' || (letter == 'V' && among(c, replacing_cases)))
        put(gram.word[1], 16, 6, 0);
      gram.word[1] |= 1u << (16 + case_letters.find(c));
      return;
    }
    if (negated && group.read.contains("-" + tag)) {
      negated = false;
      tag = "-" + tag;
    }
    if (!group.read.contains(tag)) return;
    if (tag >= "1" && tag <= "3") return put(gram.word[5], 16, 2, static_cast<unsigned>(c - '0'));
    if (tag.back() == 'v') tag.back() = 'V';
    const Bit bit = group.flags.at(tag);
    gram.word[bit.word] |= 1u << bit.bit;
    if (letter == 'N' && tag == "-P") gram.word[1] |= 1u << 3;
    if (letter == 'N' && tag == "-S") gram.word[1] |= 1u << 4;
  }

  void read_paradigm() {
    gram.word[3] = 65535u << 8;
    if (!digit(1)) return;
    const bool zero_first = peek(1) == '0';
    const std::uint32_t value = number() & 0xFFFF;
    if (value != 0 || zero_first) put(gram.word[3], 8, 16, value);
    if (among(peek(1), latin + small_letters + capitals)) {
      put(gram.word[3], 24, 8, static_cast<unsigned char>(next()));
    }
    if (peek(1) != ':' || !digit(2)) return;
    ++position;
    put(gram.word[3], 0, 8, number() & 255);
  }

  void read_more_cases() {
    const auto read_set = [this](std::uint32_t& word, unsigned low) {
      while (among(peek(1), case_capitals)) {
        const std::size_t index = case_letters.find(next());
        if (index != std::string::npos) put(word, low, 6, 1u << index);
      }
    };
    if (!among(peek(1), case_capitals)) return;
    read_set(gram.word[2], 0);
    if (peek(1) != ':' || !among(peek(2), case_capitals)) return;
    ++position;
    read_set(gram.word[4], 8);
  }
};

}  // namespace reference

#endif  // KZ_TESTS_GRAMMAR_REFERENCE_H

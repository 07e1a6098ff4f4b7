// A slow and obvious second reader and writer of tag strings, by the tables of docs/grammar.md.
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

// The tables of docs/grammar.md, in Windows-1251.
struct Bit {
  unsigned word, bit;
  std::string name;                  // empty for a flag without meaning
  std::map<char, std::string> tags;  // by group: N, A, V, I, R
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
  std::vector<Bit> bits;
  std::vector<Class> classes[2];  // by kind
  std::vector<Field> fields;
  std::map<std::string, std::string> mapped;  // the codes of a mapping function
};

inline std::vector<std::string> cells_of(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream in(row.substr(1));
  for (std::string cell; std::getline(in, cell, '|');) {
    std::erase_if(cell, [](char c) { return c == '`'; });
    cells.push_back(cell.size() < 3 ? "" : cell.substr(1, cell.size() - 2));
  }
  return cells;
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
    } else if (heading == "The word record" && line.starts_with("| ")) {
      const auto cells = cells_of(line);
      if (cells[0] != "Field") page.fields.push_back({cells[0], cells[2], std::stoul(cells[1])});
    } else if (line.size() > 2 && line[0] == '|' && line[2] >= '0' && line[2] <= '9') {
      const auto cells = cells_of(line);
      const auto number = [&](std::size_t i) { return static_cast<unsigned>(std::stoi(cells[i])); };
      if (cells.size() == 8) {
        Bit& bit = page.bits.emplace_back(Bit{number(0), number(1), cells[2], {}});
        for (std::size_t i = 0; i < 5; ++i) {
          if (!cells[3 + i].empty()) bit.tags["NAVIR"[i]] = cells[3 + i];
        }
      } else if (cells.size() == 4) {
        const bool second = page.classes[0].size() == 66;
        page.classes[second ? 1 : 0].push_back({cells[1], cells[2], cells[3]});
      }
    }
  }
  return page;
}

inline const Page& page() {
  static const Page the_page = read_page();
  return the_page;
}

// What a block says of the group: the text behind its letter.
inline std::string of_group(const std::string& block, char group) {
  for (const std::string& line : page().blocks.at(block)) {
    if (line[0] == group) return line.substr(2);
  }
  return "";
}

inline const std::string groups = "NAVIR";

// The group of a part-of-speech code, 0 if it has none.
inline char group_of(char code) {
  for (const char group : groups) {
    static const auto codes = [] {
      std::map<char, std::string> result;
      for (const char each : groups) result[each] = of_group("codes", each);
      return result;
    }();
    if (code != 0 && codes.at(group).find(code) != std::string::npos) return group;
  }
  return 0;
}

// The bit of a tag, null if the group has no such tag.
inline const Bit* find(char group, const std::string& tag) {
  static const auto rows = [] {
    std::map<std::string, const Bit*> result;
    for (const Bit& bit : page().bits) {
      for (const auto& [each, text] : bit.tags) result[each + text] = &bit;
    }
    return result;
  }();
  const auto found = rows.find(group + tag);
  return found == rows.end() ? nullptr : found->second;
}

// Whether the group reads the tag, or the field of this name.
inline bool reads(char group, const std::string& tag) {
  static const auto known = [] {
    std::set<std::string> result;
    for (const char each : groups) {
      std::istringstream tags(of_group("read", each));
      for (std::string one; tags >> one;) result.insert(each + one);
    }
    return result;
  }();
  return known.contains(group + tag);
}

inline const std::string case_letters = encoded_1251("ИРДВТП");
inline const std::string small_letters = encoded_1251("абвгдеёжзийклмнопрстуфхцчшщъыьэюя");
inline const std::string capitals = encoded_1251("АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ");
inline const std::string case_capitals = encoded_1251("ВГДЕЖЗИЙКЛМНОПРСТ");
inline const std::string replacing_cases = encoded_1251("ИРТ");  // of the verbs
inline const std::string marked_cases = encoded_1251("РДВТП");   // behind "&"

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

inline std::string format(char code, const GRAMINFO& gram, std::uint32_t semantics) {
  const auto& word = gram.word;
  std::string out;
  if (bits(word[0], 0, 1) != 0) out += "$";
  if (bits(word[0], 3, 1) != 0) out += ".";
  if (bits(word[6], 19, 5) != 0) out.append("&").append(std::to_string(bits(word[6], 19, 5)));
  const char group = group_of(code);
  std::istringstream items(group == 0 ? "" : of_group("written", group));
  for (std::string item; items >> item;) {
    const unsigned set = bits(word[1], 16, 6);
    if (item == "person") {
      if (bits(word[5], 16, 2) != 0) out += std::to_string(bits(word[5], 16, 2));
    } else if (item == "cases" || item == "oblique") {
      if (item == "cases" || set != 1) out += cases(set);
    } else if (item == "more") {
      const unsigned second = bits(word[2], 0, 6), third = bits(word[4], 8, 6);
      if (second != 0) out.append("C").append(cases(second));
      if (third != 0) out.append(second != 0 ? ":" : "C:").append(cases(third));
    } else if (item == "paradigm") {
      if (bits(word[3], 8, 16) == 65535) continue;
      out.append("#").append(std::to_string(bits(word[3], 8, 16)));
      if (word[3] >> 24 != 0) out += static_cast<char>(word[3] >> 24);
      if (const auto base = static_cast<signed char>(word[3]); base != 0 && base != -1) {
        out.append(":").append(std::to_string(base));
      }
    } else if (const Bit* row = find(group, item); bits(word[row->word], row->bit, 1) != 0) {
      out += item;
    }
  }
  if (semantics == 0) return out;
  out += "%";
  for (const char letter : page().blocks.at("order")[0]) {
    if ((semantics >> semantic_letters().find(letter) & 1) != 0) out += letter;
  }
  return out;
}

// Reads a tag string step by step, each character by comparing it with the tables.
struct Reader {
  std::string text;  // without a zero
  GRAMINFO gram{};
  std::uint32_t semantics = 0;
  char code_out = 0;
  char area[2] = {0, 0};

  char at(std::size_t position) const { return position < text.size() ? text[position] : '\0'; }
  bool stops(std::size_t position) const {
    return at(position) == 0 || at(position) == ')' || at(position) == ']' || at(position) == '\\';
  }
  bool digit(std::size_t position) const { return at(position) >= '0' && at(position) <= '9'; }
  bool latin(std::size_t position) const {
    const char c = at(position);
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  }
  bool among(std::size_t position, const std::string& letters) const {
    return at(position) != 0 && letters.find(at(position)) != std::string::npos;
  }
  bool small(std::size_t position) const { return among(position, small_letters); }
  bool capital(std::size_t position) const { return among(position, capitals); }
  bool case_capital(std::size_t position) const { return among(position, case_capitals); }
  std::uint32_t number(std::size_t& position) const {  // leaves `position` behind the digits
    double value = 0;
    for (; digit(position); ++position) value = value * 10 + (at(position) - '0');
    return value > 4294967295.0 ? 0xFFFFFFFF : static_cast<std::uint32_t>(value);
  }

  std::size_t read_all(std::size_t position, char code) {
    while (!stops(position)) {
      position = read_item(position, code);
      if (at(position) == '|') return position;
      if (stops(position)) break;
      ++position;
    }
    return at(position) == 0 ? position : position + 1;
  }

  std::size_t read_item(std::size_t position, char code) {
    bool negated = false;
    while (true) {
      if (stops(position)) return position;
      const char c = at(position);
      if (c == '|') return position;
      if (c == '-') {
        negated = true;
        ++position;
        continue;
      }
      if (c == '$') {
        gram.word[0] |= 1u << 0;
      } else if (c == '.') {
        gram.word[0] |= 1u << 3;
      } else if (c == '%') {
        for (++position; !stops(position); ++position) {
          const std::size_t bit = semantic_letters().find(at(position));
          if (bit != std::string::npos) semantics |= 1u << bit;
        }
      } else if (c == '=') {
        code = at(++position);
      } else if (c == '&') {
        position = read_extra(position);
      } else if (group_of(code) != 0) {
        code_out = code;
        position = read_letter(position, group_of(code), negated);
      }
      if (stops(position) || !negated) return position;
      ++position;
    }
  }

  std::size_t read_extra(std::size_t position) {
    if (latin(position + 1)) {
      area[0] = at(++position);
      if (digit(position + 1)) area[1] = at(++position);
      return position;
    }
    if (small(position + 1)) {
      put(gram.word[6], 0, 8, static_cast<unsigned char>(at(++position)));
    }
    if (capital(position + 1)) {
      const std::size_t mark = marked_cases.find(at(++position));
      if (mark != std::string::npos) gram.word[6] |= 1u << (14 + mark);
    }
    if (digit(position + 1)) {
      std::size_t next = position + 1;
      put(gram.word[6], 19, 5, number(next));
      position = next - 1;
    }
    return position;
  }

  std::size_t read_letter(std::size_t position, char group, bool& negated) {
    const char c = at(position);
    if (c == '#' && reads(group, "paradigm")) return read_paradigm(position);
    if (c == 'C' && reads(group, "more")) return read_more_cases(position);
    if (const std::size_t index = case_letters.find(c); index != std::string::npos) {
      const bool replaces = group == 'I' || (group == 'V' && among(position, replacing_cases));
      if (replaces) put(gram.word[1], 16, 6, 0);
      gram.word[1] |= 1u << (16 + index);
      return position;
    }
    std::string tag(1, c);
    if (negated && reads(group, "-" + tag)) {
      negated = false;
      tag = "-" + tag;
    }
    if (!reads(group, tag)) return position;
    if (tag >= "1" && tag <= "3") {
      put(gram.word[5], 16, 2, static_cast<unsigned>(c - '0'));
      return position;
    }
    if (tag.back() == 'v') tag.back() = 'V';
    const Bit* row = find(group, tag);
    gram.word[row->word] |= 1u << row->bit;
    if (group == 'N' && tag == "-P") gram.word[1] |= 1u << 3;
    if (group == 'N' && tag == "-S") gram.word[1] |= 1u << 4;
    return position;
  }

  std::size_t read_paradigm(std::size_t position) {
    gram.word[3] = 65535u << 8;
    if (!digit(position + 1)) return position;
    const bool zero_first = at(++position) == '0';
    const std::uint32_t value = number(position) & 0xFFFF;
    if (value != 0 || zero_first) put(gram.word[3], 8, 16, value);
    if (latin(position) || small(position) || capital(position)) {
      gram.word[3] |= static_cast<std::uint32_t>(static_cast<unsigned char>(at(position++))) << 24;
    }
    if (at(position) == ':' && digit(position + 1)) {
      put(gram.word[3], 0, 8, number(++position) & 255);
    }
    return position - 1;
  }

  std::size_t read_more_cases(std::size_t position) {
    const auto read_set = [this, &position](std::uint32_t& word, unsigned low) {
      while (case_capital(position + 1)) {
        const std::size_t index = case_letters.find(at(++position));
        if (index != std::string::npos) put(word, low, 6, 1u << index);
      }
    };
    if (!case_capital(position + 1)) return position;
    read_set(gram.word[2], 0);
    if (at(position + 1) == ':' && case_capital(position + 2)) {
      ++position;
      read_set(gram.word[4], 8);
    }
    return position;
  }
};

}  // namespace reference

#endif  // KZ_TESTS_GRAMMAR_REFERENCE_H

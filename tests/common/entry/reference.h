// Slow and obvious models of the entry text rules, for comparison with the library on random text.
//
// They consume strings from the front and test letters one by one, with no table in common with the
// library.
#ifndef KZ_TESTS_ENTRY_REFERENCE_H
#define KZ_TESTS_ENTRY_REFERENCE_H

#include <random>
#include <string>
#include <vector>

#include "text/literal.h"

namespace reference {

using kz::operator""_1251;
using Text = std::string;

inline Text text(std::string_view view) { return Text(view); }

inline const Text kMarkers = text(U"*[]{}()##//;;:\\\\&~|WWw=..,   129aAbBVEC%дДёЁх"_1251);
inline const char* const kDirections[] = {"ENRU", "RUEN", "FRRU", "RUFR", "DERU", "RUDE"};

// Random text over the characters that carry structure.
class MarkerText {
 public:
  explicit MarkerText(unsigned seed) : random_(seed) {}
  Text operator()(std::size_t max_size) {
    Text result(random_() % (max_size + 1), ' ');
    for (char& c : result) c = kMarkers[random_() % kMarkers.size()];
    return result;
  }
  char pick(std::string_view choices) { return choices[random_() % choices.size()]; }

 private:
  std::mt19937 random_;
};

inline bool latin_capital(char c) { return c >= 'A' && c <= 'Z'; }
inline bool latin(char c) { return latin_capital(c) || (c >= 'a' && c <= 'z'); }
inline bool digit(char c) { return c >= '0' && c <= '9'; }
inline bool russian_capital(char c) {
  return c != 0 && U"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_1251.find(c) != std::string_view::npos;
}
inline bool russian(char c) {
  return russian_capital(c) ||
         (c != 0 && U"абвгдеёжзийклмнопрстуфхцчшщъыьэюя"_1251.find(c) != std::string_view::npos);
}

inline Text before(const Text& s, char end) { return s.substr(0, s.find(end)); }
inline Text behind(const Text& s, char end) {
  return s.find(end) == Text::npos ? Text() : s.substr(s.find(end) + 1);
}
inline char first(const Text& s) { return s.c_str()[0]; }
inline char second(const Text& s) { return s.empty() ? '\0' : s.c_str()[1]; }

// Head split.

struct Pieces {
  Text word, part_text, attr, body, ref, src;
  char part = 0;
  bool operator==(const Pieces&) const = default;
};

// Moves the text in front of the first `mark` out of `rest`, which keeps what follows the mark.
inline bool take_before(Text& rest, const Text& mark, Text& taken) {
  const auto at = rest.find(mark);
  if (at == Text::npos) return false;
  taken = rest.substr(0, at);
  rest.erase(0, at + mark.size());
  return true;
}

inline Pieces split(const Text& full) {
  Pieces p;
  Text rest = full;
  while (rest.find('*') != Text::npos) {
    p.word += before(rest, '*') + '*';
    rest = behind(rest, '*');
  }
  if (p.word.empty()) {
    p.word = full;
    return p;
  }
  p.word.pop_back();
  p.part = first(rest);
  if (rest.empty()) return p;
  p.part_text = rest[0];
  rest.erase(0, 1);
  if (Text tail = rest, head; take_before(tail, "\\\\", head) && !tail.empty()) {
    p.src = tail;
    rest = head;
  }
  if (p.part == '$') {
    p.body = rest;
    return p;
  }
  if (Text head; take_before(rest, "\\", head)) {
    p.ref = rest;
    rest = head;
  }
  Text extension;
  Text tail = rest;
  while (!tail.empty() && extension.size() < 8 && Text("[ {]").find(tail[0]) == Text::npos) {
    extension += tail[0];
    tail.erase(0, 1);
  }
  if (p.part != 'W' && p.part != 'w' && extension.size() < 8 && first(tail) != ']' &&
      take_before(tail, "]", p.attr)) {
    p.part_text += extension;
    p.attr += ']';
    rest = tail;
  }
  p.body = rest;
  return p;
}

inline Text join(const Pieces& p) {
  if (p.word.empty()) return "";
  return p.word + "*" + p.part_text + p.attr + p.body + (p.ref.empty() ? "" : "\\" + p.ref) +
         (p.src.empty() ? "" : "\\\\" + p.src);
}

inline Text bracketed(Text attr) {
  if (!attr.starts_with('[')) attr = '[' + attr;
  return attr.ends_with(']') ? attr : attr + ']';
}

// Synonym forms.

inline bool is_target_code(char c, const Text& language) {
  if (language[0] == 'R' && language.size() > 2) return latin_capital(c);
  return language.size() > 2 && language[2] == 'R' && latin(c);
}

inline Text finish(Text s, const Text& leading) {
  if (!s.empty() && s.back() == '/') s.pop_back();
  if (!s.empty() && leading.find(s[0]) != Text::npos) s.erase(0, 1);
  return s.substr(0, 355);
}

inline Text reduced(Text s, const Text& language) {
  if (s.find('W') != Text::npos) {
    s = behind(s, 'W');
    if (first(s) == ')') s.erase(0, 1);
  }
  Text out;
  const auto one_blank = [&out] {
    if (out.empty() || out.back() != ' ') out += ' ';
  };
  while (!s.empty()) {
    const char c = s[0];
    s.erase(0, 1);
    if (c == '#') {
      out += ' ' + before(s, '#');
      if (s.find('#') != Text::npos) one_blank();
      s = behind(s, '#');
    } else if (c == '{') {
      out += '{' + before(s, '}') + (s.find('}') != Text::npos ? "}" : "");
      s = behind(s, '}');
    } else if (is_target_code(c, language)) {
      one_blank();
      if (first(s) == ')') s.erase(0, 1);
    } else {
      out += c;
    }
  }
  return finish(out, " )");
}

inline Text spaced(Text s, const Text& language) {
  Text out;
  while (!s.empty()) {
    Text piece = s.substr(0, 1);
    bool blank_before = piece == "(";
    bool blank_behind = piece == ")";
    if (const auto group = Text("#{[").find(s[0]); group != Text::npos) {
      piece = s.substr(0, s.find("#}]"[group], 1) + 1);
      if (piece.empty()) piece = s;  // never closed
      blank_before = blank_behind = true;
    } else if (piece == "|" || (piece != "W" && is_target_code(piece[0], language))) {
      blank_before = blank_behind = true;
    }
    s.erase(0, piece.size());
    if (blank_before && !out.empty() && out.back() != ' ') out += ' ';
    out += piece == "W" ? " " : piece;
    if (blank_behind && !s.empty() && s[0] != ' ') out += ' ';
  }
  return finish(out, " ");
}

// Meanings.

struct Meaning {
  Text tag, definition, text;
};

struct Meanings {
  std::vector<Meaning> list;
  Text attr;
};

struct Body {
  Text language;
  char kind;
  char part;

  bool code_at(const Text& s) const {
    const char c = first(s);
    if ((kind != 'C' && kind != 'c') || part == 'W' || part == 'w' || language.size() < 3)
      return false;
    if (language[0] == 'R')
      return latin_capital(c) || (language[2] == 'E' && russian_capital(c) && !digit(second(s)));
    return language[2] == 'R' && latin(c) && second(s) != ')';
  }
  static bool number_at(const Text& s) {
    return digit(first(s)) &&
           (second(s) == '.' || (digit(second(s)) && s.size() > 2 && s[2] == '.'));
  }
  bool phrase_at(const Text& s) const {
    if (first(s) == 'W') return true;
    if (!code_at(s)) return false;
    if (second(s) == 'W') return true;
    return code_at(s.substr(1)) && s.size() > 2 && s[2] == 'W';
  }

  // Moves the text of a meaning from the front of `rest` to the result.
  Text take_text(Text& rest, bool phrases) const {
    Text out;
    const auto move = [&](std::size_t n) {
      out += rest.substr(0, n);
      rest.erase(0, n);
    };
    while (!rest.empty() && rest[0] != '/' && rest[0] != '\\') {
      if (phrases && rest[0] == 'W') {
        do {
          move(1);
          move(std::min(rest.find_first_of("/\\"), rest.size()));
        } while (first(rest) == '/' && second(rest) == ';' && phrase_at(rest.substr(2)));
        if (first(rest) == '/') move(1);
      } else if (const auto group = Text("{[(").find(rest[0]); group != Text::npos) {
        move(std::min(rest.find("}])"[group]), rest.size() - 1) + 1);
      } else if (number_at(rest) || code_at(rest)) {
        break;
      } else {
        move(1);
      }
    }
    return out;
  }

  static Text take_label(Text& rest, bool code) {
    Text label = rest.substr(0, 1);
    rest.erase(0, 1);
    const auto take = [&](char c) {
      if (first(rest) != c) return false;
      label += c;
      rest.erase(0, 1);
      return true;
    };
    if (code) {
      const Text letter = label;
      take('.');
      take(' ');
      return rest.empty() ? letter : label;
    }
    while (!take('.')) take(first(rest));
    if (take(' '))
      while (!rest.empty() && rest[0] != ':' && rest[0] != '{') take(rest[0]);
    return label;
  }

  Meanings parse(Text rest, const Text& part_text) const {
    Meanings result;
    Meaning meaning;
    if (kind == 'c' && !part_text.empty()) {
      const bool verb = Text("EGUVXYZeghvz").find(part_text[0]) != Text::npos;
      meaning.tag = verb ? 'V' : part_text[0];
      if (meaning.tag == part_text) meaning.tag = "";
    }
    bool k = false;
    while (!rest.empty()) {
      if (rest[0] == '{') {
        meaning.definition = before(rest.substr(1), '}');
        rest = behind(rest, '}');
        continue;
      }
      if (rest[0] == '[') {
        if (result.attr.empty()) result.attr = before(rest.substr(1), ']');
        rest = behind(rest, ']');
        continue;
      }
      const bool number = number_at(rest);
      if (!number) k = code_at(rest);
      if (number || (k && rest[0] != 'W')) {
        const Text label = take_label(rest, k);
        if (!k || kind == 'c') meaning.tag = label;
        if (first(rest) == ':') rest.erase(0, 1);
        if (!rest.empty()) continue;
        if (meaning.tag.empty() && meaning.definition.empty() && result.attr.empty()) break;
      } else {
        meaning.text = take_text(rest, k);
      }
      result.list.push_back(meaning);
      if (first(rest) == '\\') break;
      if (first(rest) == '/') rest.erase(0, 1);
      meaning = {};
      k = false;
    }
    return result;
  }

  std::vector<Text> synonyms(Text meaning_text) const {
    std::vector<Text> result;
    meaning_text += ';';
    for (; !meaning_text.empty(); meaning_text = behind(meaning_text, ';')) {
      const Text piece = before(meaning_text, ';');
      result.push_back(kind == 'C'   ? reduced(piece, language)
                       : kind == 'c' ? spaced(piece, language)
                                     : piece);
    }
    return result;
  }
};

// Packing and parts.

inline bool new_part(const Text& s, char target) {
  const char c = first(s);
  if (target == 'R') return c == '&' || (latin(c) && !digit(second(s)));
  if (target == 'E') return latin_capital(c) || russian(c);
  return latin_capital(c);
}

inline Text pack(Text s, char target) {
  Text out;
  const auto tight = [&] {  // the first character with one blank less on either side
    if (!out.empty() && out.back() == ' ') out.pop_back();
    out += s[0];
    s.erase(0, first(s.substr(1)) == ' ' ? 2 : 1);
  };
  if (s.size() > 1 && s[0] == ' ' && s[1] != '\\') s.erase(0, 1);
  while (!s.empty()) {
    if (const auto opening = Text("#[{").find(s[0]); opening != Text::npos) {
      const char closing = "#]}"[opening];
      tight();
      out += before(s, closing);
      if (s.find(closing) == Text::npos) break;
      s.erase(0, s.find(closing));
      tight();
    } else if (Text(";()|/\\W").find(s[0]) != Text::npos || new_part(s, target)) {
      tight();
    } else {
      out += s[0];
      s.erase(0, 1);
    }
  }
  return out;
}

inline Text from_next_part(Text s, char target, char part) {
  const Text stops = part == 'W' ? " #\\~/;&" : part == 'w' ? " #&" : "#\\";
  const bool word = part != 'W' && part != 'w';
  while (!s.empty() && stops.find(s[0]) == Text::npos) {
    const char c = s[0];
    if (c == '{' || c == '[') {
      s = behind(s, c == '{' ? '}' : ']');
    } else if (word && target == 'R' && latin(c) && digit(second(s))) {
      s.erase(0, 3);
    } else if (word && c == 'W') {
      return behind(s, '/');
    } else if (latin_capital(c) || (target == 'R' && latin(c)) ||
               (target == 'E' && part != 'W' && russian(c))) {
      break;
    } else {
      s.erase(0, 1);
    }
  }
  return s;
}

}  // namespace reference

#endif  // KZ_TESTS_ENTRY_REFERENCE_H

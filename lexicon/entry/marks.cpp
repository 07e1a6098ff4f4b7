// One walk over a body, group by group.
#include "lexicon/entry/marks.h"

#include <algorithm>
#include <utility>

#include "kz/charclass.h"

namespace kz::lexicon {
namespace {

bool is_latin(char c) { return _isalpha(c) != 0; }
bool is_foreign(char c) { return static_cast<unsigned char>(c) >= 0xC0; }

bool among(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

class Marker {
 public:
  Marker(std::string_view body, char part_code, std::string_view language)
      : body_(body), reference_entry_(part_code == '='), language_(language) {}

  std::string mark() {
    while (at_ < body_.size()) {
      if (take_reference()) continue;
      const char c = body_[at_];
      if (c == '(' && joins_before()) result_ += kJoin;
      if (c == '{' || c == '[' || c == '#') {
        take_group(c == '{' ? '}' : c == '[' ? ']' : '#');
      } else {
        result_ += c;
        starts_ = among(c, ";/") || (starts_ && (c == '.' || c == ':' || _isdigit(c) != 0));
        ++at_;
      }
      // A ')' alone ends a label.
      const bool closes = c == ')' && std::exchange(open_, 0) > 0;
      open_ += c == '(' ? 1 : 0;
      if ((closes && joins_after()) || (c == '{' && at_ < body_.size() && is_stop())) {
        result_ += kJoin;
      }
    }
    return std::move(result_);
  }

 private:
  // A letter that a meaning would take for a part code.
  bool is_code(char c) const {
    const char target = language_.size() > 2 ? language_[2] : '\0';
    if (language_.starts_with('R')) {
      return target != '\0' && (_isupper(c) != 0 || (target == 'E' && isruansiupper(c) != 0));
    }
    return target == 'R' && is_latin(c);
  }

  bool is_stop() const { return among(body_[at_], ",.!?:"); }

  bool joins_before() const {
    return at_ > 0 && !among(body_[at_ - 1], " ;/") && !is_code(body_[at_ - 1]);
  }

  bool joins_after() const {
    return at_ < body_.size() && !among(body_[at_], " ;/[{#|") && !is_code(body_[at_]);
  }

  void take_group(char close) {
    const std::size_t end = std::min(body_.find(close, at_ + 1), body_.size() - 1) + 1;
    result_ += body_.substr(at_, end - at_);
    at_ = end;
  }

  // A word of the source language, by its first letter.
  bool is_source_word() const {
    const char c = body_[at_];
    if (language_.size() <= 2) return is_latin(c) || is_foreign(c);
    return language_[2] == 'R' ? is_latin(c) : is_foreign(c);
  }

  // Takes a reference at the beginning of a synonym.
  bool take_reference() {
    const bool marked = body_[at_] == '=';
    if (!starts_ || (!marked && !(reference_entry_ && is_source_word()))) return false;
    const std::size_t begin = at_ + (marked ? 1 : 0);
    const std::size_t end = std::min(body_.find_first_of(";/", begin), body_.size());
    const std::string_view word = body_.substr(begin, end - begin);
    const bool grouped = word.find_first_of("{[#") != std::string_view::npos;
    const bool codes = std::any_of(word.begin(), word.end(), [this](char c) { return is_code(c); });
    if (grouped || word.empty()) {
      if (marked) starts_ = false;
      return false;
    }
    result_ += '=';
    if (codes) result_ += '{';
    result_ += word;
    if (codes) result_ += '}';
    at_ = end;
    return true;
  }

  std::string_view body_;
  bool reference_entry_;
  std::string_view language_;
  std::size_t at_ = 0;
  int open_ = 0;        // parentheses
  bool starts_ = true;  // nothing of a synonym is before this place, except labels
  std::string result_;
};

}  // namespace

std::string marked_body(std::string_view body, char part_code, std::string_view language) {
  return Marker(body, part_code, language).mark();
}

}  // namespace kz::lexicon

// ZCString: extraction and change in place.
#include <algorithm>
#include <cstring>
#include <functional>
#include <string>

#include "foundation/string_data.h"
#include "foundation/text_key.h"

using kz::text_view;
namespace data = kz::string_data;

namespace {

ZCString part(std::string_view text) { return {text.data(), static_cast<int>(text.size())}; }

// The leading `count` characters, with the tag of the whole.
ZCString leading_part(const ZCString& whole, std::size_t count) {
  ZCString result = part(text_view(whole).substr(0, count));
  result.SetLanguage(whole.GetLanguage());
  return result;
}

// Removes `count` characters at the front of a unique buffer.
void drop_front(char* text, std::size_t count) {
  const std::size_t rest = data::view(text).size() - count;
  std::memmove(text, text + count, rest);
  data::set_length(text, rest);
}

bool lies_in(const char* pointer, char* text) {
  const std::less<> before;
  return !before(pointer, text) && !before(text + data::header(text).allocated, pointer);
}

void append(char*& text, std::string_view tail) {
  if (tail.empty()) return;
  const std::string_view head = data::view(text);
  const std::size_t length = head.size() + tail.size();
  if (data::holds(text, length)) {
    std::copy(tail.begin(), tail.end(), text + head.size());
    data::set_length(text, length);
    return;
  }
  char* const buffer = data::allocate(length);
  std::copy(tail.begin(), tail.end(), std::copy(head.begin(), head.end(), buffer));
  data::replace(text, buffer);
}

// Writes a computed text over the string.
void store(ZCString& string, std::string_view text) {
  std::copy(text.begin(), text.end(), string.GetBufferSetLength(kz::to_length(text.size())));
}

std::string replaced(std::string_view rest, std::string_view old_text, std::string_view new_text) {
  std::string result;
  result.reserve(rest.size());
  for (std::size_t found; (found = rest.find(old_text)) != std::string_view::npos;) {
    result.append(rest.substr(0, found)).append(new_text);
    rest.remove_prefix(found + old_text.size());
  }
  return result.append(rest);
}

std::string replaced_one_of(std::string_view text, std::string_view set,
                            std::string_view new_text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    if (set.find(c) == std::string_view::npos) {
      result.push_back(c);
    } else {
      result.append(new_text);
    }
  }
  return result;
}

// A character as a text argument; NUL makes it an empty one.
struct CharacterText {
  char text[2];
  explicit CharacterText(char ch) : text{ch, '\0'} {}
};

}  // namespace

ZCString ZCString::Mid(int first, int count) const noexcept {
  first = std::max(first, 0);
  if (first > GetLength()) return {};
  return part(data::view(text_).substr(static_cast<std::size_t>(first),
                                       static_cast<std::size_t>(std::max(count, 0))));
}

ZCString ZCString::Mid(int first) const noexcept { return Mid(first, GetLength()); }

ZCString ZCString::Left(int count) const noexcept {
  return leading_part(*this, static_cast<std::size_t>(std::max(count, 0)));
}

ZCString ZCString::Right(int count) const noexcept {
  return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

ZCString ZCString::SpanIncluding(const char* set) const noexcept {
  return leading_part(*this, data::view(text_).find_first_not_of(text_view(set)));
}

ZCString ZCString::SpanExcluding(const char* set) const noexcept {
  return leading_part(*this, data::view(text_).find_first_of(text_view(set)));
}

ZCString ZCString::GetInside(int& position, char escape) const noexcept {
  const int open = position;
  if (open < 0 || open >= GetLength()) return {};
  for (int close = GetLength() - 1; close > open; --close) {
    if (text_[close] == text_[open] && text_[close - 1] != escape) {
      position = close;
      return Mid(open + 1, close - open - 1);
    }
  }
  return *this;
}

ZCString& ZCString::operator+=(const ZCString& text) noexcept {
  append(text_, text_view(text));
  return *this;
}

ZCString& ZCString::operator+=(const char* text) noexcept {
  append(text_, text_view(text));
  return *this;
}

ZCString& ZCString::operator+=(char ch) noexcept {
  append(text_, {&ch, 1});
  return *this;
}

void ZCString::TrimLeft() noexcept {
  data::make_unique(text_);
  const std::string_view text = data::view(text_);
  const auto* const rest = std::find_if_not(text.begin(), text.end(), kz::is_space);
  drop_front(text_, static_cast<std::size_t>(rest - text.begin()));
}

void ZCString::TrimRight() noexcept {
  data::make_unique(text_);
  std::string_view text = data::view(text_);
  while (!text.empty() && kz::is_space(text.back())) text.remove_suffix(1);
  data::set_length(text_, text.size());
}

void ZCString::Trim() noexcept {
  TrimLeft();
  TrimRight();
}

void ZCString::MakeReverse() noexcept {
  data::make_unique(text_);
  std::reverse(text_, text_ + GetLength());
}

ZCString ZCString::MakeOneSpace() noexcept {
  data::make_unique(text_);
  char* const end = std::unique(text_, text_ + GetLength(), [](char left, char right) {
    return kz::is_space(left) && kz::is_space(right);
  });
  std::replace_if(text_, end, kz::is_space, ' ');
  data::set_length(text_, static_cast<std::size_t>(end - text_));
  return *this;
}

ZCString ZCString::Insert(const char* text, int position) noexcept {
  std::string_view inserted = text_view(text);
  if (position < 0 || position > GetLength()) return *this;
  if (inserted.empty() && GetLength() == 0) return *this;
  std::string own_text;
  if (lies_in(inserted.data(), text_)) {
    own_text = inserted;
    inserted = own_text;
  }
  const auto head = static_cast<std::size_t>(position);
  const std::size_t old_length = data::view(text_).size();
  const std::size_t new_length = old_length + inserted.size();
  GetBuffer(kz::to_length(new_length));
  std::memmove(text_ + head + inserted.size(), text_ + head, old_length - head);
  std::copy(inserted.begin(), inserted.end(), text_ + head);
  data::set_length(text_, new_length);
  return *this;
}

ZCString ZCString::Insert(int position, const char* text) noexcept {
  return Insert(text, position);
}

ZCString ZCString::Replace(const char* old_text, const char* new_text) noexcept {
  const std::string_view old_view = text_view(old_text);
  if (!old_view.empty()) {
    store(*this, replaced(data::view(text_), old_view, text_view(new_text)));
  }
  return *this;
}

ZCString ZCString::Replace(const char* old_text, char new_char) noexcept {
  return Replace(old_text, CharacterText(new_char).text);
}

ZCString ZCString::Replace(char old_char, const char* new_text) noexcept {
  return Replace(CharacterText(old_char).text, new_text);
}

ZCString ZCString::Replace(char old_char, char new_char) noexcept {
  return Replace(CharacterText(old_char).text, CharacterText(new_char).text);
}

ZCString ZCString::ReplaceOneOf(const char* set, const char* new_text) noexcept {
  const std::string_view set_view = text_view(set);
  if (!set_view.empty()) {
    store(*this, replaced_one_of(data::view(text_), set_view, text_view(new_text)));
  }
  return *this;
}

ZCString ZCString::ReplaceOneOf(const char* set, char new_char) noexcept {
  return ReplaceOneOf(set, CharacterText(new_char).text);
}

void ZCString::Code() noexcept {
  data::make_unique(text_);
  std::transform(text_, text_ + GetLength(), text_,
                 [](char c) { return static_cast<char>(c ^ kz::kTextKey); });
}

void ZCString::DeCode() noexcept { Code(); }

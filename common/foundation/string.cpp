// ZCString: life, buffer control, search, comparison.
#include "kz/string.h"

#include <algorithm>
#include <cstring>

#include "foundation/string_data.h"

using kz::text_view;
namespace data = kz::string_data;

namespace {

const char* characters(const unsigned char* text) { return reinterpret_cast<const char*>(text); }

std::size_t not_negative(int count) { return static_cast<std::size_t>(std::max(count, 0)); }

// A position of std::string_view as a result: -1 for not found.
int position_or_none(std::size_t position) {
  return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

}  // namespace

ZCString::ZCString() noexcept : text_(data::none()) {}

ZCString::ZCString(const ZCString& other) noexcept : text_(data::share(other.text_)) {}

ZCString::ZCString(const char* text) noexcept : text_(data::copy(text_view(text))) {}

ZCString::ZCString(const unsigned char* text) noexcept : ZCString(characters(text)) {}

ZCString::ZCString(const char* text, int count) noexcept
    : text_(data::copy({text, text == nullptr ? 0 : not_negative(count)})) {}

ZCString::ZCString(char ch, int count) noexcept : text_(data::allocate(not_negative(count))) {
  std::fill_n(text_, data::length(text_), ch);
}

ZCString::~ZCString() { data::release(text_); }

ZCString& ZCString::operator=(const ZCString& other) noexcept {
  if (text_ == other.text_) return *this;
  const int language = other.GetLanguage();
  if (data::is_locked(text_) || data::is_locked(other.text_) || other.text_ == data::none()) {
    data::assign(text_, data::view(other.text_));
  } else {
    data::replace(text_, data::share(other.text_));
  }
  if (GetLanguage() != language) SetLanguage(language);
  return *this;
}

ZCString& ZCString::operator=(const char* text) noexcept {
  data::assign(text_, text_view(text));
  return *this;
}

ZCString& ZCString::operator=(const unsigned char* text) noexcept {
  return *this = characters(text);
}

ZCString& ZCString::operator=(char ch) noexcept {
  data::assign(text_, {&ch, 1});
  return *this;
}

int ZCString::GetLength() const noexcept { return data::length(text_); }

int ZCString::GetAllocLength() const noexcept { return data::header(text_).allocated; }

int ZCString::IsEmpty() const noexcept { return GetLength() == 0; }

ZCString::operator const char*() const noexcept { return text_; }

char ZCString::GetAt(int index) const noexcept { return text_[index]; }

char ZCString::operator[](int index) const noexcept { return text_[index]; }

void ZCString::SetAt(int index, char ch) noexcept {
  data::make_unique(text_);
  text_[index] = ch;
}

void ZCString::SetLanguage(int language) noexcept {
  if (text_ == data::none()) {
    if (language == 0) return;
    text_ = data::allocate_empty();
  }
  data::language(text_).store(language, std::memory_order_relaxed);
}

int ZCString::GetLanguage() const noexcept {
  return data::language(text_).load(std::memory_order_relaxed);
}

void ZCString::Empty() noexcept {
  if (GetLength() == 0) return;
  if (data::is_locked(text_)) {
    data::set_length(text_, 0);
  } else {
    data::replace(text_, data::none());
  }
}

char* ZCString::GetBuffer(int count) noexcept {
  if (!data::holds(text_, not_negative(count))) {
    const std::string_view old_text = data::view(text_);
    char* const buffer = data::allocate(std::max(not_negative(count), old_text.size()));
    std::copy(old_text.begin(), old_text.end(), buffer);
    data::set_length(buffer, old_text.size());
    data::replace(text_, buffer);
  }
  return text_;
}

void ZCString::ReleaseBuffer(int count) noexcept {
  data::make_unique(text_);
  const std::size_t room = not_negative(GetAllocLength());
  data::set_length(text_, count < 0 ? strnlen(text_, room) : std::min(not_negative(count), room));
}

char* ZCString::GetBufferSetLength(int count) noexcept {
  GetBuffer(count);
  data::set_length(text_, not_negative(count));
  return text_;
}

void ZCString::FreeExtra() noexcept {
  if (GetLength() != GetAllocLength()) data::replace(text_, data::copy(data::view(text_)));
}

char* ZCString::LockBuffer() noexcept {
  GetBuffer(0);
  if (text_ != data::none()) data::references(text_).store(-1, std::memory_order_relaxed);
  return text_;
}

void ZCString::UnlockBuffer() noexcept {
  if (data::is_locked(text_)) data::references(text_).store(1, std::memory_order_relaxed);
}

int ZCString::Find(char ch) const noexcept {
  return ch == '\0' ? GetLength() : position_or_none(data::view(text_).find(ch));
}

int ZCString::ReverseFind(char ch) const noexcept {
  return ch == '\0' ? GetLength() : position_or_none(data::view(text_).rfind(ch));
}

int ZCString::Find(const char* text) const noexcept {
  return position_or_none(data::view(text_).find(text_view(text)));
}

int ZCString::FindOneOf(const char* set) const noexcept {
  return position_or_none(data::view(text_).find_first_of(text_view(set)));
}

int ZCString::Compare(const char* text) const noexcept {
  return std::strcmp(text_, text == nullptr ? "" : text);
}

int ZCString::StartsWith(const char* text) const noexcept {
  return data::view(text_).starts_with(text_view(text));
}

int ZCString::EndsWith(const char* text) const noexcept { return IsFlex(text); }

int ZCString::IsFlex(const char* text) const noexcept { return IsFlex(GetLength(), text); }

int ZCString::IsFlex(int position, const char* text) const noexcept {
  if (position < 0 || position > GetLength()) return 0;
  return data::view(text_).substr(0, not_negative(position)).ends_with(text_view(text));
}

int ZCString::IsSpace(int index) const noexcept { return kz::is_space(text_[index]); }

int ZCString::IsDigit(int index) const noexcept { return kz::is_digit(text_[index]); }

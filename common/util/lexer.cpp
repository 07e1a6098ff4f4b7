// CStrLex and CStrLine: tokens and lines of a text.
#include "kz/lexer.h"

#include <cstddef>
#include <cstring>
#include <string_view>

namespace {

constexpr const char* kWhiteSpace = " \r\n\t\f\v";
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

CStrLex::CStrLex(const char* picture) { SetPic(picture); }

CStrLex::~CStrLex() = default;

void CStrLex::SetPic(const char* picture) { picture_ = picture != nullptr ? picture : kWhiteSpace; }

const char* CStrLex::Get(const char* text, char* output) {
  if (output != nullptr) *output = '\0';
  if (text != nullptr) position_ = text;
  last_begin_ = nullptr;
  if (position_ == nullptr) return nullptr;
  const char* const begin = position_ + std::strspn(position_, picture_);
  position_ = nullptr;
  if (*begin == '\0') return nullptr;
  const std::size_t length = std::strcspn(begin, picture_);
  if (begin[length] != '\0') position_ = begin + length;
  last_begin_ = begin;
  last_length_ = static_cast<std::int16_t>(length);
  if (output != nullptr) {
    std::memcpy(output, begin, length);
    output[length] = '\0';
  }
  return begin;
}

const char* CStrLex::First(const char* text, char* output) { return Get(text, output); }

const char* CStrLex::Next(char* output) { return Get(nullptr, output); }

const char* CStrLex::LastBegin() const { return last_begin_; }

const char* CStrLex::LastEnd() const { return position_; }

std::int16_t CStrLex::LastLen() const { return last_length_; }

const char* CStrLex::FirstStr(const char* text) {
  text_ = text;
  number_ = 0;
  return GetStr();
}

const char* CStrLex::NextStr() {
  ++number_;
  return GetStr();
}

const char* CStrLex::GetAtStr(int index) {
  if (index < 0) return token_ = "";
  const std::uint32_t number = number_;
  number_ = static_cast<std::uint32_t>(index);
  GetStr();
  number_ = number;
  return token_;
}

const char* CStrLex::GetStr() {
  const char* const text = text_;
  const char* begin = text + std::strspn(text, picture_);
  std::size_t length = std::strcspn(begin, picture_);
  for (std::uint32_t n = number_; n != 0 && begin[length] != '\0'; --n) {
    begin += length;
    begin += std::strspn(begin, picture_);
    length = std::strcspn(begin, picture_);
  }
  token_ = ZCString(begin, static_cast<int>(length));
  return token_;
}

CStrLine::CStrLine() = default;

CStrLine::~CStrLine() = default;

ZCString CStrLine::GetFirst(const ZCString& text) {
  end_ = 0;
  text_ = text;
  position_ = 0;
  return GetNext();
}

ZCString CStrLine::GetNext() {
  const std::string_view text(text_, static_cast<std::size_t>(text_.GetLength()));
  const auto begin = static_cast<std::size_t>(position_);
  const std::size_t found = text.find(kLineEnd, begin);
  const std::string_view line = text.substr(begin, found - begin);
  if (found == std::string_view::npos) {
    position_ = text_.GetLength();
    if (line.empty()) end_ = 1;
  } else {
    position_ = static_cast<int>(found + kLineEnd.size());
  }
  return {line.data(), static_cast<int>(line.size())};
}

int CStrLine::EndOfBuffer() const { return end_; }

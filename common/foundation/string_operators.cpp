// Free operators of ZCString: concatenation and comparison.
#include <algorithm>

#include "foundation/string_data.h"

using kz::text_view;

namespace {

ZCString join(std::string_view left, std::string_view right) {
  ZCString result;
  char* const buffer = result.GetBufferSetLength(kz::to_length(left.size() + right.size()));
  std::copy(right.begin(), right.end(), std::copy(left.begin(), left.end(), buffer));
  return result;
}

}  // namespace

ZCString operator+(const ZCString& left, const ZCString& right) noexcept {
  return join(text_view(left), text_view(right));
}
ZCString operator+(const ZCString& left, const char* right) noexcept {
  return join(text_view(left), text_view(right));
}
ZCString operator+(const char* left, const ZCString& right) noexcept {
  return join(text_view(left), text_view(right));
}
ZCString operator+(const ZCString& left, char right) noexcept {
  return join(text_view(left), {&right, 1});
}
ZCString operator+(char left, const ZCString& right) noexcept {
  return join({&left, 1}, text_view(right));
}

bool operator==(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) == 0;
}
bool operator==(const ZCString& left, const char* right) noexcept {
  return left.Compare(right) == 0;
}
bool operator==(const char* left, const ZCString& right) noexcept {
  return right.Compare(left) == 0;
}
bool operator!=(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) != 0;
}
bool operator!=(const ZCString& left, const char* right) noexcept {
  return left.Compare(right) != 0;
}
bool operator!=(const char* left, const ZCString& right) noexcept {
  return right.Compare(left) != 0;
}
bool operator<(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) < 0;
}
bool operator<(const ZCString& left, const char* right) noexcept { return left.Compare(right) < 0; }
bool operator<(const char* left, const ZCString& right) noexcept { return right.Compare(left) > 0; }
bool operator>(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) > 0;
}
bool operator>(const ZCString& left, const char* right) noexcept { return left.Compare(right) > 0; }
bool operator>(const char* left, const ZCString& right) noexcept { return right.Compare(left) < 0; }
bool operator<=(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) <= 0;
}
bool operator<=(const ZCString& left, const char* right) noexcept {
  return left.Compare(right) <= 0;
}
bool operator<=(const char* left, const ZCString& right) noexcept {
  return right.Compare(left) >= 0;
}
bool operator>=(const ZCString& left, const ZCString& right) noexcept {
  return left.Compare(right) >= 0;
}
bool operator>=(const ZCString& left, const char* right) noexcept {
  return left.Compare(right) >= 0;
}
bool operator>=(const char* left, const ZCString& right) noexcept {
  return right.Compare(left) <= 0;
}

// The configuration of a set as a text: parameter strings and path lists.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "dicset/array.h"
#include "dicset/descriptor.h"
#include "dicset/set.h"
#include "kz/language.h"
#include "util/lexer.h"

namespace kz {
namespace {

constexpr std::string_view kTokenDelimiters = ";, \t)";

// Writes the line of an array, and returns its end.
char* write_line(char* output, const char* direction, const ZCObArray& array) {
  bool first = true;
  for (int i = 0; i < array.GetSize(); ++i) {
    const CDicArray* const descriptor = descriptor_at(array, i);
    if (descriptor == nullptr || descriptor->path.IsEmpty()) continue;
    if (first) output += std::sprintf(output, "\n-C%s ", direction);
    if (!first) *output++ = ';';
    const char* const path = descriptor->path;
    output += std::sprintf(output, "%s:%d", path, int{descriptor->mode});
    first = false;
  }
  return output;
}

// 0 for what is no number, or one that no mode can be.
std::int16_t mode_of(std::string_view text) {
  std::int16_t mode = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, mode);
  return error == std::errc() && stop == end ? mode : std::int16_t{0};
}

void put_token(ZCObArray& array, std::int16_t position, std::string_view token) {
  if (token.size() > kTokenMax) return;
  const std::size_t colon = token.rfind(':');
  const bool has_mode = colon != std::string_view::npos;
  put_descriptor(array, position, "", token.substr(0, colon),
                 has_mode ? mode_of(token.substr(colon + 1)) : std::int16_t{0});
}

}  // namespace
}  // namespace kz

void DicArrayParmStr(CDicSys* set, char* output) {
  if (set == nullptr || output == nullptr) return;
  const ZCObArray* const array = kz::select_array(*set);
  if (array == nullptr) return;
  char inverse[sizeof set->language];
  std::memcpy(inverse, set->language, sizeof inverse);
  InvertLanguages(inverse);
  output = kz::write_line(output + std::strlen(output), set->language, *array);
  kz::write_line(output, inverse, *kz::array_of(*set, inverse));
}

int DicArrayAddPath(CDicSys* set, int16_t position, const char* direction, const char* list) {
  if (set == nullptr || list == nullptr) return 0;
  ZCObArray* const array = direction != nullptr ? kz::array_of(*set, direction) : nullptr;
  if (array == nullptr) return -1;
  // The list may be the path of a dictionary or a descriptor that is unloaded here.
  const ZCString own_list(list);
  if (array->GetSize() > 0) kz::unload_array(*set, *array);
  for (std::string_view rest(own_list); !rest.empty();) {
    const std::string_view token = kz::next_token(rest, kz::kTokenDelimiters);
    if (!token.empty()) kz::put_token(*array, position, token);
  }
  return array->GetUpperBound();
}

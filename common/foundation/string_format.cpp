// ZCString::Format: the formatted text and the room reserved for it.
#include <algorithm>
#include <array>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include "foundation/string_data.h"
#include "platform/format.h"

namespace {

// Every plain character counts the whole rest of the format, which in formats of thousands of
// characters is megabytes. Beyond this only the length of the format counts.
constexpr std::int64_t kMaxPlain = 64 << 10;

// What the format takes from the caller, walked beside it.
using Arguments = std::va_list*;

template <typename Type>
void skip(Arguments arguments) {
  va_arg(*arguments, Type);
}

int number_at(const char*& format) {
  std::int64_t number = 0;
  for (; kz::is_digit(*format); ++format) {
    number = std::min<std::int64_t>(number * 10 + (*format - '0'), INT_MAX);
  }
  return static_cast<int>(number);
}

// One item of a format, from after its '%'.
struct Item {
  std::int64_t extra = 0;  // for '#'
  int width = 0;
  std::optional<int> precision;
  std::string_view size;  // "h", "ll" ...
  char conversion = '\0';

  std::int64_t number_length(std::int64_t least) const {
    return std::max(std::int64_t{width} + precision.value_or(0), least);
  }
  std::int64_t text_length(std::int64_t length) const {
    return std::max(precision ? std::min<std::int64_t>(length, *precision) : length,
                    std::int64_t{width});
  }
};

Item read_item(const char*& format, Arguments arguments) {
  Item item;
  for (; *format != '\0' && std::strchr("#*-+0 '", *format) != nullptr; ++format) {
    if (*format == '#') item.extra += 2;
    if (*format == '*') item.width = va_arg(*arguments, int);
  }
  if (item.width == 0) item.width = number_at(format);
  if (*format == '.') {
    ++format;
    if (*format == '*') {
      ++format;
      const int precision = va_arg(*arguments, int);
      if (precision >= 0) item.precision = precision;
    } else {
      item.precision = number_at(format);
    }
  }
  item.size = std::string_view(format, std::strspn(format, "hlLNjzt"));
  format += item.size.size();
  item.conversion = *format;
  if (*format != '\0') ++format;
  return item;
}

void skip_integer(std::string_view size, Arguments arguments) {
  if (size == "ll" || size == "L") {
    skip<long long>(arguments);
  } else if (size == "l") {
    skip<long>(arguments);
  } else if (size == "j") {
    skip<std::intmax_t>(arguments);
  } else if (size == "z") {
    skip<std::size_t>(arguments);
  } else if (size == "t") {
    skip<std::ptrdiff_t>(arguments);
  } else {
    skip<int>(arguments);
  }
}

std::int64_t string_length(const char* text, const Item& item) {
  if (text == nullptr) return 6;  // "(null)"
  // A text with a precision need not have a NUL.
  const std::size_t length =
      item.precision ? strnlen(text, static_cast<std::size_t>(*item.precision)) : std::strlen(text);
  return std::max<std::int64_t>(static_cast<std::int64_t>(length), 1);
}

// The room for one item, whose argument is taken from the list; nothing for a conversion whose
// argument is not known.
std::optional<std::int64_t> item_estimate(const Item& item, Arguments arguments) {
  switch (item.conversion) {
    case 'c':
    case 'C': va_arg(*arguments, int); return item.extra + item.text_length(2);
    case 's':
      if (item.size.empty()) {
        return item.extra + item.text_length(string_length(va_arg(*arguments, const char*), item));
      }
      [[fallthrough]];
    case 'S':
    case 'n': va_arg(*arguments, const void*); return item.extra;
    case 'p': va_arg(*arguments, const void*); return item.extra + item.number_length(32);
    case 'd':
    case 'i':
    case 'o':
    case 'u':
    case 'x':
    case 'X': skip_integer(item.size, arguments); return item.extra + item.number_length(32);
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
      if (item.size == "L") {
        skip<long double>(arguments);
      } else {
        skip<double>(arguments);
      }
      return item.extra + item.number_length(128);
    default: return std::nullopt;
  }
}

// Room that the formatted text probably does not exceed. The walk ends at the first conversion that
// it does not know, because no later argument can be found.
std::int64_t estimate(const char* format, Arguments arguments) {
  const std::int64_t format_length = static_cast<std::int64_t>(std::strlen(format));
  const char* const end = format + format_length;
  std::int64_t plain = 0;
  std::int64_t items = 0;
  while (*format != '\0') {
    if (*format == '%' && format[1] != '%') {
      const Item item = read_item(++format, arguments);
      const std::optional<std::int64_t> room = item_estimate(item, arguments);
      if (!room) break;
      items += *room;
    } else {
      if (*format == '%') ++format;
      plain += end - format;
      ++format;
    }
  }
  return items + (plain <= kMaxPlain ? plain : std::max(kMaxPlain, format_length));
}

}  // namespace

void ZCString::Format(const char* format, ...) noexcept {
  if (format == nullptr) format = "";
  std::va_list arguments;
  va_start(arguments, format);
  const std::int64_t estimated = estimate(format, &arguments);
  va_end(arguments);

  // The arguments may lie in this string, so it is written to only when the text is complete.
  std::array<char, 512> short_text;
  std::unique_ptr<char[]> long_text;
  const char* text = short_text.data();
  va_start(arguments, format);
  const int needed =
      kz::platform::format_text(short_text.data(), short_text.size(), format, arguments);
  va_end(arguments);
  if (needed < 0) {
    text = "";
  } else if (static_cast<std::size_t>(needed) >= short_text.size()) {
    const std::size_t size = static_cast<std::size_t>(needed) + 1;
    long_text = std::make_unique_for_overwrite<char[]>(size);
    va_start(arguments, format);
    kz::platform::format_text(long_text.get(), size, format, arguments);
    va_end(arguments);
    text = long_text.get();
  }

  const std::size_t length = std::strlen(text);
  // Gigabytes are not worth reserving for an estimate; such a text gets the room that it needs.
  const int reserved = estimated <= INT_MAX / 2 ? static_cast<int>(estimated) : 0;
  char* const buffer = GetBuffer(std::max(reserved, needed));
  std::copy_n(text, length, buffer);
  ReleaseBuffer(static_cast<int>(length));
}

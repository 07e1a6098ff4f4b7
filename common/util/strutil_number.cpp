// Numbers in text, with a message for every wrong digit.
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"

namespace {

void report_wrong_digits(const char* digits, bool hexadecimal) {
  for (; *digits != '\0' && _isspace(*digits) == 0; ++digits) {
    if ((hexadecimal ? _isxdigit(*digits) : _isdigit(*digits)) != 0) continue;
    std::array<char, 40> message;
    std::snprintf(message.data(), message.size(), "Error: Invalid %s digit %c.",
                  hexadecimal ? "hexadecimal" : "decimal", *digits);
    MsgBox(message.data(), 0, 1);
  }
}

// Reads as scanf does: white space, a sign, the "0x" of a hexadecimal number, digits.
std::int64_t read_number(const char* at, const char* end, bool hexadecimal) {
  while (_isspace(*at) != 0) ++at;
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  if (hexadecimal && at[0] == '0' && __tolower(at[1]) == 'x') at += 2;
  std::uint64_t value = 0;
  std::from_chars(at, end, value, hexadecimal ? 16 : 10);
  const auto number = static_cast<std::int64_t>(value);
  return negative ? -number : number;
}

// No more than 12 characters count, so that the value always fits.
std::int64_t convert(const char* text) {
  std::array<char, 13> copy;
  strncpy0(copy.data(), text, copy.size() - 1);
  const bool hexadecimal = copy[0] == '$';
  const char* const digits = copy.data() + (hexadecimal ? 1 : 0);
  report_wrong_digits(digits, hexadecimal);
  return read_number(digits, digits + std::string_view(digits).size(), hexadecimal);
}

}  // namespace

uint8_t hex_to_byte(const char* text) {
  if (text == nullptr || _isxdigit(text[0]) == 0 || _isxdigit(text[1]) == 0) return 0;
  std::uint8_t value = 0;
  std::from_chars(text, text + 2, value, 16);
  return value;
}

int16_t convert_number(const char* text) { return static_cast<int16_t>(convert(text)); }

int32_t convert_lnumber(const char* text) { return static_cast<int32_t>(convert(text)); }

// UTF-8, Windows-1251, Windows-1252, and the mixed page.
#include "tools/code_page.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace kzdic {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Characters of the bytes 128 to 255, 0 where there is none.
using HighHalf = std::array<std::uint16_t, 128>;

constexpr HighHalf kWindows1251 = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409, 0x2039,
    0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x0000, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0, 0x040E, 0x045E, 0x0408,
    0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,
    0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB,
    0x0458, 0x0405, 0x0455, 0x0457, 0x0410, 0x0411, 0x0412, 0x0413, 0x0414, 0x0415, 0x0416, 0x0417,
    0x0418, 0x0419, 0x041A, 0x041B, 0x041C, 0x041D, 0x041E, 0x041F, 0x0420, 0x0421, 0x0422, 0x0423,
    0x0424, 0x0425, 0x0426, 0x0427, 0x0428, 0x0429, 0x042A, 0x042B, 0x042C, 0x042D, 0x042E, 0x042F,
    0x0430, 0x0431, 0x0432, 0x0433, 0x0434, 0x0435, 0x0436, 0x0437, 0x0438, 0x0439, 0x043A, 0x043B,
    0x043C, 0x043D, 0x043E, 0x043F, 0x0440, 0x0441, 0x0442, 0x0443, 0x0444, 0x0445, 0x0446, 0x0447,
    0x0448, 0x0449, 0x044A, 0x044B, 0x044C, 0x044D, 0x044E, 0x044F,
};

constexpr HighHalf kWindows1252 = {
    0x20AC, 0x0000, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039,
    0x0152, 0x0000, 0x017D, 0x0000, 0x0000, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x0000, 0x017E, 0x0178, 0x00A0, 0x00A1, 0x00A2, 0x00A3,
    0x00A4, 0x00A5, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x00AA, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x00AF,
    0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x00B9, 0x00BA, 0x00BB,
    0x00BC, 0x00BD, 0x00BE, 0x00BF, 0x00C0, 0x00C1, 0x00C2, 0x00C3, 0x00C4, 0x00C5, 0x00C6, 0x00C7,
    0x00C8, 0x00C9, 0x00CA, 0x00CB, 0x00CC, 0x00CD, 0x00CE, 0x00CF, 0x00D0, 0x00D1, 0x00D2, 0x00D3,
    0x00D4, 0x00D5, 0x00D6, 0x00D7, 0x00D8, 0x00D9, 0x00DA, 0x00DB, 0x00DC, 0x00DD, 0x00DE, 0x00DF,
    0x00E0, 0x00E1, 0x00E2, 0x00E3, 0x00E4, 0x00E5, 0x00E6, 0x00E7, 0x00E8, 0x00E9, 0x00EA, 0x00EB,
    0x00EC, 0x00ED, 0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x00F2, 0x00F3, 0x00F4, 0x00F5, 0x00F6, 0x00F7,
    0x00F8, 0x00F9, 0x00FA, 0x00FB, 0x00FC, 0x00FD, 0x00FE, 0x00FF,
};

const HighHalf& table_of(CodePage page) {
  return page == CodePage::kWestern ? kWindows1252 : kWindows1251;
}

// The byte of a character, 0 when the page lacks it.
unsigned char byte_of(char32_t c, CodePage page) {
  if (c < 0x80) return static_cast<unsigned char>(c);
  const HighHalf& table = table_of(page);
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (table[i] == c) return static_cast<unsigned char>(128 + i);
  }
  return 0;
}

char32_t character_of(char byte, CodePage page) {
  const auto b = static_cast<unsigned char>(byte);
  if (b < 0x80) return b;
  const char32_t c = table_of(page)[b - 128u];
  return c != 0 ? c : kReplacement;
}

bool is_latin_letter(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Letters of either page, as bytes: 192 and above, and the few below.
bool is_letter_byte(char byte) {
  const auto b = static_cast<unsigned char>(byte);
  return is_latin_letter(b) || b >= 192 || b == 168 || b == 184 || b == 140 || b == 156;
}

bool is_letter(char32_t c) {
  if (is_latin_letter(c)) return true;
  for (const CodePage page : {CodePage::kRussian, CodePage::kWestern}) {
    const unsigned char byte = byte_of(c, page);
    if (byte >= 0x80 && is_letter_byte(static_cast<char>(byte))) return true;
  }
  return false;
}

// Calls visit(word, page) for each run of letters and each run of other characters.
template <typename Char, typename IsLetter, typename Visit>
void for_each_run(std::basic_string_view<Char> text, IsLetter letter, Visit visit) {
  for (std::size_t begin = 0; begin < text.size();) {
    const bool word = letter(text[begin]);
    bool latin = false;
    std::size_t end = begin;
    for (; end < text.size() && letter(text[end]) == word; ++end) {
      const Char c = text[end];
      latin = latin || (c > 0 && is_latin_letter(static_cast<char32_t>(c)));
    }
    visit(text.substr(begin, end - begin), word && latin ? CodePage::kWestern : CodePage::kRussian);
    begin = end;
  }
}

std::string encode_single(std::u32string_view text, CodePage page, CodePage shown) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char32_t c : text) {
    const unsigned char byte = byte_of(c, page);
    if (byte == 0) throw Unmappable(c, shown);
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

std::u32string decode_single(std::string_view bytes, CodePage page) {
  std::u32string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += character_of(byte, page);
  return text;
}

std::string character_name(char32_t c) {
  std::array<char, 16> code{};
  std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(c));
  std::string name("'");
  name += to_utf8(std::u32string_view(&c, 1));
  return name + "' (" + code.data() + ")";
}

// Length of the sequence that a lead byte announces, 0 for what cannot lead.
std::size_t sequence_length(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

}  // namespace

const char* name_of(CodePage page) {
  switch (page) {
    case CodePage::kRussian: return "Windows-1251";
    case CodePage::kWestern: return "Windows-1252";
    case CodePage::kMixed: break;
  }
  return "Windows-1252 mixed with Windows-1251";
}

Unmappable::Unmappable(char32_t c, CodePage code_page)
    : std::runtime_error("the character " + character_name(c) + " is not in " + name_of(code_page)),
      character(c),
      page(code_page) {}

std::u32string from_utf8(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = sequence_length(lead);
    if (length == 0 || at + length > text.size()) throw BadUtf8(at);
    char32_t c = length == 1 ? lead : lead & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
      const auto next = static_cast<unsigned char>(text[at + i]);
      if ((next & 0xC0) != 0x80) throw BadUtf8(at);
      c = (c << 6) | (next & 0x3F);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) throw BadUtf8(at);
    result += c;
    at += length;
  }
  return result;
}

std::string to_utf8(std::u32string_view text) {
  std::string result;
  result.reserve(text.size() * 2);
  const auto put = [&result](char32_t value) { result += static_cast<char>(value); };
  for (const char32_t c : text) {
    if (c < 0x80) {
      put(c);
    } else if (c < 0x800) {
      put(0xC0 | (c >> 6));
      put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      put(0xE0 | (c >> 12));
      put(0x80 | ((c >> 6) & 0x3F));
      put(0x80 | (c & 0x3F));
    } else {
      put(0xF0 | (c >> 18));
      put(0x80 | ((c >> 12) & 0x3F));
      put(0x80 | ((c >> 6) & 0x3F));
      put(0x80 | (c & 0x3F));
    }
  }
  return result;
}

std::string encode(std::u32string_view text, CodePage page) {
  if (page != CodePage::kMixed) return encode_single(text, page, page);
  std::string bytes;
  for_each_run(text, is_letter, [&bytes](std::u32string_view run, CodePage run_page) {
    bytes += encode_single(run, run_page, CodePage::kMixed);
  });
  const std::u32string back = decode(bytes, page);
  for (std::size_t i = 0; i < back.size(); ++i) {
    if (back[i] != text[i]) throw Unmappable(text[i], page);
  }
  return bytes;
}

std::u32string decode(std::string_view bytes, CodePage page) {
  if (page != CodePage::kMixed) return decode_single(bytes, page);
  std::u32string text;
  for_each_run(bytes, is_letter_byte, [&text](std::string_view run, CodePage run_page) {
    text += decode_single(run, run_page);
  });
  return text;
}

bool can_encode(char32_t character, CodePage page) {
  if (page != CodePage::kMixed) return byte_of(character, page) != 0;
  return byte_of(character, CodePage::kRussian) != 0 || byte_of(character, CodePage::kWestern) != 0;
}

}  // namespace kzdic

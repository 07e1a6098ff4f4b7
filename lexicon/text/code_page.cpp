// UTF-8, the single-byte pages, and the mixed page.
#include "lexicon/text/code_page.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "lexicon/text/code_page_tables.h"

namespace kz::lexicon {
namespace {

bool is_latin_letter(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Letters of either page, as bytes: 192 and above, and the few below.
bool is_letter_byte(char byte) {
  const auto b = static_cast<unsigned char>(byte);
  return is_latin_letter(b) || b >= 192 || b == 168 || b == 184 || b == 140 || b == 156;
}

bool is_letter(char32_t c) {
  if (is_latin_letter(c)) return true;
  for (const CodePage page : {CodePage::kRussian, CodePage::kWestern}) {
    const unsigned char byte = table_of(page).byte_of(c);
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
  // The texts of dictionaries end at a zero.
  const std::size_t end = std::min(text.find(U'\0'), text.size());
  const std::size_t length = append_encoded(text.substr(0, end), page, bytes);
  if (length < text.size()) throw Unmappable(text[length], shown);
  return bytes;
}

std::u32string decode_single(std::string_view bytes, CodePage page) {
  const PageTable& table = table_of(page);
  std::u32string text(bytes.size(), U'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    text[i] = table.characters[static_cast<unsigned char>(bytes[i])];
  }
  return text;
}

// Length of the sequence of several bytes that a lead byte announces, 0 for what cannot lead.
std::size_t sequence_length(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// The character at a place in UTF-8; the place moves on.
char32_t take_character(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead < 0x80) {
    ++at;
    return lead;
  }
  const std::size_t length = sequence_length(lead);
  if (length == 0 || at + length > text.size()) throw BadUtf8(at);
  char32_t c = lead & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0) != 0x80) throw BadUtf8(at);
    c = (c << 6) | (next & 0x3F);
  }
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  if (c < kSmallest[length] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) throw BadUtf8(at);
  at += length;
  return c;
}

}  // namespace

const char* name_of(CodePage page) {
  switch (page) {
    case CodePage::kRussian: return "Windows-1251";
    case CodePage::kWestern: return "Windows-1252";
    case CodePage::kCp866: return "CP866";
    case CodePage::kCp850: return "CP850";
    case CodePage::kKoi8R: return "KOI8-R";
    case CodePage::kIso8859_5: return "ISO 8859-5";
    case CodePage::kMacCyrillic: return "Mac Cyrillic";
    case CodePage::kMixed: break;
  }
  return "Windows-1252 mixed with Windows-1251";
}

std::string code_point(char32_t c) {
  std::array<char, 16> code{};
  std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(c));
  return code.data();
}

BadText::BadText(std::size_t at, const std::string& message)
    : Error(ErrorCode::kData, message), offset(at) {}

BadUtf8::BadUtf8(std::size_t at) : BadText(at, "is not UTF-8") {}

Unmappable::Unmappable(char32_t c, CodePage code_page)
    // A zero would end the message.
    : Error(ErrorCode::kCodePage, "the character '" +
                                      to_utf8(std::u32string_view(&c, c == 0 ? 0 : 1)) + "' (" +
                                      code_point(c) + ") is not in " + name_of(code_page)),
      character(c),
      page(code_page) {}

std::u32string from_utf8(std::string_view text) {
  std::u32string result(text.size(), U'\0');
  std::size_t characters = 0;
  for (std::size_t at = 0; at < text.size();) result[characters++] = take_character(text, at);
  result.resize(characters);
  return result;
}

std::size_t count_characters(std::string_view text) {
  std::size_t characters = 0;
  for (std::size_t at = 0; at < text.size(); ++characters) take_character(text, at);
  return characters;
}

std::string to_utf8(std::u32string_view text) {
  std::size_t size = text.size();
  for (const char32_t c : text) size += (c >= 0x80) + (c >= 0x800) + (c >= 0x10000);
  std::string result(size, '\0');
  char* end = result.data();
  const auto put = [&end](char32_t value) { *end++ = static_cast<char>(value); };
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

std::size_t append_encoded(std::u32string_view text, CodePage page, std::string& bytes) {
  constexpr std::size_t kStep = 512;  // bounds what is given up where a character is missing
  const PageTable& table = table_of(page);
  for (std::size_t begin = 0; begin < text.size(); begin += kStep) {
    const std::u32string_view step = text.substr(begin, kStep);
    const std::size_t size = bytes.size();
    bytes.resize(size + step.size());
    for (std::size_t i = 0; i < step.size(); ++i) {
      const unsigned char byte = table.byte_of(step[i]);
      bytes[size + i] = static_cast<char>(byte);
      if (byte == 0 && step[i] != 0) {
        bytes.resize(size + i);
        return begin + i;
      }
    }
  }
  return text.size();
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

std::string russian_to_utf8(std::string_view bytes) {
  return to_utf8(decode(bytes, CodePage::kRussian));
}

bool can_encode(char32_t character, CodePage page) {
  if (page == CodePage::kMixed) {
    return can_encode(character, CodePage::kRussian) || can_encode(character, CodePage::kWestern);
  }
  return table_of(page).byte_of(character) != 0;
}

std::size_t byte_order_mark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return text.starts_with(kMark) ? kMark.size() : 0;
}

std::string encode_utf8(std::string_view text, CodePage page) {
  return encode(from_utf8(text), page);
}

std::string decode_utf8(std::string_view bytes, CodePage page) {
  return to_utf8(decode(bytes, page));
}

}  // namespace kz::lexicon

// Names of encodings; HTML references.
#include "lexicon/text/encoding.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "kzlexicon/error.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

using Form = Encoding::Form;

constexpr std::array<Encoding, 9> kEncodings = {{
    {"windows-1251", {"cp1251", "win1251", "1251"}, Form::kPage, CodePage::kRussian},
    {"windows-1252", {"cp1252", "win1252", "1252"}, Form::kPage, CodePage::kWestern},
    {"cp866", {"ibm866", "866"}, Form::kPage, CodePage::kCp866},
    {"cp850", {"ibm850", "850"}, Form::kPage, CodePage::kCp850},
    {"koi8-r", {"koi8"}, Form::kPage, CodePage::kKoi8R},
    {"iso-8859-5", {"88595", "cyrillic"}, Form::kPage, CodePage::kIso8859_5},
    {"mac-cyrillic", {"xmaccyrillic", "cp10007", "10007"}, Form::kPage, CodePage::kMacCyrillic},
    {"utf-8", {}, Form::kUtf8, CodePage::kRussian},
    {"html", {}, Form::kHtml, CodePage::kRussian},
}};

std::string plain(std::string_view name) {
  std::string result;
  for (const char c : name) {
    if (c >= 'A' && c <= 'Z') {
      result += static_cast<char>(c + 32);
    } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
      result += c;
    }
  }
  return result;
}

struct Reference {
  char32_t character;
  std::size_t length;
};

// The reference at the front of a text, if it is one to a character beyond ASCII.
std::optional<Reference> read_reference(std::u32string_view text) {
  constexpr std::size_t kLongest = 10;
  if (!text.starts_with(U"&#")) return std::nullopt;
  const std::size_t end = text.substr(0, kLongest).find(U';');
  if (end == std::u32string_view::npos) return std::nullopt;
  std::string digits;
  for (const char32_t c : text.substr(2, end - 2)) digits += c < 0x80 ? static_cast<char>(c) : '?';
  const bool hexadecimal = digits.starts_with('x') || digits.starts_with('X');
  const char* const first = digits.data() + (hexadecimal ? 1 : 0);
  const char* const last = digits.data() + digits.size();
  std::uint32_t number = 0;
  const auto [stop, error] = std::from_chars(first, last, number, hexadecimal ? 16 : 10);
  if (error != std::errc() || stop != last) return std::nullopt;
  if (number < 0x80 || number > 0x10FFFF || (number >= 0xD800 && number <= 0xDFFF)) {
    return std::nullopt;
  }
  return Reference{number, end + 1};
}

void resolve_references(std::u32string& text) {
  std::size_t end = text.find(U'&');
  for (std::size_t at = end; at < text.size();) {
    const auto reference =
        text[at] == U'&' ? read_reference(std::u32string_view(text).substr(at)) : std::nullopt;
    text[end++] = reference ? reference->character : text[at];
    at += reference ? reference->length : 1;
  }
  text.resize(std::min(end, text.size()));
}

void append_html(std::u32string_view text, std::string& out) {
  for (const char32_t c : text) {
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else {
      out += "&#" + std::to_string(static_cast<std::uint32_t>(c)) + ';';
    }
  }
}

}  // namespace

std::span<const Encoding> encodings() { return kEncodings; }

const Encoding& find_encoding(std::string_view name) {
  const std::string wanted = plain(name);
  std::string names;
  for (const Encoding& encoding : kEncodings) {
    const auto& aliases = encoding.aliases;
    if (!wanted.empty() && (wanted == plain(encoding.name) ||
                            std::find(aliases.begin(), aliases.end(), wanted) != aliases.end())) {
      return encoding;
    }
    names += names.empty() ? "" : ", ";
    names += encoding.name;
  }
  throw Error(ErrorCode::kArgument,
              "there is no code page '" + std::string(name) + "' (there are " + names + ")");
}

std::u32string decode(std::string_view text, const Encoding& encoding) {
  if (encoding.form == Form::kPage) {
    std::u32string result = decode(text, encoding.page);
    const std::size_t bad = result.find(U'\xFFFD');
    if (bad != std::u32string::npos) {
      throw BadText(bad, std::string("is no character of ") + name_of(encoding.page));
    }
    return result;
  }
  std::u32string result = from_utf8(text);
  if (encoding.form == Form::kHtml) resolve_references(result);
  return result;
}

std::size_t append_encoded(std::u32string_view text, const Encoding& encoding, std::string& out) {
  switch (encoding.form) {
    case Form::kPage: return append_encoded(text, encoding.page, out);
    case Form::kUtf8: out += to_utf8(text); break;
    case Form::kHtml: append_html(text, out); break;
  }
  return text.size();
}

}  // namespace kz::lexicon

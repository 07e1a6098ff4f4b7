// Forms that text can have outside: the code pages, UTF-8 and HTML.
#ifndef KZ_LEXICON_TEXT_ENCODING_H
#define KZ_LEXICON_TEXT_ENCODING_H

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "lexicon/text/code_page.h"

namespace kz::lexicon {

enum class Form {
  kPage,
  kUtf8,
  // UTF-8 with numeric references to characters, such as "&#1078;" or "&#x436;". References to
  // ASCII characters and by name are left alone, and so are '&' and '<': markup stays markup.
  kHtml,
};

struct Encoding {
  std::string_view name;
  std::array<std::string_view, 3> aliases;  // lower-case letters and digits alone; or empty
  Form form;
  CodePage page;  // of a kPage; the one that the library means by HTML
};

std::span<const Encoding> encodings();

// By name or alias; case, blanks and punctuation are ignored. Throws Error.
const Encoding& find_encoding(std::string_view name);

// Throws BadText.
std::u32string decode(std::string_view text, const Encoding& encoding);

// Appends the characters up to the first that the encoding lacks. Returns their number.
std::size_t append_encoded(std::u32string_view text, const Encoding& encoding, std::string& out);

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_TEXT_ENCODING_H

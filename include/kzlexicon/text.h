// Texts made from texts: other code pages, transliteration, keyboard layouts, replaced words.
//
// A TextFilter answers text line by line, most of them UTF-8 with UTF-8; a Conversion goes between
// encodings.
//
//     using namespace kz::lexicon;
//     std::cout << transliteration({.to = Alphabet::kLatin})->apply("ёж") << ' '
//               << keyboard_layout({.to = Alphabet::kRussian})->apply("ghbdtn") << '\n';
//     std::cout << Conversion("utf-8", "html").apply("мир") << '\n';
//     // Output: yozh привет
//     // Output: &#1084;&#1080;&#1088;
//
// Filters and conversions are not changed by their calls; any number of threads may use one.
#ifndef KZLEXICON_TEXT_H
#define KZLEXICON_TEXT_H

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kzlexicon/code_page.h"
#include "kzlexicon/export.h"

namespace kz::lexicon {

class KZL_API TextFilter {
 public:
  virtual ~TextFilter();

  // Appends the answer to a text of any number of lines. Throws BadText for bytes that are no
  // character of the text's encoding, and std::bad_alloc for lines that memory does not hold; what
  // it has appended until then is of no use.
  virtual void append(std::string_view text, std::string& out) const = 0;
  std::string apply(std::string_view text) const;

  // The same for one line that is too long to hold its whole answer, in pieces of about 64 KB:
  // appends the answer to the piece that begins at a place, and returns the size of the piece.
  //     for (std::size_t at = 0; at < line.size();) {
  //       at += filter.append_piece(line, at, out);
  //       ...  // write and clear `out`
  //     }
  // The offset of a BadText is that in the line.
  virtual std::size_t append_piece(std::string_view line, std::size_t at, std::string& out) const;
};

enum class Alphabet { kLatin, kRussian };

struct TransliterationOptions {
  Alphabet to = Alphabet::kLatin;
  // To Latin: capitals for small Russian letters too, and "(" and ")" for "[" and "]".
  bool capitals = false;
  // To Russian: English words, written as they sound; with `small_letters`, without capitals.
  bool smart = false;
  bool small_letters = false;
  // To Russian, not smart: the language whose accented letters the text has, "DE" or "FR", or a
  // direction from it; empty: "FR".
  std::string language{};
};
// Throws Error for options that do not go together.
KZL_API std::unique_ptr<TextFilter> transliteration(const TransliterationOptions& options);

struct LayoutOptions {
  Alphabet to = Alphabet::kRussian;
  bool look_alike = false;  // letters that look alike, instead of those of the same key
};
KZL_API std::unique_ptr<TextFilter> keyboard_layout(const LayoutOptions& options);

// Words replaced by a replacement buffer (docs/tables.md), a file. Throws Error for one that cannot
// be read or is no replacement buffer.
KZL_API std::unique_ptr<TextFilter> replacement(const std::string& path);

// Forms that text can have outside.
struct Encoding {
  enum class Form {
    kPage,
    kUtf8,
    // UTF-8 with numeric references to characters, such as "&#1078;" or "&#x436;". References to
    // ASCII characters and by name are left alone, and so are '&' and '<': markup stays markup.
    kHtml,
  };
  std::string_view name;
  std::array<std::string_view, 3> aliases;  // lower-case letters and digits alone; or empty
  Form form;
  CodePage page;  // of a kPage; the one that the library means by HTML
};

KZL_API std::span<const Encoding> encodings();
// By name or alias; case, blanks and punctuation are ignored. Throws Error.
KZL_API const Encoding& find_encoding(std::string_view name);

// A character that the target lacks, at a place of the text: line and column count from 1.
struct MissingCharacter {
  char32_t character;
  std::size_t line;
  std::size_t column;
};

// Full conversion, through Unicode.
class KZL_API Conversion {
 public:
  // Both by name or alias. Throws Error for encodings that are none.
  Conversion(std::string_view from, std::string_view to);
  ~Conversion();
  Conversion(Conversion&& other) noexcept;
  Conversion& operator=(Conversion&& other) noexcept;

  const Encoding& from() const;
  const Encoding& to() const;

  // Throws BadText for bytes that are no character, Unmappable for a character that the target
  // lacks.
  std::string apply(std::string_view text) const;

  // Is called for each character that the target lacks; what it appends to the answer takes the
  // character's place.
  using Missing = std::function<void(const MissingCharacter&, std::string&)>;
  // What append_piece has converted. A numeric reference is one character.
  struct Piece {
    std::size_t bytes;
    std::size_t characters;
  };
  void append(std::string_view text, std::string& out, const Missing& missing) const;
  // As TextFilter::append_piece. Columns count from the beginning of the piece.
  Piece append_piece(std::string_view line, std::size_t at, std::string& out,
                     const Missing& missing) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// libkzcommon's own conversions between code pages: letters, some punctuation and box drawing.
struct NarrowPair {
  std::string_view from;
  std::string_view to;
};
KZL_API std::vector<NarrowPair> narrow_pairs();
// From bytes to bytes; zero bytes are kept. Throws Error when libkzcommon does not convert this
// pair.
KZL_API std::unique_ptr<TextFilter> narrow_conversion(const Encoding& from, const Encoding& to);

}  // namespace kz::lexicon

#endif  // KZLEXICON_TEXT_H

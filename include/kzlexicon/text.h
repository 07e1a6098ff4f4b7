// Texts made from texts: other code pages, transliteration, keyboard layouts, replaced words.
//
// A TextFilter turns UTF-8 text into UTF-8 text, line by line; a Conversion goes between encodings.
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
  // Appends the answer to a text of any number of lines. Throws BadUtf8, and std::bad_alloc for
  // lines that memory does not hold.
  virtual void append(std::string_view text, std::string& out) const = 0;

  std::string apply(std::string_view text) const;
};

enum class Alphabet { kLatin, kRussian };

struct TransliterationOptions {
  Alphabet to = Alphabet::kLatin;
  // To Latin: both letters of a pair such as "Sh" are capitals.
  bool capitals = false;
  // To Russian: by the rules of English pronunciation. `small_letters` gives up capitals.
  bool smart = false;
  bool small_letters = false;
  // To Russian, not smart: the direction whose accented letters the text has; empty: "FRRU".
  std::string language{};
};
// Throws Error for options that do not go together.
KZL_API std::unique_ptr<TextFilter> transliteration(const TransliterationOptions& options);

struct LayoutOptions {
  Alphabet to = Alphabet::kRussian;
  bool look_alike = false;  // letters that look alike, instead of those of the same key
};
KZL_API std::unique_ptr<TextFilter> keyboard_layout(const LayoutOptions& options);

// Words replaced by a replacement buffer (docs/tables.md). Throws Error for a file that cannot be
// read or is no replacement buffer.
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
  // Throws Error for encodings that are none.
  Conversion(std::string_view from, std::string_view to);
  ~Conversion();
  Conversion(Conversion&& other) noexcept;
  Conversion& operator=(Conversion&& other) noexcept;

  const Encoding& from() const;
  const Encoding& to() const;

  // Throws BadText for bytes that are no character, Unmappable for a character that the target
  // lacks.
  std::string apply(std::string_view text) const;
  // Calls `missing` for each character that the target lacks; what it appends to the answer takes
  // the character's place.
  void append(std::string_view text, std::string& out,
              const std::function<void(const MissingCharacter&, std::string&)>& missing) const;

  // UTF-8 of a text in the encoding it comes from, or of an answer.
  std::string decoded(std::string_view text) const;
  std::string decoded_answer(std::string_view answer) const;

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
// Zero bytes are kept. Throws Error when libkzcommon does not convert this pair.
KZL_API std::string convert_narrow(std::string_view text, const Encoding& from, const Encoding& to);

}  // namespace kz::lexicon

#endif  // KZLEXICON_TEXT_H

// Conversion of texts that mix Russian words and words in Latin letters.
#include <cstddef>

#include "entry/convert.h"
#include "text/base_letters.h"
#include "text/language.h"

namespace kz {
namespace {

// The language of a direction's second half, or of a language code, and the table for a letter
// whose neighbours do not tell its script.
struct MixedLanguage {
  Language language = Language::other;
  bool is_western_default = false;

  explicit MixedLanguage(const char* text) {
    if (text == nullptr) return;
    const std::string_view whole(text);
    const std::string_view own = whole.size() > 2 ? whole.substr(2) : whole;
    language = language_of(own.data());
    is_western_default = own.size() > 2 && !own.starts_with(code::kRu);
  }
};

// Walks a text and decides for each character by the letters of the word before it.
class MixedConverter {
 public:
  MixedConverter(const CodePages& pages, MixedLanguage language)
      : pages_(pages),
        base_letters_(base_letters_of(language.language)),
        is_western_default_(language.is_western_default) {}

  void convert(std::string_view text, char* out) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char c = text[i];
      const char next = i + 1 < text.size() ? text[i + 1] : '\0';
      out[i] = is_in_doubt(c) ? decide(c, next) : plain(c);
    }
  }

 private:
  // True when the code is a special letter of the language, which may as well be a Russian letter.
  bool is_in_doubt(char c) const {
    const unsigned char letter = pages_.western_to_ansi[static_cast<unsigned char>(c)];
    return letter >= 128 && base_letters_[letter] != letter;
  }

  char decide(char c, char next) {
    bool is_western = latin_ > russian_;
    if (latin_ == russian_) {
      const bool is_before_latin = is_in(next, char_class::kAsciiAlpha);
      const bool is_before_russian = is_in_doubt(next) || is_in(next, pages_.russian_letter);
      is_western = is_before_latin || (is_western_default_ && !is_before_russian);
      // By default the word counts as Russian from here on.
      ++(is_before_latin ? latin_ : russian_);
    } else {
      ++(is_western ? latin_ : russian_);
    }
    return static_cast<char>(is_western ? pages_.western[c] : pages_.russian[c]);
  }

  char plain(char c) {
    if (is_in(c, char_class::kAsciiAlpha)) {
      ++latin_;
    } else if (is_in(c, pages_.russian_letter)) {
      ++russian_;
    } else if (!is_in(c, char_class::kDigit) && !is_inside_word(c)) {
      latin_ = russian_ = 0;
    }
    return static_cast<char>(pages_.russian[c]);
  }

  static bool is_inside_word(char c) { return c == '.' || c == '-' || c == '/' || c == '&'; }

  const CodePages& pages_;
  const ByteMap& base_letters_;
  const bool is_western_default_;
  std::size_t latin_ = 0;  // letters of the word so far
  std::size_t russian_ = 0;
};

}  // namespace

void convert_mixed(const CodePages& pages, std::string_view text, const char* language, char* out) {
  const MixedLanguage mixed(language);
  // Without accented letters none is in doubt; yo has codes of its own in both Russian code pages.
  if (mixed.language != Language::german && mixed.language != Language::french) {
    return translate(text.data(), out, text.size(), pages.russian);
  }
  MixedConverter(pages, mixed).convert(text, out);
}

}  // namespace kz

// Transliteration and keyboard layouts, letter by letter.
#include "lexicon/text/transliteration.h"

#include <array>
#include <functional>
#include <utility>

#include "kz/special.h"
#include "kz/translit.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/code_page_tables.h"
#include "lexicon/text/filter.h"

namespace kz::lexicon {
namespace {

using Letters = std::array<char, 4>;

// What libkzcommon makes of one byte of a code page: text of Windows-1251, or nothing when the
// character stays as it is.
using ByteFunction = std::function<std::optional<std::string>(int byte)>;

class CharacterFilter : public TextFilter {
 public:
  // Characters that the page lacks stay.
  CharacterFilter(CodePage page, const ByteFunction& function) : table_(table_of(page)) {
    for (std::size_t byte = 1; byte < outputs_.size(); ++byte) {
      const std::optional<std::string> output = function(static_cast<int>(byte));
      outputs_[byte] =
          output ? decode(*output, CodePage::kRussian) : std::u32string(1, table_.characters[byte]);
    }
  }

  void append(std::string_view text, std::string& out) const override {
    std::u32string answer;
    answer.reserve(text.size());
    for (const char32_t c : from_utf8(text)) {
      const unsigned char byte = table_.byte_of(c);
      if (byte == 0) {
        answer += c;
      } else {
        answer += outputs_[byte];
      }
    }
    out += to_utf8(answer);
  }

 private:
  const PageTable& table_;
  std::array<std::u32string, 256> outputs_;
};

std::unique_ptr<TextFilter> to_latin(bool capitals) {
  return std::make_unique<CharacterFilter>(CodePage::kRussian, [capitals](int byte) {
    Letters letters{};
    return std::string((capitals ? translitenru : translitru)(byte, letters.data()));
  });
}

std::unique_ptr<TextFilter> to_russian(const std::string& language) {
  return std::make_unique<CharacterFilter>(
      CodePage::kWestern, [&language](int byte) -> std::optional<std::string> {
        // Letters without a base letter are no Russian ones, although their bytes may read as such.
        const int base = kz_codr_base_member(byte, language.c_str());
        if (base < 'a' || base > 'z') return std::nullopt;
        Letters letters{};
        return translit(byte, letters.data(), language.c_str(), 0);
      });
}

void check(const TransliterationOptions& options) {
  const bool latin = options.to == Alphabet::kLatin;
  if (latin && (options.smart || options.small_letters || !options.language.empty())) {
    throw Error(ErrorCode::kArgument,
                "smart transliteration, small letters and a language are for Latin text");
  }
  if (!latin && options.capitals) {
    throw Error(ErrorCode::kArgument, "capitals are for Russian text");
  }
  if (options.smart ? !options.language.empty() : options.small_letters) {
    throw Error(ErrorCode::kArgument,
                "small letters are for smart transliteration, a language is for any other");
  }
  const std::string_view source = std::string_view(options.language).substr(0, 2);
  if (!source.empty() && source != "DE" && source != "FR") {
    throw Error(ErrorCode::kArgument,
                "there is no transliteration from the language '" + options.language + "'");
  }
}

}  // namespace

std::unique_ptr<TextFilter> transliteration(const TransliterationOptions& options) {
  check(options);
  if (options.to == Alphabet::kLatin) return to_latin(options.capitals);
  if (options.smart) return smart_transliteration(options.small_letters);
  return to_russian(options.language.empty() ? "FR" : options.language);
}

std::unique_ptr<TextFilter> keyboard_layout(const LayoutOptions& options) {
  const bool latin = options.to == Alphabet::kLatin;
  return std::make_unique<CharacterFilter>(CodePage::kRussian, [&](int byte) {
    std::array<char, 2> letter = {static_cast<char>(byte), '\0'};
    if (options.look_alike) {
      (latin ? strlat : strrus)(letter.data(), 0);
    } else {
      (latin ? strlatcase : strruscase)(letter.data());
    }
    return std::string(letter.data());
  });
}

}  // namespace kz::lexicon

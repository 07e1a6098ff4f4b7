// Transliteration and keyboard layout by the library's functions.
#include "tools/alphabet_commands.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "kz/special.h"
#include "kz/translit.h"
#include "lexicon/text/russian_text.h"
#include "tools/character_filter.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr const char* kDefaultLanguage = "FRRU";

using Letters = std::array<char, 4>;

std::optional<std::string> to_latin(int byte) {
  Letters letters{};
  return translitru(byte, letters.data());
}

std::optional<std::string> to_latin_capitals(int byte) {
  Letters letters{};
  return translitenru(byte, letters.data());
}

// Letters without a base letter are no Russian ones, although their bytes may read as such.
std::optional<std::string> to_russian(int byte, const std::string& language) {
  const int base = kz_codr_base_member(byte, language.c_str());
  if (base < 'a' || base > 'z') return std::nullopt;
  Letters letters{};
  return ::translit(byte, letters.data(), language.c_str(), 0);
}

class SmartFilter : public LineFilter {
 public:
  explicit SmartFilter(bool keep_capitals) : keep_capitals_(keep_capitals) {}

  void answer(const Block& block, std::string& out) override {
    const RussianText text(block.text);
    const std::string_view bytes = text.bytes();
    std::string made;
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
      append(std::string(bytes.substr(at, end - at)), made);
      const std::size_t next = std::min(bytes.find_first_not_of("\r\n", end), bytes.size());
      made += bytes.substr(end, next - end);
      at = next;
    }
    out += text.restore(made);
  }

 private:
  // Each line is a text of its own: words at its beginning and at its end have their own rules.
  void append(const std::string& line, std::string& made) const {
    if (line.empty()) return;
    const std::size_t size = made.size();
    made.resize(size + 2 * line.size() + 1);
    char* const begin = made.data() + size;
    const char* const end = strtransliterateenrusmart(line.c_str(), begin, keep_capitals_ ? 1 : 0);
    made.resize(size + static_cast<std::size_t>(end - begin));
  }

  bool keep_capitals_;
};

}  // namespace

void translit(const TranslitOptions& options) {
  if (options.to == "latin") {
    if (options.smart || !options.language.empty()) {
      throw Failure(Status::kUsage, "--smart and --language are for Latin text: --to russian");
    }
    CharacterFilter filter(CodePage::kRussian, options.capitals ? to_latin_capitals : to_latin);
    return run_filter(filter, options.filter);
  }
  if (options.capitals) throw Failure(Status::kUsage, "--capitals is for Russian text: --to latin");
  if (options.smart) {
    SmartFilter filter(!options.small_letters);
    return run_filter(filter, options.filter);
  }
  const std::string language = options.language.empty() ? kDefaultLanguage : options.language;
  CharacterFilter filter(CodePage::kWestern,
                         [&language](int byte) { return to_russian(byte, language); });
  run_filter(filter, options.filter);
}

void layout(const LayoutOptions& options) {
  const bool latin = options.to == "latin";
  CharacterFilter filter(CodePage::kRussian, [&](int byte) -> std::optional<std::string> {
    std::array<char, 2> letter = {static_cast<char>(byte), '\0'};
    if (options.look_alike) {
      (latin ? strlat : strrus)(letter.data(), 0);
    } else {
      (latin ? strlatcase : strruscase)(letter.data());
    }
    return letter.data();
  });
  run_filter(filter, options.filter);
}

}  // namespace kzdic

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

// How a letter sounds depends on a few letters around it, and on its place when that is among the
// first of the line. So a piece of a long line is made with what follows it, and behind blanks;
// what those give alone is taken off. A piece does not end behind a vowel, which would count, nor
// between letters that sound together; only without such a place among the last letters it ends
// anywhere.
class SmartFilter : public LineFilter {
 public:
  explicit SmartFilter(bool keep_capitals) : keep_capitals_(keep_capitals) {}

  std::size_t piece_size(std::string_view line, std::size_t offset) override {
    const std::size_t most = LineFilter::piece_size(line, offset);
    if (offset + most == line.size()) return most;
    for (std::size_t size = most; size > most - kAround; --size) {
      const std::string_view before = line.substr(offset + size - kAround, kAround);
      const std::string_view behind = line.substr(offset + size, kAround);
      if ((behind[0] & 0xC0) == 0x80 || kVowels.find(before.back()) != kVowels.npos) continue;
      const std::string made = sounded(std::string(before) + std::string(behind));
      if (made.ends_with(sounded(kBlanks + std::string(behind)).substr(kBlanks.size())))
        return size;
    }
    return most;
  }

  void answer(const Block& block, std::string& out) override {
    const RussianText text(block.text);
    const std::string_view bytes = text.bytes();
    const std::string behind = line_behind(block);
    std::string made;
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
      const std::string before =
          at == 0 && block.offset != 0 && !is_line_end(block.whole[block.offset - 1]) ? kBlanks
                                                                                      : "";
      append(before, std::string(bytes.substr(at, end - at)), end == bytes.size() ? behind : "",
             made);
      const std::size_t next = std::min(bytes.find_first_not_of("\r\n", end), bytes.size());
      made += bytes.substr(end, next - end);
      at = next;
    }
    out += text.restore(made);
  }

 private:
  static constexpr std::size_t kAround = 64;
  static constexpr std::string_view kVowels = "aeiouyAEIOUY";
  inline static const std::string kBlanks = "    ";

  static bool is_line_end(char c) { return c == '\r' || c == '\n'; }

  // What follows a piece in its line.
  static std::string line_behind(const Block& block) {
    const std::size_t at = std::min(block.offset + block.text.size(), block.whole.size());
    const std::string_view rest = block.whole.substr(at, kAround);
    return std::string(rest.substr(0, rest.find_first_of("\r\n")));
  }

  std::string sounded(const std::string& line) const {
    if (line.empty()) return {};
    std::string made(2 * line.size() + 1, '\0');
    const char* const end =
        strtransliterateenrusmart(line.c_str(), made.data(), keep_capitals_ ? 1 : 0);
    made.resize(static_cast<std::size_t>(end - made.data()));
    return made;
  }

  // Each line is a text of its own: words at its beginning and at its end have their own rules.
  void append(const std::string& before, const std::string& line, const std::string& behind,
              std::string& made) const {
    const std::size_t before_size = before.size();
    const std::size_t behind_size =
        behind.empty() ? 0 : sounded(kBlanks + behind).size() - kBlanks.size();
    const std::string all = sounded(before + line + behind);
    made.append(all, before_size, all.size() - before_size - behind_size);
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

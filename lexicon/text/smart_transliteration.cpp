// English words in Russian letters, as they sound.
#include <algorithm>

#include "kz/translit.h"
#include "lexicon/text/filter.h"
#include "lexicon/text/russian_text.h"
#include "lexicon/text/transliteration.h"

namespace kz::lexicon {
namespace {

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kVowels = "aeiouyAEIOUY";
constexpr std::size_t kAround = 64;
constexpr std::string_view kBlanks = "    ";

// How a letter sounds depends on a few letters around it, and on its place when that is among the
// first of the line. So a piece of a long line is made with what follows it, and after blanks; what
// those give alone is taken off. A piece does not end after a vowel, which would count, nor between
// letters that sound together; only without such a place among the last letters it ends anywhere.
class SmartTransliteration : public TextFilter {
 public:
  explicit SmartTransliteration(bool small_letters) : keeps_capitals_(small_letters ? 0 : 1) {}

  void append(std::string_view text, std::string& out) const override { append(text, "", "", out); }

  std::size_t append_piece(std::string_view line, std::size_t at, std::string& out) const override {
    const std::size_t size = separate_piece(line, at);
    const bool begins = at == 0 || kLineEnds.find(line[at - 1]) != kLineEnds.npos;
    const std::string_view after = line.substr(at + size, kAround);
    answer_piece(at, [&] {
      append(line.substr(at, size), std::string(begins ? "" : kBlanks),
             std::string(after.substr(0, after.find_first_of(kLineEnds))), out);
    });
    return size;
  }

 private:
  std::size_t separate_piece(std::string_view line, std::size_t at) const {
    const std::size_t most = piece_size(line, at);
    if (at + most == line.size()) return most;
    for (std::size_t size = most; size > most - kAround; --size) {
      const std::string_view before = line.substr(at + size - kAround, kAround);
      const std::string_view after = line.substr(at + size, kAround);
      if ((after[0] & 0xC0) == 0x80 || kVowels.find(before.back()) != kVowels.npos) continue;
      const std::string made = sounded(std::string(before) + std::string(after));
      if (made.ends_with(sounded_after_blanks(after))) return size;
    }
    return most;
  }

  // `before` and `after` are what the first and the last line are made with.
  void append(std::string_view utf8, const std::string& before, const std::string& after,
              std::string& out) const {
    const RussianText text(utf8);
    const std::string_view bytes = text.bytes();
    std::string made;
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t end = std::min(bytes.find_first_of(kLineEnds, at), bytes.size());
      append_line(at == 0 ? before : "", std::string(bytes.substr(at, end - at)),
                  end == bytes.size() ? after : "", made);
      const std::size_t next = std::min(bytes.find_first_not_of(kLineEnds, end), bytes.size());
      made += bytes.substr(end, next - end);
      at = next;
    }
    out += text.restore(made);
  }

  // Each line is a text of its own: words at its beginning and at its end have their own rules.
  void append_line(const std::string& before, const std::string& line, const std::string& after,
                   std::string& made) const {
    const std::size_t after_size = after.empty() ? 0 : sounded_after_blanks(after).size();
    const std::string all = sounded(before + line + after);
    made.append(all, before.size(), all.size() - before.size() - after_size);
  }

  std::string sounded_after_blanks(std::string_view text) const {
    return sounded(std::string(kBlanks).append(text)).substr(kBlanks.size());
  }

  std::string sounded(const std::string& line) const {
    if (line.empty()) return {};
    std::string made(2 * line.size() + 1, '\0');
    const char* const end = strtransliterateenrusmart(line.c_str(), made.data(), keeps_capitals_);
    made.resize(static_cast<std::size_t>(end - made.data()));
    return made;
  }

  std::int16_t keeps_capitals_;
};

}  // namespace

std::unique_ptr<TextFilter> smart_transliteration(bool small_letters) {
  return std::make_unique<SmartTransliteration>(small_letters);
}

}  // namespace kz::lexicon
